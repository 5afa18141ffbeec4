#include "c/Calls.h"

namespace Velmar {
namespace Binding {
namespace {

constexpr bool isCode(velmar_code code, Code own) {
  return static_cast<U32>(code) == static_cast<U32>(own);
}
static_assert(isCode(VELMAR_NULL, Code::null) && isCode(VELMAR_SIZE, Code::size) &&
              isCode(VELMAR_INDEX, Code::index) && isCode(VELMAR_UNKNOWN, Code::unknown) &&
              isCode(VELMAR_AMBIGUOUS, Code::ambiguous) &&
              isCode(VELMAR_NOT_ON_CHIP, Code::notOnChip) &&
              isCode(VELMAR_VARIANT, Code::variant) && isCode(VELMAR_VALUE, Code::value) &&
              isCode(VELMAR_WIDE, Code::wide) && isCode(VELMAR_NO_ENTRY, Code::noEntry) &&
              isCode(VELMAR_INPUT, Code::input) && isCode(VELMAR_OPTION, Code::option) &&
              isCode(VELMAR_MEMORY, Code::memory));

/// The last fault of a thread, and its texts.
struct LastFault {
  Fault fault{Code{}, ""};
  Core::Text message;
  Core::Text what;
  Core::Text remedy;
  Core::Text options;
};

thread_local LastFault last;

/// An option by the name of its member, and its choices with what stands before, between and after.
void appendOption(Core::Text& to, const Core::Remedy& remedy, const char* quote,
                  const char* between) {
  for (const char* name = remedy.option; *name != '\0'; ++name) {
    to.append("{}", *name == '-' ? '_' : *name);
  }
  const char* before = "=";
  for (const char* choice : remedy.choices) {
    if (choice == nullptr) break;
    to.append("{}{}{}{}", before, quote, choice, quote);
    before = between;
  }
}

/// As velmar.h has it: hex_order="bytes" or "words".
void appendInWords(Core::Text& to, const Core::Remedy& remedy) {
  appendOption(to, remedy, "\"", " or ");
}

Core::Text optionsOf(const Fault& fault) {
  Core::Text text;
  for (const Core::Remedy& remedy : fault.remedies) {
    if (remedy.option == nullptr) continue;
    if (!text.isEmpty()) text.append(";");
    appendOption(text, remedy, "", "|");
  }
  return text;
}

}  // namespace

velmar_code fail(const Fault& fault) {
  last.fault = fault;
  last.what = withRemedies(fault, fault.what, appendInWords);
  last.remedy = withRemedies(fault, fault.advice, appendInWords);
  last.options = optionsOf(fault);
  last.message.clear();
  if (fault.place.line != 0) last.message.append("line {}: ", fault.place.line);
  last.message.append("{}{}{}", last.what.view(), last.remedy.isEmpty() ? "" : "; ",
                      last.remedy.view());
  return static_cast<velmar_code>(fault.code);
}

velmar_code checkPointer(const void* pointer, const char* name) {
  if (pointer != nullptr) return VELMAR_OK;
  return fail(Fault(Code::null, "{} is NULL", name).advise("give a pointer to it"));
}

velmar_code checkPointers(std::initializer_list<NamedPointer> pointers) {
  for (const NamedPointer& each : pointers) {
    if (const auto code = checkPointer(each.pointer, each.name)) return code;
  }
  return VELMAR_OK;
}

velmar_code checkIndex(const char* what, size_t index, size_t count) {
  if (index < count) return VELMAR_OK;
  return fail(
      Fault(Code::index, "there is no {} {}", what, index).advise("give 0 to {}", count - 1));
}

velmar_code checkSize(const char* what, size_t size, size_t expected, const char* unit) {
  if (size == expected) return VELMAR_OK;
  return fail(Fault(Code::size, "{} has {} {}", what, size, unit).advise("give {}", expected));
}

}  // namespace Binding
}  // namespace Velmar

using namespace Velmar::Binding;

const char* velmar_message() { return last.message.text(); }

velmar_code velmar_last_fault(velmar_fault* fault, size_t size) {
  const Velmar::Core::Place& place = last.fault.place;
  return give(
      velmar_fault{last.what.text(), last.remedy.text(), last.options.text(),
                   place.field == nullptr ? "" : place.field, place.line, place.column,
                   static_cast<U32>(std::min<U64>(place.entry.value_or(VELMAR_NONE), VELMAR_NONE)),
                   static_cast<U32>(last.fault.code)},
      fault, size);
}
