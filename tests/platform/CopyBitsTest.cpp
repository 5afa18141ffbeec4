// The bit copy. The actual code runs on symbolic bits, which have a name and no value, for every
// copy that a view can issue and every copy between short buffers: a result for names is one for
// all data. Real values are compared with the proved loop, in heap blocks of exactly their length,
// so that the address sanitizer sees an access beyond them. The loop's merge of two bytes is
// checked against its contract.

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <ostream>
#include <random>
#include <stdexcept>
#include <vector>

#include "Detail/CopyBits.h"
#include "proofs/CopyBitsLoop.h"

namespace {

constexpr U32 planeCount = 11;

/// 64 bits, each 0 or the name of one bit of a buffer: plane p holds bit p of their names. It does
/// not convert to a number, so that a copy can neither branch nor index on data.
struct Word {
  std::array<U64, planeCount> planes{};
};

template <class Change>
Word inEachPlane(Word word, const Change& change) {
  for (U64& plane : word.planes) plane = change(plane);
  return word;
}

Word operator&(const Word& word, U64 mask) {
  return inEachPlane(word, [mask](U64 plane) { return plane & mask; });
}

U32 provedShift(U32 count) {
  return count < 64 ? count : throw std::out_of_range("shifts a word by its width");
}

Word operator<<(const Word& word, U32 count) {
  return inEachPlane(word, [by = provedShift(count)](U64 plane) { return plane << by; });
}

Word operator>>(const Word& word, U32 count) {
  return inEachPlane(word, [by = provedShift(count)](U64 plane) { return plane >> by; });
}

Word operator|(Word a, const Word& b) {
  U64 inA = 0;
  U64 inB = 0;
  U64 differing = 0;
  for (U32 i = 0; i < planeCount; ++i) {
    inA |= a.planes[i];
    inB |= b.planes[i];
    differing |= a.planes[i] ^ b.planes[i];
    a.planes[i] |= b.planes[i];
  }
  if ((inA & inB & differing) != 0) throw std::logic_error("joins two bits into one");
  return a;
}

/// A buffer of `length` bytes, at most `size`, whose bits have names.
template <U32 size>
struct Buffer {
  U32 length;
  std::array<std::array<U8, size>, planeCount> planes{};

  Buffer(U32 bytes, U32 firstName) : length(bytes) {
    for (U32 bit = 0; bit < 8 * length; ++bit) rename(bit, firstName + bit);
  }

  void rename(U32 bit, U32 name) {
    for (U32 i = 0; i < planeCount; ++i) {
      U8& byte = planes[i][bit / 8];
      byte = static_cast<U8>((byte & ~(1U << bit % 8)) | (name >> i & 1U) << bit % 8);
    }
  }
};

/// A position in a buffer, which the copy uses as a pointer.
template <class B>
struct Place {
  B* buffer;
  U32 at;

