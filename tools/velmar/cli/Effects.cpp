#include "cli/Effects.h"

#include <algorithm>

#include "model/Failure.h"
#include "model/Text.h"

namespace Tool {
namespace {

/// Options that change nothing where a condition holds.
struct Rule {
  const char* options;  ///< long names, separated by commas
  bool (*holds)(const Arguments& arguments);
  const char* when;  ///< with a remedy
};

// clang-format off
constexpr Rule rules[] = {
    {"--format,--output,--color,--stat,--expand", [](const Arguments& a) { return a.quiet; },
     "with --quiet; give one of them"},
    {"--fields,--color,--plain,--expand", [](const Arguments& a) { return a.check; },
     "with --check; give one of them"},
    {"--expand", [](const Arguments& a) { return a.stat; },
     "with --stat, which counts each field; leave it out"},
    {"--expand", [](const Arguments& a) { return !a.format.empty() && a.format != "table"; },
     "with a --format for programs, which has all fields one by one; leave it out"},
    {"--plain", [](const Arguments& a) { return a.format != "json" && a.format != "jsonl"; },
     "without --format json or jsonl; give both"},
    {"--color", [](const Arguments& a) { return !a.format.empty() && a.format != "table"; },
     "with a --format for programs; leave it out"},
    {"--hex-order", [](const Arguments& a) { return a.input == "raw" || a.input == "json"; },
     "with --input raw or json; give one of them"},
    {"--stride,--byte-order", [](const Arguments& a) { return a.input == "json"; },
     "with --input json; give one of them"},
};

/// A verb with --base reads a dump only there.
constexpr Rule withoutBase = {
    "--input,--hex-order,--byte-order,--stride,--first", [](const Arguments& a) { return a.base.empty(); },
    "without --base; give both"};
// clang-format on

void apply(const Rule& rule, const Verb& verb, const Arguments& arguments) {
  if (!rule.holds(arguments)) return;
  const std::vector<std::string> names = split(rule.options, ',');
  for (const Option& option : verb.options) {
    const bool isMeant = std::count(names.begin(), names.end(), option.longName()) != 0;
    if (!isMeant || !option.member.isGiven(arguments)) continue;
    fail("{} has no effect {}", option.longName(), rule.when);
  }
}

}  // namespace

void checkEffects(const Verb& verb, const Arguments& arguments) {
  for (const Rule& rule : rules) apply(rule, verb, arguments);
  const bool hasBase =
      std::any_of(verb.options.begin(), verb.options.end(),
                  [](const Option& option) { return option.longName() == "--base"; });
  if (hasBase) apply(withoutBase, verb, arguments);
}

}  // namespace Tool
