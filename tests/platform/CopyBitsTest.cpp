// Detail::copyBits against a model that holds one bit in each byte: every copy that a view can
// issue, and random ones between any two buffers. Buffers are heap blocks of exactly their length,
// so that address sanitizing sees an access beyond them. On short buffers every copy there is goes
// against the proved loop, and the loop's merge of two bytes against its contract.

#include <gtest/gtest.h>

#include <array>
#include <cstring>
#include <memory>
#include <ostream>
#include <random>

#include "Detail/CopyBits.h"

namespace {

/// For each byte its bits, one in each byte of a number.
const auto spread = [] {
  std::array<U64, 256> table{};
  for (U32 bit = 0; bit < 8 * table.size(); ++bit) {
    table[bit / 8] |= U64{bit / 8 >> bit % 8 & 1U} << 8 * (bit % 8);
  }
  return table;
}();

/// A buffer of exactly `length` bytes beside its model.
class Buffer {
 public:
  explicit Buffer(int length)
      : length_(length), bytes_(new U8[count()]), model_(new U64[count()]) {}

  int length() const { return length_; }

  void fill(std::mt19937_64& random) {
    for (std::size_t i = 0; i < count(); ++i) {
      bytes_[i] = static_cast<U8>(random());
      model_[i] = spread[bytes_[i]];
    }
  }

  /// Copies in both and compares the whole buffer with its model.
  ::testing::AssertionResult copyFrom(const Buffer& src, int bits, int offset, int srcOffset) {
    std::memcpy(modelBits() + offset, src.modelBits() + srcOffset, static_cast<std::size_t>(bits));
    Detail::copyBits(bytes_.get(), length_, src.bytes_.get(), src.length_, bits, offset, srcOffset);
    bool same = true;
    for (std::size_t i = 0; i < count(); ++i) same &= spread[bytes_[i]] == model_[i];
    if (same) return ::testing::AssertionSuccess();
    return ::testing::AssertionFailure()
           << bits << " bits from " << srcOffset << " of " << src.length_ << " bytes to " << offset
           << " of " << length_ << " bytes";
  }

 private:
  std::size_t count() const { return static_cast<std::size_t>(length_); }
  U8* modelBits() const { return reinterpret_cast<U8*>(model_.get()); }

