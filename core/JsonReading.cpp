#include "core/JsonTree.h"
#include "core/ValuesReading.h"

namespace Velmar {
namespace Core {
namespace {

Done badValue(const FieldPlace& place, const char* what) {
  return failed(
      Fault(Code::value,
            "{}: {}; give a number, a text such as \"0x1f\" or \"0-3,17\", or a list of ports",
            place.name(), what)
          .ofField(place.name()));
}

Done addPorts(const FieldPlace& place, const JsonValue& list, Value& value) {
  if (!place.isBitmap()) return badValue(place, "the field is not a bitmap");
  for (const JsonValue& port : list.GetArray()) {
    if (!port.IsUint64()) return badValue(place, "a port must be a number");
    if (const Done done = addPort(place, value, port.GetUint64()); !done) return done;
  }
  return succeeded();
}

Done takeInto(Value& value, const Expected<Value>& parsed) {
  if (!parsed) return failed(parsed);
  value = *parsed;
  return succeeded();
}

Done readValue(const FieldPlace& place, const JsonValue& json, Value& value) {
  if (json.IsUint64()) return takeInto(value, makeValue(place, json.GetUint64()));
  if (json.IsBool() && place.width == 1) {
    return takeInto(value, makeValue(place, json.GetBool() ? 1 : 0));
  }
  if (json.IsString()) return takeInto(value, parseValue(place, textOf(json)));
  if (json.IsArray()) return addPorts(place, json, value);
  return badValue(place, json.IsNumber() ? "not a whole number of up to 64 bits" : "no value");
}

/// {"hex": ..., "decimal": ..., "ports": [...]}: one or more of them, with the same value.
Done readForms(const FieldPlace& place, const JsonValue& object, Value& value) {
  std::string_view first;
  for (const auto& [name, member] : object.GetObject()) {
    const std::string_view key = textOf(name);
    if (key != "hex" && key != "decimal" && key != "ports") {
      return badValue(place, "a value has the members hex, decimal and ports only");
    }
    Value form(place.width);
    if (const Done done = readValue(place, member, form); !done) return done;
    if (!first.empty() && form != value) {
      return failed(Fault(Code::value, "{}: {} and {} disagree; change both, or remove one",
                          place.name(), first, key)
                        .ofField(place.name()));
    }
    if (first.empty()) first = key;
    value = form;
  }
  if (first.empty()) return badValue(place, "there is no value");
  return checkNames(object);
}

class JsonReader {
 public:
  JsonReader(std::string_view text, EntryReader& reader)
      : texts_(text),
        reader_(reader),
        layout_(reader.layout()),
        form_(reader.result.entries.jsonForm) {}

  Done read() {
    form_ = {texts_.peek() != '[', true, false};
    bool hasEntries = false;
    for (; texts_.peek() != '\0'; hasEntries = true) {
      JsonDocument document;
      Done done = texts_.parse(document);
      if (done) {
        done = document.IsArray() ? readEntries(document) : checked(document, readTop(document));
      }
      if (!done) return done;
    }
    if (const Done done = texts_.checkEnd(); !done) return done;
    if (!hasEntries) return failed(Fault(Code::input, "no entry; check the file"));
    form_.isPlain = form_.isPlain && hasValues_;
    return succeeded();
  }

 private:
  /// A fault of what an object says has the line on which that begins.
  Done checked(const JsonValue& object, Done done) const {
    if (!done && done.error().place.line == 0) done.error().onLine(texts_.lineOf(object));
    return done;
  }

  Done readEntries(const JsonValue& list) {
    if (!list.IsArray()) {
      return failed(Fault(Code::input, "entries: {}; give a list of entries", shown(list)));
    }
    for (const JsonValue& object : list.GetArray()) {
      if (const Done done = checked(object, readObject(object)); !done) return done;
    }
    return succeeded();
  }

  /// A document of entries, where it may be one, or an object.
  Done readTop(const JsonValue& object) {
    if (!object.IsObject() || !object.HasMember("entries")) return readObject(object);
    form_.isLines = false;
    if (const Done done = checkNames(object); !done) return done;
    for (const auto& [name, member] : object.GetObject()) {
      const std::string_view key = textOf(name);
      Done done = succeeded();
      if (key == "entries") done = readEntries(member);
      if (key == "layout") done = readLayout(member);
      if (reader_.isMember(key)) done = readMember(key, member);
      if (!done) return done;
    }
    return succeeded();
  }

