#include "core/JsonText.h"
#include "core/ValuesReading.h"

// Entries are read one by one, so that a document of any size takes little memory beside its text.

namespace Velmar {
namespace Core {
namespace {

class JsonReader {
 public:
  JsonReader(std::string_view text, EntryReader& reader)
      : json_(text), reader_(reader), form_(reader.result.entries.jsonForm) {}

  Done read() {
    const bool isWhole = json_.checkNoZeros();
    if (isWhole && json_.peek() == '\0')
      return failed(Fault(Code::input, "no entry; check the file"));
    form_ = {json_.peek() != '[', true, false};
    bool isRead = isWhole;
    while (isRead && json_.peek() != '\0') isRead = readTop();
    if (!isRead) return failed(fault_ ? *fault_ : *json_.fault());
    form_.isPlain = form_.isPlain && hasValues_;
    return {};
  }

 private:
  enum class Kind { document, entry, values };

  /// A fault of what an object says: it has the line on which that begins.
  bool check(const Done& done) {
    if (!done) (fault_ = done.error())->onLine(json_.lineOf(begin_));
    return done.has_value();
  }
  bool fail(const FieldPlace& place, const char* what) {
    return check(failed(
        Fault(Code::value,
              "{}: {}; give a number, a text such as \"0x1f\" or \"0-3,17\", or a list of ports",
              place.name(), what)
            .ofField(place.name())));
  }

  bool readTop() {
    if (json_.peek() == '[') return readEntries();
    Kind kind;
    if (!startObject(kind)) return false;
    return kind == Kind::document ? readDocument() : readEntry(kind);
  }

  bool readEntries() {
    return json_.readItems([this] {
      Kind kind;
      return startObject(kind) && readEntry(kind);
    });
  }

  /// Looks ahead for what an object is: a document has entries, an entry has fields.
  bool startObject(Kind& kind) {
    json_.forget();
    if (json_.peek() != '{') return json_.fail("an entry in braces is expected");
    begin_ = json_.mark();
    kind = Kind::values;
    const bool isRead = json_.readMembers([&](std::string_view name) {
      if (name == "entries") kind = Kind::document;
      if (name == "fields") kind = Kind::entry;
      return kind == Kind::values && json_.skip();
    });
    if (!isRead && kind == Kind::values) return false;
    json_.goTo(begin_);
    return true;
  }

  bool readDocument() {
    form_.isLines = false;
    const size_t begin = begin_;
    return json_.readMembers([&](std::string_view name) {
      if (name == "entries") return readEntries();
      begin_ = begin;
      if (name == "layout") return readLayout();
      return reader_.isMember(name) ? readMember(name) : json_.skip();
    });
  }

  bool readLayout() {
    return json_.readMembers([this](std::string_view name) {
      const auto place = reader_.find(name);
      return check(place.map([](const FieldPlace*) {})) && readPlace(**place);
    });
  }

  bool readPlace(const FieldPlace& place) {
    return json_.readMembers([&](std::string_view name) {
      std::string_view number;
      if (!json_.readScalar(number)) return false;
      if (name == "offset" && parseNumber(number) == place.offset) return true;
      if (name == "width" && parseNumber(number) == place.width) return true;
      return check(failed(Fault(
          Code::input, "layout: {} is not at {} with width {}, where it is on {}; check the chip",
          place.name(), place.offset, place.width, reader_.layout().chip().name)));
    });
  }

  bool readEntry(Kind kind) {
    reader_.start(kind == Kind::entry);
    const auto readField = [this](std::string_view name) { return readValue(name); };
    const bool isRead =
        kind == Kind::values
            ? json_.readMembers(readField)
            : json_.readMembers([&](std::string_view name) {
                if (name == "fields") return json_.readMembers(readField);
                if (reader_.isMember(name)) return readMember(name);
                return check(failed(Fault(
                    Code::input, "unknown member {}; an entry has index, fields and outsideFields",
                    quoted(name).view())));
              });
    return isRead && check(reader_.finish());
  }

  bool readMember(std::string_view name) {
    std::string_view text;
    return json_.readScalar(text) && check(reader_.takeMember(name, text));
  }

  bool readValue(std::string_view name) {
    hasValues_ = true;
    const FieldPlace* const family = reader_.familyNamed(name);
    if (family != nullptr) return readFamily(*family);
    const auto place = reader_.find(name);
    if (!place) return check(failed(place));
    if (json_.peek() == '{') form_.isPlain = false;
    Value value((*place)->width);
    return readValue(**place, value) && check(reader_.take(**place, value));
  }

  /// {"3": "0-2,17"}: values, and the numbers of the fields that have them.
  bool readFamily(const FieldPlace& first) {
    form_.isCompact = true;
    return json_.readMembers([&](std::string_view value) {
      std::string_view numbers;
      return json_.readScalar(numbers) && check(reader_.takeFamily(first, value, numbers));
    });
  }

  bool readValue(const FieldPlace& place, Value& value) {
    if (json_.peek() == '{') return readForms(place, value);
    if (json_.peek() == '[') return readPorts(place, value);
    const bool isText = json_.peek() == '"';
    std::string_view scalar;
    if (!json_.readScalar(scalar)) return false;
    if (place.width == 1 && !isText && scalar == "true") scalar = "1";
    if (place.width == 1 && !isText && scalar == "false") scalar = "0";
    const std::optional<U64> number = parseNumber(scalar);
    if (!isText && !number) {
      const bool isNumber = scalar[0] == '-' || isDecimalDigit(scalar[0]);
      return fail(place, isNumber ? "not a whole number of up to 64 bits" : "no value");
    }
    const Expected<Value> parsed = isText ? parseValue(place, scalar) : makeValue(place, *number);
    if (parsed) value = *parsed;
    return check(parsed.map([](const Value&) {}));
  }

  bool readPorts(const FieldPlace& place, Value& value) {
    if (!place.isBitmap()) return fail(place, "the field is not a bitmap");
    return json_.readItems([&] {
      std::string_view port;
      const bool isText = json_.peek() == '"';
      if (!json_.readScalar(port)) return false;
      const std::optional<U64> number = parseNumber(port);
      if (isText || !number) return fail(place, "a port must be a number");
      return check(addPort(place, value, *number));
    });
  }

  /// {"hex": ..., "decimal": ..., "ports": [...]}: one or more of them, with the same value.
  bool readForms(const FieldPlace& place, Value& value) {
    std::string_view first;
    const bool isRead = json_.readMembers([&](std::string_view name) {
      if (name != "hex" && name != "decimal" && name != "ports") {
        return fail(place, "a value has the members hex, decimal and ports only");
      }
      Value form(place.width);
      if (!readValue(place, form)) return false;
      if (!first.empty() && form != value) {
        return check(failed(Fault(Code::value, "{}: {} and {} disagree; change both, or remove one",
                                  place.name(), first, name)
                                .ofField(place.name())));
      }
      if (first.empty()) first = name;
      value = form;
      return true;
    });
    if (isRead && first.empty()) return fail(place, "there is no value");
    return isRead;
  }

  JsonText json_;
  EntryReader& reader_;
  JsonForm& form_;
  bool hasValues_ = false;
  size_t begin_ = 0;  ///< of the entry
  std::optional<Fault> fault_;
};

}  // namespace

Done readJson(std::string_view text, EntryReader& reader) {
  return JsonReader(text, reader).read();
}

}  // namespace Core
}  // namespace Velmar
