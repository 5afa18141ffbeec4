#include "core/JsonTree.h"

#include <algorithm>
#include <vector>

#include "core/Text.h"

namespace Velmar {
namespace Core {
namespace {

constexpr unsigned parseFlags = rapidjson::kParseInsituFlag | rapidjson::kParseStopWhenDoneFlag |
                                rapidjson::kParseIterativeFlag;

const char* expectedAt(rapidjson::ParseErrorCode code) {
  switch (code) {
    case rapidjson::kParseErrorObjectMissName:
      return "a name in quotes is expected";
    case rapidjson::kParseErrorObjectMissColon:
      return "a colon is expected after the name";
    case rapidjson::kParseErrorObjectMissCommaOrCurlyBracket:
      return "a comma or } is expected";
    case rapidjson::kParseErrorArrayMissCommaOrSquareBracket:
      return "a comma or ] is expected";
    case rapidjson::kParseErrorStringUnicodeEscapeInvalidHex:
    case rapidjson::kParseErrorStringUnicodeSurrogateInvalid:
      return "\\u needs four hexadecimal digits";
    case rapidjson::kParseErrorStringEscapeInvalid:
      return "one of \" \\ / b f n r t u is expected after a backslash";
    case rapidjson::kParseErrorStringMissQuotationMark:
      return "a closing quotation mark is expected";
    case rapidjson::kParseErrorNumberTooBig:
      return "the number is too large";
    case rapidjson::kParseErrorNumberMissFraction:
    case rapidjson::kParseErrorNumberMissExponent:
      return "a digit is expected";
    default:
      return "a value is expected";
  }
}

/// A name that an object has twice; empty if there is none.
std::string_view nameGivenTwice(const JsonValue& object) {
  std::vector<std::string_view> names;
  names.reserve(object.MemberCount());
  for (const auto& [name, member] : object.GetObject()) names.push_back(textOf(name));
  // In order, equal names are neighbours.
  std::sort(names.begin(), names.end());
  const auto twice = std::adjacent_find(names.begin(), names.end());
  return twice == names.end() ? std::string_view() : *twice;
}

U64 lineAt(std::string_view text, size_t at) {
  const std::string_view before = text.substr(0, at);
  return static_cast<U64>(std::count(before.begin(), before.end(), '\n')) + 1;
}

}  // namespace

char JsonTexts::peek() {
  rapidjson::SkipWhitespace(stream_);
  return stream_.Peek();
}

Done JsonTexts::parse(JsonDocument& document) {
  document.ParseStream<parseFlags>(stream_);
  if (!document.HasParseError()) return succeeded();
  const size_t at = document.GetErrorOffset();
  rapidjson::ParseErrorCode code = document.GetParseError();
  const bool isEscape = at < text_.size() && text_[at] == '\\';
  // A text goes on in the next line.
  if (code == rapidjson::kParseErrorStringEscapeInvalid && !isEscape) {
    code = rapidjson::kParseErrorStringMissQuotationMark;
  }
  return failed(faultAt(at, expectedAt(code)));
}

Done JsonTexts::checkEnd() {
  const size_t at = stream_.Tell();
  if (at == parsed_.size()) return succeeded();
  return failed(faultAt(at, text_[at] == '\0' ? "NUL byte in JSON" : "the text goes on"));
}

U64 JsonTexts::lineOf(const JsonValue& object) const {
  if (!object.IsObject() || object.MemberCount() == 0) return 1;
  const char* const name = object.MemberBegin()->name.GetString();
  return lineAt(text_, text_.rfind('{', static_cast<size_t>(name - parsed_.data())));
}

Fault JsonTexts::faultAt(size_t at, const char* what) const {
  const size_t column = at - (text_.substr(0, at).rfind('\n') + 1) + 1;
  const char* const advice = at == text_.size() ? "the JSON ends too early" : "check the JSON";
  return Fault(Code::input, "{}; {}", what, advice).onLine(lineAt(text_, at), column);
}

std::string_view textOf(const JsonValue& text) {
  return {text.GetString(), text.GetStringLength()};
}

std::string shown(const JsonValue& value) {
  if (value.IsString()) return std::string(textOf(value));
  if (value.IsUint64()) return std::to_string(value.GetUint64());
  if (value.IsInt64()) return std::to_string(value.GetInt64());
  if (value.IsBool()) return value.GetBool() ? "true" : "false";
  if (value.IsNull()) return "null";
  return value.IsObject() ? "an object" : value.IsArray() ? "a list" : "another number";
}

Done checkNames(const JsonValue& object) {
  const std::string_view twice = nameGivenTwice(object);
  if (twice.empty()) return succeeded();
  return failed(
      Fault(Code::input, "the name {} is given twice; give it once", quoted(twice).view()));
}

}  // namespace Core
}  // namespace Velmar
