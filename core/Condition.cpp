#include "core/Condition.h"

#include <algorithm>
#include <limits>

#include "core/Families.h"

namespace Velmar {
namespace Core {
namespace {

constexpr std::string_view blanks = " \t\r\n";

bool isWord(std::string_view text, std::string_view word) {
  return text.size() == word.size() &&
         std::equal(text.begin(), text.end(), word.begin(),
                    [](char a, char b) { return simpleCharacter(a) == b; });
}

/// The index of an entry, as if it were a field.
FieldPlace indexPlace() {
  const Catalogue::Field field{"index", "", "", 0, Catalogue::ValueType::u32, false};
  return {field, 0, 32};
}

std::array<U64, 2> readNumber(const FieldPlace& place, const U8* entry, U32 entryBytes) {
  U64 halves[2] = {};
  readBits(entry, entryBytes, place.offset, place.width, halves, sizeof(halves));
  return {halves[1], halves[0]};
}

Expected<std::array<U64, 2>> parseNumberOf(const FieldPlace& place, std::string_view text) {
  const Expected<Value> value = parseValue(place, text);
  if (!value) return failed(value);
  FieldPlace alone = place;
  alone.offset = 0;
  U8 bytes[16] = {};
  value->write(alone, bytes, sizeof(bytes));
  return readNumber(alone, bytes, sizeof(bytes));
}

}  // namespace

/// Takes a text apart. Each part begins where the one before it ends.
class ConditionReader {
 public:
  ConditionReader(const Layout& layout, std::string_view text, Condition::Words words)
      : layout_(layout), text_(text), words_(words), rest_(text) {}

  Expected<Condition> read() {
    Expected<Condition> condition = readGroups();
    if (!condition || isAtEnd()) return condition;
    if (rest_[0] == ')') return failed(wrong("\")\" without \"(\"; remove it"));
    return failed(wrong("no \"and\", \"or\" or \";\" before {}; join conditions by one of them",
                        quoted(rest_).view()));
  }

 private:
  using Kind = Condition::Kind;
  using Part = Expected<Condition> (ConditionReader::*)();

  /// The signs, each with the numbers or ports that it asks for. A sign that begins with another one
  /// comes first.
  enum class Sign { notEqual, hasNone, lessOrEqual, less, greaterOrEqual, greater, equal, has };
  struct SignText {
    std::string_view text;
    Sign sign;
  };
  static constexpr SignText signs[] = {{"!=", Sign::notEqual},
                                       {"!~", Sign::hasNone},
                                       {"<=", Sign::lessOrEqual},
                                       {"<", Sign::less},
                                       {"==", Sign::equal},
                                       {"=", Sign::equal},
                                       {">=", Sign::greaterOrEqual},
                                       {">", Sign::greater},
                                       {"~", Sign::has}};
  /// What ends a name.
  static constexpr std::string_view nameEnds = " \t\r\n();,=!<>~";

  template <class... Arguments>
  Fault wrong(fmt::format_string<Arguments...> what, Arguments&&... arguments) const {
    const std::string text = formatText(what, std::forward<Arguments>(arguments)...);
    return Fault(Code::value, "{}: {}", quoted(text_).view(), text);
  }

