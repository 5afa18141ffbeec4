#pragma once

#include "Kiv/TraceStream.h"

namespace Kiv {

class SassertHelper {
 public:
  SassertHelper(const char* expression, const char*, U32, const char* function)
      : expression_(expression), function_(function) {}
  ~SassertHelper();
  TraceStream& stream() { return stream_; }

 private:
  const char* expression_;
  const char* function_;
  TraceStream stream_;
};

}  // namespace Kiv
