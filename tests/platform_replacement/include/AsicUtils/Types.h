#pragma once

#include <cassert>
#include <cstdint>

typedef std::uint8_t U8;
typedef std::uint16_t U16;
typedef std::uint32_t U32;
typedef std::uint64_t U64;
typedef std::int32_t S32;

// clang-format off
struct Raw128 { U32 words[4]; };
struct Raw256 { U32 words[8]; };
struct Raw512 { U32 words[16]; };
struct Raw1024 { U32 words[32]; };
struct Raw8192 { U32 words[256]; };
