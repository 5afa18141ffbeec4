#pragma once

#include <string>
#include <vector>

#include "AsicUtils/Types.h"

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
enum class Proposal { nothing, files, choices, tables, chips, fields, assignments };

/// An option that verbs share: it means the same wherever it occurs. Exactly one of the members of
/// Arguments receives its value.
struct Option {
  const char* names;  ///< such as "-o,--output"
  const char* value;  ///< what the help calls the value; null for a switch
  const char* meaning;
  Proposal proposal;
  std::string Arguments::*text = nullptr;
  std::vector<std::string> Arguments::*list = nullptr;
  bool Arguments::*flag = nullptr;
  bool required = false;
  std::vector<std::string> choices = {};  ///< the only values, if any

  /// The name as the help and the messages use it, such as "--output".
  std::string longName() const;
};

/// An argument without a name, told by its place.
struct Positional {
  const char* value;
  const char* meaning;
  Proposal proposal;
  bool required;
  std::string Arguments::*text = nullptr;
  std::vector<std::string> Arguments::*list = nullptr;
};

namespace Options {

Option chip();
Option chips();
Option chipIfAny();
Option variant();
/// --format with the formats of a verb; the first is the default.
Option format(std::vector<std::string> choices);
/// table, json, jsonl and csv.
Option listFormat();
Option output();
Option color();
Option index();
Option changeIndex();
Option entryIndex();
Option array();
Option identifier();
Option find();
Option fields();
Option where();
Option nonzero();
Option check();
Option input();
Option hexOrder();
Option stride();
Option first();
Option base();
Option whole();
Option quiet();
Option diagram();
Option help();

}  // namespace Options

namespace Positionals {

Positional table();
Positional tableIfAny();
Positional dump();
Positional oldAndNew();
Positional pattern();
Positional assignments();

}  // namespace Positionals
}  // namespace Tool
