#pragma once

#include <cstddef>

namespace Morvo::Impl {
[[noreturn]] void throwVectorOutOfRangeException(std::size_t index, std::size_t count);
}