  Place operator+(U32 bytes) const { return {buffer, at + bytes}; }
  auto* bytes(U32 plane, U32 count) const {
    if (at + count > buffer->length) throw std::out_of_range("leaves a buffer");
    return buffer->planes[plane].data() + at;
  }
};

template <int count, class B>
Word loadBytes(Place<B> from) {
  Word word;
  for (U32 i = 0; i < planeCount; ++i) std::memcpy(&word.planes[i], from.bytes(i, count), count);
  return word;
}

template <int count, class B>
void storeBytes(Place<B> into, const Word& word) {
  for (U32 i = 0; i < planeCount; ++i) std::memcpy(into.bytes(i, count), &word.planes[i], count);
}

/// The copies of `step`, 2 * `step` and so on up to `most` bits from bit `from` to bit `into`, each
/// into the original `dst`.
template <U32 dstSize, U32 srcSize>
void checkCopies(const Buffer<dstSize>& dst, const Buffer<srcSize>& src, U32 srcName, U32 into,
                 U32 from, U32 most, U32 step = 1) {
  Buffer<dstSize> expected = dst;
  for (U32 bits = 1; bits <= most; ++bits) {
    expected.rename(into + bits - 1, srcName + from + bits - 1);
    if (bits % step != 0) continue;
    const auto place = [&] {
      return ::testing::Message() << bits << " bits from " << from << " of " << src.length
                                  << " bytes to " << into << " of " << dst.length << " bytes";
    };
    Buffer<dstSize> copied = dst;
    try {
      Detail::moveBits(Place<Buffer<dstSize>>{&copied, 0}, dst.length,
                       Place<const Buffer<srcSize>>{&src, 0}, src.length, bits, into, from);
    } catch (const std::logic_error& error) {
      FAIL() << place() << ": " << error.what();
    }
    ASSERT_TRUE(copied.planes == expected.planes) << place();
  }
}

/// How a view moves a field: to or from bit 0 of a value of `bytes` bytes.
struct ValueKind {
  U32 bytes;
  U32 bitStep;  ///< the widths of such fields are multiples of this
};

std::ostream& operator<<(std::ostream& stream, const ValueKind& kind) {
  return stream << kind.bytes << "bytes";
}

class NamedBits : public testing::TestWithParam<ValueKind> {};

TEST_P(NamedBits, goWhereTheyBelongInEveryCopyOfAView) {
  const auto [bytes, bitStep] = GetParam();
  constexpr U32 entryName = 1 + 8 * 36;
  const Buffer<36> value(bytes, 1);
  for (U32 length = 1; length <= 128; ++length) {
    const Buffer<128> entry(length, entryName);
    for (U32 offset = 0; offset < 8 * length; ++offset) {
      const U32 most = std::min(8 * bytes, 8 * length - offset);
      checkCopies(value, entry, entryName, 0, offset, most, bitStep);
      checkCopies(entry, value, 1, offset, 0, most, bitStep);
      ASSERT_FALSE(HasFatalFailure());
    }
  }
}

// Scalars, raw data, and the nine words of a bitmap.
INSTANTIATE_TEST_SUITE_P(CopyBits, NamedBits,
                         testing::Values(ValueKind{1, 1}, ValueKind{2, 1}, ValueKind{4, 1},
                                         ValueKind{8, 1}, ValueKind{16, 1}, ValueKind{36, 4}),
                         testing::PrintToStringParamName());

TEST(NamedBits, goWhereTheyBelongInEveryCopyOfShortBuffers) {
  constexpr U32 longest = 16;
  constexpr U32 srcName = 1 + 8 * longest;
  for (U32 dstLength = 1; dstLength <= longest; ++dstLength) {
    for (U32 srcLength = 1; srcLength <= longest; ++srcLength) {
      const Buffer<longest> dst(dstLength, 1);
      const Buffer<longest> src(srcLength, srcName);
      for (U32 into = 0; into < 8 * dstLength; ++into) {
        for (U32 from = 0; from < 8 * srcLength; ++from) {
          const U32 most = std::min(8 * dstLength - into, 8 * srcLength - from);
          checkCopies(dst, src, srcName, into, from, most);
        }
        ASSERT_FALSE(HasFatalFailure());
      }
    }
  }
}

TEST(CopyBits, valuesGoWhereTheProvedLoopPutsThem) {
  std::mt19937_64 random(3);
  const auto below = [&random](int end) {
    return static_cast<int>(random() % static_cast<U64>(end));
  };
  const auto randomBytes = [&] {
    std::vector<U8> bytes(static_cast<std::size_t>(1 + below(40)));
    for (U8& byte : bytes) byte = static_cast<U8>(random());
    return bytes;
  };
  for (int round = 0; round < 200000; ++round) {
    std::vector<U8> dst = randomBytes();
    const std::vector<U8> src = randomBytes();
    const int dstLength = static_cast<int>(dst.size());
    const int srcLength = static_cast<int>(src.size());
    const int bits = below(8 * std::min(dstLength, srcLength) + 1);
    const int into = below(8 * dstLength - bits + 1);
    const int from = below(8 * srcLength - bits + 1);
    std::vector<U8> looped = dst;
    detailCopyBitsLoop(looped.data(), src.data(), bits, into, from);
    Detail::copyBits(dst.data(), dstLength, src.data(), srcLength, bits, into, from);
    ASSERT_EQ(dst, looped) << bits << " bits from " << from << " to " << into;
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
