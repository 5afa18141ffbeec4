#pragma once

#include <atomic>

#include "AsicUtils/Export.h"
#include "AsicUtils/Types.h"
#include "Kiv/TraceStream.h"

namespace Kiv {

/// One trace line. The texts are valid only during the call of the sink.
struct TraceRecord {
  const char* handle;    ///< name of the handle
  U32 level;             ///< 0 to 30
  const char* file;      ///< source file name
  U32 line;              ///< source line
  const char* function;  ///< short function name
  const char* text;
};

/// Takes trace lines. May be called from several threads at once and must not throw.
using TraceSink = void (*)(const TraceRecord& record, void* context);

/// A named source of trace lines, meant to be a static object: it is initialised at compile time
/// and joins the facility at the first query of a level.
class VELMAR_PLATFORM_EXPORT TraceHandle {
 public:
  /// `name` must outlive the handle.
  explicit constexpr TraceHandle(const char* name) : name_(name), levels_(notJoined) {}
  ~TraceHandle();
  TraceHandle(const TraceHandle&) = delete;
  TraceHandle& operator=(const TraceHandle&) = delete;

  const char* name() const { return name_; }

  /// False only when the level is off: one load and one branch. Also true until the handle joins.
  bool mayBeEnabled(U32 level) const {
    return (levels_.load(std::memory_order_relaxed) >> level & 1U) != 0;
  }
  /// Whether the level (0 to 30) is on.
  bool isEnabled(U32 level) {
    if (!mayBeEnabled(level)) return false;
    if ((levels_.load(std::memory_order_relaxed) & notJoinedBit) != 0) join();
    return mayBeEnabled(level);
  }

 private:
  friend class TraceFacility;
  static constexpr U32 notJoinedBit = 1U << 31;
  static constexpr U32 notJoined = 0xffffffffU;

  void join();

  const char* name_;
  std::atomic<U32> levels_;  ///< bit n: level n is on; all ones until the handle joins
};

/// The process's trace levels and sink. Every member may be called from any thread.
class VELMAR_PLATFORM_EXPORT TraceFacility {
 public:
  static constexpr U32 maxLevel = 30;

  /// Switches a level of all handles of a name, including those that do not exist yet. Initially
  /// level 0 is on and the others are off. Returns false, and changes nothing, above `maxLevel`.
  static bool levelIs(const char* handle, U32 level, bool on);
  /// Whether a level is on for the handles of a name.
  static bool level(const char* handle, U32 level);
  /// Sends the lines to `sink`, or to standard error if it is null.
  static void sinkIs(TraceSink sink, void* context);
  /// Hands a record to the sink.
  static void emit(const TraceRecord& record);

 private:
  friend class TraceHandle;
  static void join(TraceHandle& handle);
  static void leave(TraceHandle& handle);
};

/// Writes one line: stream the text into it; the destructor emits it. Create one only if the
/// handle's level is on.
class VELMAR_PLATFORM_EXPORT TraceHelper {
 public:
  TraceHelper(const TraceHandle& handle, U32 level, const char* file, U32 line,
              const char* function)
      : handle_(handle), level_(level), file_(file), line_(line), function_(function) {}
  ~TraceHelper();
  TraceHelper(const TraceHelper&) = delete;
  TraceHelper& operator=(const TraceHelper&) = delete;

  TraceStream& stream() { return stream_; }

 private:
  const TraceHandle& handle_;
  U32 level_;
  const char* file_;
  U32 line_;
  const char* function_;
  TraceStream stream_;
};

}  // namespace Kiv
