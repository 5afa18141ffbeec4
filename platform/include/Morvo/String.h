#pragma once

#include <cstddef>

#include "AsicUtils/Export.h"

namespace Morvo {

/// An immutable text that owns its characters. Deliberately small: it is used in interfaces
/// whose headers must stay cheap to include.
class VELMAR_PLATFORM_EXPORT String {
 public:
  String() = default;
  String(const char* text);  // NOLINT(google-explicit-constructor): texts convert
  String(const char* text, std::size_t length);
  String(const String& other);
  String(String&& other) noexcept;
  String& operator=(String other) noexcept;
  ~String();

  /// The characters, zero-terminated.
  const char* c_str() const { return text_ != nullptr ? text_ : ""; }
  /// Length in characters, without the terminator.
  std::size_t size() const { return length_; }
  bool empty() const { return length_ == 0; }

  friend VELMAR_PLATFORM_EXPORT bool operator==(const String& a, const String& b);
  friend bool operator!=(const String& a, const String& b) { return !(a == b); }

 private:
  char* text_ = nullptr;
  std::size_t length_ = 0;
};

}  // namespace Morvo
