// Oru::PerUnitBitmap as the word list that views use and as a set of ports, stored in the object
// and on the heap.

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>
#include <random>
#include <set>
#include <stdexcept>
#include <vector>

#include "Morvo/VectorOutOfRange.h"
#include "Oru/PerUnitBitmap.h"

static unsigned allocations = 0;
void* operator new[](std::size_t size) {
  ++allocations;
  if (void* memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }

namespace {

using Oru::PerUnitBitmap;

std::vector<U32> portsOf(const PerUnitBitmap& bitmap) {
  std::vector<U32> ports;
  for (const U32 port : bitmap) ports.push_back(port);
  return ports;
}

TEST(PerUnitBitmap, wordList) {
  PerUnitBitmap bitmap;
  EXPECT_EQ(bitmap.wordCount(), 0U);
  bitmap.bitListIs(2, 0x80000001);
  EXPECT_EQ(bitmap.wordCount(), 3U);
  EXPECT_EQ(bitmap.word(0), 0U);
  EXPECT_EQ(portsOf(bitmap), (std::vector<U32>{64, 95}));
  bitmap.bitListIs(0, 1);
  EXPECT_EQ(bitmap.wordCount(), 3U);
  EXPECT_THROW(bitmap.word(3), Morvo::VectorOutOfRangeException);
}

TEST(PerUnitBitmap, sizedForPorts) {
  for (const U32 ports : {0U, 1U, 32U, 33U, 288U, 289U, 4096U}) {
    EXPECT_EQ(PerUnitBitmap(ports).wordCount(), (ports + 31) / 32) << ports;
    EXPECT_TRUE(portsOf(PerUnitBitmap(ports)).empty());
  }
}

TEST(PerUnitBitmap, refusesAnIndexWithoutACount) {
  PerUnitBitmap bitmap(32);
  EXPECT_THROW(bitmap.bitListIs(0xffffffff, 1), std::length_error);
  EXPECT_EQ(bitmap.wordCount(), 1U);
}

TEST(PerUnitBitmap, upTo288PortsWithoutAllocating) {
  allocations = 0;
  PerUnitBitmap bitmap(288);
  for (U32 port = 0; port < 288; ++port) bitmap.set(port);
  PerUnitBitmap copy = bitmap;
  copy = std::move(bitmap);
  EXPECT_TRUE(copy.test(287));
  EXPECT_EQ(allocations, 0U);
  copy.set(288);
  EXPECT_EQ(allocations, 1U);
}

TEST(PerUnitBitmap, againstASet) {
  std::mt19937 random(11);
  for (const U32 range : {40U, 300U, 2000U}) {
    PerUnitBitmap bitmap;
    std::set<U32> model;
    for (int step = 0; step < 3000; ++step) {
      const U32 port = static_cast<U32>(random() % range);
      if (random() % 3 == 0) {
        bitmap.clear(port);
        model.erase(port);
      } else {
        bitmap.set(port);
        model.insert(port);
      }
      ASSERT_EQ(bitmap.test(port), model.count(port) != 0);
      if (step % 100 != 0) continue;
      EXPECT_EQ(portsOf(bitmap), std::vector<U32>(model.begin(), model.end()));
      PerUnitBitmap other;
      other.set(1);
      other = bitmap;
      EXPECT_EQ(other, bitmap);
      const PerUnitBitmap moved = std::move(other);
      EXPECT_EQ(moved, bitmap);
      EXPECT_EQ(other.wordCount(), 0U);  // NOLINT: a moved-from bitmap is empty
      PerUnitBitmap& self = bitmap;
      bitmap = self;
      EXPECT_EQ(bitmap, moved);
    }
    EXPECT_FALSE(bitmap.test(0xffffffff));
    bitmap.clear(0xffffffff);
  }
}

TEST(PerUnitBitmap, equalityAndRangesAreOfPorts) {
  PerUnitBitmap bitmap(32);
  PerUnitBitmap longer(320);
  EXPECT_EQ(bitmap, longer);
  longer.set(319);
  EXPECT_NE(bitmap, longer);
  EXPECT_NE(longer, bitmap);
  EXPECT_STREQ(bitmap.ranges().c_str(), "");
  for (const U32 port : {0U, 1U, 2U, 3U, 17U, 31U, 32U, 300U}) bitmap.set(port);
  EXPECT_STREQ(bitmap.ranges().c_str(), "0-3,17,31-32,300");
}

}  // namespace
