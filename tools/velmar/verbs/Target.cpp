#include "verbs/Target.h"

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
  options.isForTwo = arguments.files.size() > 1;
  options.beyondEnd = arguments.check;
  options.note = [](const std::string& text) {
    std::fprintf(stderr, "velmar: note: %s\n", text.c_str());
  };
  options.stride = static_cast<U32>(numberOf("--stride", arguments.stride, longestStride, 0));
  options.first = numberOf("--first", arguments.first, std::numeric_limits<U32>::max(), 0);
  return options;
}

void print(const Arguments& arguments, const Listing& listing) {
  Output output(arguments.output, arguments.color);
  listing.print(output, formatOf(arguments.format));
  output.finish();
}

std::vector<FieldPlace> fieldsOf(const Arguments& arguments, const Layout& layout) {
  if (arguments.fields.empty()) return layout.fields();
  std::vector<FieldPlace> places;
  for (const std::string& name : split(join(arguments.fields, ","), ',')) {
    places.push_back(layout.find(name));
  }
  return places;
}

}  // namespace Tool
