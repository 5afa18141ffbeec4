// Morvo's string and exception, and maskBuf.

#include <gtest/gtest.h>

#include <cstring>
#include <utility>

#include "Detail/MaskBuf.h"
#include "Morvo/String.h"
#include "Morvo/VectorOutOfRange.h"

namespace {

TEST(String, ownsItsText) {
  char text[] = "abc";
  Morvo::String a(text);
  text[0] = 'x';
  EXPECT_STREQ(a.c_str(), "abc");
  Morvo::String b = a;
  const Morvo::String c = std::move(a);
  EXPECT_TRUE(a.empty());  // NOLINT: a moved-from text is empty
  EXPECT_EQ(b, c);
  b = Morvo::String("abd");
  EXPECT_NE(b, c);
  EXPECT_EQ(Morvo::String("a\0b", 3).size(), 3U);
}

TEST(VectorOutOfRange, hasAText) {
  try {
    Morvo::Impl::throwVectorOutOfRangeException(4, 3);
  } catch (const std::out_of_range& exception) {
    EXPECT_STREQ(exception.what(), "index 4 is out of range: the list has 3 elements");
  }
}

TEST(MaskBuf, wordsThatNothingReachesAreZero) {
  // The source begins at an odd address and ends with its buffer.
  U8 bytes[9];
  std::memset(bytes, 0xff, sizeof(bytes));
  const U32* source = reinterpret_cast<const U32*>(bytes + 1);
  const U32 mask[3] = {0x0000ffff, 0x80000000, 0xffffffff};
  U32 result[4] = {1, 2, 3, 4};
  maskBuf(source, 2, result, 4, mask, 3);
  const U32 expected[4] = {0x0000ffff, 0x80000000, 0, 0};
  EXPECT_EQ(std::memcmp(result, expected, sizeof(result)), 0);
}

}  // namespace
