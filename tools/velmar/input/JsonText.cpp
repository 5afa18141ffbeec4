#include "input/JsonText.h"

#include <algorithm>

#include "model/Failure.h"
#include "model/Text.h"

namespace Tool {
namespace {

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
      return "the hexadecimal number of a letter is expected after \\u";
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

/// Checks the objects in a value: no name twice, and not too many in one another.
/// Returns what is wrong; empty where nothing is.
std::string faultIn(const JsonValue& value, U32 depth = 1) {
  constexpr U32 deepest = 16;
  if (depth > deepest) return "objects nested too deeply";
  std::string fault;
  if (value.IsArray()) {
    for (auto member = value.Begin(); fault.empty() && member != value.End(); ++member) {
      fault = faultIn(*member, depth + 1);
    }
  } else if (value.IsObject()) {
    for (auto member = value.MemberBegin(); fault.empty() && member != value.MemberEnd();
         ++member) {
      const bool isFirst = value.FindMember(member->name) == member;
      fault = isFirst ? faultIn(member->value, depth + 1)
                      : formatText("the name {} is given twice; give it once",
                                   inQuotes(member->name.GetString()));
    }
  }
  return fault;
}

}  // namespace

/// The letters of the stream, as the library reads them.
class JsonText::Source {
 public:
  using Ch = char;

  explicit Source(JsonText& text) : text_(text) { update(); }

  char Peek() {
    if (text_.at_ >= end_) {
      if (!text_.readMore()) return '\0';
      update();
    }
    if (letters_[text_.at_] == '\0') text_.fail("a byte of zero is no JSON");
    return letters_[text_.at_];
  }
  char Take() {
    const char letter = Peek();
    if (letter != '\0') ++text_.at_;
    return letter;
  }
  size_t Tell() const { return text_.at_; }

  // The library needs these for writing only.
  char* PutBegin() { return nullptr; }
  void Put(char) {}
  size_t PutEnd(char*) { return 0; }

 private:
  void update() {
    letters_ = text_.stream_.text().data();
    end_ = std::min(text_.stream_.size(), longestPart);
  }

  JsonText& text_;
  const char* letters_ = nullptr;
  size_t end_ = 0;
};

bool JsonText::readMore() {
  if (at_ >= longestPart) tooLong();
  return stream_.readMore();
}

void JsonText::tooLong() { fail("an entry has more than 1 MiB"); }

char JsonText::peek() {
  for (;; ++at_) {
    if (at_ >= longestPart) tooLong();
    if (at_ == stream_.size() && !readMore()) return '\0';
    const char letter = stream_.text()[at_];
    if (letter == '\0') fail("a byte of zero is no JSON");
    if (letter != '\n' && !isBlank(letter)) return letter;
  }
}

bool JsonText::takeIf(char letter) {
  if (peek() != letter) return false;
  ++at_;
  return true;
}

void JsonText::expect(char letter, const char* what) {
  if (!takeIf(letter)) fail(what);
}

void JsonText::read(JsonDocument& value) {
  constexpr unsigned flags = rapidjson::kParseIterativeFlag | rapidjson::kParseStopWhenDoneFlag;
  peek();
  const size_t begin = at_;
  Source source(*this);
  value.ParseStream<flags>(source);
  if (value.HasParseError()) {
    // An error of a text or number is where that begins.
    failAt(std::max(begin, value.GetErrorOffset()), expectedAt(value.GetParseError()));
  }
  const std::string fault = faultIn(value);
  if (!fault.empty()) failAt(begin, fault);
}

void JsonText::startPart() {
  peek();
  countLines(at_, line_, column_);
  stream_.take(at_);
  at_ = 0;
}

void JsonText::countLines(size_t end, U64& line, U64& column) const {
  std::string_view text = stream_.text().substr(0, end);
  for (size_t length; (length = text.find('\n')) != std::string_view::npos; ++line) {
    text.remove_prefix(length + 1);
    column = 1;
  }
  column += text.size();
}

void JsonText::failAt(size_t at, const std::string& what) const {
  U64 line = line_, column = column_;
  countLines(at, line, column);
  const char* const remedy = what.find(';') != std::string::npos ? ""
                             : at == stream_.size()              ? "; the JSON ends too early"
                                                                 : "; check the JSON";
  Tool::fail("{}:{}:{}: {}{}", stream_.name(), line, column, what, remedy);
}

}  // namespace Tool
