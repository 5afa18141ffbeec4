#include "cli/ManPage.h"

#include "Velmar/Version.h"
#include "cli/Help.h"

namespace Tool {
namespace {

/// A text in which the formatter of manual pages finds no commands.
std::string escaped(const std::string& text) {
  std::string safe;
  for (const char character : text) {
    if (character == '-' || character == '\\') {
      safe += {'\\', character};
    } else if (character == '\'') {
      safe += "\\(aq";
    } else {
      safe += character;
    }
  }
  const bool isRequest = !safe.empty() && safe[0] == '.';
  return isRequest ? "\\&" + safe : safe;
}

std::string item(const std::string& heading, const std::string& meaning) {
  return formatText(".TP\n.B {}\n{}\n", escaped(heading), escaped(meaning));
}

std::string section(const Verb& verb) {
  std::string text = formatText(".SS {}\n.B {}\n.PP\n{}\n", verb.name, escaped(usageOf(verb)),
                                escaped(verb.summary));
  if (verb.details[0] != '\0') text += formatText(".PP\n{}\n", escaped(verb.details));
  for (const Positional& positional : verb.positionals) {
    text += item(positional.value, positional.meaning);
  }
  for (const Option& option : verb.options) text += item(headingOf(option), meaningOf(option));
  text += ".PP\nExamples:\n.PP\n.nf\n";
  for (const char* example : verb.examples) text += formatText("    {}\n", escaped(example));
  return text + ".fi\n";
}

}  // namespace

std::string manPage(const VerbList& verbs) {
  std::string text = formatText(
      ".TH VELMAR 1 \"\" \"velmar {}\"\n"
      ".SH NAME\nvelmar \\- decode, encode, compare and explain switch table entries\n"
      ".SH SYNOPSIS\n.B velmar\nVERB [ARGUMENT...]\n"
      ".SH DESCRIPTION\n{}\n.SH VERBS\n",
      Velmar::version(), escaped(purposeText));
  for (const VerbName& name : verbs) text += section(name.make());
  text += ".SH INPUT\nThe notations of dumps that are read:\n";
  for (const Notation& notation : notations) text += item(notation.name, notation.meaning);
  text += ".SH CONDITIONS\nThe language of --where; a shell needs single quotes around it:\n";
  for (const Notation& condition : conditions) text += item(condition.name, condition.meaning);
  text += ".SH LOGS\nThe shapes of lines that trace reads, and what it finds:\n";
  for (const Notation& shape : logs) text += item(shape.name, shape.meaning);
  for (const Notation& finding : findings) text += item(finding.name, finding.meaning);
  text += ".SH SQL\nWhat a statement of \\fBvelmar sql\\fR can use:\n";
  for (const Notation& part : sql) text += item(part.name, part.meaning);
  text += ".SH OUTPUT\n";
  for (const Notation& form : outputs) text += item(form.name, form.meaning);
  text += formatText(".SH EXIT STATUS\n{}\n.SH ENVIRONMENT\n", escaped(exitCodeText));
  for (const Notation& variable : environment) text += item(variable.name, variable.meaning);
  text += ".SH FILES\n";
  for (const Notation& file : files) text += item(file.name, file.meaning);
  return text;
}

}  // namespace Tool
