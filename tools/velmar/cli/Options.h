#pragma once

#include <functional>
#include <string>
#include <vector>

#include "Tool.h"
#include "core/Reading.h"

namespace Tool {

/// What the shell can propose for a value.
enum class Proposal { nothing, files, tables, chips, fields, assignments };

/// How often an option may be given; a switch has no value.
enum class Times { once, many, isSwitch };

/// What is typed for an option or an argument.
using Texts = std::vector<std::string>;

/// Writes what is typed for an option of a dump into the options of its reader. `isShared`: it is for
/// two dumps.
using DumpTaker = void (*)(ReadOptions& options, const std::string& text, bool isShared);

/// What is known of an option. It means the same in every verb.
struct OptionText {
  const char* names;  ///< such as "-o,--output"
  const char* value;  ///< what the help calls the value; null for a switch
  const char* meaning;
  Times times = Times::once;
  Proposal proposal = Proposal::nothing;
  bool required = false;
  const char* choices = "";  ///< the only values, separated by commas; empty: any
  DumpTaker takeForDump =
      nullptr;  ///< where there are two dumps, --old-NAME and --new-NAME are for one
  bool isKnownBySnapshot = false;  ///< required, unless the dump is a snapshot

  /// The name as the help and the messages use it, such as "--output".
  std::string longName() const { return split(names, ',').back(); }
  bool isSwitch() const { return times == Times::isSwitch; }
  bool isOfDump() const { return takeForDump != nullptr; }
};

/// Writes what is typed into the request of a verb. It is called once, if anything is typed, when all
/// words are known.
using Taker = std::function<void(const Texts& texts)>;

/// An option of a verb. Those of dumps write into the verb's ReadOptions.
struct Option : OptionText {
  Option(const OptionText& text, Taker taker = nullptr)
      : OptionText(text), take(std::move(taker)) {}

  Taker take;
};

struct PositionalText {
  const char* value;
  const char* meaning;
  Proposal proposal = Proposal::nothing;
  bool required = false;
  bool isList = false;
};

/// An argument without a name: its position says what it is.
struct Positional : PositionalText {
  Positional(const PositionalText& text, Taker taker)
      : PositionalText(text), take(std::move(taker)) {}

