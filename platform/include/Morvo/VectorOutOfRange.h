#pragma once

#include <cstddef>
#include <stdexcept>

#include "AsicUtils/Export.h"

namespace Morvo {

/// Thrown if an index is not below the number of elements of a list.
class VELMAR_PLATFORM_EXPORT VectorOutOfRangeException : public std::out_of_range {
 public:
  VectorOutOfRangeException(std::size_t index, std::size_t count);
  ~VectorOutOfRangeException() override;

  std::size_t index() const { return index_; }
  std::size_t count() const { return count_; }

 private:
  std::size_t index_;
  std::size_t count_;
};

namespace Impl {

/// Throws a VectorOutOfRangeException for `index` in a list of `count` elements.
[[noreturn]] VELMAR_PLATFORM_EXPORT void throwVectorOutOfRangeException(std::size_t index,
                                                                        std::size_t count);

}  // namespace Impl
}  // namespace Morvo
