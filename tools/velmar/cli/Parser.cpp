#include "cli/Parser.h"

#include <algorithm>

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
    if (!arguments_.help) checkComplete();
    return arguments_;
  }

 private:
  void takePositional(const std::string& word) {
    if (positional_ == verb_.positionals.size()) return unknown_.push_back(word);
    const Positional& positional = verb_.positionals[positional_];
    const Member& member = positional.member;
    if (member.list != nullptr) return (arguments_.*member.list).push_back(word);
    arguments_.*member.text = word;
    ++positional_;
  }

  void takeLong(const std::string& word) {
    const size_t sign = word.find('=');
    const std::string name = word.substr(0, sign);
    const Option* option = find(name);
    if (option == nullptr) return unknown_.push_back(name);
    if (sign == std::string::npos) return take(*option);
    if (option->member.flag != nullptr) fail("{} takes no value; give {} alone", name, name);
    put(*option, word.substr(sign + 1));
  }

  void takeShort(const std::string& word) {
    for (size_t i = 1; i < word.size(); ++i) {
      const Option* option = find({'-', word[i]});
      if (option == nullptr) return unknown_.push_back(i == 1 ? word : "-" + word.substr(i));
      const bool hasValue = option->member.flag == nullptr && i + 1 < word.size();
      if (hasValue) return put(*option, word.substr(i + 1));
      take(*option);
    }
  }

  const Option* find(const std::string& name) const {
    for (const Option& option : options_) {
      const std::vector<std::string> names = split(option.names, ',');
      if (std::find(names.begin(), names.end(), name) != names.end()) return &option;
    }
    return nullptr;
  }

  /// A switch, or an option whose value is the next word, whatever that begins with.
  void take(const Option& option) {
    if (option.member.flag != nullptr) {
      arguments_.*option.member.flag = true;
    } else if (next_ == words_.size()) {
      fail("{} is given without its {}; {}", option.longName(), option.value, seeHelp());
    } else {
      put(option, words_[next_++]);
    }
  }

  void put(const Option& option, const std::string& value) {
    if (option.member.list != nullptr) return (arguments_.*option.member.list).push_back(value);
    if (std::count(given_.begin(), given_.end(), &option) != 0) {
      fail("{} is given twice; give it once", option.longName());
    }
    given_.push_back(&option);
    arguments_.*option.member.text = value;
  }

  void checkComplete() const {
    if (!unknown_.empty()) failUnknown(unknown_.front());
    for (const Option& option : options_) {
      if (option.required && !option.member.isGiven(arguments_)) failMissing(option.longName());
      if (option.choices[0] != '\0') checkChoice(option, arguments_.*option.member.text);
    }
    for (const Positional& positional : verb_.positionals) {
      const bool isGiven = positional.member.isGiven(arguments_);
      if (positional.required && !isGiven) failMissing(positional.value);
    }
  }

  static void checkChoice(const Option& option, const std::string& value) {
    const std::vector<std::string> choices = split(option.choices, ',');
    if (value.empty() || std::count(choices.begin(), choices.end(), value) != 0) return;
    fail("{} {}: no such choice; give {}", option.longName(), inQuotes(value), join(choices, ", "));
  }

  [[noreturn]] void failUnknown(const std::string& word) const {
    if (word.empty() || word[0] != '-') {
      fail("unexpected argument {}; {}", inQuotes(word), seeHelp());
    }
    // A single letter is near to too many names.
    std::vector<std::string> names;
    for (const Option& option : options_) {
      if (word.size() > 2) names.push_back(option.longName());
    }
    fail("{} has no option {}; {}{}", verb_.name, inQuotes(word), didYouMean(word, names),
         seeHelp());
  }

  [[noreturn]] void failMissing(const std::string& what) const {
    fail("{} is missing; {}", what, seeHelp());
  }

  std::string seeHelp() const { return formatText("see \"velmar {} --help\"", verb_.name); }

  const Verb& verb_;
  std::vector<Option> options_;
  const std::vector<std::string>& words_;
  Arguments arguments_;
  size_t next_ = 0;
  size_t positional_ = 0;
  std::vector<std::string> unknown_;
  std::vector<const Option*> given_;
};

}  // namespace

Arguments parseArguments(const Verb& verb, const std::vector<std::string>& words) {
  return Parser(verb, words).parse();
}

}  // namespace Tool
