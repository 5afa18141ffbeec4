#pragma once

#include <cstdio>

#include "Kiv/TraceStream.h"

namespace Kiv {

class TraceHandle {
 public:
  explicit constexpr TraceHandle(const char*) {}
  bool mayBeEnabled(U32 level) const { return level == 0; }
  bool isEnabled(U32 level) { return level == 0; }
};

class TraceHelper {
 public:
  TraceHelper(const TraceHandle&, U32, const char*, U32, const char* function)
      : function_(function) {}
  ~TraceHelper() { std::fprintf(stderr, "%s: %s\n", function_, stream_.text().c_str()); }
  TraceStream& stream() { return stream_; }

 private:
  const char* function_;
  TraceStream stream_;
};

}  // namespace Kiv
