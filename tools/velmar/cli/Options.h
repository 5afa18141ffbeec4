#pragma once

#include <string>
#include <vector>

#include "model/Text.h"

namespace Tool {

struct Arguments;

/// An option of one of two dumps, such as --old-first.
struct SideValue {
  bool isNew;
  std::string Arguments::*member;
  std::string value;
};

/// What a command line holds, as it was typed.
struct Arguments {
  std::string table, pattern;
  std::vector<std::string> files, assignments;

  std::vector<std::string> chips, fields, where, index, find;
  std::string tableOption, variant, format, output, color, array, identifier, limit, from, to;
  std::string input, hexOrder, byteOrder, stride, first, base;
  std::vector<SideValue> sides;
  bool nonzero = false, check = false, whole = false, quiet = false, diagram = false, help = false;
  bool plain = false, expand = false, common = false, stat = false, lossy = false;
};

/// What the shell can propose for a value.
enum class Proposal { nothing, files, tables, chips, fields, assignments };

/// The member of Arguments that receives a value: one of the three.
struct Member {
  std::string Arguments::*text = nullptr;
  std::vector<std::string> Arguments::*list = nullptr;
  bool Arguments::*flag = nullptr;

  constexpr Member(std::string Arguments::*member) : text(member) {}
  constexpr Member(std::vector<std::string> Arguments::*member) : list(member) {}
  constexpr Member(bool Arguments::*member) : flag(member) {}

  bool isGiven(const Arguments& in) const {
    if (flag != nullptr) return in.*flag;
    return list != nullptr ? !(in.*list).empty() : !(in.*text).empty();
  }
};

/// An option. It means the same in every verb.
struct Option {
  const char* names;  ///< such as "-o,--output"
  const char* value;  ///< what the help calls the value; null for a switch
  Member member;
  const char* meaning;
  Proposal proposal = Proposal::nothing;
  bool required = false;
  const char* choices = "";  ///< the only values, separated by commas; empty: any
  bool isOfDump = false;     ///< where there are two dumps, --old-NAME and --new-NAME are for one

