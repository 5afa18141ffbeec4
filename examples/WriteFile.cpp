#include "WriteFile.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <filesystem>

namespace Examples {
namespace {

bool writeBytes(const std::string& path, const std::vector<U8>& bytes) {
  std::FILE* file = std::fopen(path.c_str(), "wb");
  if (file == nullptr) return false;
  const bool isWritten = std::fwrite(bytes.data(), 1, bytes.size(), file) == bytes.size();
  const int writeError = errno;
  const bool isClosed = std::fclose(file) == 0;
  if (!isWritten) errno = writeError;
  return isWritten && isClosed;
}

}  // namespace

bool writeFile(const char* program, const std::string& path, const std::vector<U8>& bytes) {
  // The new file replaces the old one, which must not happen to a device or a pipe.
  std::error_code ignored;
  if (std::filesystem::exists(path, ignored) && !std::filesystem::is_regular_file(path, ignored)) {
    std::fprintf(stderr, "%s: %s: not a regular file; name another\n", program, path.c_str());
    return false;
  }
  const std::string partial = path + ".partial";
  if (writeBytes(partial, bytes) && std::rename(partial.c_str(), path.c_str()) == 0) return true;
  const int error = errno;
  std::remove(partial.c_str());
  std::fprintf(stderr, "%s: %s: %s; nothing was written\n", program, path.c_str(),
               std::strerror(error));
  return false;
}

}  // namespace Examples
