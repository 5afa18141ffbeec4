#pragma once

#include <string>
#include <vector>

namespace Tool {

/// What a command line holds, as it was typed.
struct Arguments {
  std::string table;
  std::vector<std::string> files;
  std::string pattern;
  std::vector<std::string> assignments;

  std::vector<std::string> chips;
  std::string variant;
  std::string format;
  std::string output;
  std::string color;
  std::string index;
  std::string array;
  std::string identifier;
  std::string find;
  std::vector<std::string> fields;
  std::vector<std::string> where;
  std::string input;
  std::string hexOrder;
  std::string stride;
  std::string first;
  std::string base;
  bool nonzero = false;
  bool check = false;
  bool whole = false;
  bool quiet = false;
  bool diagram = false;
  bool help = false;
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
    return list != nullptr ? !(in.*list).empty() : !(in.*text).empty();
  }
};

/// An option. It means the same in every verb.
struct Option {
  const char* names;  ///< such as "-o,--output"
  const char* value;  ///< what the help calls the value; null for a switch
  const char* meaning;
  Member member;
  Proposal proposal = Proposal::nothing;
  const char* choices = "";  ///< the only values, separated by commas; empty: any
  bool required = false;

  /// The name as the help and the messages use it, such as "--output".
  std::string longName() const;
};

/// An argument without a name: its position says what it is.
struct Positional {
  const char* value;
  const char* meaning;
  Member member;
  Proposal proposal = Proposal::nothing;
  bool required = false;
};

namespace Options {

inline constexpr Option chip{"-c,--chip",
                             "CHIP",
                             "the chip: a name such as BCM56990_B0 or 56990, or a number",
                             &Arguments::chips,
                             Proposal::chips,
                             "",
                             true};
inline constexpr Option chips{"-c,--chip",
                              "CHIP",
                              "a chip; give the option twice, old chip first",
                              &Arguments::chips,
                              Proposal::chips,
                              "",
                              true};
inline constexpr Option chipIfAny{"-c,--chip", "CHIP", "this chip only", &Arguments::chips,
                                  Proposal::chips};
inline constexpr Option variant{"--variant", "N", "table variant, 0 to 255 (default 0)",
                                &Arguments::variant};
/// --format with the formats of a verb; the first is the default.
constexpr Option format(const char* choices) {
  return {"-f,--format",      "FORMAT",          "form of the result, by default the first",
          &Arguments::format, Proposal::nothing, choices};
}
inline constexpr Option listFormat = format("table,json,jsonl,csv");
inline constexpr Option output{
    "-o,--output", "FILE",
    "write the result to FILE, whole or not at all (default: standard output)", &Arguments::output,
    Proposal::files};
inline constexpr Option color{"--color",
                              "WHEN",
                              "colours, by default on a terminal, unless NO_COLOR is set",
                              &Arguments::color,
                              Proposal::nothing,
                              "auto,always,never"};
inline constexpr Option index{
    "--index", "LIST", "only these entries, such as 100, 0-99 or 1,5,100-199", &Arguments::index};
inline constexpr Option changeIndex{
    "--index", "LIST", "the entries to make, or with --base to change, such as 100 or 1,5,100-199",
    &Arguments::index};
inline constexpr Option entryIndex{"--index", "N", "the entry; for a register array its element",
                                   &Arguments::index};
inline constexpr Option array{"--array", "N", "the element of a register array", &Arguments::array};
inline constexpr Option identifier{"--identifier", "N", "the instance (default 0)",
                                   &Arguments::identifier};
inline constexpr Option find{"--find", "ADDRESS", "print what has this address, such as 0x0c7c0064",
                             &Arguments::find};
inline constexpr Option fields{"--fields", "NAMES", "only these fields, separated by commas",
                               &Arguments::fields, Proposal::fields};
inline constexpr Option where{"--where", "FIELD=VALUE",
                              "only entries where the field has the value or, with !=, does not "
                              "have it; may be repeated: all must hold",
                              &Arguments::where, Proposal::assignments};
inline constexpr Option nonzero{"--nonzero", nullptr, "skip entries that are all zero",
                                &Arguments::nonzero};
inline constexpr Option check{"--check", nullptr,
                              "instead of the entries, report those with bits set outside all "
                              "fields or beyond the end of the table; exit 1 if there are any",
                              &Arguments::check};
inline constexpr Option input{"--input",
                              "FORMAT",
                              "format of the dump (default: recognized by its first bytes)",
                              &Arguments::input,
                              Proposal::nothing,
                              "auto,raw,hex,xxd,json"};
inline constexpr Option hexOrder{
    "--hex-order",
    "ORDER",
    "how to read hex digits; bytes: the first byte first; words: 32-bit words, the first word "
    "first; int: one number, highest digit first",
    &Arguments::hexOrder,
    Proposal::nothing,
    "bytes,words,int"};
inline constexpr Option stride{
    "--stride", "BYTES",
    "bytes from one entry of the dump to the next, at most 65536 (default: the bytes of an entry)",
    &Arguments::stride};
inline constexpr Option first{
    "--first", "N", "index of the first entry of a partial dump (default 0)", &Arguments::first};
inline constexpr Option base{"--base", "FILE",
                             "change the entries of this dump instead of making new ones",
                             &Arguments::base, Proposal::files};
inline constexpr Option whole{"--whole", nullptr,
                              "write the whole table: entries that are not given are zero",
                              &Arguments::whole};
inline constexpr Option quiet{"-q,--quiet", nullptr, "print nothing: the exit code is the answer",
                              &Arguments::quiet};
inline constexpr Option diagram{"--diagram", nullptr, "draw the entry in rows of 32 bits",
                                &Arguments::diagram};
inline constexpr Option help{"-h,--help", nullptr, "print this help", &Arguments::help};

}  // namespace Options

namespace Positionals {

inline constexpr Positional table{"TABLE", "the table, such as VlanEntry or vlan",
                                  &Arguments::table, Proposal::tables, true};
inline constexpr Positional tableIfAny{"TABLE", "this table only", &Arguments::table,
                                       Proposal::tables};
inline constexpr Positional dump{"FILE", "the dump; - or nothing: standard input",
                                 &Arguments::files, Proposal::files};
inline constexpr Positional oldAndNew{"OLD NEW", "two dumps; - is standard input",
                                      &Arguments::files, Proposal::files, true};
inline constexpr Positional pattern{"PATTERN",
                                    "part of a field's name, a name with * and ?, or an identifier",
                                    &Arguments::pattern};
inline constexpr Positional assignments{
    "FIELD=VALUE", "fields to set; @FILE takes them from a JSON file, @- from standard input",
    &Arguments::assignments, Proposal::assignments};

}  // namespace Positionals
}  // namespace Tool
