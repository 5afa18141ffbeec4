// Typed input: field values, index sets, names and numbers. Accepted input has the value that a
// simple model gives it, and survives being printed and typed again.

#include "Fuzzing.h"
#include "input/JsonInput.h"
#include "model/EntryBuilder.h"
#include "model/IndexSet.h"
#include "model/Text.h"
#include "verbs/Target.h"

namespace Fuzzing {
namespace {

/// A value printed in each of its forms and typed again.
void checkForms(const Tool::Assignment& assignment) {
  const Tool::Value& value = assignment.value;
  const Tool::FieldPlace& place = assignment.place;
  require(parseValue(place, value.hex()) == value, "hexadecimal is typed again", value.hex());
  if (place.isBitmap()) {
    require(parseValue(place, value.portRanges()) == value, "ports are typed again");
    Tool::Value counted(place.width);
    for (const U32 port : value.ports()) addPort(place, counted, port);
    require(counted == value, "the ports are those of the bits");
  } else if (value.number()) {
    const std::string decimal = std::to_string(*value.number());
    require(parseValue(place, decimal) == value, "decimal is typed again", decimal);
  }
}

void checkBuilt(const Tool::Layout& layout, const std::vector<Tool::Assignment>& assignments) {
  Tool::EntryBuilder builder(layout);
  for (const Tool::Assignment& assignment : assignments) {
    checkForms(assignment);
    builder.set(assignment);
  }
  // Reached only if the whole input was accepted.
  for (const Tool::Assignment& assignment : assignments) {
    const Tool::FieldPlace& place = assignment.place;
    const U8* entry = builder.bytes().data();
    const bool holds = Tool::Value::read(place, entry, layout.entryBytes()) == assignment.value;
    require(holds, "an entry has the values it was given", place.name());
  }
  require(!layout.hasReservedBits(builder.bytes().data()), "fields set no bit outside all fields");
}

void typeAssignments(const Tool::Layout& layout, const std::string& text) {
  std::vector<Tool::Assignment> assignments;
  for (const std::string& line : Tool::split(text, '\n')) {
    for (Tool::Assignment& assignment : Tool::parseAssignments(layout, line)) {
      if (assignment.kind != Tool::Assignment::Kind::set) return;
      assignments.push_back(std::move(assignment));
    }
  }
  checkBuilt(layout, assignments);
}

void typeJson(const Tool::Layout& layout, const std::string& text) {
  MemoryPipe::fill(text);
  Tool::JsonInput json(std::make_unique<Tool::ByteStream>("-", nullptr, 64), layout, 0);
  for (Tool::JsonInput::Object object; json.next(object);) checkBuilt(layout, object.assignments);
}

void typeIndexes(const std::string& text) {
  const Tool::IndexSet set(text);
  std::vector<std::pair<U64, U64>> ranges;
  for (const std::string& part : Tool::split(text, ',')) {
    const std::vector<std::string> ends = Tool::split(part, '-');
    ranges.emplace_back(*Tool::parseNumber(ends.front()),
                        Tool::parseNumber(ends.back()).value_or(0xffffffff));
  }
  U64 last = 0;
  for (const auto& [low, high] : ranges) {
    last = std::max(last, high);
    for (const U64 index : {low - 1, low, low + 1, high - 1, high, high + 1}) {
      const bool isNamed = std::any_of(ranges.begin(), ranges.end(), [index](const auto& range) {
        return range.first <= index && index <= range.second;
      });
      require(set.has(index) == isNamed, "a set has the indexes that it names", text);
    }
  }
  require(set.last() == last && !set.isAll(), "ends of a set", text);
}

void typeNames(const std::string& text) {
  Tool::Arguments arguments;
  std::vector<std::string> words = Tool::split(text, '\n');
  words.resize(6);
  arguments.table = words[0];
  arguments.chips = {words[1]};
  arguments.variant = words[2];
  arguments.stride = words[3];
  arguments.first = words[4];
  if (!words[5].empty()) arguments.fields = {words[5]};
  Tool::inputOptionsOf(arguments);
  const Tool::Layout layout = Tool::layoutOf(arguments);
  for (const Tool::FieldPlace& place : Tool::fieldsOf(arguments, layout)) {
    require(layout.find(place.name()).field.id == place.field.id, "a field is found by its name");
    require(place.lastBit() < 8 * layout.entryBytes(), "a field lies in its entry", place.name());
  }
}

}  // namespace
}  // namespace Fuzzing

extern "C" int LLVMFuzzerTestOneInput(const U8* data, size_t size) {
  using namespace Fuzzing;
  Input input(data, size);
  const U32 kind = input.choose(4);
  const Tool::Layout& layout = chooseLayout(input);
  const std::string text = input.rest();
  failureOf([&] {
    if (kind == 0) typeAssignments(layout, text);
    if (kind == 1) typeJson(layout, text);
    if (kind == 2) typeIndexes(text);
    if (kind == 3) typeNames(text);
  });
  return 0;
}
