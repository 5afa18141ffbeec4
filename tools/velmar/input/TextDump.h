#pragma once

#include <string>
#include <string_view>

#include "input/EntryReader.h"
#include "model/Failure.h"

// What the readers of text share: cleaned lines, and lines around the data.

namespace Tool {

/// The text without UTF-8 marks and colour sequences, and with blanks for no-break spaces.
std::string cleaned(std::string_view text);

/// Whether a line is a prompt, a command or a sentence. Mistyped data still counts as data.
bool isForeign(std::string_view line);

/// Whether a line may be base64: also one of letters A to F alone, as base64 has for zeros.
bool mayBeBase64(std::string_view line);

/// Reads the entries of a text dump. Lines before and after the data are skipped, and counted.
class TextReader : public EntryReader {
 public:
  TextReader(std::unique_ptr<ByteStream> stream, const Layout& layout, const InputOptions& options)
      : EntryReader(std::move(stream), layout, options), lines_(*stream_) {}
  ~TextReader() override;

 protected:
  /// Takes the next line of data; false at the end.
  bool takeLine();
  /// Whether the line began with a blank.
  bool isIndented() const { return isIndented_; }
  bool hasForeign() const { return foreignLines_ > 0; }

  /// Fails with the place of the line.
  template <class... Arguments>
  [[noreturn]] void failLine(fmt::format_string<Arguments...> text,
                             Arguments&&... arguments) const {
    fail("{}:{}: {}", stream_->name(), lines_.number(),
         formatted(text, fmt::make_format_args(arguments...)));
  }

 private:
  /// Takes a line; false where it is not of the notation. Blank lines and comments are.
  virtual bool parse(std::string_view line) = 0;
  /// Fails for a line that is not of the notation.
  [[noreturn]] virtual void refuse(std::string_view line) const = 0;
  /// Whether parse() has met data.
  virtual bool hasData() const = 0;

  bool takeForeign(std::string_view line);

  LineReader lines_;
  bool isIndented_ = false;
  U64 foreignLines_ = 0;
  U64 foreignAfter_ = 0;  ///< line on which the data ended
};

}  // namespace Tool
