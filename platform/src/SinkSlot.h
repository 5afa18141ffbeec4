#pragma once

#include <utility>

#include "Lock.h"

namespace Kiv {

/// The sink for records of one kind. It is called without the lock, so that it may itself trace.
template <class Record>
class SinkSlot {
 public:
  using Sink = void (*)(const Record&, void*);

  explicit SinkSlot(Sink standard) : standard_(standard), sink_(standard), context_(nullptr) {}

  void sinkIs(Sink sink, void* context) {
    const Lock lock(mutex_);
    sink_ = sink != nullptr ? sink : standard_;
    context_ = context;
  }
  void emit(const Record& record) {
    const auto [sink, context] = current();
    sink(record, context);
  }

 private:
  std::pair<Sink, void*> current() {
    const Lock lock(mutex_);
    return {sink_, context_};
  }

  const Sink standard_;
  Mutex mutex_;
  Sink sink_;
  void* context_;
};

}  // namespace Kiv
