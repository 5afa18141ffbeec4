#include "cli/Effects.h"

#include <algorithm>

#include "cli/Failure.h"

namespace Tool {
namespace {

/// Options that change nothing beside another one, or without it.
struct Rule {
  const char* options;  ///< long names, separated by commas
  const char* other;    ///< the other option
  const char* values;   ///< of the other one, separated by commas; empty: any
  bool without;         ///< they need the other option, with one of the values
  const char* when;     ///< with a remedy
};

constexpr Rule rules[] = {
    {"--format,--output,--color,--stat,--expand", "--quiet", "", false,
     "with --quiet; give one of them"},
    {"--fields,--color,--plain,--compact,--expand", "--check", "", false,
     "with --check; give one of them"},
    {"--expand", "--stat", "", false, "with --stat, which counts each field; leave it out"},
    {"--expand", "--format", "json,jsonl,csv,hex,words,raw", false,
     "with a --format for programs, which has all fields one by one; leave it out"},
    {"--plain,--compact", "--format", "json,jsonl", true,
     "without --format json or jsonl; give both"},
    {"--follow", "--stat", "", false, "with --stat, which counts at the end; leave it out"},
    {"--follow", "--output", "", false, "with --output, which writes a whole file; leave it out"},
    {"--follow", "--format", "json", false,
     "with --format json, which is one document; give jsonl instead"},
    {"--color", "--format", "json,jsonl,csv,hex,words,raw", false,
     "with a --format for programs; leave it out"},
    {"--hex-order", "--input", "raw,json,csv", false,
     "with --input raw, json or csv; give one of them"},
    {"--stride,--byte-order", "--input", "json,csv", false,
     "with --input json or csv; give one of them"},
    {"--origin", "--input", "raw,json,csv", false,
     "with --input raw, json or csv; give one of them"},
    // A verb with --base reads a dump only there.
    {"--input,--hex-order,--byte-order,--stride,--first,--origin", "--base", "", true,
     "without --base; give both"},
    {"--input,--hex-order,--byte-order,--stride,--first,--origin", "--before", "", true,
     "without --before; give both"},
};

bool holds(const Rule& rule, const Verb& verb, const Typed& typed) {
  const bool hasOther =
      std::any_of(verb.options.begin(), verb.options.end(),
                  [&rule](const Option& option) { return option.longName() == rule.other; });
  if (!hasOther) return false;
  const Texts* const given = typed.find(verb, rule.other);
  const Texts values = split(rule.values, ',');
  const bool isMet =
      given != nullptr &&
      (rule.values[0] == '\0' || std::count(values.begin(), values.end(), given->front()) != 0);
  return isMet != rule.without;
}

}  // namespace

void checkEffects(const Verb& verb, const Typed& typed) {
  for (const Rule& rule : rules) {
    const std::vector<std::string> names = split(rule.options, ',');
    for (size_t i = 0; i < verb.options.size(); ++i) {
      if (!typed.options[i]) continue;
      const std::string name = verb.options[i].longName();
      const bool isMeant = std::count(names.begin(), names.end(), name) != 0;
      if (isMeant && holds(rule, verb, typed)) fail("{} has no effect {}", name, rule.when);
    }
  }
}

}  // namespace Tool
