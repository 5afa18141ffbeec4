#include "cli/CommandLine.h"

#include <CLI/CLI.hpp>
#include <cstdio>
#include <cstring>

#include "cli/Completion.h"
#include "cli/Help.h"
#include "cli/ManPage.h"
#include "cli/Verb.h"
#include "model/Failure.h"
#include "model/Names.h"
#include "model/Text.h"
#include "output/Output.h"

namespace Tool {
namespace {

std::string seeHelp(const Verb& verb) { return formatText("see \"velmar {} --help\"", verb.name); }

void declare(CLI::App& app, const Option& option, Arguments& arguments) {
  if (option.flag != nullptr) {
    app.add_flag(option.names, arguments.*option.flag);
  } else if (option.list != nullptr) {
    app.add_option(option.names, arguments.*option.list)
        ->allow_extra_args(false)
        ->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  } else {
    app.add_option(option.names, arguments.*option.text);
  }
}

void declare(CLI::App& app, const Positional& positional, Arguments& arguments) {
  const std::string name = split(positional.value, ' ').front();
  if (positional.list != nullptr) {
    app.add_option(name, arguments.*positional.list);
  } else {
    app.add_option(name, arguments.*positional.text);
  }
}

[[noreturn]] void failUnknown(const Verb& verb, const std::string& word) {
  if (word.empty() || word[0] != '-') {
    fail("unexpected argument {}; {}", inQuotes(word), seeHelp(verb));
  }
  std::vector<std::string> names;
  for (const Option& option : verb.options) names.push_back(option.longName());
  fail("{} has no option {}; {}{}", verb.name, inQuotes(word), didYouMean(word, names),
       seeHelp(verb));
}

void checkChoice(const Option& option, const std::string& value) {
  for (const std::string& choice : option.choices) {
    if (value == choice) return;
  }
  fail("{} {}: no such choice; give {}", option.longName(), inQuotes(value),
       join(option.choices, ", "));
}

void checkComplete(const Verb& verb, const Arguments& arguments) {
  for (const Option& option : verb.options) {
    const bool given = option.list == nullptr || !(arguments.*option.list).empty();
    if (option.required && !given) {
      fail("{} is missing; {}", option.longName(), seeHelp(verb));
    }
    if (option.text != nullptr && !option.choices.empty() && !(arguments.*option.text).empty()) {
      checkChoice(option, arguments.*option.text);
    }
  }
  for (const Positional& positional : verb.positionals) {
    const bool given = positional.list != nullptr ? !(arguments.*positional.list).empty()
                                                  : !(arguments.*positional.text).empty();
    if (positional.required && !given) fail("{} is missing; {}", positional.value, seeHelp(verb));
  }
}

/// Prints through Output, which notices where the text cannot be written.
int print(const std::string& text) {
  Output output("", "never");
  output.write(text);
  output.finish();
  return exitSuccess;
}

int runVerb(const Verb& verb, int count, char** words) {
  Arguments arguments;
  CLI::App app;
  app.allow_extras();
  for (const Positional& positional : verb.positionals) declare(app, positional, arguments);
  for (const Option& option : verb.options) declare(app, option, arguments);
  try {
    app.parse(count, words);
  } catch (const CLI::CallForHelp&) {
    return print(helpOf(verb));
  } catch (const CLI::ParseError& error) {
    fail("{}; {}", error.what(), seeHelp(verb));
  }
  const std::vector<std::string> unknown = app.remaining();
  if (!unknown.empty()) failUnknown(verb, unknown.front());
  checkComplete(verb, arguments);
  return verb.run(arguments);
}

Verb findVerb(const VerbList& verbs, const std::string& name) {
  std::vector<std::string> names;
  for (const VerbName& verb : verbs) {
    if (name == verb.name) return verb.make();
    names.emplace_back(verb.name);
  }
  fail("unknown verb {}; {}\"velmar --help\" lists the verbs", inQuotes(name),
       didYouMean(name, names));
}

}  // namespace

int runCommandLine(const VerbList& verbs, int count, char** words) {
  if (count < 2) {
    std::fputs(overview(verbs).c_str(), stderr);
    return exitFailure;
  }
  const std::string first = words[1];
  if (first == "--help" || first == "-h" || (first == "help" && count == 2)) {
    return print(overview(verbs));
  }
  if (first == "help") return print(helpOf(findVerb(verbs, words[2])));
  if (first == "--version") return print(formatText("velmar {}\n", VELMAR_VERSION));
  // For the build and for the shell, not for people.
  if (first == "__man") return print(manPage(verbs));
  if (first == "__complete") return print(completion(verbs, {words + 2, words + count}));
  return runVerb(findVerb(verbs, first), count - 1, words + 1);
}

}  // namespace Tool
