#pragma once

#include "AsicUtils/Export.h"
#include "AsicUtils/Types.h"
#include "Kiv/TraceStream.h"

namespace Kiv {

/// One soft assertion. The texts are valid only during the call of the sink.
struct SassertRecord {
  const char* expression;
  const char* file;
  U32 line;
  const char* function;
  const char* text;
};

/// Takes soft assertions. May be called from several threads at once and must not throw.
using SassertSink = void (*)(const SassertRecord& record, void* context);

/// Reports one soft assertion: stream the text into it; the destructor reports it.
class VELMAR_PLATFORM_EXPORT SassertHelper {
 public:
  SassertHelper(const char* expression, const char* file, U32 line, const char* function)
      : expression_(expression), file_(file), line_(line), function_(function) {}
  ~SassertHelper();
  SassertHelper(const SassertHelper&) = delete;
  SassertHelper& operator=(const SassertHelper&) = delete;

  TraceStream& stream() { return stream_; }

  /// Sends the reports to `sink`, or to standard error if it is null.
  static void sinkIs(SassertSink sink, void* context);

 private:
  const char* expression_;
  const char* file_;
  U32 line_;
  const char* function_;
  TraceStream stream_;
};

}  // namespace Kiv
