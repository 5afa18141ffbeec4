#pragma once

#include <csignal>
#include <string>

#include "Tool.h"

namespace Tool {

/// A folder that appears under its name only when it is complete. No signal comes while it lives.
class NewFolder {
 public:
  /// Fails if something has the name already.
  explicit NewFolder(const std::string& folder);
  ~NewFolder();
  NewFolder(const NewFolder&) = delete;
  NewFolder& operator=(const NewFolder&) = delete;

  /// Where a file of the folder is written.
  std::string pathOf(const std::string& file) const { return partial_ + '/' + file; }
  /// Gives the folder its name.
  void finish();

 private:
  [[noreturn]] void failWriting() const;

  std::string folder_;
  std::string partial_;  ///< name of the folder while it is incomplete; empty: none
  sigset_t signals_;
};

}  // namespace Tool
