#pragma once

// The lock of the facilities; empty where there are no threads.

#ifdef __wasi__

namespace Kiv {

struct Mutex {};

class Lock {
 public:
  explicit Lock(Mutex&) {}
  ~Lock() {}  // a lock that is not used otherwise is no mistake
};

}  // namespace Kiv

#else

#include <mutex>

namespace Kiv {

using Mutex = std::mutex;
using Lock = std::lock_guard<std::mutex>;

}  // namespace Kiv

#endif
