#include "cli/Parser.h"

#include <algorithm>
#include <cstring>

#include "cli/Effects.h"
#include "cli/Failure.h"

namespace Tool {
namespace {

/// "--output FILE", "--output=FILE", "-o FILE" and "-oFILE" are the same; switches of one letter may
/// share a hyphen; after "--" no word is an option.
class Parser {
 public:
  Parser(const Verb& verb, const std::vector<std::string>& words) : verb_(verb), words_(words) {
    typed_.positionals.resize(verb.positionals.size());
    typed_.options.resize(verb.options.size());
  }

  Typed parse() {
    bool takesOptions = true;
    while (next_ < words_.size()) {
      const std::string& word = words_[next_++];
      if (takesOptions && word == "--") {
        takesOptions = false;
      } else if (!takesOptions || word.size() < 2 || word[0] != '-') {
        takePositional(word);
      } else if (word[1] == '-') {
        takeLong(word);
      } else {
        takeShort(word);
      }
    }
    checkComplete();
    return std::move(typed_);
  }

 private:
  void takePositional(const std::string& word) {
    if (positional_ == verb_.positionals.size()) {
      fail("unexpected argument {}; {}", inQuotes(word), seeHelp());
    }
    const Positional& positional = verb_.positionals[positional_];
    if (word.empty()) fail("an empty {} is given; give one, or leave it out", positional.value);
    typed_.positionals[positional_].push_back(word);
    if (!positional.isList) ++positional_;
  }

  void takeLong(const std::string& word) {
    const size_t sign = word.find('=');
    const std::string name = word.substr(0, sign);
    const bool isNew = name.rfind("--new-", 0) == 0;
    if ((isNew || name.rfind("--old-", 0) == 0) && verb_.hasTwoDumps()) {
      return takeOfSide(isNew, name, word);
    }
    const Option& option = find(name);
    if (sign == std::string::npos) return take(option);
    if (option.isSwitch()) fail("{} takes no value; give {} alone", name, name);
    put(option, word.substr(sign + 1));
  }

  /// Takes "--old-first" or "--new-first", as --first of one dump.
  void takeOfSide(bool isNew, const std::string& name, const std::string& word) {
    const Option& option = find("--" + name.substr(std::strlen("--old-")));
    if (!option.isOfDump()) fail("{} is for both dumps; give {}", name, option.longName());
    for (const Typed::OfSide& side : typed_.sides) {
      if (side.isNew == isNew && side.option == &option) failTwice(name);
    }
    const bool hasValue = word.size() > name.size();
    const std::string value = hasValue ? word.substr(name.size() + 1) : nextWord(option);
    checkValue(option, value);
    typed_.sides.push_back({isNew, &option, value});
  }

  void takeShort(const std::string& word) {
    for (size_t i = 1; i < word.size(); ++i) {
      const Option& option = find({'-', word[i]});
      const bool hasValue = !option.isSwitch() && i + 1 < word.size();
      if (hasValue) return put(option, word.substr(i + 1));
      take(option);
    }
  }

  const Option& find(const std::string& name) const {
    std::vector<std::string> longNames;
    for (const Option& option : verb_.options) {
      const std::vector<std::string> names = split(option.names, ',');
      if (std::count(names.begin(), names.end(), name) != 0) return option;
      // Too many names resemble a single letter.
      if (name.size() > 2) longNames.push_back(option.longName());
    }
    if (name.size() > 2) longNames.push_back(Options::help.longName());
    fail("{} has no option {}; {}{}", verb_.name, inQuotes(name), didYouMean(name, longNames),
         seeHelp());
  }

  std::optional<Texts>& textsOf(const Option& option) {
    return typed_.options[static_cast<size_t>(&option - verb_.options.data())];
  }

  /// A switch, or an option whose value is the next word, whatever that begins with.
  void take(const Option& option) {
    if (option.isSwitch()) {
      textsOf(option) = Texts();
    } else {
      put(option, nextWord(option));
    }
  }

