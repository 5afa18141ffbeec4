#pragma once

#include <cstdint>

// Number and raw types. Their names are global because trace lines and assertion reports print
// function signatures, with these types unqualified.

using U8 = std::uint8_t;
using U16 = std::uint16_t;
using U32 = std::uint32_t;
using U64 = std::uint64_t;
using S32 = std::int32_t;

/// A plain container of BITS bits in 32-bit words: bit n is bit n % 32 of words[n / 32].
template <unsigned BITS>
struct RawBits {
  static constexpr unsigned wordCount = BITS / 32;

  U32 words[wordCount];

  constexpr bool bit(unsigned n) const { return (words[n / 32] >> (n % 32) & 1U) != 0; }

  friend bool operator==(const RawBits& a, const RawBits& b) {
    for (unsigned i = 0; i < wordCount; ++i) {
      if (a.words[i] != b.words[i]) return false;
    }
    return true;
  }
  friend bool operator!=(const RawBits& a, const RawBits& b) { return !(a == b); }
};

struct Raw128 : RawBits<128> {};
struct Raw256 : RawBits<256> {};
struct Raw512 : RawBits<512> {};
struct Raw1024 : RawBits<1024> {};
struct Raw8192 : RawBits<8192> {};
