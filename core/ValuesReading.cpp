#include "core/ValuesReading.h"

#include <algorithm>
#include <limits>

#include "core/IndexSet.h"
#include "core/TextReading.h"

namespace Velmar {
namespace Core {
namespace {

std::vector<std::pair<std::string_view, std::string>> factsOf(const Layout& layout) {
  const Catalogue::Geometry& geometry = layout.geometry();
  return {{"accessType", std::to_string(geometry.accessType)},
          {"block", std::to_string(geometry.block)},
          {"table", layout.name()},
          {"chip", layout.chip().name},
          {"variant", std::to_string(layout.variant())},
          {"format", "velmar-entries"},
          {"version", "1"},
          {"entryBytes", std::to_string(layout.entryBytes())}};
}

bool isEqual(std::string_view name, std::string_view text, std::string_view expected) {
  if (text == expected) return true;
  if (name == "table") return simplified(text) == simplified(expected);
  const std::optional<U64> number = parseNumber(text);
  return number && number == parseNumber(expected);
}

}  // namespace

Expected<std::vector<U8>> parseReservedBits(const Layout& layout, std::string_view text) {
  FieldPlace whole = layout.wholeEntry();
  whole.field.accessor = "outsideFields";
  const Expected<Value> value = parseValue(whole, text);
  if (!value) return failed(value);
  std::vector<U8> bits(layout.entryBytes());
  value->write(whole, bits.data(), layout.entryBytes());
  for (size_t i = 0; i < bits.size(); ++i) {
    if ((bits[i] & ~layout.reservedMask()[i]) == 0) continue;
    return failed(Fault(Code::value,
                        "outsideFields: {} has bits inside fields; set the fields instead", text));
  }
  return bits;
}

EntryReader::EntryReader(const Layout& layout, const DocumentUse& use)
    : result{Dump(layout.entryBytes()), {}},
      layout_(layout),
      use_(use),
      facts_(factsOf(layout)),
      builder_(layout),
      next_(use.options.first.value_or(0)) {
  for (size_t i = 0; use.base != nullptr && i < use.base->count(); ++i) {
    positionsInBase_[use.base->index(i)] = i;
  }
}

void EntryReader::start(bool isEntry) {
  isEntry_ = isEntry;
  index_.reset();
  address_.clear();
  reservedBits_.clear();
  given_.clear();
  isGiven_.assign(layout_.fields().size(), false);
}

bool EntryReader::isFamily(std::string_view name) const {
  // Most names of a family's fields are ruled out here.
  if (name.empty() || isDecimalDigit(name.back())) return false;
  const std::vector<FieldPlace>& fields = layout_.fields();
  return std::any_of(fields.begin(), fields.end(), [name](const FieldPlace& place) {
    return place.isOfFamily() && place.prefix() == name;
  });
}

Done EntryReader::take(const FieldPlace& place, const Value& value) {
  std::vector<bool>::reference isGiven = isGiven_[layout_.positionOf(place)];
  if (isGiven) {
    return failed(
        Fault(Code::value, "{} is given twice; give it once", place.name()).ofField(place.name()));
  }
  isGiven = true;
  given_.push_back({&place, value});
  return succeeded();
}

Done EntryReader::takeFamily(std::string_view family, std::string_view value,
                             std::string_view numbers) {
  const Expected<IndexSet> set = IndexSet::of(numbers);
  if (!set) {
    return failed(Fault(Code::value, "{}: {} are not its numbers; give numbers such as 0-3,17",
                        family, quoted(numbers).view()));
  }
  const auto member = [&](U64 number) { return layout_.find(formatText("{}{}", family, number)); };
  if (const auto last = member(set->last()); !last) return failed(last);
  for (const U64 number : set->below(set->last() + 1)) {
    const auto place = member(number);
    if (!place) return failed(place);
    const Expected<Value> parsed = parseValue(**place, value);
    if (!parsed) return failed(parsed);
    if (const Done done = take(**place, *parsed); !done) return done;
  }
  return succeeded();
}

bool EntryReader::isMember(std::string_view name) const {
  return name == "index" || name == "address" || name == "outsideFields" ||
         std::any_of(facts_.begin(), facts_.end(),
                     [name](const Fact& fact) { return fact.first == name; });
}

Done EntryReader::takeMember(std::string_view name, std::string_view text) {
  if (name == "index") return takeIndex(text);
  if (name == "address") {
    address_ = text;
    return succeeded();
  }
  if (name == "outsideFields") {
    if (text.empty()) return succeeded();
    const auto bits = parseReservedBits(layout_, text);
    if (!bits) return failed(bits);
    reservedBits_ = *bits;
    return succeeded();
  }
  const auto fact = std::find_if(facts_.begin(), facts_.end(),
                                 [name](const Fact& each) { return each.first == name; });
  if (isEqual(name, text, fact->second)) return succeeded();
  return failed(Fault(Code::input, "{}: {}, not {}; check the file, and table, chip and variant",
                      name, quoted(text).view(), fact->second));
}

Done EntryReader::takeIndex(std::string_view text) {
  const std::optional<U64> index = parseNumber(text);
  if (!index || *index > std::numeric_limits<U32>::max()) {
    return failed(Fault(Code::input, "index: {} is not a number; give the index of the entry",
                        quoted(text).view()));
  }
  index_ = static_cast<U32>(*index);
  return succeeded();
}

Done EntryReader::finish() {
  if (!isEntry_) return finishValues();
  if (!result.common.empty()) {
    return failed(Fault(Code::input,
                        "entries after an object of values; give one object of values, or what "
                        "decode prints"));
  }
  if (const Done done = checkPlace(); !done) return done;
  const Expected<const U8*> from = entryOfBase();
  if (!from) return failed(from);
  if (const Done done = build(*from); !done) return done;
  if (const Done done = checkComplete(); !done) return done;
  auto fault = addEntry(result.entries, layout_, use_.options, *index_, builder_.bytes().data());
  if (!fault) return succeeded();
  // A document has no addresses that an origin could explain.
  const char* const option = fault->remedies[0].option;
  if (option != nullptr && option == std::string_view("origin")) {
    fault->advise("check the index, and table and chip");
  }
  return failed(*fault);
}

Done EntryReader::finishValues() {
  if (use_.isDump) {
    return failed(Fault(Code::input,
                        "an object without \"fields\" is not an entry of a dump; give JSON such as "
                        "decode --format json prints"));
  }
  if (!result.common.empty() || result.entries.count() != 0) {
    return failed(
        Fault(Code::input, "a second object; give one object of values, or what decode prints"));
  }
  // With a base it depends on the entry which values are changes.
  if (use_.base == nullptr) {
    if (const Done done = build(nullptr); !done) return done;
  }
  const auto kind = use_.base != nullptr ? Assignment::Kind::setIfOther : Assignment::Kind::set;
  for (const Given& each : given_) result.common.push_back({*each.place, each.value, kind});
  return {};
}

Done EntryReader::checkPlace() {
  const bool isNumbered = index_.has_value();
  if (!isNumbered && use_.base != nullptr) {
    return failed(
        Fault(Code::input, "an entry without index; give the index of the entry to change"));
  }
  if (const auto fault = checkFirst(use_.options); isNumbered && fault) return failed(*fault);
  if (!isNumbered) index_ = next_;
  if (!seen_.insert(*index_)) {
    return failed(
        Fault(Code::input, "entry {} is given twice; give it once", *index_).ofEntry(*index_));
  }
  next_ = *index_ + 1;
  return checkAddress();
}

Done EntryReader::checkAddress() const {
  if (address_.empty() || *index_ >= layout_.indexCount()) return succeeded();
  const std::string expected = addressText(layout_.addressOf(*index_).address);
  if (address_ == expected) return succeeded();
  return failed(Fault(Code::input,
                      "address: {}, but entry {} has {}; check the index, or leave out the address",
                      quoted(address_).view(), *index_, expected)
                    .ofEntry(*index_));
}

Expected<const U8*> EntryReader::entryOfBase() const {
  if (use_.base == nullptr) return nullptr;
  const auto found = positionsInBase_.find(*index_);
  if (found != positionsInBase_.end()) return use_.base->bytes(found->second);
  return failed(
      Fault(Code::input, "entry {} is not in the base; give entries of the base only", *index_)
          .ofEntry(*index_));
}

/// What keeps fields that a document does not give, or that contradict each other.
constexpr const char* remedyOf(bool isDump) {
  return isDump ? "change a dump with encode --base" : "give the dump with --base";
}

Done EntryReader::build(const U8* from) {
  if (from != nullptr) {
    builder_.start(from);
  } else {
    builder_.startFromZero();
  }
  for (const Given& each : given_) {
    const bool isSame = use_.base != nullptr && builder_.had(*each.place, each.value);
    if (isSame) continue;
    Done done = builder_.set(*each.place, each.value);
    if (done) continue;
    const bool isWhole = isEntry_ && use_.base == nullptr;
    if (isWhole) done.error().advise("give values that agree, or {}", remedyOf(use_.isDump));
    return done;
  }
  builder_.setReservedBits(reservedBits_);
  return succeeded();
}

Done EntryReader::checkComplete() const {
  if (use_.base != nullptr || given_.size() == layout_.fields().size()) return succeeded();
  const auto missing = std::find(isGiven_.begin(), isGiven_.end(), false) - isGiven_.begin();
  const char* const name = layout_.fields()[static_cast<size_t>(missing)].name();
  return failed(Fault(Code::input, "entry {} lacks the field \"{}\"; decode all fields, or {}",
                      *index_, name, remedyOf(use_.isDump))
                    .ofEntry(*index_)
                    .ofField(name));
}

}  // namespace Core
}  // namespace Velmar