  const std::string& nextWord(const Option& option) {
    if (next_ == words_.size()) {
      fail("{} is given without its {}; {}", option.longName(), option.value, seeHelp());
    }
    return words_[next_++];
  }

  static void checkValue(const Option& option, const std::string& value) {
    if (value.empty()) {
      fail("{} is given an empty {}; give one, or leave it out", option.longName(), option.value);
    }
    const std::vector<std::string> choices = split(option.choices, ',');
    const bool isFree = option.choices[0] == '\0';
    if (!isFree && std::count(choices.begin(), choices.end(), value) == 0) {
      fail("{} {}: no such choice; give {}", option.longName(), inQuotes(value),
           join(choices, ", "));
    }
  }

  void put(const Option& option, const std::string& value) {
    checkValue(option, value);
    std::optional<Texts>& texts = textsOf(option);
    if (texts && option.times == Times::once) failTwice(option.longName());
    if (!texts) texts.emplace();
    texts->push_back(value);
  }

  [[noreturn]] static void failTwice(const std::string& name) {
    fail("{} is given twice; give it once", name);
  }

  void checkComplete() const {
    for (size_t i = 0; i < verb_.options.size(); ++i) {
      const Option& option = verb_.options[i];
      if (option.required && !typed_.options[i]) failMissing(option.longName());
    }
    for (size_t i = 0; i < verb_.positionals.size(); ++i) {
      const Positional& positional = verb_.positionals[i];
      if (positional.required && typed_.positionals[i].empty()) failMissing(positional.value);
    }
  }

  [[noreturn]] void failMissing(const std::string& name) const {
    fail("{} is missing; {}", name, seeHelp());
  }

  std::string seeHelp() const { return formatText("see \"velmar {} --help\"", verb_.name); }

  const Verb& verb_;
  const std::vector<std::string>& words_;
  Typed typed_;
  size_t next_ = 0;
  size_t positional_ = 0;
};

/// Hands what is typed to the request of the verb.
void handOver(const Verb& verb, const Typed& typed) {
  for (size_t i = 0; i < verb.positionals.size(); ++i) {
    if (!typed.positionals[i].empty()) verb.positionals[i].take(typed.positionals[i]);
  }
  for (size_t i = 0; i < verb.options.size(); ++i) {
    const Option& option = verb.options[i];
    if (!typed.options[i]) continue;
    if (!option.isOfDump()) option.take(*typed.options[i]);
    if (!option.isOfDump()) continue;
    for (ReadOptions* dump : verb.dumps) {
      option.takeForDump(*dump, typed.options[i]->front(), verb.hasTwoDumps());
    }
  }
  for (const Typed::OfSide& side : typed.sides) {
    side.option->takeForDump(*verb.dumps[side.isNew ? 1 : 0], side.text, false);
  }
}

}  // namespace

const Texts* Typed::find(const Verb& verb, const char* longName) const {
  for (size_t i = 0; i < options.size(); ++i) {
    if (options[i] && verb.options[i].longName() == longName) return &*options[i];
  }
  return nullptr;
}

bool asksForHelp(const std::vector<std::string>& words) {
  const auto end = std::find(words.begin(), words.end(), "--");
  return std::any_of(words.begin(), end,
                     [](const std::string& word) { return word == "-h" || word == "--help"; });
}

bool asksForJson(const std::vector<std::string>& words) {
  const auto isJson = [](std::string_view value) { return value == "json" || value == "jsonl"; };
  for (size_t i = 0; i < words.size() && words[i] != "--"; ++i) {
    const std::string_view word = words[i];
    for (const std::string_view name : {"--format=", "-f"}) {
      if (word.substr(0, name.size()) == name && isJson(word.substr(name.size()))) return true;
    }
    const bool isName = word == "--format" || word == "-f";
    if (isName && i + 1 < words.size() && isJson(words[i + 1])) return true;
  }
  return false;
}

void parse(const Verb& verb, const std::vector<std::string>& words) {
  const Typed typed = Parser(verb, words).parse();
  checkEffects(verb, typed);
  handOver(verb, typed);
}

}  // namespace Tool
