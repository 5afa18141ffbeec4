#include "verbs/Target.h"

#include <algorithm>
#include <cstdio>
#include <limits>

#include "model/Failure.h"
#include "model/Text.h"

namespace Tool {

Catalogue::Chip chipOf(const Arguments& arguments) {
  if (arguments.chips.size() != 1) {
    fail("--chip is given {} times; give it once", arguments.chips.size());
  }
  return findChip(arguments.chips.front());
}

std::vector<Catalogue::Chip> chipsOf(const Arguments& arguments) {
  return arguments.chips.empty() ? allChips() : std::vector{chipOf(arguments)};
}

bool isAskedFor(const Arguments& arguments, const Catalogue::Table& table) {
  return arguments.tableOption.empty() ||
         findTable(arguments.tableOption).name() == std::string_view(table.name());
}

U64 numberOf(const char* option, const std::string& text, U64 largest, U64 absent) {
  if (text.empty()) return absent;
  const std::optional<U64> number = parseNumber(text);
  if (!number || *number > largest) {
    fail("{} {}: not a number from {} to {}; give it in decimal, or in hexadecimal after 0x",
         option, inQuotes(text), numberLike(text, 0), numberLike(text, largest));
  }
  return *number;
}

U8 variantOf(const Arguments& arguments) {
  return static_cast<U8>(
      numberOf("--variant", arguments.variant, std::numeric_limits<U8>::max(), 0));
}

Layout layoutOf(const Arguments& arguments) {
  return Layout(findTable(arguments.table), chipOf(arguments), variantOf(arguments));
}

InputOptions inputOptionsOf(const Arguments& arguments) {
  constexpr U32 longestStride = 65536;
  InputOptions options;
  if (!arguments.input.empty()) options.format = arguments.input;
  if (arguments.hexOrder == "bytes") options.hexOrder = HexOrder::bytes;
  if (arguments.hexOrder == "words") options.hexOrder = HexOrder::words;
  if (arguments.hexOrder == "int") options.hexOrder = HexOrder::integer;
  options.bigEndian = arguments.byteOrder == "big";
  options.beyondEnd = arguments.check;
  options.note = [](const std::string& text) {
    std::fprintf(stderr, "velmar: note: %s\n", text.c_str());
  };
  options.stride = static_cast<U32>(numberOf("--stride", arguments.stride, longestStride, 0));
  if (!arguments.stride.empty() && options.stride == 0) {
    fail("--stride 0 repeats one entry; give the bytes from one entry to the next");
  }
  options.first = numberOf("--first", arguments.first, std::numeric_limits<U32>::max(), 0);
  return options;
}

InputOptions inputOptionsOf(const Arguments& arguments, bool isNew) {
  Arguments own = arguments;
  auto shared = InputOptions().shared;
  shared = {true, true, true, true};
  for (const SideValue& side : arguments.sides) {
    if (side.isNew != isNew) continue;
    own.*side.member = side.value;
    if (side.member == &Arguments::hexOrder) shared.hexOrder = false;
    if (side.member == &Arguments::byteOrder) shared.byteOrder = false;
    if (side.member == &Arguments::stride) shared.stride = false;
    if (side.member == &Arguments::first) shared.first = false;
  }
  InputOptions options = inputOptionsOf(own);
  options.shared = shared;
  return options;
}

void print(const Arguments& arguments, const Listing& listing, const JsonFrame& frame) {
  Output output(arguments.output, arguments.color);
  listing.print(output, formatOf(arguments.format), frame);
  output.finish();
}

std::vector<FieldPlace> inOrderOfBits(std::vector<FieldPlace> places) {
  std::stable_sort(places.begin(), places.end(),
                   [](const FieldPlace& a, const FieldPlace& b) { return a.offset < b.offset; });
  return places;
}

std::vector<FieldPlace> fieldsOf(const Arguments& arguments, const Layout& layout) {
  if (arguments.fields.empty()) {
    const bool isForPeople = formatOf(arguments.format) == Format::table;
    return isForPeople ? inOrderOfBits(layout.fields()) : layout.fields();
  }
  std::vector<FieldPlace> places;
  for (const std::string& name : split(join(arguments.fields, ","), ',')) {
    for (const FieldPlace& place : findFields(layout, name)) {
      const auto isSame = [&place](const FieldPlace& other) {
        return other.field.id == place.field.id;
      };
      if (std::none_of(places.begin(), places.end(), isSame)) places.push_back(place);
    }
  }
  return places;
}

IndexSet indexesOf(const Arguments& arguments) {
  return arguments.index.empty() ? IndexSet() : IndexSet(join(arguments.index, ","));
}

void checkIndexes(const Layout& layout, const IndexSet& indexes, const char* option,
                  const std::string& typed) {
  const U64 largest = indexes.largestNamed();
  if (largest < layout.indexCount()) return;
  fail("{} {}: {} on {} has the {} {} to {}; give one of them", option, numberLike(typed, largest),
       layout.name(), layout.chip().name, layout.isRegisterArray() ? "elements" : "entries",
       numberLike(typed, 0), numberLike(typed, layout.indexCount() - 1));
}

EntryStyle styleOf(const Arguments& arguments) {
  return {formatOf(arguments.format), arguments.plain, !arguments.expand};
}

}  // namespace Tool
