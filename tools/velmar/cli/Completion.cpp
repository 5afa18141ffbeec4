#include "cli/Completion.h"

#include <algorithm>

#include "cli/Failure.h"

namespace Tool {
namespace {

/// Says that file names fit.
const std::string filesProposal = ":files";

/// What the words before the last one say.
struct Context {
  const Option* pending = nullptr;  ///< an option that waits for its value
  std::vector<std::string> positionals;
  std::string chip;
};

/// The option of a name; --old-first and --new-first are --first.
const Option* optionNamed(const Verb& verb, const std::string& word) {
  const bool isOfSide = word.rfind("--old-", 0) == 0 || word.rfind("--new-", 0) == 0;
  const std::string name = isOfSide ? "--" + word.substr(6) : word;
  for (const Option& option : verb.options) {
    const std::vector<std::string> names = split(option.names, ',');
    if (std::count(names.begin(), names.end(), name) != 0) return &option;
  }
  return nullptr;
}

bool isOption(const std::string& word) { return word.size() > 1 && word[0] == '-'; }

Context contextOf(const Verb& verb, const std::vector<std::string>& words) {
  Context context;
  for (size_t i = 1; i + 1 < words.size(); ++i) {
    const size_t sign = words[i].find('=');
    const Option* option = optionNamed(verb, words[i].substr(0, sign));
    const Option* valued = context.pending;
    context.pending = nullptr;
    if (valued == nullptr && option != nullptr && option->value != nullptr) {
      if (sign == std::string::npos) context.pending = option;
      valued = sign == std::string::npos ? nullptr : option;
    } else if (valued == nullptr && option == nullptr && !isOption(words[i])) {
      context.positionals.push_back(words[i]);
    }
    if (valued != nullptr && valued->proposal == Proposal::chips) {
      context.chip = words[i].substr(option == valued ? sign + 1 : 0);
    }
  }
  return context;
}

std::vector<std::string> tableProposals(const Context& context) {
  if (context.chip.empty()) return tableNames();
  std::vector<std::string> names;
  for (const Catalogue::Table& table : tablesOn(taken(findChip(context.chip)))) {
    names.emplace_back(table.name());
  }
  return names;
}

/// The table that is named, on the chip that is.
Layout layoutOf(const Context& context) {
  const Catalogue::Table table = taken(findTable(context.positionals.front()));
  return taken(Layout::of(table, taken(findChip(context.chip)), 0));
}

std::vector<std::string> fieldProposals(const Context& context) {
  if (context.positionals.empty()) return {};
  if (context.chip.empty()) return fieldNames(taken(findTable(context.positionals.front())));
  std::vector<std::string> names;
  const Layout layout = layoutOf(context);
  for (const FieldPlace& place : layout.fields()) names.emplace_back(place.name());
  return names;
}

/// "stg=" for each field or, behind the sign, the values of a field that has few.
std::vector<std::string> assignmentProposals(const Context& context, const std::string& word) {
  constexpr U32 fewBits = 3;
  std::vector<std::string> all = fieldProposals(context);
  const size_t sign = word.find('=');
  if (sign == std::string::npos || context.chip.empty()) {
    for (std::string& name : all) name += '=';
    return all;
  }
  const std::string name = word.substr(0, word.find_first_of("=!<>+-"));
  const Layout layout = layoutOf(context);
  const FieldPlace& place = *taken(layout.find(name));
  all.clear();
  if (place.isBitmap()) all = {word.substr(0, sign + 1) + "none"};
  for (U32 value = 0; place.width <= fewBits && value < 1U << place.width; ++value) {
    all.push_back(word.substr(0, sign + 1) + std::to_string(value));
  }
  return all;
}

std::vector<std::string> proposals(Proposal kind, const Context& context, const std::string& word) {
  switch (kind) {
    case Proposal::chips:
      if (context.positionals.empty()) return chipNames();
      return chipsOf(taken(findTable(context.positionals.front())));
    case Proposal::tables:
      return tableProposals(context);
    case Proposal::fields:
      return fieldProposals(context);
    case Proposal::assignments:
      return assignmentProposals(context, word);
    case Proposal::files:
      return {filesProposal};
    case Proposal::nothing:
      break;
  }
  return {};
}

std::vector<std::string> optionNames(const Verb& verb) {
  std::vector<std::string> names = {"--help"};
  for (const Option& option : verb.options) {
    const std::string name = option.longName();
    names.push_back(name);
    if (!option.isOfDump() || !verb.hasTwoDumps()) continue;
    for (const char* side : {"--old-", "--new-"}) names.push_back(side + name.substr(2));
  }
  return names;
}

/// What can stand in place of a word.
std::vector<std::string> proposalsFor(const Verb& verb, const std::vector<std::string>& words,
                                      const Option* option, const std::string& word) {
  const Context context = contextOf(verb, words);
  if (option == nullptr) option = context.pending;
  if (option != nullptr) {
    if (option->choices[0] != '\0') return split(option->choices, ',');
    return proposals(option->proposal, context, word);
  }
  if (isOption(word) || word == "-") return optionNames(verb);
  if (verb.positionals.empty()) return {};
  const bool takesMore = verb.positionals.back().isList;
  const size_t place = context.positionals.size();
  if (place >= verb.positionals.size() && !takesMore) return {};
  return proposals(verb.positionals[std::min(place, verb.positionals.size() - 1)].proposal, context,
                   word);
}

/// The shell gives "--chip=X" as three words.
std::vector<std::string> joined(const std::vector<std::string>& words) {
  std::vector<std::string> result;
  bool goesOn = false;
  for (const std::string& word : words) {
    const bool isSign = word == "=" && !result.empty();
    if (isSign || goesOn) {
      result.back() += word;
    } else {
      result.push_back(word);
    }
    goesOn = isSign;
  }
  return result;
}

/// Whether a proposal goes on from what is typed; names are as forgiving as elsewhere.
bool fits(const std::string& proposal, const std::string& typed) {
  if (proposal == filesProposal) return true;
  if (isOption(typed)) return proposal.rfind(typed, 0) == 0;
  const std::string simple = simplified(proposal);
  const std::string start = simplified(typed);
  return simple.rfind(start, 0) == 0 || simple.rfind("bcm" + start, 0) == 0;
}

}  // namespace

std::string completion(const VerbList& verbs, const std::vector<std::string>& typed) {
  const std::vector<std::string> words = joined(typed);
  if (words.empty()) return "";
  std::string word = words.back();
  std::string kept;
  std::vector<std::string> all;
  if (words.size() == 1) {
    all = {"help", "--help", "--version"};
    for (const VerbName& verb : verbs) all.emplace_back(verb.name);
  }
  for (const VerbName& name : verbs) {
    if (words.size() == 1 || words.front() != name.name) continue;
    const Verb verb = name.make();
    const size_t sign = word.find('=');
    const Option* option = nullptr;
    if (isOption(word) && sign != std::string::npos) {
      option = optionNamed(verb, word.substr(0, sign));
      kept = word.substr(0, sign + 1);
    }
    // In a list such as "stg,val" the last part is completed.
    const bool isAssignment = option == nullptr && sign != std::string::npos;
    const size_t comma = word.rfind(',');
    if (comma != std::string::npos && !isAssignment) kept = word.substr(0, comma + 1);
    word = word.substr(kept.size());
    try {
      all = proposalsFor(verb, words, option, word);
    } catch (const Failure&) {
      // A chip or table that is not known: there is nothing to propose.
    }
  }
  std::string text;
  for (const std::string& proposal : all) {
    if (!fits(proposal, word)) continue;
    text += proposal == filesProposal ? proposal + "\n" : formatText("{}{}\n", kept, proposal);
  }
  return text;
}

}  // namespace Tool
