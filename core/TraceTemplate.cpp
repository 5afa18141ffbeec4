#include <algorithm>

#include "core/TraceLine.h"

// Shapes of one's own, such as "{time} {op} addr={address} data={words}".

namespace Velmar {
namespace Core {
namespace {

constexpr std::string_view names[] = {"time", "op",     "address", "words",
                                      "len",  "access", "block",   "skip"};

/// What stands before the next name in braces, and the name.
struct Piece {
  std::string_view before, name;
};

/// Takes the next piece of a shape; its name is empty at the end.
Piece nextPiece(std::string_view& shape) {
  const size_t open = std::min(shape.find('{'), shape.size());
  const size_t close = shape.find('}', open);
  Piece piece{shape.substr(0, open), {}};
  if (open == shape.size() || close == std::string_view::npos) {
    piece.before = shape;
    shape = {};
    return piece;
  }
  piece.name = shape.substr(open + 1, close - open - 1);
  shape.remove_prefix(close + 1);
  return piece;
}

/// Takes a text, in which blanks stand for any number of blanks.
bool takeText(LineCursor& cursor, std::string_view text) {
  for (const char character : text) {
    if (isBlank(character)) {
      if (!isBlank(cursor.peek()) && !cursor.isAtEnd()) return false;
      cursor.skipBlanks();
    } else if (!cursor.takeIf({&character, 1})) {
      return false;
    }
  }
  return true;
}

/// Where the text after a value begins: its first character, or a blank.
size_t sizeOfValue(std::string_view line, std::string_view after) {
  if (after.empty()) return line.size();
  if (!isBlank(after[0])) return std::min(line.find(after[0]), line.size());
  return std::min(line.find_first_of(" \t"), line.size());
}

bool put(std::string_view name, std::string_view value, LogStyle& style, BusLine& to) {
  if (name == "skip") return true;
  if (name == "time") {
    to.time = value;
    return !value.empty();
  }
  if (name == "op") return takeOperation(value, to);
  if (name == "words") return takeWords(value, style.words, to.words);
  if (name == "len") return takeCount(value, to.length);
  if (name == "access") return takeCount(value, to.accessType);
  if (name == "block") return takeCount(value, to.block);
  const std::optional<U32> address = takeHex(value, style.addresses);
  to.address = address.value_or(0);
  return address.has_value();
}

/// How much of a line are words: up to what stands behind them.
size_t sizeOfWords(std::string_view line, std::string_view after) {
  const std::string_view end = trim(after);
  if (end.empty()) return line.size();
  return line.substr(0, line.find(end)).find_last_not_of(" \t") + 1;
}

Taken takeOwn(std::string_view line, LogStyle& style, BusLine& to) {
  LineCursor cursor(line);
  std::string_view shape = style.ownShape;
  cursor.skipBlanks();
  for (Piece piece = nextPiece(shape);;) {
    if (!takeText(cursor, piece.before)) return Taken::no;
    if (piece.name.empty()) break;
    const std::string_view name = piece.name;
    piece = nextPiece(shape);
    const size_t size = name == "words" ? sizeOfWords(cursor.rest(), piece.before)
                                        : sizeOfValue(cursor.rest(), piece.before);
    if (!put(name, trim(cursor.take(size)), style, to)) return Taken::no;
  }
  cursor.skipBlanks();
  return cursor.isAtEnd() ? Taken::transaction : Taken::no;
}

}  // namespace

const LogShape ownShape = {"--line", takeOwn, false, false};

std::string wrongIn(std::string_view shape) {
  std::vector<std::string_view> seen;
  while (!shape.empty()) {
    const Piece piece = nextPiece(shape);
    if (piece.name.empty()) break;
    const std::string name(piece.name);
    if (std::count(std::begin(names), std::end(names), piece.name) == 0) {
      return formatText(
          "{{{}}} is unknown; give {{time}}, {{op}}, {{address}}, {{words}}, {{len}}, "
          "{{access}}, {{block}} or {{skip}}",
          printable(name));
    }
    if (name != "skip" && std::count(seen.begin(), seen.end(), piece.name) != 0) {
      return formatText("{{{}}} stands twice; give it once", name);
    }
    if (!seen.empty() && piece.before.empty()) {
      return formatText("nothing parts {{{}}} from {{{}}}; put a blank between them", seen.back(),
                        name);
    }
    seen.push_back(piece.name);
  }
  for (const std::string_view needed : {"address", "words"}) {
    if (std::count(seen.begin(), seen.end(), needed) == 0) {
      return formatText("{{{}}} is missing; add it", needed);
    }
  }
  return "";
}

}  // namespace Core
}  // namespace Velmar
