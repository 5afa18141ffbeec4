#pragma once

#include <mutex>

namespace Kiv {

/// The sink for records of one kind. It is called without the lock, so that it may itself trace.
template <class Record>
class SinkSlot {
 public:
  using Sink = void (*)(const Record&, void*);

  explicit SinkSlot(Sink standard) : standard_(standard), sink_(standard), context_(nullptr) {}

  void sinkIs(Sink sink, void* context) {
    const std::lock_guard<std::mutex> lock(mutex_);
    sink_ = sink != nullptr ? sink : standard_;
    context_ = context;
  }
  void emit(const Record& record) {
    std::unique_lock<std::mutex> lock(mutex_);
    const Sink sink = sink_;
    void* const context = context_;
    lock.unlock();
    sink(record, context);
  }

 private:
  const Sink standard_;
  std::mutex mutex_;
  Sink sink_;
  void* context_;
};

}  // namespace Kiv
