// Every field on every chip, written and read back in a buffer of exactly the bytes that it needs,
// and in one with room for whole windows, against a bit-by-bit model: all ones, all zeros, random
// values and each bit alone, over both backgrounds; the bits around the field must not change. Buffers
// are heap blocks, some at odd addresses, and blocks that end or start at a protected page, where an
// access beyond them ends the program.

#include <sys/mman.h>
#include <unistd.h>

#include <memory>
#include <random>
#include <stdexcept>

#include "Morvo/VectorOutOfRange.h"
#include "support/Sweep.h"

namespace VelmarTest {
namespace {

bool bitOf(const U8* bytes, U32 bit) { return (bytes[bit / 8] >> bit % 8 & 1) != 0; }

/// A page between two protected ones.
class GuardedPage {
 public:
  GuardedPage() {
    void* pages = mmap(nullptr, 3 * size_, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    if (pages == MAP_FAILED) throw std::runtime_error("no pages");
    start_ = static_cast<U8*>(pages) + size_;
    if (mprotect(start_, size_, PROT_READ | PROT_WRITE) != 0) throw std::runtime_error("no page");
  }
  ~GuardedPage() { munmap(start_ - size_, 3 * size_); }
  GuardedPage(const GuardedPage&) = delete;
  GuardedPage& operator=(const GuardedPage&) = delete;

  U8* atStart() const { return start_; }
  U8* atEnd(std::size_t bytes) const { return start_ + size_ - bytes; }

 private:
  std::size_t size_ = static_cast<std::size_t>(sysconf(_SC_PAGESIZE));
  U8* start_;
};

std::size_t bytesFor(GoldenField::Place place) { return (place.offset + place.width + 7) / 8; }

void checkRoundTrip(const ClassProbe& probe, const FieldProbe& field, U32 chip,
                    GoldenField::Place place, const Words& value, U8 background, U8* buffer,
                    std::size_t room = 0) {
  const std::size_t size = bytesFor(place) + room;
  std::fill_n(buffer, size, background);
  const auto view = probe.make(chip, buffer, static_cast<U16>(size), 0);
  field.set(*view, value);
  for (U32 bit = 0; bit < 8 * size; ++bit) {
    const bool isInside = bit >= place.offset && bit < place.offset + place.width;
    const U32 at = bit - place.offset;
    const bool expected = isInside ? (value[at / 32] >> at % 32 & 1) != 0 : (background & 1) != 0;
    ASSERT_EQ(bitOf(buffer, bit), expected) << "bit " << bit;
  }
  const Words read = field.get(*view);
  ASSERT_GE(32 * read.size(), place.width);
  if (field.type == "bitmap") ASSERT_EQ(read.size(), (place.width + 31) / 32);
  for (U32 bit = 0; bit < 32 * read.size(); ++bit) {
    const bool expected = bit < place.width && (value[bit / 32] >> bit % 32 & 1) != 0;
    ASSERT_EQ((read[bit / 32] >> bit % 32 & 1) != 0, expected) << "value bit " << bit;
  }
}

class RoundTrip : public testing::TestWithParam<std::size_t> {};

TEST_P(RoundTrip, exactAndRoomyBuffers) {
  const ClassProbe& probe = classProbes()[GetParam()];
  const GuardedPage page;
  std::mt19937 random(7);
  for (const GoldenField& expected : goldenClass(probe.name).fields) {
    const FieldProbe& field = probe.field(expected.accessor);
    for (const auto& [chip, place] : expected.places) {
      SCOPED_TRACE(probe.name + " " + field.accessor + " chip " + std::to_string(chip));
      Words ones((place.width + 31) / 32, 0xffffffffU);
      // A value check applies to whole scalar values, so bits above the width stay zero there.
      if (field.isScalar() && place.width % 32 != 0) ones.back() >>= 32 - place.width % 32;
      Words some = ones;
      for (U32& word : some) word &= static_cast<U32>(random());
      const std::size_t bytes = bytesFor(place);
      const std::unique_ptr<U8[]> heap(new U8[bytes]);
      const std::unique_ptr<U8[]> oddHeap(new U8[bytes + 1]);
      for (const Words& value : {ones, Words(ones.size(), 0), some}) {
        for (const U8 background : {U8{0x00}, U8{0xff}}) {
          for (U8* buffer : {heap.get(), oddHeap.get() + 1, page.atStart(), page.atEnd(bytes)}) {
            checkRoundTrip(probe, field, chip, place, value, background, buffer);
          }
          checkRoundTrip(probe, field, chip, place, value, background, page.atStart(), 8);
        }
      }
      // Windows and bitmaps only shift and mask: each bit alone shows where it goes.
      for (U32 bit = 0; bit < place.width; ++bit) {
        Words one(ones.size(), 0);
        one[bit / 32] = 1U << bit % 32;
        for (const U8 background : {U8{0x00}, U8{0xff}}) {
          checkRoundTrip(probe, field, chip, place, one, background, heap.get());
          checkRoundTrip(probe, field, chip, place, one, background, page.atStart(), 8);
        }
      }
      if (HasFatalFailure()) return;
    }
  }
}

VELMAR_SWEEP_CLASSES(RoundTrip);

/// The bits of an empty entry after its bitmap was set to all ones with a value of `given` words,
/// more or fewer than the field has.
void expectOnes(const ClassProbe& probe, const FieldProbe& field, U32 chip,
                GoldenField::Place place, U32 given) {
  const U32 words = (place.width + 31) / 32;
  std::vector<U8> buffer(256, 0);
  try {
    field.set(*probe.make(chip, buffer.data(), 256, 0), Words(given, 0xffffffffU));
    EXPECT_GE(given, words) << "no exception";
  } catch (const Morvo::VectorOutOfRangeException& exception) {
    EXPECT_LT(given, words);
    EXPECT_EQ(exception.index(), given);
    EXPECT_EQ(exception.count(), given);
  }
  const U32 last = place.offset + std::min(32 * given, place.width);
  for (U32 bit = 0; bit < 8U * 256; ++bit) {
    ASSERT_EQ(bitOf(buffer.data(), bit), bit >= place.offset && bit < last);
  }
}

TEST(Bitmaps, tooFewWordsThrowAfterTheWordsThereAreAndSurplusIsIgnored) {
  onEveryChip([](const ClassProbe& probe, const GoldenClass& golden, U32 chip) {
    for (const GoldenField& expected : golden.fields) {
      if (expected.type != "bitmap" || expected.places.count(chip) == 0) continue;
      const GoldenField::Place place = expected.places.at(chip);
      for (U32 given = 0; given <= place.width / 32 + 3; ++given) {
        expectOnes(probe, probe.field(expected.accessor), chip, place, given);
      }
    }
  });
}

}  // namespace
}  // namespace VelmarTest
