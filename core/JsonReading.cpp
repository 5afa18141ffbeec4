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
    form_ = {json_.peek() != '[', true, false};
    bool isRead = true;
    while (isRead && json_.peek() != '\0') {
      hasEntries_ = true;
      isRead = json_.peek() == '[' ? readEntries() : readObject(true);
    }
    if (isRead && !json_.isAtEnd()) isRead = json_.fail("");
    if (!isRead) return failed(fault_ ? *fault_ : *json_.fault());
    if (!hasEntries_) return failed(Fault(Code::input, "no entry; check the file"));
    form_.isPlain = form_.isPlain && hasValues_;
    return {};
  }

 private:
  enum class Kind { document, entry, values };

  /// A fault of what an object says: it has the line on which that begins.
  template <class Result>
  bool check(const Expected<Result>& result) {
    if (!result) (fault_ = result.error())->onLine(json_.lineOf(begin_));
    return result.has_value();
  }
  bool check(const Fault& fault) { return check(Done(failed(fault))); }
  bool fail(const FieldPlace& place, const char* what) {
    return check(
        Fault(Code::value,
              "{}: {}; give a number, a text such as \"0x1f\" or \"0-3,17\", or a list of ports",
              place.name(), what)
            .ofField(place.name()));
  }

  bool readEntries() {
    return json_.readItems([this] { return readObject(false); });
  }

  /// A document of entries, where it may be one, an entry with fields, or values alone.
  bool readObject(bool isTop) {
    json_.forget();
    begin_ = json_.mark();
    if (json_.peek() != '{') return json_.fail("an entry in braces is expected");
    Kind kind = Kind::values;
    const bool isRead = json_.readMembers([&](std::string_view name) {
      if (isTop && name == "entries") kind = Kind::document;
      if (name == "fields") kind = Kind::entry;
      return kind == Kind::values && json_.skip();
    });
    if (!isRead && kind == Kind::values) return false;
    json_.goTo(begin_);
    return kind == Kind::document ? readDocument() : readEntry(kind);
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
      const auto place = reader_.layout().find(name);
      return check(place) && readPlace(**place);
    });
  }

  bool readPlace(const FieldPlace& place) {
    return json_.readMembers([&](std::string_view name) {
      std::string_view number;
      if (!json_.readScalar(number)) return false;
      if (name == "offset" && parseNumber(number) == place.offset) return true;
      if (name == "width" && parseNumber(number) == place.width) return true;
      return check(Fault(Code::input,
                         "layout: {} is not at {} with width {}, where it is on {}; check the chip",
                         place.name(), place.offset, place.width, reader_.layout().chip().name));
    });
  }

  bool readEntry(Kind kind) {
    reader_.start(kind == Kind::entry);
    next_ = 0;
    const bool isRead =
        kind == Kind::values ? readFields() : json_.readMembers([this](std::string_view name) {
          return name == "fields" ? readFields() : readMember(name);
        });
    return isRead && check(reader_.finish());
  }

  bool readFields() {
    return json_.readMembers([this](std::string_view name) { return readField(name); });
  }

  bool readMember(std::string_view name) {
    if (!reader_.isMember(name)) {
      return check(Fault(Code::input,
                         "unknown member {}; an entry has index, fields and outsideFields",
                         quoted(name).view()));
    }
    std::string_view text;
    return json_.readScalar(text) && check(reader_.takeMember(name, text));
  }

  bool readField(std::string_view name) {
    hasValues_ = true;
    if (reader_.isFamily(name)) return readFamily(name);
    const auto place = findField(name);
    if (!check(place)) return false;
    if (json_.peek() == '{') form_.isPlain = false;
    Value value((*place)->width);
    return readValue(**place, value) && check(reader_.take(**place, value));
  }

  /// The field of a name. Most come in their order.
  Expected<const FieldPlace*> findField(std::string_view name) {
    const Layout& layout = reader_.layout();
    const bool isNext = next_ < layout.fields().size() && name == layout.fields()[next_].name();
    auto place = isNext ? Expected<const FieldPlace*>(&layout.fields()[next_]) : layout.find(name);
    if (place) next_ = layout.positionOf(**place) + 1;
    return place;
  }

  /// {"3": "0-2,17"}: values, and the numbers of the fields that have them.
  bool readFamily(std::string_view family) {
    form_.isCompact = true;
    return json_.readMembers([&](std::string_view value) {
      std::string_view numbers;
      return json_.readScalar(numbers) && check(reader_.takeFamily(family, value, numbers));
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
    return check(parsed);
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
      if (json_.peek() == '{') return fail(place, "no value");
      if (!readValue(place, form)) return false;
      if (!first.empty() && form != value) {
        return check(Fault(Code::value, "{}: {} and {} disagree; change both, or remove one",
                           place.name(), first, name)
                         .ofField(place.name()));
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
  bool hasEntries_ = false, hasValues_ = false;
  size_t begin_ = 0;  ///< of the entry
  size_t next_ = 0;   ///< position of the field that is expected
  std::optional<Fault> fault_;
};

}  // namespace

Done readJson(std::string_view text, EntryReader& reader) {
  return JsonReader(text, reader).read();
}

}  // namespace Core
}  // namespace Velmar
