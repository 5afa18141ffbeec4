#pragma once

#include <sstream>

#include "AsicUtils/Types.h"

namespace Kiv {

class TraceStream {
 public:
  template <class T>
  TraceStream& operator<<(const T& value) {
    text_ << +value;
    return *this;
  }
  TraceStream& operator<<(const char* text) { return text_ << text, *this; }
  std::string text() const { return text_.str(); }

 private:
  std::ostringstream text_;
};

}  // namespace Kiv
