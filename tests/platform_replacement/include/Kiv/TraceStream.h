#pragma once

#include <cstdio>
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
  std::string text() const { return text_.str(); }

 private:
  std::ostringstream text_;
};

/// Prints its line when it ends: another policy than that of the stand-ins.
class Line {
 public:
  explicit Line(const char* what) : what_(what) {}
  ~Line() { std::fprintf(stderr, "%s: %s\n", what_, stream_.text().c_str()); }
  TraceStream& stream() { return stream_; }

 private:
  const char* what_;
  TraceStream stream_;
};

}  // namespace Kiv
