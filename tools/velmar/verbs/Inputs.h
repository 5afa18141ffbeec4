#pragma once

#include <string>

#include "Tool.h"
#include "core/Reading.h"

namespace Tool {

/// A file that is read whole, or standard input.
class Input {
 public:
  /// `path` empty or "-": standard input; a terminal is refused for an empty one.
  explicit Input(const std::string& path);

  /// For messages.
  const std::string& name() const { return name_; }
  std::string_view bytes() const { return bytes_; }

 private:
  void read(int descriptor);

  std::string name_;
  std::string bytes_;
};

/// A dump and the bytes that it may borrow.
struct DumpInput {
  DumpInput(const std::string& path, const Layout& layout, const ReadOptions& options);
  DumpInput(const DumpInput&) = delete;
  DumpInput& operator=(const DumpInput&) = delete;

  Input input;
  Dump dump;
};

}  // namespace Tool
