#include "cli/Failure.h"

#include "core/Json.h"

namespace Tool {
namespace {

/// A remedy as an option, such as "--hex-order bytes or words".
void appendOption(Text& to, const Remedy& remedy) {
  to.append("--{}{}", remedy.option, remedy.option == std::string_view("origin") ? " ADDRESS" : "");
  const char* separator = " ";
  for (const char* choice : remedy.choices) {
    if (choice == nullptr) break;
    to.append("{}{}", separator, choice);
    separator = " or ";
  }
}

/// Whether it is the command line that is wrong, and not what is read.
bool isOfCommandLine(const Fault& fault) {
  return fault.code == Code::option || (fault.code == Code::notOnChip && fault.place.line == 0);
}

std::string sourceOf(const Fault& fault, const std::string& source) {
  return isOfCommandLine(fault) ? "" : source;
}

void addPlace(JsonWriter& json, const Place& place, const std::string& source) {
  json.key("place").openObject();
  if (!source.empty()) json.key("source").text(printable(source));
  if (place.line != 0) json.key("line").number(place.line);
  if (place.column != 0) json.key("column").number(place.column);
  if (place.entry) json.key("entry").number(*place.entry);
  if (place.field != nullptr) json.key("field").text(place.field);
  json.closeObject();
}

void addRemedies(JsonWriter& json, const Fault& fault) {
  json.key("remedies").openList();
  for (const Remedy& remedy : fault.remedies) {
    if (remedy.option == nullptr) continue;
    json.openObject().key("option").text(formatText("--{}", remedy.option));
    json.key("choices").openList();
    for (const char* choice : remedy.choices) {
      if (choice != nullptr) json.text(choice);
    }
    json.closeList().closeObject();
  }
  json.closeList();
}

std::string jsonOf(const Fault& fault, const std::string& source, const std::string& text) {
  std::string document;
  JsonWriter json(document);
  json.openObject().key("format").text("velmar-fault").key("version").number(1);
  json.key("code").text(nameOf(fault.code)).key("text").text(printable(text));
  addPlace(json, fault.place, source);
  addRemedies(json, fault);
  json.closeObject();
  return document;
}

}  // namespace

Failure::Failure(const std::string& text)
    : std::runtime_error(text), json_(jsonOf(Fault(Code::option, ""), "", text)) {}

Failure::Failure(const Fault& fault, const std::string& source)
    : std::runtime_error(worded(fault, sourceOf(fault, source), appendOption)),
      json_(jsonOf(fault, sourceOf(fault, source), what())) {}

}  // namespace Tool
