// Typed input: field values, index sets, names and numbers. Accepted input has the value that a
// simple model gives it, and survives being printed and typed again.

#include "Fuzzing.h"
#include "core/Families.h"
#include "core/IndexSet.h"
#include "core/Reading.h"

namespace Fuzzing {
namespace {

void requireTyped(const Core::Assignment& assignment, const std::string& text) {
  const auto value = Core::parseValue(assignment.place, text);
  require(value && *value == assignment.value, "what is printed is typed again", text);
}

/// A value printed in each of its forms and typed again.
void checkForms(const Core::Assignment& assignment) {
  const Core::Value& value = assignment.value;
  requireTyped(assignment, value.hex());
  if (assignment.place.isBitmap()) {
    requireTyped(assignment, value.portRanges());
    Core::Value counted(assignment.place.width);
    for (const U32 port : value.ports()) {
      require(succeeds(Core::addPort(assignment.place, counted, port)), "the bitmap has its ports");
    }
    require(counted == value, "the ports are those of the bits");
  } else if (value.number()) {
    requireTyped(assignment, std::to_string(*value.number()));
  }
}

void checkBuilt(const Core::Layout& layout, const std::vector<Core::Assignment>& assignments) {
  Core::EntryBuilder builder(layout);
  for (const Core::Assignment& assignment : assignments) {
    checkForms(assignment);
    if (!succeeds(builder.set(assignment))) return;
  }
  // Reached only if the whole input was accepted.
  for (const Core::Assignment& assignment : assignments) {
    const Core::FieldPlace& place = assignment.place;
    const U8* entry = builder.bytes().data();
    const bool holds = Core::Value::read(place, entry, layout.entryBytes()) == assignment.value;
    require(holds, "an entry has the values it was given", place.name());
  }
  require(!layout.hasReservedBits(builder.bytes().data()), "fields set no bit outside all fields");
}

void typeAssignments(const Core::Layout& layout, const std::string& text) {
  std::vector<Core::Assignment> all;
  for (const std::string& line : Core::split(text, '\n')) {
    const auto assignments = Core::parseAssignments(layout, line);
    if (!succeeds(assignments)) return;
    for (const Core::Assignment& assignment : *assignments) {
      if (assignment.kind != Core::Assignment::Kind::set) return;
      all.push_back(assignment);
    }
  }
  checkBuilt(layout, all);
}

void typeDocument(const Core::Layout& layout, const std::string& text) {
  const auto values = Core::readValues(layout, text, nullptr);
  if (!succeeds(values)) return;
  checkBuilt(layout, values->common);
  const Core::Dump& entries = values->entries;
  require(entries.count() == 0 || values->common.empty(), "a document is of one kind", text);
  // An entry that is its own base stays as it is, whatever the document gives.
  const auto again = Core::readValues(layout, text, &entries);
  if (entries.count() == 0 || !succeeds(again)) return;
  require(again->entries.size() == entries.size() &&
              std::equal(entries.data(), entries.data() + entries.size(), again->entries.data()),
          "values of the base change nothing", text);
}

void typeIndexes(const std::string& text) {
  const auto set = Core::IndexSet::of(text);
  if (!succeeds(set)) return;
  std::vector<std::pair<U64, U64>> ranges;
  for (const std::string& part : Core::split(text, ',')) {
    const std::vector<std::string> ends = Core::split(part, '-');
    ranges.emplace_back(*Core::parseNumber(ends.front()),
                        Core::parseNumber(ends.back()).value_or(0xffffffff));
  }
  for (const auto& [low, high] : ranges) {
    for (const U64 index : {low - 1, low, low + 1, high - 1, high, high + 1}) {
      const bool isNamed = std::any_of(ranges.begin(), ranges.end(), [index](const auto& range) {
        return range.first <= index && index <= range.second;
      });
      require(set->has(index) == isNamed, "a set has the indexes that it names", text);
    }
  }
  require(!set->isAll(), "a set that is typed is not all", text);
}

void typeNames(const std::string& text) {
  std::vector<std::string> words = Core::split(text, '\n');
  words.resize(6);
  const auto table = Core::findTable(words[0]);
  const auto chip = Core::findChip(words[1]);
  if (!succeeds(table) || !succeeds(chip)) return;
  const U64 variant = Core::parseNumber(words[2]).value_or(0);
  const auto layout = Core::Layout::of(*table, *chip, static_cast<U32>(variant));
  if (!succeeds(layout)) return;
  const auto places = Core::findFields(*layout, words[5].empty() ? "*" : words[5]);
  if (!succeeds(places)) return;
  for (const Core::FieldPlace& place : *places) {
    const auto found = layout->find(place.name());
    require(found && (*found)->field.id == place.field.id, "a field is found by its name");
    require(place.lastBit() < 8 * layout->entryBytes(), "a field lies in its entry", place.name());
  }
}

}  // namespace
}  // namespace Fuzzing

extern "C" int LLVMFuzzerTestOneInput(const U8* data, size_t size) {
  using namespace Fuzzing;
  Input input(data, size);
  const U32 kind = input.choose(4);
  const Core::Layout& layout = chooseLayout(input);
  const std::string text = input.rest();
  if (kind == 0) typeAssignments(layout, text);
  if (kind == 1) typeDocument(layout, text);
  if (kind == 2) typeIndexes(text);
  if (kind == 3) typeNames(text);
  return 0;
}
