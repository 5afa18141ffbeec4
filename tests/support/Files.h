#pragma once

#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>

// Files and programs, for the tests of committed derived files.

namespace VelmarTest {

/// The contents of a file; empty if it cannot be read.
inline std::string readFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

/// The files of a directory, by name.
inline std::map<std::string, std::string> filesIn(const std::string& directory) {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(directory)) {
    files[entry.path().filename().string()] = readFile(entry.path().string());
  }
  return files;
}

/// An empty directory that is removed with the object; its name has a space in it.
class ScratchDirectory {
 public:
  ScratchDirectory() {
    std::string name = (std::filesystem::temp_directory_path() / "velmar test XXXXXX").string();
    const char* made = ::mkdtemp(name.data());
    if (made == nullptr) throw std::runtime_error("no directory " + name);
    path_ = made;
  }
  ~ScratchDirectory() { std::filesystem::remove_all(path_); }
  ScratchDirectory(const ScratchDirectory&) = delete;
  ScratchDirectory& operator=(const ScratchDirectory&) = delete;

  const std::string& path() const { return path_; }
  std::string file(const std::string& name) const { return path_ + "/" + name; }

 private:
  std::string path_;
};

/// A path as one word of a shell command.
inline std::string quoted(const std::string& path) { return "'" + path + "'"; }

/// Exit code of a shell command, whose output is discarded; -1 if a signal ended it.
inline int run(const std::string& command) {
  const int status = std::system(("(" + command + ") >/dev/null 2>&1").c_str());
  return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
}

}  // namespace VelmarTest
