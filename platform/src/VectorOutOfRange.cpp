#include "Morvo/VectorOutOfRange.h"

#include <string>

namespace Morvo {

VectorOutOfRangeException::VectorOutOfRangeException(std::size_t index, std::size_t count)
    : std::out_of_range("index " + std::to_string(index) + " is out of range: the list has " +
                        std::to_string(count) + " elements"),
      index_(index),
      count_(count) {}

VectorOutOfRangeException::~VectorOutOfRangeException() = default;

namespace Impl {

void throwVectorOutOfRangeException(std::size_t index, std::size_t count) {
  throw VectorOutOfRangeException(index, count);
}

}  // namespace Impl
}  // namespace Morvo
