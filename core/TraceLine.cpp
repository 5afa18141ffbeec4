#include "core/TraceLine.h"

#include <algorithm>

namespace Velmar {
namespace Core {
namespace {

bool equalsInAnyCase(std::string_view text, std::string_view lower) {
  return text.size() == lower.size() &&
         std::equal(text.begin(), text.end(), lower.begin(), [](char a, char b) {
           return (a >= 'A' && a <= 'Z' ? static_cast<char>(a - 'A' + 'a') : a) == b;
         });
}

/// What each character is, for the loops that must be fast.
struct Characters {
  U8 digit[256];  ///< value of a hexadecimal digit; 16: none
  bool isOfName[256];
  bool isOfTime[256];
};

constexpr Characters charactersOf() {
  Characters all{};
  for (int i = 0; i < 256; ++i) {
    const char character = static_cast<char>(i);
    const int digit = hexDigit(character);
    all.digit[i] = digit < 0 ? U8{16} : static_cast<U8>(digit);
    all.isOfName[i] = digit >= 0 || (character >= 'g' && character <= 'z') ||
                      (character >= 'G' && character <= 'Z') || character == '_';
    all.isOfTime[i] = isDecimalDigit(character) || character == '.' || character == ',' ||
                      character == ':' || character == '+' || character == '-' ||
                      character == 'T' || character == 'Z' || character == ' ';
  }
  return all;
}
constexpr Characters characters = charactersOf();

bool isNameCharacter(char character) {
  return characters.isOfName[static_cast<unsigned char>(character)];
}

std::string_view withoutPrefix(std::string_view number) {
  const bool hasPrefix = number.size() > 2 && number[0] == '0' && (number[1] | 0x20) == 'x';
  return hasPrefix ? number.substr(2) : number;
}

/// What stands before a number of a plain line.
enum class Label : U8 { none, address, words, length, access, block };

Label labelOf(std::string_view name) {
  constexpr std::pair<std::string_view, Label> labels[] = {
      {"addr", Label::address}, {"address", Label::address}, {"data", Label::words},
      {"len", Label::length},   {"access", Label::access},   {"block", Label::block}};
  for (const auto& [text, label] : labels) {
    if (equalsInAnyCase(name, text)) return label;
  }
  return Label::none;
}

/// Numbers, labels and signs after the operation of a plain line.
class PlainRest {
 public:
  PlainRest(std::string_view text, LogStyle& style, BusLine& to)
      : cursor_(text), style_(style), to_(to) {}

  /// Appends the signs to `marks`; false for what belongs to no plain line.
  bool take(std::string& marks, bool hasAddress) {
    hasAddress_ = hasAddress;
    for (cursor_.skipBlanks(); !cursor_.isAtEnd(); cursor_.skipBlanks()) {
      if (!(isNameCharacter(cursor_.peek()) ? takeNamed(marks) : takeSign(marks))) return false;
    }
    return hasAddress_ && label_ == Label::none;
  }

 private:
  bool takeSign(std::string& marks) {
    const bool isArrow = cursor_.takeIf("<-") || cursor_.takeIf("->");
    const char sign = isArrow ? '>' : cursor_.take(1)[0];
    if (!isArrow && std::string_view("=:,{}[]()").find(sign) == std::string_view::npos) {
      return false;
    }
    // Commas between words are as many as there are words.
    if (sign != ',' || to_.words.empty()) marks += sign;
    return true;
  }

  bool takeNamed(std::string& marks) {
    const std::string_view name = cursor_.takeName();
    const Label label = isDecimalDigit(name[0]) ? Label::none : labelOf(name);
    if (label == Label::none) return takeNumber(name);
    if (label_ != Label::none) return false;
    label_ = label;
    marks += static_cast<char>('a' + static_cast<int>(label));
    return true;
  }

  bool takeNumber(std::string_view text) {
    const Label label = label_;
    label_ = Label::none;
    if (label == Label::length) return takeCount(text, to_.length);
    if (label == Label::access) return takeCount(text, to_.accessType);
    if (label == Label::block) return takeCount(text, to_.block);
    if (label == (hasAddress_ ? Label::address : Label::words)) return false;
    const std::optional<U32> number = takeHex(text, hasAddress_ ? style_.words : style_.addresses);
    if (!number || to_.words.size() == mostWords) return false;
    if (hasAddress_) {
      to_.words.push_back(*number);
    } else {
      to_.address = *number;
    }
    hasAddress_ = true;
    return true;
  }

