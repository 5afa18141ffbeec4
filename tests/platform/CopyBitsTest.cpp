// Detail::copyBits against a bit-by-bit model.

#include <gtest/gtest.h>

#include <random>

#include "Detail/CopyBits.h"

namespace {

TEST(CopyBits, againstAModel) {
  std::mt19937 random(3);
  for (int round = 0; round < 200000; ++round) {
    const int dstLen = 1 + static_cast<int>(random() % 40);
    const int srcLen = 1 + static_cast<int>(random() % 40);
    const int most = 8 * std::min(dstLen, srcLen);
    const int bits = static_cast<int>(random() % (static_cast<unsigned>(most) + 1));
    const int dstOffset = static_cast<int>(random() % static_cast<unsigned>(8 * dstLen - bits + 1));
    const int srcOffset = static_cast<int>(random() % static_cast<unsigned>(8 * srcLen - bits + 1));
    std::vector<U8> dst(static_cast<std::size_t>(dstLen));
    std::vector<U8> src(static_cast<std::size_t>(srcLen));
    for (U8& byte : dst) byte = static_cast<U8>(random());
    for (U8& byte : src) byte = static_cast<U8>(random());
    std::vector<U8> expected = dst;
    for (int i = 0; i < bits; ++i) {
      const std::size_t from = static_cast<std::size_t>(srcOffset + i);
      const std::size_t into = static_cast<std::size_t>(dstOffset + i);
      const U8 mask = static_cast<U8>(1U << into % 8);
      const bool bit = (src[from / 8] >> from % 8 & 1) != 0;
      expected[into / 8] =
          static_cast<U8>(bit ? expected[into / 8] | mask : expected[into / 8] & ~mask);
    }
    Detail::copyBits(dst.data(), dstLen, src.data(), srcLen, bits, dstOffset, srcOffset);
    ASSERT_EQ(dst, expected) << dstLen << " " << srcLen << " " << bits << " " << dstOffset << " "
                             << srcOffset;
  }
}

}  // namespace