  /// The name as the help and the messages use it, such as "--output".
  std::string longName() const { return split(names, ',').back(); }
};

/// An argument without a name: its position says what it is.
struct Positional {
  const char* value;
  Member member;
  const char* meaning;
  Proposal proposal = Proposal::nothing;
  bool required = false;
  bool hasTwoDumps = false;
};

constexpr Option oneOf(const char* choices, Option option) {
  option.choices = choices;
  return option;
}
constexpr Option ofDump(Option option) {
  option.isOfDump = true;
  return option;
}

// clang-format off
namespace Options {

inline constexpr Option
    chip{"-c,--chip", "CHIP", &Arguments::chips,
         "the chip: a name such as BCM56990_B0 or 56990, or a number", Proposal::chips, true},
    chips{"-c,--chip", "OLD --chip NEW", &Arguments::chips,
          "the two chips", Proposal::chips, true},
    chipIfAny{"-c,--chip", "CHIP", &Arguments::chips, "this chip only", Proposal::chips},
    variant{"--variant", "N", &Arguments::variant, "table variant, 0 to 255 (default 0)"},
    output{"-o,--output", "FILE", &Arguments::output,
           "write the result to FILE, whole or not at all (- or default: standard output)",
           Proposal::files},
    color = oneOf("auto,always,never", {"--color", "WHEN", &Arguments::color,
            "colours, by default on a terminal, unless NO_COLOR is set"}),
    index{"--index", "LIST", &Arguments::index,
          "only these entries, such as 100, 0-99, 100- or 1,5,100-199; may be repeated"},
    changeIndex{"--index", "LIST", &Arguments::index,
          "the entries to make, or with --base to change, such as 100 or 1,5,100-199; may be "
          "repeated"},
    entryIndex{"--index", "LIST", &Arguments::index,
          "the entries, or elements of a register array, such as 100 or 1,5,100-199; may be "
          "repeated"},
    array{"--array", "LIST", &Arguments::array, "the elements of a register array"},
    identifier{"--identifier", "N", &Arguments::identifier, "the instance (default 0)"},
    find{"--find", "ADDRESS", &Arguments::find,
         "print what has this address, such as 0x0c7c0064; may be repeated"},
    limit{"--limit", "N", &Arguments::limit, "stop after N entries"},
    fields{"--fields", "NAMES", &Arguments::fields,
           "only these fields, separated by commas; a name may have * and ?, or numbers such as "
           "spTreePort0-3", Proposal::fields},
    where{"--where", "CONDITION", &Arguments::where,
          "only entries where it holds: FIELD=VALUE or != < <= > >=, with = and != also several "
          "values such as stg=2,3; BITMAP~PORTS: it has these ports, !~: none of them; may be "
          "repeated: all must hold", Proposal::assignments},
    tableOption{"--table", "TABLE", &Arguments::tableOption, "this table only", Proposal::tables},
    from{"--from", "CHIP", &Arguments::from, "the chip of the dump", Proposal::chips, true},
    to{"--to", "CHIP", &Arguments::to, "the chip of the result", Proposal::chips, true},
    lossy{"--lossy", nullptr, &Arguments::lossy, "write the result though something gets lost"},
    plain{"--plain", nullptr, &Arguments::plain,
          "JSON with values alone: numbers, bitmaps as lists of ports, wide values as text"},
    expand{"--expand", nullptr, &Arguments::expand,
           "the fields of all ports one by one, not as a family"},
    common{"--common", nullptr, &Arguments::common, "only entries that both dumps have"},
    stat{"--stat", nullptr, &Arguments::stat,
         "instead of the entries, print how many differ in each field"},
    nonzero{"--nonzero", nullptr, &Arguments::nonzero, "skip entries that are all zero"},
    check{"--check", nullptr, &Arguments::check,
          "instead of the entries, report those with bits set outside all fields or beyond the "
          "end of the table; exit 1 if there are any"},
    input = ofDump(oneOf("auto,raw,hex,xxd,hexdump,od,json", {"--input", "FORMAT",
            &Arguments::input, "format of the dump (default: recognized by its first bytes)"})),
    hexOrder = ofDump(oneOf("bytes,words,int", {"--hex-order", "ORDER", &Arguments::hexOrder,
               "how to read hex digits; bytes: the first byte first; words: 32-bit words, the "
               "first word first; int: one number, highest digit first"})),
    byteOrder = ofDump(oneOf("little,big", {"--byte-order", "ORDER", &Arguments::byteOrder,
                "the byte of each 32-bit word that comes first in the dump: little (default) the "
                "lowest, big the highest"})),
    stride = ofDump({"--stride", "BYTES", &Arguments::stride,
           "bytes from one entry of the dump to the next, at most 65536 (default: the bytes of "
           "an entry)"}),
    first = ofDump({"--first", "N", &Arguments::first,
          "index of the first entry of a partial dump (default 0)"}),
    base{"--base", "FILE", &Arguments::base,
         "change the entries of this dump instead of making new ones", Proposal::files},
    whole{"--whole", nullptr, &Arguments::whole,
          "write the whole table: entries that are not given are zero"},
    quiet{"-q,--quiet", nullptr, &Arguments::quiet, "print nothing: the exit code is the answer"},
    diagram{"--diagram", nullptr, &Arguments::diagram, "draw the entry in rows of 32 bits"},
    help{"-h,--help", nullptr, &Arguments::help, "print this help"};

/// --format with the formats of a verb; the first is the default.
constexpr Option format(const char* choices) {
  return oneOf(choices, {"-f,--format", "FORMAT", &Arguments::format,
                         "form of the result, by default the first"});
}
inline constexpr Option listFormat = format("table,json,jsonl,csv");

}  // namespace Options

namespace Positionals {

inline constexpr Positional
    table{"TABLE", &Arguments::table, "the table, such as VlanEntry or vlan",
          Proposal::tables, true},
    tableIfAny{"TABLE", &Arguments::table, "this table only", Proposal::tables},
    dump{"FILE", &Arguments::files, "the dump; - or nothing: standard input", Proposal::files},
    oldAndNew{"OLD NEW", &Arguments::files,
              "two dumps; - is standard input; --input, --hex-order, --byte-order, --stride and "
              "--first are for both, --old-input, --new-input and so on for one of them",
              Proposal::files, true, true},
    pattern{"PATTERN", &Arguments::pattern,
            "a field's name or a part of it, a name with * and ?, or an identifier; nothing: all"},
    tablePattern{"PATTERN", &Arguments::pattern, "part of a table's name, or a name with * and ?",
                 Proposal::tables},
    fieldOfTable{"FIELD", &Arguments::pattern,
                 "only this field, or those that match a name with * and ?", Proposal::fields},
    assignments{"FIELD=VALUE", &Arguments::assignments,
                "fields to set; @FILE takes them from a JSON file, @- from standard input",
                Proposal::assignments};

}  // namespace Positionals
// clang-format on

}  // namespace Tool
