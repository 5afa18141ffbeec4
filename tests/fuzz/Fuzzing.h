#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

#include "model/Failure.h"
#include "model/Layout.h"
#include "model/Text.h"

// Shared by the fuzz targets. An input is a few bytes that make choices, followed by data.

namespace Fuzzing {

/// A property that must hold: otherwise the program ends, and the fuzzer keeps the input.
inline void require(bool holds, const char* property, const std::string& detail = "") {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s: %s\n", property, detail.c_str());
  std::abort();
}

class Input {
 public:
  Input(const U8* data, size_t size) : bytes_(data, data + size) {}

  /// A number below `count`, which is at most 256.
  U32 choose(size_t count) {
    return at_ < bytes_.size() ? bytes_[at_++] % static_cast<U32>(count) : 0;
  }
  /// A separate heap block, so that an access beyond its end is detected.
  std::string rest() const { return {bytes_.begin() + static_cast<long>(at_), bytes_.end()}; }

 private:
  std::vector<U8> bytes_;
  size_t at_ = 0;
};

/// Any class on any of its chips, with the least or the largest variant.
inline const Tool::Layout& chooseLayout(Input& input) {
  static const std::vector<std::vector<Tool::Layout>> all = [] {
    std::vector<std::vector<Tool::Layout>> layouts(Tool::Catalogue::tableCount());
    for (U32 table = 0; table < layouts.size(); ++table) {
      for (U32 chip = 0; chip < Tool::Catalogue::chipCount(); ++chip) {
        for (const U8 variant : {U8{0}, U8{255}}) {
          const Tool::Catalogue::Table about = Tool::Catalogue::table(table);
          const Tool::Catalogue::Chip on = Tool::Catalogue::chip(chip);
          if (about.isOn(on.number, variant)) layouts[table].emplace_back(about, on, variant);
        }
      }
    }
    return layouts;
  }();
  const std::vector<Tool::Layout>& layouts = all[input.choose(all.size())];
  return layouts[input.choose(layouts.size())];
}

/// The message with which a call fails; empty if it succeeds. Any other exception is a fault, and
/// so is a message that is not one printable line with a remedy.
template <class Call>
std::string failureOf(const Call& call) {
  try {
    call();
  } catch (const Tool::Failure& failure) {
    const std::string text = failure.what();
    require(text.find("; ") != std::string::npos, "a failure names a remedy", text);
    require(text == Tool::printable(text), "a failure is one printable line", text);
    return text;
  }
  return "";
}

/// Standard input and output as one file in memory: input reads what output wrote.
namespace MemoryPipe {

inline void rewind() { require(lseek(STDIN_FILENO, 0, SEEK_SET) == 0, "the file is rewound"); }

inline void clear() {
  static const int file = memfd_create("fuzz", 0);
  static const bool works = dup2(file, STDIN_FILENO) >= 0 && dup2(file, STDOUT_FILENO) >= 0;
  require(works && ftruncate(file, 0) == 0, "there is an empty file in memory");
  rewind();
}

inline void fill(std::string_view text) {
  clear();
  const ssize_t written = write(STDIN_FILENO, text.data(), text.size());
  require(written == static_cast<ssize_t>(text.size()), "the file is written");
  rewind();
}

}  // namespace MemoryPipe
}  // namespace Fuzzing
