// Every field on every chip, written and read back in a buffer of exactly the bytes that it needs,
// against a bit-by-bit model: all ones, all zeros and random values over both backgrounds; the bits
// around the field stay. Buffers are heap blocks, some at odd addresses, and such as end or start
// at a protected page, where an access beyond them ends the program.

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <memory>
#include <random>
#include <stdexcept>

#include "Morvo/VectorOutOfRange.h"
#include "support/ClassProbes.h"
#include "support/GoldenData.h"

namespace VelmarTest {
namespace {

bool bitOf(const U8* bytes, U32 bit) { return (bytes[bit / 8] >> bit % 8 & 1) != 0; }

/// A page between two that nobody may touch.
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
                    GoldenField::Place place, const Words& value, U8 background, U8* buffer) {
  const std::size_t size = bytesFor(place);
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

TEST_P(RoundTrip, exactBuffers) {
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
        }
      }
      if (HasFatalFailure()) return;
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Classes, RoundTrip, testing::Range(std::size_t{0}, std::size_t{27}),
                         [](const testing::TestParamInfo<std::size_t>& each) {
                           return classProbes()[each.param].name;
                         });

TEST(Bitmaps, tooFewWordsThrowAfterTheWordsThereAre) {
  for (const ClassProbe& probe : classProbes()) {
    for (const GoldenField& expected : goldenClass(probe.name).fields) {
      if (expected.type != "bitmap") continue;
      const FieldProbe& field = probe.field(expected.accessor);
      for (const auto& [chip, place] : expected.places) {
        const U32 words = (place.width + 31) / 32;
        for (U32 given = 0; given < words; ++given) {
          std::vector<U8> buffer(256, 0);
          const auto view = probe.make(chip, buffer.data(), 256, 0);
          try {
            field.set(*view, Words(given, 0xffffffffU));
            FAIL() << "no exception";
          } catch (const Morvo::VectorOutOfRangeException& exception) {
            EXPECT_EQ(exception.index(), given);
            EXPECT_EQ(exception.count(), given);
          }
          for (U32 bit = 0; bit < 8U * 256; ++bit) {
            const bool isWritten = bit >= place.offset && bit < place.offset + 32 * given;
            ASSERT_EQ(bitOf(buffer.data(), bit), isWritten);
          }
        }
        // Surplus words are ignored.
        std::vector<U8> buffer(256, 0);
        field.set(*probe.make(chip, buffer.data(), 256, 0), Words(words + 3, 0xffffffffU));
        for (U32 bit = 0; bit < 8U * 256; ++bit) {
          ASSERT_EQ(bitOf(buffer.data(), bit),
                    bit >= place.offset && bit < place.offset + place.width);
        }
      }
    }
  }
}

TEST(Overlaps, oneFieldIsSeenThroughTheOthers) {
  U8 buffer[16] = {};
  Velmar::IngVpVlanMembershipEntry entry(BCM56470_A0, buffer, 8, false, 0);
  const U64 key = 0xabcdef123;
  entry.keyIs(key);
  EXPECT_EQ(entry.keyType(), key & 3);
  EXPECT_EQ(entry.vlan(), key >> 2 & 0xfff);
  EXPECT_EQ(entry.hashLsb(), key >> 2 & 0x7ff);
  EXPECT_EQ(entry.vp(), key >> 16 & 0x7fff);

  Velmar::EgrVpVlanMembershipEntry egress(BCM56470_A0, buffer, 8, false, 0);
  egress.dataIs(7);
  EXPECT_EQ(egress.spTree(), 3);
  EXPECT_EQ(egress.untag(), 1);

  U8 profile[8] = {};
  Velmar::VfiProfileEntry vfi(BCM56870_A0, profile, 8, false, 0);
  vfi.pktFlowSelectCtrlId2Is(0xffff);
  EXPECT_EQ(vfi.ipmcv4L2Enable(), 1);
  EXPECT_EQ(vfi.ipmcv6L2Enable(), 1);
  vfi.pktFlowSelectCtrlId2Is(0);
  vfi.ipmcv4L2EnableIs(1);
  EXPECT_EQ(vfi.pktFlowSelectCtrlId2(), 2);

  U8 ecc[12] = {};
  Velmar::IngVpVlanMembershipEccEntry raw(BCM56470_A0, ecc, 12, false, 0);
  Raw128 all{};
  for (U32& word : all.words) word = 0xffffffffU;
  raw.eccDataIs(all);
  EXPECT_EQ(raw.ecc(), 0);
  EXPECT_EQ(raw.parity(), 0);
  raw.eccpIs(0xff);
  EXPECT_EQ(raw.ecc(), 0x7f);
  EXPECT_EQ(raw.parity(), 1);
}

}  // namespace
}  // namespace VelmarTest
