#include "output/NewFolder.h"

#include <dirent.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdio>
#include <cstring>

#include "cli/Failure.h"

namespace Tool {
namespace {

/// Removes a folder with its files.
void removeFolder(const std::string& folder) {
  DIR* const files = opendir(folder.c_str());
  if (files == nullptr) return;
  while (const dirent* const file = readdir(files)) unlinkat(dirfd(files), file->d_name, 0);
  closedir(files);
  rmdir(folder.c_str());
}

}  // namespace

NewFolder::NewFolder(const std::string& folder) : folder_(folder) {
  while (folder_.size() > 1 && folder_.back() == '/') folder_.pop_back();
  struct stat status;
  if (lstat(folder_.c_str(), &status) == 0) {
    fail("{}: exists already; choose another name, or remove it", folder_);
  }
  sigset_t all;
  sigfillset(&all);
  sigprocmask(SIG_BLOCK, &all, &signals_);
  partial_ = folder_.substr(0, folder_.rfind('/') + 1) + ".velmar-XXXXXX";
  const bool isMade = mkdtemp(partial_.data()) != nullptr;
  if (isMade) {
    const mode_t mask = umask(0);
    umask(mask);
    chmod(partial_.c_str(), 0777 & ~mask);
    return;
  }
  partial_.clear();
  sigprocmask(SIG_SETMASK, &signals_, nullptr);
  failWriting();
}

NewFolder::~NewFolder() {
  if (!partial_.empty()) removeFolder(partial_);
  sigprocmask(SIG_SETMASK, &signals_, nullptr);
}

void NewFolder::failWriting() const {
  fail("{}: cannot write: {}; choose another folder", folder_, std::strerror(errno));
}

void NewFolder::finish() {
  if (rename(partial_.c_str(), folder_.c_str()) != 0) failWriting();
  partial_.clear();
}

}  // namespace Tool
