#include "Kiv/Trace.h"

#include <algorithm>
#include <charconv>
#include <cstdio>
#include <map>
#include <string>
#include <vector>

#include "Lock.h"
#include "SinkSlot.h"

namespace Kiv {
namespace {

constexpr U32 levelsAtStart = 1U << 0;

/// Levels by name, and the handles that follow them.
struct Registry {
  Mutex mutex;
  std::map<std::string, U32> levels;
  std::vector<TraceHandle*> handles;

  U32& levelsOf(const char* name) { return levels.try_emplace(name, levelsAtStart).first->second; }
};

// Never destroyed: handles of other libraries may leave after this library's statics are destroyed.
Registry& registry() {
  static Registry& theRegistry = *new Registry;
  return theRegistry;
}

void writeToStandardError(const TraceRecord& record, void*) {
  std::fprintf(stderr, "%s level %u %s:%u %s: %s\n", record.handle, record.level, record.file,
               record.line, record.function, record.text);
}

SinkSlot<TraceRecord>& sinkSlot() {
  static SinkSlot<TraceRecord>& theSlot = *new SinkSlot<TraceRecord>(&writeToStandardError);
  return theSlot;
}

}  // namespace

TraceHandle::~TraceHandle() { TraceFacility::leave(*this); }
void TraceHandle::join() { TraceFacility::join(*this); }

void TraceFacility::join(TraceHandle& handle) {
  const Lock lock(registry().mutex);
  if ((handle.levels_.load(std::memory_order_relaxed) & TraceHandle::notJoinedBit) == 0) return;
  registry().handles.push_back(&handle);
  handle.levels_.store(registry().levelsOf(handle.name()), std::memory_order_relaxed);
}

void TraceFacility::leave(TraceHandle& handle) {
  const Lock lock(registry().mutex);
  auto& handles = registry().handles;
  handles.erase(std::remove(handles.begin(), handles.end(), &handle), handles.end());
}

bool TraceFacility::levelIs(const char* handle, U32 level, bool on) {
  if (level > maxLevel) return false;
  const Lock lock(registry().mutex);
  U32& levels = registry().levelsOf(handle);
  levels = on ? levels | 1U << level : levels & ~(1U << level);
  for (TraceHandle* each : registry().handles) {
    if (std::string(handle) == each->name()) {
      each->levels_.store(levels, std::memory_order_relaxed);
    }
  }
  return true;
}

bool TraceFacility::level(const char* handle, U32 level) {
  if (level > maxLevel) return false;
  const Lock lock(registry().mutex);
  const auto found = registry().levels.find(handle);
  const U32 levels = found == registry().levels.end() ? levelsAtStart : found->second;
  return (levels >> level & 1U) != 0;
}

void TraceFacility::sinkIs(TraceSink sink, void* context) { sinkSlot().sinkIs(sink, context); }
void TraceFacility::emit(const TraceRecord& record) { sinkSlot().emit(record); }

TraceHelper::~TraceHelper() {
  TraceFacility::emit({handle_.name(), level_, file_, line_, function_, stream_.text().c_str()});
}

TraceStream& TraceStream::append(U64 number) {
  char digits[20];
  const auto end = std::to_chars(digits, digits + sizeof(digits), number).ptr;
  text_.append(digits, end);
  return *this;
}

TraceStream& TraceStream::operator<<(S32 number) {
  if (number >= 0) return append(static_cast<U64>(number));
  text_ += '-';
  return append(static_cast<U64>(-static_cast<std::int64_t>(number)));
}

}  // namespace Kiv
