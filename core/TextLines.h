#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Text.h"

// What every reading of text needs: lines, groups of digits, and what is not data.

namespace Velmar {
namespace Core {

/// A group of hexadecimal digits.
struct Group {
  std::string_view digits;  ///< without what is before them
  char prefix;              ///< 'x' after "0x", '\\' after "\x", otherwise 0
};

/// The groups of digits of a line.
struct Groups {
  /// Those of a text up to a "#", separated by blanks, commas, semicolons, colons, brackets and quotes, or
  /// with `gap` blanks before each; false if there is anything else. Colons between digits exclude blanks
  /// between others.
  bool split(std::string_view text, size_t gap = 0);
  /// Whether each has so many digits.
  bool have(size_t digits) const { return widths == width(digits) || all.empty(); }
  bool areNumbers() const { return prefix() == 'x'; }
  char prefix() const { return all.empty() ? 0 : all[0].prefix; }
  size_t count() const { return all.size(); }
  /// A bit for each number of digits.
  static constexpr U32 width(size_t digits) { return 1U << (digits < 31 ? digits : 31); }

  std::vector<Group> all;
  U32 widths = 0;
  U32 paddedWidths = 0;  ///< of those with a zero before other digits
  size_t longest = 0;    ///< in digits
  bool isMixed = false;  ///< not all have the same prefix
};

/// Appends bytes from digits of which the first byte comes first; the number of digits is even.
void appendBytes(std::string_view digits, std::vector<U8>& bytes);
/// Appends the `count` bytes, the lowest first, of a number of at most 2 * `count` digits.
void appendNumber(std::string_view digits, size_t count, std::vector<U8>& bytes);

/// The text without UTF-8 marks and colour sequences, and with blanks for no-break spaces;
/// nothing if it is that already.
std::optional<std::string> cleaned(std::string_view text);

/// Whether a line is a prompt, a command or a sentence. Mistyped data still counts as data.
bool isForeign(std::string_view line);
/// Whether a line stands where data was expected: signs alone, such as "*", "..." or "--", or anything
/// after an index or offset, such as "1: xxxxxxxx".
bool isMark(std::string_view line);
/// Whether a line may be base64: also one of characters A to F alone, as base64 has for zeros.
bool mayBeBase64(std::string_view line);

/// What a log puts before each line: time stamps, levels, host and process names. Returns its length; 0
/// if there is none. `shape` receives its form: names as they are, times as their kind.
size_t logPrefix(std::string_view line, std::string& shape);

/// The lines of a text.
class Lines {
 public:
  explicit Lines(std::string_view text) : clean_(cleaned(text)), text_(clean_ ? *clean_ : text) {}

  struct Line {
    U64 number = 0;  ///< from 1
    std::string_view text;
    bool isIndented = false;
    bool hasPrefix =
        true;  ///< false: the line lacks the prefix that the data lines of the log have
  };

  /// The next line that is not empty; false at the end.
  bool next(Line& line);
  void restart() { at_ = number_ = 0; }
  /// From now on the prefix of a log is left out: that of the first line with data behind it. False if
  /// there is none.
  bool usePrefix();

 private:
  bool nextRaw(Line& line);

  const std::optional<std::string> clean_;
  const std::string_view text_;
  size_t at_ = 0;
  U64 number_ = 0;
  std::string shape_;  ///< empty: the lines have no prefix
};

}  // namespace Core
}  // namespace Velmar
