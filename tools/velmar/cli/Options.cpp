#include "cli/Options.h"

#include "model/Text.h"

namespace Tool {

std::string Option::longName() const { return split(names, ',').back(); }

namespace {

Option textOption(const char* names, const char* value, const char* meaning,
                  std::string Arguments::*text, Proposal proposal = Proposal::nothing) {
  return {names, value, meaning, proposal, text};
}

Option choiceOption(const char* names, const char* value, const char* meaning,
                    std::string Arguments::*text, std::vector<std::string> choices) {
  Option option{names, value, meaning, Proposal::choices, text};
  option.choices = std::move(choices);
  return option;
}

Option listOption(const char* names, const char* value, const char* meaning,
                  std::vector<std::string> Arguments::*list, Proposal proposal, bool required) {
  return {names, value, meaning, proposal, nullptr, list, nullptr, required};
}

Option switchOption(const char* names, const char* meaning, bool Arguments::*flag) {
  return {names, nullptr, meaning, Proposal::nothing, nullptr, nullptr, flag};
}

}  // namespace

namespace Options {

const char* const chipNames = "-c,--chip";

Option chip() {
  return listOption(chipNames, "CHIP", "the chip: a name such as BCM56990_B0 or 56990, or a number",
                    &Arguments::chips, Proposal::chips, true);
}
Option chips() {
  return listOption(chipNames, "CHIP", "a chip; give the option twice, old chip first",
                    &Arguments::chips, Proposal::chips, true);
}
Option chipIfAny() {
  return listOption(chipNames, "CHIP", "this chip only", &Arguments::chips, Proposal::chips, false);
}
Option variant() {
  return textOption("--variant", "N", "table variant, 0 to 255 (default 0)", &Arguments::variant);
}
Option format(std::vector<std::string> choices) {
  return choiceOption("-f,--format", "FORMAT", "form of the result, by default the first",
                      &Arguments::format, std::move(choices));
}
Option listFormat() { return format({"table", "json", "jsonl", "csv"}); }
Option output() {
  return textOption("-o,--output", "FILE",
                    "write the result to FILE, whole or not at all (default: standard output)",
                    &Arguments::output, Proposal::files);
}
Option color() {
  return choiceOption("--color", "WHEN",
                      "colours, by default on a terminal, unless NO_COLOR is set",
                      &Arguments::color, {"auto", "always", "never"});
}
Option index() {
  return textOption("--index", "LIST", "only these entries, such as 100, 0-99 or 1,5,100-199",
                    &Arguments::index);
}
Option changeIndex() {
  return textOption("--index", "LIST",
                    "the entries to make, or with --base to change, such as 100 or 1,5,100-199",
                    &Arguments::index);
}
Option entryIndex() {
  return textOption("--index", "N", "the entry; for a register array its element",
                    &Arguments::index);
}
Option array() {
  return textOption("--array", "N", "the element of a register array", &Arguments::array);
}
Option identifier() {
  return textOption("--identifier", "N", "the instance (default 0)", &Arguments::identifier);
}
Option find() {
  return textOption("--find", "ADDRESS", "print what has this address, such as 0x0c7c0064",
                    &Arguments::find);
}
Option fields() {
  return listOption("--fields", "NAMES", "only these fields, separated by commas",
                    &Arguments::fields, Proposal::fields, false);
}
Option where() {
  return listOption("--where", "FIELD=VALUE",
                    "only entries where the field has the value (or, with !=, has not); may be "
                    "repeated: all must hold",
                    &Arguments::where, Proposal::assignments, false);
}
Option nonzero() {
  return switchOption("--nonzero", "skip entries that are all zero", &Arguments::nonzero);
}
Option check() {
  return switchOption("--check",
                      "instead of the entries, report those with bits set outside all fields or "
                      "beyond the end of the table; exit 1 if there are any",
                      &Arguments::check);
}
Option input() {
  return choiceOption("--input", "FORMAT", "format of the dump, by default told by its first bytes",
                      &Arguments::input, {"auto", "raw", "hex", "xxd", "json"});
}
Option hexOrder() {
  return choiceOption("--hex-order", "ORDER",
                      "how to read hex digits; bytes: the first byte first; words: 32-bit words, "
                      "the first word first; int: one number, highest digit first",
                      &Arguments::hexOrder, {"bytes", "words", "int"});
}
Option stride() {
  return textOption("--stride", "BYTES",
                    "bytes from one entry of the dump to the next, at most 65536 (default: the "
                    "bytes of an entry)",
                    &Arguments::stride);
}
Option first() {
  return textOption("--first", "N", "index of the first entry of a partial dump (default 0)",
                    &Arguments::first);
}
Option base() {
  return textOption("--base", "FILE", "change the entries of this dump instead of making new ones",
                    &Arguments::base, Proposal::files);
}
Option whole() {
  return switchOption("--whole", "write the whole table: entries that are not given are zero",
                      &Arguments::whole);
}
Option quiet() {
  return switchOption("-q,--quiet", "print nothing: the exit code is the answer",
                      &Arguments::quiet);
}
Option diagram() {
  return switchOption("--diagram", "draw the entry in rows of 32 bits", &Arguments::diagram);
}
Option help() { return switchOption("-h,--help", "print this help", &Arguments::help); }

}  // namespace Options

namespace Positionals {

Positional table() {
  return {"TABLE", "the table, such as VlanEntry or vlan", Proposal::tables, true,
          &Arguments::table};
}
Positional tableIfAny() {
  return {"TABLE", "this table only", Proposal::tables, false, &Arguments::table};
}
Positional dump() {
  return {"FILE",          "the dump; - or nothing: standard input",
          Proposal::files, false,
          nullptr,         &Arguments::files};
}
Positional oldAndNew() {
  return {"OLD NEW",        "two dumps; - is standard input", Proposal::files, true, nullptr,
          &Arguments::files};
}
Positional pattern() {
  return {"PATTERN", "part of a field's name, a name with * and ?, or an identifier",
          Proposal::nothing, false, &Arguments::pattern};
}
Positional assignments() {
  return {"FIELD=VALUE",
          "fields to set; @FILE takes them from a JSON file, @- from standard input",
          Proposal::assignments,
          false,
          nullptr,
          &Arguments::assignments};
}

}  // namespace Positionals
}  // namespace Tool
