#include "cli/Completion.h"

#include "cli/Verb.h"
#include "model/Failure.h"
#include "model/Layout.h"
#include "model/Text.h"

namespace Tool {
namespace {

/// What the words before the last one say.
struct Context {
  const Option* pending = nullptr;  ///< an option that waits for its value
  std::vector<std::string> positionals;
  std::string chip;
};

const Option* optionNamed(const Verb& verb, const std::string& word) {
  for (const Option& option : verb.options) {
    for (const std::string& name : split(option.names, ',')) {
      if (word == name) return &option;
    }
  }
  return nullptr;
}

Context contextOf(const Verb& verb, const std::vector<std::string>& words) {
  Context context;
  for (size_t i = 1; i + 1 < words.size(); ++i) {
    // The shell gives "--chip=X" as three words.
    if (words[i] == "=") continue;
    if (context.pending != nullptr) {
      if (context.pending->proposal == Proposal::chips) context.chip = words[i];
      context.pending = nullptr;
      continue;
    }
    const Option* option = optionNamed(verb, words[i]);
    if (option != nullptr) {
      if (option->value != nullptr) context.pending = option;
    } else if (words[i] == "-" || words[i].rfind('-', 0) != 0) {
      context.positionals.push_back(words[i]);
    }
  }
  return context;
}

std::vector<std::string> tableProposals(const Context& context) {
  if (context.chip.empty()) return tableNames();
  std::vector<std::string> names;
  for (const Catalogue::Table& table : tablesOn(findChip(context.chip)))
    names.emplace_back(table.name());
  return names;
}

std::vector<std::string> fieldProposals(const Context& context) {
  if (context.positionals.empty()) return {};
  const Catalogue::Table table = findTable(context.positionals.front());
  if (context.chip.empty()) return fieldNames(table);
  const Layout layout(table, findChip(context.chip), 0);
  std::vector<std::string> names;
  for (const FieldPlace& place : layout.fields()) names.emplace_back(place.name());
  return names;
}

std::vector<std::string> proposals(Proposal kind, const Context& context) {
  switch (kind) {
    case Proposal::chips:
      if (context.positionals.empty()) return chipNames();
      return chipsOf(findTable(context.positionals.front()));
    case Proposal::tables:
      return tableProposals(context);
    case Proposal::fields:
      return fieldProposals(context);
    case Proposal::assignments: {
      std::vector<std::string> names = fieldProposals(context);
      for (std::string& name : names) name += '=';
      return names;
    }
    case Proposal::files:
    case Proposal::nothing:
      break;
  }
  return {};
}

std::vector<std::string> proposalsFor(const Verb& verb, const std::vector<std::string>& words) {
  const Context context = contextOf(verb, words);
  if (context.pending != nullptr) {
    const Option& option = *context.pending;
    if (option.choices[0] != '\0') return split(option.choices, ',');
    return proposals(option.proposal, context);
  }
  if (words.back().rfind('-', 0) == 0) {
    std::vector<std::string> names = {"--help"};
    for (const Option& option : verb.options) names.push_back(option.longName());
    return names;
  }
  if (verb.positionals.empty()) return {};
  const size_t place = std::min(context.positionals.size(), verb.positionals.size() - 1);
  return proposals(verb.positionals[place].proposal, context);
}

}  // namespace

std::string completion(const VerbList& verbs, const std::vector<std::string>& words) {
  if (words.empty()) return "";
  std::vector<std::string> all;
  if (words.size() == 1) {
    all = {"help", "--help", "--version"};
    for (const VerbName& verb : verbs) all.emplace_back(verb.name);
  }
  for (const VerbName& verb : verbs) {
    if (words.size() == 1 || words.front() != verb.name) continue;
    try {
      all = proposalsFor(verb.make(), words);
    } catch (const Failure&) {
      // A chip or table that is not known: there is nothing to propose.
    }
  }
  // In a list such as "stg,val" the last part is completed.
  const std::string word = words.back() == "=" ? "" : words.back();
  const size_t comma = word.rfind(',');
  const std::string kept = comma == std::string::npos ? "" : word.substr(0, comma + 1);
  std::string text;
  const std::string start = simplified(word.substr(kept.size()));
  for (const std::string& proposal : all) {
    const bool isOption = word.rfind('-', 0) == 0;
    const std::string simple = simplified(proposal);
    const bool isSimilar = simple.rfind(start, 0) == 0 || simple.rfind("bcm" + start, 0) == 0;
    const bool fits = isOption ? proposal.rfind(word, 0) == 0 : isSimilar;
    if (fits) text += formatText("{}{}\n", kept, proposal);
  }
  return text;
}

}  // namespace Tool