  bool isAtEnd() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(blanks), rest_.size()));
    return rest_.empty();
  }
  bool isAt(char character) { return !isAtEnd() && rest_[0] == character; }

  std::string_view take(size_t size) {
    const std::string_view taken = rest_.substr(0, size);
    rest_.remove_prefix(taken.size());
    return taken;
  }
  bool takeIf(char character) { return isAt(character) && !take(1).empty(); }
  /// Takes a word in any case. A name that only begins with it stays.
  bool takeIf(std::string_view word) {
    isAtEnd();
    const size_t size = std::min(rest_.find_first_of(nameEnds), rest_.size());
    return isWord(rest_.substr(0, size), word) && !take(size).empty();
  }

  Expected<Condition> readGroups() {
    return readParts(Kind::allOf, &ConditionReader::readAlternatives, ";");
  }
  Expected<Condition> readAlternatives() {
    return readParts(Kind::anyOf, &ConditionReader::readConjunction, "or");
  }
  Expected<Condition> readConjunction() {
    return readParts(Kind::allOf, &ConditionReader::readOne, "and");
  }

  Expected<Condition> readParts(Kind kind, Part readPart, std::string_view separator) {
    Condition all(kind);
    do {
      Expected<Condition> part = (this->*readPart)();
      if (!part) return part;
      all.parts_.push_back(std::move(*part));
    } while (separator == ";" ? takeIf(';') : takeIf(separator));
    return all.parts_.size() == 1 ? all.parts_.front() : all;
  }

  Expected<Condition> readOne() {
    constexpr U32 deepest = 100;
    if (takeIf("not")) {
      if (++depth_ > deepest) return failed(tooDeep());
      Expected<Condition> part = readOne();
      if (!part) return part;
      Condition none(Kind::noneOf);
      none.parts_.push_back(std::move(*part));
      return none;
    }
    if (takeIf('(')) {
      if (++depth_ > deepest) return failed(tooDeep());
      Expected<Condition> inner = readGroups();
      if (inner && !takeIf(')')) return failed(wrong("a \")\" is missing; add it"));
      return inner;
    }
    return readComparison();
  }

  Fault tooDeep() const {
    return Fault(Code::value,
                 "a condition with more than 100 of \"not\" and \"(\"; make it simpler");
  }

  Expected<Condition> readComparison() {
    if (takeIf("nonzero")) return readBits("nonzero", {});
    if (takeIf("reserved")) return readBits("reserved", layout_.reservedMask());
    if (words_ == Condition::Words::ofChanges && takeIf("changed")) return readChanged();
    const bool isAny = takeIf("any");
    const bool isForFamily = isAny || takeIf("all");
    isAtEnd();
    const std::string_view name = take(std::min(rest_.find_first_of(nameEnds), rest_.size()));
    if (name.empty()) return failed(noCondition());
    Condition condition(Kind::fields);
    condition.entryBytes_ = layout_.entryBytes();
    condition.anyPlace_ = isAny;
    if (!isForFamily && isWord(name, "index")) {
      condition.kind_ = Kind::index;
      condition.places_ = {indexPlace()};
    } else {
      auto places = isForFamily ? findMembers(layout_, name) : findFields(layout_, name);
      if (!places && places.error().code == Code::ambiguous) {
        places.error().advise("write any {} or all {}, or give numbers such as {}0-3", name, name,
                              name);
      }
      if (!places) return failed(places);
      condition.places_ = std::move(*places);
    }
    isAtEnd();
    const auto sign = std::find_if(std::begin(signs), std::end(signs), [this](const SignText& one) {
      return rest_.substr(0, one.text.size()) == one.text;
    });
    if (sign == std::end(signs)) {
      return failed(
          wrong("no condition on {}; give {}=VALUE, or another of != < <= > >= ~ !~", name, name));
    }
    take(sign->text.size());
    const Done done = readValues(condition, sign->sign, sign->text);
    if (!done) return failed(done);
    return condition;
  }

  /// Holds if one of the fields of a name has changed.
  Expected<Condition> readChanged() {
    isAtEnd();
    const std::string_view name = take(std::min(rest_.find_first_of(nameEnds), rest_.size()));
    if (name.empty()) return failed(wrong("no field after changed; give changed FIELD"));
    auto places = findMembers(layout_, name);
    if (!places) return failed(places);
    if (isAtSign()) {
      return failed(
          wrong("changed takes no value; give changed {} and a condition on {}", name, name));
    }
    Condition condition(Kind::changed);
    condition.entryBytes_ = layout_.entryBytes();
    condition.places_ = std::move(*places);
    return condition;
  }

  bool isAtSign() {
    return !isAtEnd() && std::string_view("=!<>~").find(rest_[0]) != std::string_view::npos;
  }

  Fault noCondition() const {
    if (rest_.empty())
      return wrong("no condition at the end; give FIELD=VALUE, or another of != < <= > >= ~ !~");
    return wrong("no condition before {}; give FIELD=VALUE, or another of != < <= > >= ~ !~",
                 quoted(rest_).view());
  }

  /// Holds for an entry that has a bit of the mask; without one any bit.
  Expected<Condition> readBits(const char* name, std::vector<U8> mask) {
    if (isAtSign()) {
      return failed(wrong("{} takes no value; give {}, or not {}", name, name, name));
    }
    Condition condition(Kind::bits);
    condition.mask_ = mask.empty() ? std::vector<U8>(layout_.entryBytes(), 0xff) : std::move(mask);
    return condition;
  }

  Done readValues(Condition& condition, Sign sign, std::string_view signText) {
    const std::vector<FieldPlace>& places = condition.places_;
    const FieldPlace& first = places.front();
    for (const FieldPlace& place : places) {
      if (place.width == first.width && place.isBitmap() == first.isBitmap()) continue;
      return failed(wrong("{} and {} are of different kind; give a condition for each",
                          first.name(), place.name()));
    }
    const bool isForPorts = sign == Sign::has || sign == Sign::hasNone;
    const bool isForAll = sign == Sign::equal || sign == Sign::notEqual;
    if (first.isBitmap() && !isForPorts && !isForAll) {
      return failed(
          wrong("{} is a bitmap; give ~ (it has these ports), !~ (it has none of them), "
                "= or !=",
                first.name()));
    }
    if (!first.isBitmap() && isForPorts) {
      return failed(wrong("{} is a number; give one of = != < <= > >=", first.name()));
    }
    const std::vector<std::string> values = takeValues();
    if (std::count(values.begin(), values.end(), "") != 0) {
      return failed(wrong("a value is missing; give one after {} and after each comma", signText));
    }
    condition.isNegated_ = sign == Sign::notEqual || sign == Sign::hasNone;
    if (first.isBitmap()) return readPorts(condition, isForPorts, values);
    if (isForAll) return readRanges(condition, values);
    return readBound(condition, sign, signText, values);
  }

  /// The values after a sign, which commas separate.
  std::vector<std::string> takeValues() {
    std::vector<std::string> values;
    do {
      isAtEnd();
      values.emplace_back(take(std::min(rest_.find_first_of(" \t\r\n();,"), rest_.size())));
    } while (takeIf(','));
    return values;
  }

  Done readPorts(Condition& condition, bool isForPorts, const std::vector<std::string>& texts) {
    const FieldPlace& place = condition.places_.front();
    const Expected<Value> ports = parseValue(place, join(texts, ","));
    if (!ports) return failed(ports);
    if (isForPorts && ports->isZero()) {
      return failed(
          wrong("no ports are given, so the condition always holds; for empty bitmaps "
                "write {}=none",
                place.name()));
    }
    condition.relation_ = isForPorts ? Condition::Relation::has : Condition::Relation::equal;
    condition.ports_ = {*ports};
    return {};
  }

  Done readRanges(Condition& condition, const std::vector<std::string>& texts) {
    const FieldPlace& place = condition.places_.front();
    for (const std::string& text : texts) {
      const size_t dash = std::min(text.find('-', 1), text.size());
      const auto first = parseNumberOf(place, std::string_view(text).substr(0, dash));
      const bool isOpen = dash + 1 == text.size();
      const auto last = dash == text.size() ? first
                        : isOpen            ? Expected<Condition::Number>(largest)
                                 : parseNumberOf(place, std::string_view(text).substr(dash + 1));
      if (!first || !last) return failed(first ? last : first);
      if (*last < *first) {
        return failed(Fault(Code::value, "{}: range {} runs backwards; give the lower number first",
                            place.name(), quoted(text).view())
                          .ofField(place.name()));
      }
      condition.ranges_.push_back({*first, *last});
    }
    return {};
  }

  /// Numbers below or above one number: one range, or all but one.
  Done readBound(Condition& condition, Sign sign, std::string_view signText,
                 const std::vector<std::string>& texts) {
    if (texts.size() > 1) {
      return failed(wrong("{} takes one number; give several after = or !=", signText));
    }
    const auto number = parseNumberOf(condition.places_.front(), texts.front());
    if (!number) return failed(number);
    const bool isUpTo = sign == Sign::lessOrEqual || sign == Sign::greater;
    condition.isNegated_ = sign == Sign::greater || sign == Sign::less;
    condition.ranges_ = {isUpTo ? Condition::Range{{}, *number}
                                : Condition::Range{*number, largest}};
    return {};
  }

  static constexpr Condition::Number largest = {std::numeric_limits<U64>::max(),
                                                std::numeric_limits<U64>::max()};

  const Layout& layout_;
  std::string_view text_;
  Condition::Words words_;
  std::string_view rest_;  ///< of the text
  U32 depth_ = 0;
};