  int length_;
  std::unique_ptr<U8[]> bytes_;
  std::unique_ptr<U64[]> model_;
};

/// How a view moves a field: to or from bit 0 of a value of `bytes` bytes.
struct ValueKind {
  int bytes;
  int bitStep;  ///< the widths of such fields are multiples of this
};

std::ostream& operator<<(std::ostream& stream, const ValueKind& kind) {
  return stream << kind.bytes << "bytes";
}

class ViewCopies : public testing::TestWithParam<ValueKind> {};

TEST_P(ViewCopies, everyWidthAndOffsetOfEveryEntryLength) {
  const auto [bytes, bitStep] = GetParam();
  std::mt19937_64 random(1);
  Buffer written(bytes);
  Buffer read(bytes);
  read.fill(random);
  for (int length = 1; length <= 128; ++length) {
    Buffer entry(length);
    entry.fill(random);
    for (int bits = bitStep; bits <= 8 * std::min(bytes, length); bits += bitStep) {
      written.fill(random);
      for (int offset = 0; offset + bits <= 8 * length; ++offset) {
        ASSERT_TRUE(entry.copyFrom(written, bits, offset, 0));
        ASSERT_TRUE(read.copyFrom(entry, bits, 0, offset));
      }
    }
  }
}

// Scalars, raw data, and the nine words of a bitmap.
INSTANTIATE_TEST_SUITE_P(CopyBits, ViewCopies,
                         testing::Values(ValueKind{1, 1}, ValueKind{2, 1}, ValueKind{4, 1},
                                         ValueKind{8, 1}, ValueKind{16, 1}, ValueKind{36, 4}),
                         testing::PrintToStringParamName());

TEST(CopyBits, anyOffsetsOfAnyBuffers) {
  std::mt19937_64 random(3);
  const auto below = [&random](int end) {
    return static_cast<int>(random() % static_cast<U64>(end));
  };
  for (int round = 0; round < 200000; ++round) {
    Buffer dst(1 + below(40));
    Buffer src(1 + below(40));
    dst.fill(random);
    src.fill(random);
    const int dstBits = 8 * dst.length();
    const int srcBits = 8 * src.length();
    const int bits = below(std::min(dstBits, srcBits) + 1);
    ASSERT_TRUE(dst.copyFrom(src, bits, below(dstBits - bits + 1), below(srcBits - bits + 1)));
  }
}

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr int longest = 8;
#else
constexpr int longest = 16;
#endif
using Short = std::array<U8, longest>;

/// Copies by both ways; whatever lies beyond a shorter buffer must stay too.
bool isAsLoop(Short dst, int dstLength, const Short& src, int srcLength, int bits, int dstOffset,
              int srcOffset) {
  Short looped = dst;
  detailCopyBitsLoop(looped.data(), src.data(), bits, dstOffset, srcOffset);
  Detail::copyBits(dst.data(), dstLength, src.data(), srcLength, bits, dstOffset, srcOffset);
  return std::memcmp(dst.data(), looped.data(), longest) == 0;
}

/// Every copy of at least `fewest` bits between buffers of these lengths.
template <class Check>
::testing::AssertionResult everyCopy(int dstLength, int srcLength, int fewest, const Check& check) {
  for (int bits = fewest; bits <= 8 * std::min(dstLength, srcLength); ++bits) {
    for (int into = 0; into + bits <= 8 * dstLength; ++into) {
      for (int from = 0; from + bits <= 8 * srcLength; ++from) {
        if (check(bits, into, from)) continue;
        return ::testing::AssertionFailure()
               << bits << " bits from " << from << " of " << srcLength << " bytes to " << into
               << " of " << dstLength << " bytes";
      }
    }
  }
  return ::testing::AssertionSuccess();
}

TEST(CopyBits, everyCopyOfShortBuffersIsThatOfTheProvedLoop) {
  std::mt19937_64 random(4);
  Short dst;
  Short src;
  for (int dstLength = 1; dstLength <= longest; ++dstLength) {
    for (int srcLength = 1; srcLength <= longest; ++srcLength) {
      for (U8& byte : dst) byte = static_cast<U8>(random());
      for (U8& byte : src) byte = static_cast<U8>(random());
      ASSERT_TRUE(everyCopy(dstLength, srcLength, 0, [&](int bits, int into, int from) {
        return isAsLoop(dst, dstLength, src, srcLength, bits, into, from);
      }));
    }
  }
}

// Each source bit alone over zeros and its opposite over ones, and all bits together: in the copies
// that one window takes and in those that it does not.
TEST(CopyBits, eachBitAloneGoesWhereTheProvedLoopPutsIt) {
  for (const int length : {3, longest}) {
    const int fewest = length == 3 ? 1 : 8 * longest - 24;
    for (int bit = 0; bit <= 8 * length; ++bit) {
      Short src{};
      if (bit < 8 * length) src[static_cast<std::size_t>(bit / 8)] = static_cast<U8>(1 << bit % 8);
      Short opposite = src;
      for (U8& byte : opposite) byte = static_cast<U8>(~byte);
      Short zeros{};
      Short ones;
      ones.fill(0xff);
      ASSERT_TRUE(everyCopy(length, length, fewest,
                            [&](int bits, int into, int from) {
                              return isAsLoop(zeros, length, src, length, bits, into, from) &&
                                     isAsLoop(ones, length, opposite, length, bits, into, from) &&
                                     isAsLoop(ones, length, src, length, bits, into, from);
                            }))
          << "bit " << bit;
    }
  }
}

TEST(MergeBits, everyInputIsAsTheContractOfTheLoopSays) {
  const auto bitsOf = [](int byte, int bit, int count) { return byte >> bit & ((1 << count) - 1); };
  for (int count = 1; count <= 8; ++count) {
    for (int into = 0; into <= 8 - count; ++into) {
      for (int from = 0; from <= 8 - count; ++from) {
        for (int pair = 0; pair < 1 << 16; ++pair) {
          const int old = pair >> 8;
          const int add = pair & 0xff;
          const int merged =
              detailMergeBits(static_cast<U8>(old), static_cast<U8>(add), count, into, from);
          const int above = into + count;
          ASSERT_TRUE(bitsOf(merged, into, count) == bitsOf(add, from, count) &&
                      bitsOf(merged, 0, into) == bitsOf(old, 0, into) &&
                      bitsOf(merged, above, 8 - above) == bitsOf(old, above, 8 - above))
              << old << ' ' << add << ' ' << count << ' ' << into << ' ' << from;
        }
      }
    }
  }
}

}  // namespace
