#pragma once

#include <string>

#include "AsicUtils/Export.h"
#include "AsicUtils/Types.h"

namespace Kiv {

/// Builds the text of a trace line or report. Numbers are written in decimal, a U8 as a number.
class VELMAR_PLATFORM_EXPORT TraceStream {
 public:
  TraceStream() { text_.reserve(160); }

  TraceStream& operator<<(const char* text) {
    text_ += text;
    return *this;
  }
  TraceStream& operator<<(U8 number) { return append(number); }
  TraceStream& operator<<(U16 number) { return append(number); }
  TraceStream& operator<<(U32 number) { return append(number); }
  TraceStream& operator<<(U64 number) { return append(number); }
  TraceStream& operator<<(S32 number);

  const std::string& text() const { return text_; }

 private:
  TraceStream& append(U64 number);

  std::string text_;
};

}  // namespace Kiv
