#pragma once

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "core/Layout.h"

// Shared by the fuzz targets. An input is a few bytes that make choices, followed by data.

namespace Fuzzing {

namespace Core = Velmar::Core;
namespace Catalogue = Velmar::Catalogue;

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
inline const Core::Layout& chooseLayout(Input& input) {
  static const std::vector<std::vector<Core::Layout>> all = [] {
    std::vector<std::vector<Core::Layout>> layouts;
    for (const Catalogue::Table& table : Core::allTables()) {
      layouts.emplace_back();
      for (const Catalogue::Chip& chip : Core::allChips()) {
        for (const U32 variant : {0U, 255U}) {
          const auto layout = Core::Layout::of(table, chip, variant);
          if (layout) layouts.back().push_back(*layout);
        }
      }
    }
    return layouts;
  }();
  const std::vector<Core::Layout>& layouts = all[input.choose(all.size())];
  return layouts[input.choose(layouts.size())];
}

/// The message of a fault; it must be one printable line with a remedy.
inline std::string messageOf(const Core::Fault& fault) {
  const auto wording = [](Core::Text& to, const Core::Remedy& remedy) {
    to.append("{}", remedy.option);
  };
  const std::string text = Core::worded(fault, "input", wording);
  require(text.find("; ") != std::string::npos, "a fault names a remedy", text);
  require(text == Core::printable(text), "a fault is one printable line", text);
  return text;
}

/// Whether there is a result; the message of a fault is checked.
template <class Result>
bool succeeds(const Core::Expected<Result>& result) {
  if (!result) messageOf(result.error());
  return result.has_value();
}

}  // namespace Fuzzing