  /// The fields are where the layout has them.
  Done readLayout(const JsonValue& fields) const {
    if (!fields.IsObject()) {
      return failed(Fault(Code::input, "layout: not an object; check the file"));
    }
    for (const auto& [name, range] : fields.GetObject()) {
      const auto found = layout_.find(textOf(name));
      if (!found) return failed(found);
      const FieldPlace& place = **found;
      const bool isPlace = range.IsObject() && range.MemberCount() == 2 &&
                           range.HasMember("offset") && range["offset"] == place.offset &&
                           range.HasMember("width") && range["width"] == place.width;
      if (isPlace) continue;
      return failed(Fault(
          Code::input, "layout: {} is not at {} with width {}, where it is on {}; check the chip",
          place.name(), place.offset, place.width, layout_.chip().name));
    }
    return succeeded();
  }

  /// An entry with fields, or values alone.
  Done readObject(const JsonValue& object) {
    if (!object.IsObject()) {
      return failed(Fault(Code::input, "{} is no entry; give an entry in braces", shown(object)));
    }
    const bool isEntry = object.HasMember("fields");
    reader_.start(isEntry);
    Done done = checkNames(object);
    if (done && !isEntry) done = readFields(object);
    for (auto member = object.MemberBegin(); done && isEntry && member != object.MemberEnd();
         ++member) {
      const std::string_view name = textOf(member->name);
      done = name == "fields" ? readFields(member->value) : readMember(name, member->value);
    }
    return done ? reader_.finish() : done;
  }

  Done readMember(std::string_view name, const JsonValue& value) {
    if (reader_.isMember(name)) return reader_.takeMember(name, shown(value));
    return failed(Fault(Code::input,
                        "unknown member {}; an entry has index, fields and outsideFields",
                        quoted(name).view()));
  }

  Done readFields(const JsonValue& fields) {
    if (!fields.IsObject()) {
      return failed(Fault(Code::input, "fields: not an object; give {{\"field\": value}}"));
    }
    size_t next = 0;
    for (const auto& [name, member] : fields.GetObject()) {
      if (const Done done = readField(textOf(name), member, next); !done) return done;
    }
    return checkNames(fields);
  }

  /// A field or a family; most fields come in their order, `next` is the position of the one that
  /// follows.
  Done readField(std::string_view name, const JsonValue& json, size_t& next) {
    hasValues_ = true;
    if (reader_.isFamily(name)) return readFamily(name, json);
    const std::vector<FieldPlace>& fields = layout_.fields();
    const bool isNext = next < fields.size() && name == fields[next].name();
    const auto found = isNext ? Expected<const FieldPlace*>(&fields[next]) : layout_.find(name);
    if (!found) return failed(found);
    const FieldPlace& place = **found;
    next = layout_.positionOf(place) + 1;
    Value value(place.width);
    if (json.IsObject()) form_.isPlain = false;
    const Done done =
        json.IsObject() ? readForms(place, json, value) : readValue(place, json, value);
    return done ? reader_.take(place, value) : done;
  }

  /// {"3": "0-2,17"}: values, and the numbers of the fields that have them.
  Done readFamily(std::string_view family, const JsonValue& values) {
    form_.isCompact = true;
    if (!values.IsObject()) {
      return failed(Fault(Code::input, "{}: {}; give {{\"value\": \"numbers\"}}", family,
                          quoted(shown(values)).view()));
    }
    for (const auto& [value, numbers] : values.GetObject()) {
      const Done done = reader_.takeFamily(family, textOf(value), shown(numbers));
      if (!done) return done;
    }
    return checkNames(values);
  }

  JsonTexts texts_;
  EntryReader& reader_;
  const Layout& layout_;
  JsonForm& form_;
  bool hasValues_ = false;
};

}  // namespace

Done readJson(std::string_view text, EntryReader& reader) {
  return JsonReader(text, reader).read();
}

}  // namespace Core
}  // namespace Velmar