  Taker take;
};

/// A number that is typed for an option.
U64 numberOf(const std::string& option, const std::string& text, U64 largest);

constexpr OptionText oneOf(const char* choices, OptionText option) {
  option.choices = choices;
  return option;
}
constexpr OptionText ofDump(DumpTaker taker, OptionText option) {
  option.takeForDump = taker;
  return option;
}
constexpr OptionText unlessSnapshot(OptionText option) {
  option.isKnownBySnapshot = true;
  return option;
}

// For options of dumps.
void takeNotation(ReadOptions& options, const std::string& text, bool isShared);
void takeHexOrder(ReadOptions& options, const std::string& text, bool isShared);
void takeByteOrder(ReadOptions& options, const std::string& text, bool isShared);
void takeStride(ReadOptions& options, const std::string& text, bool isShared);
void takeFirst(ReadOptions& options, const std::string& text, bool isShared);
void takeOrigin(ReadOptions& options, const std::string& text, bool isShared);

// clang-format off
namespace Options {

inline constexpr OptionText
    chip{"-c,--chip", "CHIP", "the chip: a name such as BCM56990_B0 or 56990, or a number",
         Times::many, Proposal::chips, true},
    chipOfDump = unlessSnapshot({"-c,--chip", "CHIP",
           "the chip: a name such as BCM56990_B0 or 56990, or a number; a snapshot knows its own",
           Times::many, Proposal::chips}),
    chipOfData{"-c,--chip", "CHIP", "the chip of dumps that are not in a snapshot",
               Times::many, Proposal::chips},
    data{"--data", "DATA",
         "what to ask of: a snapshot, such as lab/, or the dump of a table, such as vlan=vlan.bin; "
         "{name} in the path stands for any part of a name and is a column: 'fleet/{switch}/{time}/'; "
         "may be repeated", Times::many, Proposal::files},
    skipBad{"--skip-bad", nullptr, "leave out files that cannot be read, and count them",
            Times::isSwitch},
    chips{"-c,--chip", "OLD --chip NEW", "the two chips", Times::many, Proposal::chips, true},
    chipIfAny{"-c,--chip", "CHIP", "this chip only", Times::many, Proposal::chips},
    variant{"--variant", "N", "table variant, 0 to 255 (default 0)"},
    output{"-o,--output", "FILE",
           "write the result to FILE, whole or not at all (- or default: standard output)",
           Times::once, Proposal::files},
    color = oneOf("auto,always,never", {"--color", "WHEN",
            "colours, by default on a terminal, unless NO_COLOR is set"}),
    index{"--index", "LIST",
          "only these entries, such as 100, 0-99, 100- or 1,5,100-199; may be repeated", Times::many},
    changeIndex{"--index", "LIST",
          "the entries to make, or with --base to change, such as 100 or 1,5,100-199; may be "
          "repeated", Times::many},
    entryIndex{"--index", "LIST",
          "the entries, or elements of a register array, such as 100 or 1,5,100-199; may be "
          "repeated", Times::many},
    array{"--array", "LIST", "the elements of a register array"},
    identifier{"--identifier", "N", "the instance (default 0)"},
    find{"--find", "ADDRESS", "print what has this address, such as 0x0c7c0064; may be repeated",
         Times::many},
    limit{"--limit", "N", "stop after N entries"},
    fields{"--fields", "NAMES",
           "only these fields, separated by commas; a name may be that of a family, have * and ?, or "
           "numbers such as spTreePort0-3; with a minus before it, it is left out; a list that "
           "begins with a minus starts from all fields", Times::many, Proposal::fields},
    where{"--where", "CONDITION",
          "only entries for which it holds, such as 'stg=2-5,9 and not valid=0', 'portBitmap~20-22' "
          "or 'any spTreePort=2'; velmar(1) has the whole language under CONDITIONS; may be "
          "repeated: all must hold", Times::many, Proposal::assignments},
    tableOption{"--table", "TABLE", "this table only", Times::once, Proposal::tables},
    from = unlessSnapshot({"--from", "CHIP", "the chip of the dump; a snapshot knows its own",
           Times::once, Proposal::chips}),
    to{"--to", "CHIP", "the chip of the result", Times::once, Proposal::chips, true},
    lossy{"--lossy", nullptr, "write the result though something gets lost", Times::isSwitch},
    identify{"--identify", nullptr, "find the tables of dumps that are given without TABLE=",
             Times::isSwitch},
    time{"--time", "TIME", "when the dumps were taken, such as 2026-11-21T08:30:00Z"},
    label{"--label", "TEXT", "a line of text for people"},
    plain{"--plain", nullptr,
          "JSON with values alone: numbers, bitmaps as lists of ports, wide values as text",
          Times::isSwitch},
    compact{"--compact", nullptr,
            "JSON in which the fields of all ports are one member, with the numbers that have each "
            "value: {\"spTreePort\": {\"0\": \"4-159\", \"3\": \"0-3\"}}; each number stands "
            "there once, those with the value 0 too", Times::isSwitch},
    expand{"--expand", nullptr, "the fields of all ports one by one, not as a family",
           Times::isSwitch},
    common{"--common", nullptr, "only entries that both dumps have", Times::isSwitch},
    stat{"--stat", nullptr, "instead of the entries, print how many differ in each field",
         Times::isSwitch},
    nonzero{"--nonzero", nullptr, "skip entries that are all zero", Times::isSwitch},
    check{"--check", nullptr,
          "instead of the entries, report those with bits set outside all fields or beyond the "
          "end of the table; exit 1 if there are any", Times::isSwitch},
    input = ofDump(takeNotation, oneOf("auto,raw,hex,xxd,hexdump,od,json,csv", {"--input", "FORMAT",
            "format of the dump (default: recognized by its contents)"})),
    hexOrder = ofDump(takeHexOrder, oneOf("bytes,words,int", {"--hex-order", "ORDER",
               "how to read hex digits; bytes: the first byte first; words: 32-bit words, the "
               "first word first; int: one number, highest digit first"})),
    byteOrder = ofDump(takeByteOrder, oneOf("little,big", {"--byte-order", "ORDER",
                "the byte of each 32-bit word that comes first in the dump: little (default) the "
                "lowest, big the highest"})),
    stride = ofDump(takeStride, {"--stride", "BYTES",
           "bytes from one entry of the dump to the next, at most 65536 (default: the bytes of "
           "an entry)"}),
    first = ofDump(takeFirst, {"--first", "N",
          "index of the first entry of a partial dump (default 0)"}),
    origin = ofDump(takeOrigin, {"--origin", "ADDRESS",
           "the address of entry 0, for dumps whose lines begin with addresses"}),
    base{"--base", "FILE", "change the entries of this dump or snapshot instead of making new ones",
         Times::once, Proposal::files},
    whole{"--whole", nullptr, "write the whole table: entries that are not given are zero",
          Times::isSwitch},
    quiet{"-q,--quiet", nullptr, "print nothing: the exit code is the answer", Times::isSwitch},
    diagram{"--diagram", nullptr, "draw the entry in rows of 32 bits", Times::isSwitch},
    tables{"--table", "TABLE",
           "only transactions of this table; may be repeated. An address that two tables share is then "
           "shown as this one's", Times::many, Proposal::tables},
    eventWhere{"--where", "CONDITION",
          "only transactions after which it holds for the entry, such as 'stg=7'; 'changed stg' holds "
          "if the transaction lists the field; may be repeated: all must hold", Times::many},
    before{"--before", "TABLE=FILE",
           "the entries of a table at the start, as a dump in any notation, or the folder of a snapshot "
           "alone; may be repeated", Times::many},
    writeState{"--write-state", "DIR",
               "write the entries that are known at the end as a snapshot: a folder that does not exist "
               "yet", Times::once, Proposal::files},
    fromTime{"--from", "TIME", "only transactions from this time on, in the form of the log"},
    untilTime{"--until", "TIME", "stop at the first transaction after this time"},
    history{"--history", "TABLE:INDEX", "only transactions of this entry or element"},
    eventLimit{"--limit", "N", "stop after N transactions"},
    eventStat{"--stat", nullptr,
              "instead of the transactions, print how often each table was written, and how often "
              "that changed each field", Times::isSwitch},
    lineShape{"--line", "SHAPE",
              "the shape of the lines, such as '{time} {op} addr={address} data={words}'; also {len}, "
              "{access}, {block}, and {skip} for what has no meaning. Without {op} each line is a write"},
    wordsApart{"--words-apart", nullptr,
               "lines of one operation and address follow each other until the entry has its words",
               Times::isSwitch},
    unknown{"--unknown", nullptr, "show the lines that are no transactions, on standard error",
            Times::isSwitch},
    explainInput{"--explain-input", nullptr,
                 "say on standard error how the first lines were taken apart", Times::isSwitch},
    follow{"--follow", nullptr, "show each transaction at once, and wait for more of a file",
           Times::isSwitch},
    checkTrace{"--check", nullptr,
               "exit 1 if a transaction that is shown has a finding, or if a line is no transaction",
               Times::isSwitch},
    help{"-h,--help", nullptr, "print this help", Times::isSwitch};

/// --format with the formats of a verb; the first is the default.
constexpr OptionText format(const char* choices) {
  return oneOf(choices, {"-f,--format", "FORMAT", "form of the result, by default the first"});
}
inline constexpr OptionText encodedFormat = oneOf("hex,words,raw,json,jsonl,csv",
    {"-f,--format", "FORMAT",
     "form of the result, by default hex, or with --base that of the base if it is raw, JSON or "
     "CSV"});
inline constexpr OptionText listFormat = format("table,json,jsonl,csv");

}  // namespace Options

namespace Positionals {

inline constexpr PositionalText
    table{"TABLE", "the table, such as VlanEntry or vlan", Proposal::tables, true},
    tableIfAny{"TABLE", "this table only", Proposal::tables},
    log{"FILE", "the log; - or nothing: standard input", Proposal::files, false, true},
    dump{"FILE", "the dump, or a snapshot, which is a folder; - or nothing: standard input", Proposal::files, false, true},
    tableOfDumps{"TABLE",
                 "the table, such as VlanEntry or vlan; for two snapshots it may be left out: all "
                 "tables", Proposal::tables},
    newFolder{"DIR", "the folder, which does not exist yet", Proposal::files, true},
    dumps{"TABLE=FILE",
          "the dumps, in any notation, such as vlan=vlan.bin; - is standard input; TABLE:N= for the "
          "identifier N", Proposal::files, true, true},
    statement{"STATEMENT", "what is asked, or several statements with semicolons between them"},
    oldAndNew{"OLD NEW",
              "two dumps or snapshots; - is standard input; --input, --hex-order, --byte-order, --stride, "
              "--first and --origin are for both, --old-input, --new-input and so on for one of "
              "them", Proposal::files, true, true},
    pattern{"PATTERN",
            "a field's name or a part of it, a name with * and ?, or an identifier; nothing: all"},
    tablePattern{"PATTERN", "part of a table's name, or a name with * and ?", Proposal::tables},
    fieldOfTable{"FIELD", "only this field, or those that match a name with * and ?",
                 Proposal::fields},
    assignments{"FIELD=VALUE",
                "fields to set; @FILE takes them from a JSON or CSV file, @- from standard input",
                Proposal::assignments, false, true};

}  // namespace Positionals
// clang-format on

}  // namespace Tool