  LineCursor cursor_;
  LogStyle& style_;
  BusLine& to_;
  Label label_ = Label::none;
  bool hasAddress_ = false;
};

/// Takes a time, which may have two parts or stand in brackets, and the operation.
bool takeHead(LineCursor& cursor, BusLine& to) {
  cursor.skipBlanks();
  if (cursor.takeIf("[")) {
    const size_t end = cursor.rest().find(']');
    if (end == std::string_view::npos) return false;
    to.time = trim(cursor.take(end));
    if (!isTime(to.time)) return false;
    cursor.take(1);
  }
  for (U32 parts = 0; parts < 3; ++parts) {
    cursor.skipBlanks();
    LineCursor rest = cursor;
    if (!isDecimalDigit(cursor.peek()) && takeOperation(rest.takeName(), to)) {
      cursor = rest;
      return true;
    }
    std::string_view token = cursor.takeToken();
    if (!token.empty() && token.back() == ':') token.remove_suffix(1);
    if (!isTime(token)) return false;
    if (!to.time.empty()) to.time += ' ';
    to.time += token;
  }
  return false;
}

/// [time] W ADDRESS WORD...
Taken takePlain(std::string_view line, LogStyle& style, BusLine& to) {
  LineCursor cursor(line);
  if (!takeHead(cursor, to)) return Taken::no;
  std::string marks(to.time.empty() ? "n" : "t");
  if (!PlainRest(cursor.rest(), style, to).take(marks, false)) return Taken::no;
  if (to.isRead && to.words.empty()) to.part = BusLine::Part::announced;
  to.marks = std::move(marks);
  return Taken::transaction;
}

/// The number of "NAME=0x1f" or "NAME 0x1f" among the words of a text.
std::string_view memberOf(std::string_view text, std::string_view name) {
  for (LineCursor cursor(text); !cursor.isAtEnd();) {
    cursor.skipBlanks();
    const std::string_view token = cursor.takeToken();
    if (token.substr(0, name.size()) != name) continue;
    if (token.size() > name.size() && token[name.size()] == '=') {
      return token.substr(name.size() + 1);
    }
    if (token.size() > name.size()) continue;
    cursor.skipBlanks();
    return cursor.takeToken();
  }
  return {};
}

/// The time that ends a text, after a blank or an @.
std::string_view timeAtEnd(std::string_view text) {
  text = trim(text);
  if (!text.empty() && text.back() == ':') text.remove_suffix(1);
  const size_t start = text.find_last_of("@ \t");
  text = start == std::string_view::npos ? text : text.substr(start + 1);
  return isTime(text) ? text : std::string_view();
}

/// A kind of line that names an event: the time stands before the name, and members behind it.
struct NamedEvent {
  std::string_view text;
  bool isRead;
  BusLine::Part part;
  std::string_view address, value;
  std::string_view size, sizeOfWord;  ///< a member that says how large the value is; may be empty
};

/// The event that a line names once: two lines in one are none.
const NamedEvent* findEvent(const std::vector<NamedEvent>& events, std::string_view line,
                            size_t& at) {
  const NamedEvent* found = nullptr;
  for (const NamedEvent& event : events) {
    const size_t first = line.find(event.text);
    if (first == std::string_view::npos) continue;
    if (found != nullptr || line.rfind(event.text) != first) return nullptr;
    found = &event;
    at = first;
  }
  return found;
}

bool takeOneWord(std::string_view address, std::string_view word, LogStyle& style, BusLine& to) {
  const std::optional<U32> number = takeHex(address, style.addresses);
  if (!number) return false;
  to.address = *number;
  if (to.part == BusLine::Part::announced) return true;
  const std::optional<U32> value = takeHex(word, style.words);
  if (value) to.words = {*value};
  return value.has_value();
}

Taken takeNamed(const std::vector<NamedEvent>& events, std::string_view line, LogStyle& style,
                BusLine& to) {
  size_t at = 0;
  const NamedEvent* const event = findEvent(events, line, at);
  if (event == nullptr) return Taken::no;
  to.isRead = event->isRead;
  to.part = event->part;
  to.time = timeAtEnd(line.substr(0, at));
  const std::string_view rest = line.substr(at + event->text.size());
  if (!event->size.empty() && memberOf(rest, event->size) != event->sizeOfWord) return Taken::no;
  return takeOneWord(memberOf(rest, event->address), memberOf(rest, event->value), style, to)
             ? Taken::transaction
             : Taken::no;
}

/// TASK [CPU] FLAGS TIME: regmap_reg_write: DEVICE reg=1004 val=bd
Taken takeFtrace(std::string_view line, LogStyle& style, BusLine& to) {
  static const std::vector<NamedEvent> events = {
      {" regmap_reg_write: ", false, BusLine::Part::whole, "reg", "val", "", ""},
      {" regmap_reg_read: ", true, BusLine::Part::whole, "reg", "val", "", ""}};
  return takeNamed(events, line, style, to);
}

/// TASK [CPU] FLAGS TIME: rwmmio_write: CALLER width=32 val=0xbd addr=0x1004
Taken takeKernelMmio(std::string_view line, LogStyle& style, BusLine& to) {
  static const std::vector<NamedEvent> events = {
      {" rwmmio_write: ", false, BusLine::Part::whole, "addr", "val", "width", "32"},
      {" rwmmio_post_write: ", false, BusLine::Part::confirmed, "addr", "val", "width", "32"},
      {" rwmmio_read: ", true, BusLine::Part::announced, "addr", "val", "width", "32"},
      {" rwmmio_post_read: ", true, BusLine::Part::whole, "addr", "val", "width", "32"}};
  return takeNamed(events, line, style, to);
}

/// PROCESS@TIME:memory_region_ops_write cpu 0 mr 0x55 addr 0x1004 value 0xbd size 4
Taken takeEmulator(std::string_view line, LogStyle& style, BusLine& to) {
  static const std::vector<NamedEvent> events = {
      {"memory_region_ops_write ", false, BusLine::Part::whole, "addr", "value", "size", "4"},
      {"memory_region_ops_read ", true, BusLine::Part::whole, "addr", "value", "size", "4"}};
  return takeNamed(events, line, style, to);
}

/// W 4 TIME MAP ADDRESS VALUE PC PROCESS
Taken takeMmiotrace(std::string_view line, LogStyle& style, BusLine& to) {
  LineCursor cursor(line);
  std::string_view tokens[8];
  for (std::string_view& token : tokens) {
    cursor.skipBlanks();
    token = cursor.takeToken();
  }
  cursor.skipBlanks();
  const bool isEvent = tokens[0].size() == 1 && takeOperation(tokens[0], to) && tokens[1] == "4" &&
                       isTime(tokens[2]) && !tokens[7].empty() && cursor.isAtEnd();
  if (!isEvent) return Taken::no;
  to.time = tokens[2];
  return takeOneWord(tokens[4], tokens[5], style, to) ? Taken::transaction : Taken::no;
}

}  // namespace

const std::array<LogShape, 7> logShapes = {{{"plain", takePlain, true, false},
                                            {"ftrace", takeFtrace, false, false},
                                            {"mmio", takeKernelMmio, false, true},
                                            {"mmiotrace", takeMmiotrace, false, false},
                                            {"emulator", takeEmulator, false, false},
                                            {"csv", takeCsvLine, false, false},
                                            {"jsonl", takeJsonLine, false, false}}};

void BusLine::clear() {
  time.clear();
  marks.clear();
  isRead = false;
  part = Part::whole;
  address = 0;
  words.clear();
  length.reset();
  accessType.reset();
  block.reset();
}

bool BusLine::isSameAs(const BusLine& other) const {
  return isRead == other.isRead && part == other.part && address == other.address &&
         words == other.words;
}

std::optional<U32> Padding::take(std::string_view digits) {
  const size_t size = digits.size();
  if (size == 0 || size > 8) return std::nullopt;
  U32 number = 0;
  U32 all = 0;  // of the digits' values: 16 stays in it
  for (const char character : digits) {
    const U32 digit = characters.digit[static_cast<unsigned char>(character)];
    all |= digit;
    number = number << 4 | (digit & 15);
  }
  if (all > 15) return std::nullopt;
  const bool hasZero = digits[0] == '0' && size > 1;
  if (width_ != 0) {
    if (size != width_ && (size < width_ || hasZero)) return std::nullopt;
  } else if (hasZero) {
    if (fewest_ < size || most_ > size) return std::nullopt;
    width_ = size;
  }
  fewest_ = std::min(fewest_, size);
  most_ = std::max(most_, size);
  return number;
}

bool takeMoreWords(std::string_view line, LogStyle& style, BusLine& to) {
  std::string marks;
  if (line.empty() || !isBlank(line[0])) return false;
  BusLine more;
  if (!PlainRest(line, style, more).take(marks, true)) return false;
  if (more.length || more.accessType || more.block) return false;
  if (to.words.size() + more.words.size() > mostWords) return false;
  to.words.insert(to.words.end(), more.words.begin(), more.words.end());
  to.marks += marks;
  return true;
}

std::string_view LineCursor::takeToken() {
  size_t size = 0;
  while (size < rest_.size() && !isBlank(rest_[size])) ++size;
  return take(size);
}

std::string_view LineCursor::takeName() {
  size_t size = 0;
  while (size < rest_.size() && isNameCharacter(rest_[size])) ++size;
  return take(size);
}

bool takeOperation(std::string_view text, BusLine& to) {
  to.isRead = equalsInAnyCase(text, "r") || equalsInAnyCase(text, "read");
  return to.isRead || equalsInAnyCase(text, "w") || equalsInAnyCase(text, "write");
}

std::optional<U32> takeHex(std::string_view text, Padding& padding) {
  return padding.take(withoutPrefix(text));
}

bool takeWords(std::string_view text, Padding& padding, std::vector<U32>& to) {
  const size_t before = to.size();
  while (!text.empty()) {
    const size_t size = std::min(text.find_first_of(" \t\r,"), text.size());
    if (size != 0) {
      const std::optional<U32> word = takeHex(text.substr(0, size), padding);
      if (!word || to.size() == mostWords) return false;
      to.push_back(*word);
    }
    text.remove_prefix(std::min(size + 1, text.size()));
  }
  return to.size() > before;
}

bool takeCount(std::string_view text, std::optional<U64>& to) {
  to = parseNumber(text);
  return to.has_value();
}

bool isTime(std::string_view text) {
  return !text.empty() && isDecimalDigit(text[0]) &&
         std::all_of(text.begin(), text.end(), [](char character) {
           return characters.isOfTime[static_cast<unsigned char>(character)];
         });
}

}  // namespace Core
}  // namespace Velmar
