#include "core/Fault.h"

#include <algorithm>

namespace Velmar {
namespace Core {

const char* nameOf(Code code) {
  constexpr const char* names[] = {"null",        "size",    "index", "unknown", "ambiguous",
                                   "not-on-chip", "variant", "value", "wide",    "no-entry",
                                   "input",       "option",  "memory"};
  return names[static_cast<U32>(code) - 1];
}

void Fault::say(fmt::string_view text, fmt::format_args arguments) {
  what.appendAll(text, arguments);
  const size_t end = what.view().rfind("; ");
  if (end == std::string_view::npos) return;
  advice.append("{}", what.view().substr(end + 2));
  what.cut(end);
}

Fault& Fault::adviseAll(fmt::string_view text, fmt::format_args arguments) {
  advice.clear();
  advice.appendAll(text, arguments);
  return *this;
}

Fault& Fault::offer(const char* option, std::initializer_list<const char*> choices) {
  for (Remedy& remedy : remedies) {
    if (remedy.option != nullptr) continue;
    remedy.option = option;
    std::copy_n(choices.begin(), std::min(choices.size(), remedy.choices.size()),
                remedy.choices.begin());
    break;
  }
  return *this;
}

Text withRemedies(const Fault& fault, const Text& text, Wording wording) {
  Text result;
  for (std::string_view rest = text.view(); !rest.empty();) {
    const size_t number = rest[0] == '$' && rest.size() > 1 ? static_cast<size_t>(rest[1] - '1')
                                                            : fault.remedies.size();
    const bool isRemedy =
        number < fault.remedies.size() && fault.remedies[number].option != nullptr;
    const size_t size = isRemedy ? 2 : std::min(rest.find('$', 1), rest.size());
    if (isRemedy) {
      wording(result, fault.remedies[number]);
    } else {
      result.append("{}", rest.substr(0, size));
    }
    rest.remove_prefix(size);
  }
  return result;
}

std::string worded(const Fault& fault, std::string_view source, Wording wording) {
  std::string text(source);
  if (!source.empty() && fault.place.line != 0) text += formatText(":{}", fault.place.line);
  if (!source.empty() && fault.place.column != 0) text += formatText(":{}", fault.place.column);
  if (source.empty() && fault.place.line != 0) text = formatText("line {}", fault.place.line);
  if (!text.empty()) text += ": ";
  text += withRemedies(fault, fault.what, wording).view();
  const Text remedy = withRemedies(fault, fault.advice, wording);
  if (!remedy.isEmpty()) text += formatText("; {}", remedy.view());
  return text;
}

}  // namespace Core
}  // namespace Velmar