Expected<Condition> Condition::of(const Layout& layout, std::string_view text, Words words) {
  return ConditionReader(layout, text, words).read();
}

bool Condition::holdsFor(U32 index, const U8* entry, const U8* changes) const {
  const auto holds = [&](const Condition& part) { return part.holdsFor(index, entry, changes); };
  const auto holdsForPlace = [&](const FieldPlace& place) { return holdsForField(place, entry); };
  switch (kind_) {
    case Kind::allOf:
      return std::all_of(parts_.begin(), parts_.end(), holds);
    case Kind::anyOf:
      return std::any_of(parts_.begin(), parts_.end(), holds);
    case Kind::noneOf:
      return std::none_of(parts_.begin(), parts_.end(), holds);
    case Kind::bits:
      return std::any_of(mask_.begin(), mask_.end(),
                         [&entry](U8 mask) { return (*entry++ & mask) != 0; });
    case Kind::index:
      return isAmong({0, index}) != isNegated_;
    case Kind::changed:
      return std::any_of(places_.begin(), places_.end(), [&](const FieldPlace& place) {
        return !Value::read(place, changes, entryBytes_).isZero();
      });
    case Kind::fields:
      break;
  }
  return anyPlace_ ? std::any_of(places_.begin(), places_.end(), holdsForPlace)
                   : std::all_of(places_.begin(), places_.end(), holdsForPlace);
}

