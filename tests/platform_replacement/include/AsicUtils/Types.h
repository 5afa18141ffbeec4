#pragma once

#include <cassert>
#include <cstdint>

typedef std::uint8_t U8;
typedef std::uint16_t U16;
typedef std::uint32_t U32;
typedef std::uint64_t U64;
typedef std::int32_t S32;

template <int WORDS>
struct RawWords {
  U32 words[WORDS];
};
struct Raw128 : RawWords<4> {};
struct Raw256 : RawWords<8> {};
struct Raw512 : RawWords<16> {};
struct Raw1024 : RawWords<32> {};
struct Raw8192 : RawWords<256> {};
