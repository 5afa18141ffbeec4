#include "Morvo/String.h"

#include <cstring>
#include <utility>

namespace Morvo {

String::String(const char* text) : String(text, std::strlen(text)) {}

String::String(const char* text, std::size_t length) : length_(length) {
  if (length == 0) return;
  text_ = new char[length + 1];
  std::memcpy(text_, text, length);
  text_[length] = '\0';
}

String::String(const String& other) : String(other.c_str(), other.size()) {}

String::String(String&& other) noexcept
    : text_(std::exchange(other.text_, nullptr)), length_(std::exchange(other.length_, 0)) {}

String& String::operator=(String other) noexcept {
  std::swap(text_, other.text_);
  std::swap(length_, other.length_);
  return *this;
}

String::~String() { delete[] text_; }

bool operator==(const String& a, const String& b) {
  return a.size() == b.size() && std::memcmp(a.c_str(), b.c_str(), a.size()) == 0;
}

}  // namespace Morvo
