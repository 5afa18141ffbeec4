#include "cli/Parser.h"

#include <algorithm>
#include <cstring>

#include "cli/Effects.h"
#include "model/Failure.h"
#include "model/Names.h"
#include "model/Text.h"

namespace Tool {
namespace {

/// "--output FILE", "--output=FILE", "-o FILE" and "-oFILE" are the same; switches of one letter may
/// share a hyphen; after "--" no word is an option.
class Parser {
 public:
  Parser(const Verb& verb, const std::vector<std::string>& words)
      : verb_(verb), options_(verb.options), words_(words) {
    options_.push_back(Options::help);
  }

  Arguments parse() {
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
    checkEffects(verb_, arguments_);
    return arguments_;
  }

 private:
  void takePositional(const std::string& word) {
    if (positional_ == verb_.positionals.size()) {
      fail("unexpected argument {}; {}", inQuotes(word), seeHelp());
    }
    const Positional& positional = verb_.positionals[positional_];
    if (word.empty()) fail("an empty {} is given; give one, or leave it out", positional.value);
    const Member& member = positional.member;
    if (member.list != nullptr) return (arguments_.*member.list).push_back(word);
    arguments_.*member.text = word;
    ++positional_;
  }

  void takeLong(const std::string& word) {
    const size_t sign = word.find('=');
    const std::string name = word.substr(0, sign);
    const bool isNew = name.rfind("--new-", 0) == 0;
    if ((isNew || name.rfind("--old-", 0) == 0) && hasTwoDumps(verb_)) {
      return takeOfSide(isNew, name, word);
    }
    const Option& option = find(name);
    if (sign == std::string::npos) return take(option);
    if (option.member.flag != nullptr) fail("{} takes no value; give {} alone", name, name);
    put(option, word.substr(sign + 1));
  }

  /// Takes "--old-first" or "--new-first", as --first of one dump.
  void takeOfSide(bool isNew, const std::string& name, const std::string& word) {
    const Option& option = find("--" + name.substr(std::strlen("--old-")));
    if (!option.isOfDump) fail("{} is for both dumps; give {}", name, option.longName());
    for (const SideValue& side : arguments_.sides) {
      if (side.isNew == isNew && side.member == option.member.text) failTwice(name);
    }
    const bool hasValue = word.size() > name.size();
    const std::string value = hasValue ? word.substr(name.size() + 1) : nextWord(option);
    checkValue(option, value);
    arguments_.sides.push_back({isNew, option.member.text, value});
  }

  void takeShort(const std::string& word) {
    for (size_t i = 1; i < word.size(); ++i) {
      const Option& option = find({'-', word[i]});
      const bool hasValue = option.member.flag == nullptr && i + 1 < word.size();
      if (hasValue) return put(option, word.substr(i + 1));
      take(option);
    }
  }

  const Option& find(const std::string& name) const {
    std::vector<std::string> longNames;
    for (const Option& option : options_) {
      const std::vector<std::string> names = split(option.names, ',');
      if (std::count(names.begin(), names.end(), name) != 0) return option;
      // Too many names resemble a single letter.
      if (name.size() > 2) longNames.push_back(option.longName());
    }
    fail("{} has no option {}; {}{}", verb_.name, inQuotes(name), didYouMean(name, longNames),
         seeHelp());
  }

  /// A switch, or an option whose value is the next word, whatever that begins with.
  void take(const Option& option) {
    if (option.member.flag != nullptr) {
      arguments_.*option.member.flag = true;
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
    if (option.member.list != nullptr) return (arguments_.*option.member.list).push_back(value);
    if (std::count(given_.begin(), given_.end(), &option) != 0) failTwice(option.longName());
    given_.push_back(&option);
    arguments_.*option.member.text = value;
  }

  [[noreturn]] static void failTwice(const std::string& name) {
    fail("{} is given twice; give it once", name);
  }

  void checkComplete() const {
    for (const Option& option : options_) check(option.required, option.member, option.longName());
    for (const Positional& positional : verb_.positionals) {
      check(positional.required, positional.member, positional.value);
    }
  }

  void check(bool isRequired, const Member& member, const std::string& name) const {
    if (isRequired && !member.isGiven(arguments_)) fail("{} is missing; {}", name, seeHelp());
  }

  std::string seeHelp() const { return formatText("see \"velmar {} --help\"", verb_.name); }

  const Verb& verb_;
  std::vector<Option> options_;
  const std::vector<std::string>& words_;
  Arguments arguments_;
  size_t next_ = 0;
  size_t positional_ = 0;
  std::vector<const Option*> given_;
};

}  // namespace

Arguments parseArguments(const Verb& verb, const std::vector<std::string>& words) {
  // Whoever asks for the help gets it, whatever else is wrong.
  const auto end = std::find(words.begin(), words.end(), "--");
  const auto isHelp = [](const std::string& word) { return word == "-h" || word == "--help"; };
  Arguments arguments;
  arguments.help = std::any_of(words.begin(), end, isHelp);
  return arguments.help ? arguments : Parser(verb, words).parse();
}

}  // namespace Tool
