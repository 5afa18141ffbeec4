#pragma once

#include <cstddef>

#include "AsicUtils/Types.h"
#include "Velmar/Export.h"

namespace Velmar {

static_assert(__cplusplus >= 201703L, "Velmar/Span.h needs C++17");

/// Consecutive elements that somebody else owns, such as the words of an entry.
template <class T>
class VELMAR_EXPORT Span {
 public:
  constexpr Span() = default;
  constexpr Span(const T* data, std::size_t size) : data_(data), size_(size) {}
  /// All elements of a container that keeps them one after the other.
  template <class Container,
            class = decltype(static_cast<const T*>(static_cast<const Container*>(nullptr)->data()))>
  constexpr Span(const Container& container)  // NOLINT(google-explicit-constructor)
      : data_(container.data()), size_(container.size()) {}

  constexpr const T* data() const { return data_; }
  constexpr std::size_t size() const { return size_; }
  constexpr const T* begin() const { return data_; }
  constexpr const T* end() const { return data_ + size_; }
  constexpr const T& operator[](std::size_t index) const { return data_[index]; }

  friend constexpr bool operator==(const Span& a, const Span& b) {
    if (a.size_ != b.size_) return false;
    for (std::size_t i = 0; i < a.size_; ++i) {
      if (a.data_[i] != b.data_[i]) return false;
    }
    return true;
  }
  friend constexpr bool operator!=(const Span& a, const Span& b) { return !(a == b); }

 private:
  const T* data_ = nullptr;
  std::size_t size_ = 0;
};

/// 32-bit words, lowest first.
using Words = Span<U32>;

}  // namespace Velmar
