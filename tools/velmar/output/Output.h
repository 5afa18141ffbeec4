#pragma once

#include <sys/stat.h>

#include <string>
#include <string_view>

#include "Tool.h"
#include "core/Listing.h"

namespace Tool {

enum class Style { plain, strong, faint, removed, added };

enum class Format { table, json, jsonl, csv, hex, words, raw };
/// The format of a value of --format; the table if there is none.
Format formatOf(const std::string& name);
/// Whether it is one of core's, for programs.
constexpr bool isRowFormat(Format format) {
  return format == Format::json || format == Format::jsonl || format == Format::csv;
}
constexpr RowFormat rowFormatOf(Format format) {
  if (format == Format::csv) return RowFormat::csv;
  return format == Format::jsonl ? RowFormat::jsonLines : RowFormat::json;
}

/// Where a verb writes its result: standard output, or a file that appears under its name only when
/// it is complete. Text is collected and written in large pieces.
class Output {
 public:
  /// `file` empty or "-": standard output. `color` is auto, always or never.
  Output(const std::string& file, const std::string& color);
  ~Output();
  Output(const Output&) = delete;
  Output& operator=(const Output&) = delete;

  /// A loop that writes much calls flushIfLarge() between its items.
  void write(std::string_view piece) { text_.append(piece); }
  /// What is not written yet, for writers that append to it.
  std::string& text() { return text_; }
  template <class... Arguments>
  void print(fmt::format_string<Arguments...> format, Arguments&&... arguments) {
    appendFormatted(text_, format, fmt::make_format_args(arguments...));
  }
  /// Writes the piece in a style, where colours are on.
  void write(std::string_view piece, Style style);

  /// Writes a line that begins with a heading. On a terminal it is folded at blanks.
  void writeLine(const std::string& heading, const std::string& rest, size_t indent = 4);

  void flushIfLarge() {
    if (text_.size() >= flushSize) flush();
  }
  /// Writes what is left and gives the file its name.
  void finish();

  bool isTerminal() const { return terminal_; }
  /// Columns of the terminal; 0 if the result goes elsewhere.
  U32 columns() const { return columns_; }

 private:
  static constexpr size_t flushSize = 1U << 16;

  void openFile();
  /// Makes the file that becomes the result when it is complete.
  void makePartial(bool exists);
  /// Gives it the owner and mode of the file that it replaces, as far as the system allows.
  void takeOver(const struct stat& status) const;
  void flush();
  [[noreturn]] void failOpening() const;
  [[noreturn]] void failReplacing() const;
  [[noreturn]] void failWriting() const;

  std::string file_;
  std::string partial_;  ///< name of the file while it is incomplete; empty: none
  int descriptor_;
  bool terminal_;
  bool colored_;
  U32 columns_ = 0;
  std::string text_;
};

/// Ctrl-C, Ctrl-\, a hang-up or a closed pipe ends the command at once, without a message, and removes an
/// incomplete file. A file that grows too large is an error like a full disk.
void installSignalHandlers();

}  // namespace Tool