bool Condition::holdsForField(const FieldPlace& place, const U8* entry) const {
  if (relation_ == Relation::among) {
    return isAmong(readNumber(place, entry, entryBytes_)) != isNegated_;
  }
  const Value value = Value::read(place, entry, entryBytes_);
  const Value& ports = ports_.front();
  if (relation_ == Relation::equal) return (value == ports) != isNegated_;
  return isNegated_ ? !value.overlaps(ports) : value.contains(ports);
}

bool Condition::isAmong(const Number& number) const {
  return std::any_of(ranges_.begin(), ranges_.end(), [&number](const Range& range) {
    return range.first <= number && number <= range.last;
  });
}

Expected<Selection> Selection::of(const Layout& layout, const std::vector<std::string>& conditions,
                                  Condition::Words words) {
  Selection selection;
  for (const std::string& text : conditions) {
    const Expected<Condition> condition = Condition::of(layout, text, words);
    if (!condition) return failed(condition);
    selection.conditions_.push_back(*condition);
  }
  return selection;
}

bool Selection::fits(U32 index, const U8* entry, U32 entryBytes, const U8* changes) const {
  if (nonzero && std::all_of(entry, entry + entryBytes, [](U8 byte) { return byte == 0; })) {
    return false;
  }
  return std::all_of(conditions_.begin(), conditions_.end(), [&](const Condition& condition) {
    return condition.holdsFor(index, entry, changes);
  });
}

std::vector<size_t> Selection::in(const Dump& dump) const {
  std::vector<size_t> positions;
  for (size_t i = 0; i < dump.count(); ++i) {
    if (!indexes.has(dump.index(i))) continue;
    if (fits(dump.index(i), dump.bytes(i), dump.entryBytes())) positions.push_back(i);
  }
  return positions;
}

}  // namespace Core
}  // namespace Velmar
