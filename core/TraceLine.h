#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/Text.h"

// One line of a log of bus transactions, in the shapes that are known.

namespace Velmar {
namespace Core {

/// Lines of logs may have as many characters, and transactions as many words.
constexpr size_t longestLine = 65536;
constexpr size_t mostWords = 1024;

/// A transaction as a log has it.
struct BusLine {
  /// announced: a read whose value comes later; confirmed: what another line has said already.
  enum class Part : U8 { whole, announced, confirmed };

  U64 line = 0;      ///< of the log, the first one of the transaction
  std::string time;  ///< as it stands there; empty: none
  bool isRead = false;
  Part part = Part::whole;
  U32 address = 0;
  std::string marks;          ///< the signs and labels of its lines
  std::vector<U32> words;     ///< the lowest first
  std::optional<U64> length;  ///< words, as the log counts them
  std::optional<U64> accessType, block;

  void clear();
  bool isSameAs(const BusLine& other) const;
};

/// How the numbers of a log are padded: one that lacks a digit is told from a whole one.
class Padding {
 public:
  /// The number of up to eight hexadecimal digits; nothing if it is none, or not padded like the others.
  std::optional<U32> take(std::string_view digits);

 private:
  size_t width_ = 0;  ///< digits of padded numbers; 0: none was seen
  size_t fewest_ = 8, most_ = 0;
};

/// What the columns of a CSV log are.
enum class LogColumn : U8 { ignored, time, operation, address, words, length, access, block };

/// What the lines of a log have in common. A line that differs is not one of them.
struct LogStyle {
  Padding addresses, words;
  std::string marks[3];            ///< of writes, reads and announced reads
  std::vector<LogColumn> columns;  ///< of CSV
  char separator = ',';            ///< of CSV
  std::string_view ownShape;       ///< the text of --line
};

enum class Taken : U8 { no, header, transaction };

/// A shape of lines.
struct LogShape {
  const char* name;
  Taken (*take)(std::string_view line, LogStyle& style, BusLine& to);
  bool goesOn;       ///< words may follow on lines that begin with blanks
  bool isConfirmed;  ///< a write may stand there twice: before and after it was done
};

/// All shapes but one's own.
extern const std::array<LogShape, 7> logShapes;
/// The shape of --line, such as "{time} {op} addr={address} data={words}".
extern const LogShape ownShape;
/// What is wrong with the text of one's own shape; empty: nothing.
std::string wrongIn(std::string_view shapeText);

/// Takes the words of a line that goes on with a transaction.
bool takeMoreWords(std::string_view line, LogStyle& style, BusLine& to);

// What shapes are made of.

/// Reads a line from its start.
class LineCursor {
 public:
  explicit LineCursor(std::string_view line) : rest_(line) {}

  std::string_view rest() const { return rest_; }
  bool isAtEnd() const { return rest_.empty(); }
  char peek() const { return rest_.empty() ? '\0' : rest_[0]; }
  std::string_view take(size_t size) {
    const std::string_view taken = rest_.substr(0, size);
    rest_.remove_prefix(taken.size());
    return taken;
  }
  bool takeIf(std::string_view text) {
    return rest_.substr(0, text.size()) == text && !take(text.size()).empty();
  }
  void skipBlanks() {
    while (!rest_.empty() && isBlank(rest_[0])) rest_.remove_prefix(1);
  }
  /// Up to the next blank, or the end.
  std::string_view takeToken();
  /// Letters, digits and underscores.
  std::string_view takeName();

 private:
  std::string_view rest_;
};

/// Whether the text is W, R, write or read in any case; if so, says which.
bool takeOperation(std::string_view text, BusLine& to);
/// A hexadecimal number, also after 0x.
std::optional<U32> takeHex(std::string_view text, Padding& padding);
/// Words that blanks or commas separate; false if one is none, or there is none.
bool takeWords(std::string_view text, Padding& padding, std::vector<U32>& to);
/// A count or a code: decimal, or hexadecimal after 0x.
bool takeCount(std::string_view text, std::optional<U64>& to);
/// Whether it may be a time: digits with signs between them.
bool isTime(std::string_view text);

Taken takeCsvLine(std::string_view line, LogStyle& style, BusLine& to);
Taken takeJsonLine(std::string_view line, LogStyle& style, BusLine& to);

}  // namespace Core
}  // namespace Velmar
