#include "input/JsonInput.h"

#include <nlohmann/json.hpp>

#include "input/EntryReader.h"
#include "input/JsonSyntax.h"
#include "model/Failure.h"
#include "model/Text.h"

namespace Tool {
namespace {

using nlohmann::json;

[[noreturn]] void failValue(const FieldPlace& place, const char* what) {
  fail("{}: {}; give a number, a text such as \"0x1f\" or \"0-3,17\", or a list of ports",
       place.name(), what);
}

Value portsValue(const FieldPlace& place, const json& list) {
  if (!place.isBitmap()) failValue(place, "the field is not a bitmap");
  Value value(place.width);
  for (const json& port : list) {
    if (!port.is_number_unsigned()) failValue(place, "a port must be a number");
    addPort(place, value, port.get<U64>());
  }
  return value;
}

Value valueOf(const FieldPlace& place, const json& value);

/// {"hex": ..., "decimal": ..., "ports": [...]}: one or more of them, with the same value.
Value objectValue(const FieldPlace& place, const json& object) {
  std::optional<Value> result;
  for (const auto& [key, member] : object.items()) {
    if (key != "hex" && key != "decimal" && key != "ports") {
      failValue(place, "a value has the members hex, decimal and ports only");
    }
    const Value value = valueOf(place, member);
    if (result && *result != value) failValue(place, "hex, decimal and ports disagree");
    result = value;
  }
  if (!result) failValue(place, "there is no value");
  return *result;
}

Value valueOf(const FieldPlace& place, const json& value) {
  if (value.is_number_unsigned()) return makeValue(place, value.get<U64>());
  if (value.is_boolean()) return makeValue(place, value.get<bool>() ? 1 : 0);
  if (value.is_string()) return parseValue(place, value.get<std::string>());
  if (value.is_array()) return portsValue(place, value);
  if (value.is_object()) return objectValue(place, value);
  failValue(place, value.is_number() ? "negative or fractional number" : "no value");
}

std::vector<Assignment> assignmentsOf(const Layout& layout, const json& fields) {
  std::vector<Assignment> assignments;
  for (const auto& [name, value] : fields.items()) {
    const FieldPlace& place = layout.find(name);
    assignments.push_back({place, valueOf(place, value)});
  }
  return assignments;
}

/// The whole entry as a number, of which only reserved bits may be set.
std::vector<U8> reservedBitsOf(const Layout& layout, const json& member) {
  const std::string text = member.is_string() ? member.get<std::string>() : "";
  FieldPlace whole = layout.wholeEntry();
  whole.field.accessor = "outsideFields";
  const Value value = parseValue(whole, text);
  std::vector<U8> bits(layout.entryBytes());
  value.write(whole, bits.data(), layout.entryBytes());
  for (size_t i = 0; i < bits.size(); ++i) {
    if ((bits[i] & ~layout.reservedMask()[i]) != 0) {
      fail("outsideFields: {} has bits inside fields; set the fields instead", text);
    }
  }
  return bits;
}

/// Fails unless a member, where it is there, has this value.
void checkMember(const json& object, const char* key, const json& expected) {
  const auto member = object.find(key);
  if (member == object.end() || *member == expected) return;
  fail("{}: {}, not {}; check the file, and table, chip and variant", key,
       printable(member->dump(-1, ' ', true)).substr(0, 60), expected.dump());
}

std::string textOf(const json& object, const char* key, const char* absent) {
  const auto member = object.find(key);
  if (member == object.end()) return absent;
  if (!member->is_string()) fail("{}: not a text; give a name in quotes", key);
  return member->get<std::string>();
}

/// The table, chip and variant of an entry must be those of the command line.
void checkSource(const Layout& layout, const json& object) {
  const std::string table = textOf(object, "table", layout.name());
  const std::string chip = textOf(object, "chip", layout.chip().name);
  if (simplified(table) != simplified(layout.name()) || chip != layout.chip().name) {
    fail("an entry of {} on {}, not of {} on {}; give that table and chip", inQuotes(table),
         inQuotes(chip), layout.name(), layout.chip().name);
  }
  checkMember(object, "variant", layout.variant());
}

/// What a document says of itself must be true.
void checkHead(const Layout& layout, const json& head) {
  checkMember(head, "format", "velmar-entries");
  checkMember(head, "version", 1);
  checkSource(layout, head);
  checkMember(head, "entryBytes", layout.entryBytes());
  const auto fields = head.find("layout");
  if (fields == head.end()) return;
  if (!fields->is_object()) fail("layout: not an object; check the file");
  for (const auto& [name, range] : fields->items()) {
    const FieldPlace& place = layout.find(name);
    const json expected = {{"offset", place.offset}, {"width", place.width}};
    if (range != expected) {
      fail("layout: {} is not at {} with width {}, where it is on {}; check the chip", place.name(),
           place.offset, place.width, layout.chip().name);
    }
  }
}

/// Names in an object and in all objects in it.
size_t countNames(const json& value) {
  if (!value.is_structured()) return 0;
  size_t count = value.is_object() ? value.size() : 0;
  for (const json& member : value) count += countNames(member);
  return count;
}

JsonInput::Object objectOf(const Layout& layout, const json& members, U64 nextIndex) {
  if (!members.contains("fields")) return {std::nullopt, assignmentsOf(layout, members), {}};
  checkSource(layout, members);
  JsonInput::Object object;
  object.index = nextIndex;
  for (const auto& [key, member] : members.items()) {
    if (key == "index") {
      if (!member.is_number_unsigned() || member.get<U64>() > 0xffffffff) {
        fail("index: not a number; give the index of the entry");
      }
      object.index = member.get<U64>();
    } else if (key == "fields") {
      if (!member.is_object()) fail("fields: not an object; give {{\"field\": value}}");
      object.assignments = assignmentsOf(layout, member);
    } else if (key == "outsideFields") {
      object.reservedBits = reservedBitsOf(layout, member);
    } else if (key != "table" && key != "chip" && key != "variant" && key != "address" &&
               key != "accessType" && key != "block") {
      fail("unknown member {}; an entry has index, fields and outsideFields", inQuotes(key));
    }
  }
  return object;
}

class JsonReader : public EntryReader {
 public:
  JsonReader(std::unique_ptr<ByteStream> stream, const Layout& layout, const InputOptions& options)
      : EntryReader(nullptr, layout, options),
        input_(std::move(stream), layout, options.first),
        builder_(layout) {
    if (options.bigEndian) fail("--byte-order big does not apply to JSON; leave it out");
  }

  bool read(Entry& entry) override {
    JsonInput::Object object;
    if (!input_.next(object)) return false;
    if (!object.index) {
      fail(
          "{}:{}: an object without \"fields\" is not an entry of a dump; give JSON such as decode "
          "--format json prints",
          input_.name(), input_.line());
    }
    builder_.startFromZero();
    try {
      for (const Assignment& assignment : object.assignments) builder_.set(assignment);
    } catch (const Failure& failure) {
      fail("{}:{}: {}", input_.name(), input_.line(), failure.what());
    }
    builder_.setReservedBits(object.reservedBits);
    entry = {*object.index, builder_.bytes().data()};
    return true;
  }

 private:
  const std::string& name() const override { return input_.name(); }

  JsonInput input_;
  EntryBuilder builder_;
};

}  // namespace

JsonInput::JsonInput(std::unique_ptr<ByteStream> stream, const Layout& layout, U64 first)
    : stream_(std::move(stream)), text_(*stream_), layout_(layout), index_(first) {}

bool JsonInput::next(Object& object) {
  std::string text;
  for (;;) {
    const JsonText::Chunk kind = text_.next(text);
    if (kind == JsonText::Chunk::end) {
      if (!isStarted_) fail("{}: no entry; check the file", name());
      return false;
    }
    isStarted_ = true;
    const json members = json::parse(text, nullptr, false);
    if (members.is_discarded() || countNames(members) != text_.names()) {
      const JsonFault fault = faultOf(text);
      text_.failAt(text, fault.at, fault.expected);
    }
    try {
      if (kind == JsonText::Chunk::head) {
        checkHead(layout_, members);
        continue;
      }
      object = objectOf(layout_, members, index_);
      if (object.index) index_ = *object.index + 1;
      return true;
    } catch (const Failure& failure) {
      fail("{}:{}: {}", name(), line(), failure.what());
    }
  }
}

std::unique_ptr<EntryReader> openJson(std::unique_ptr<ByteStream> stream, const Layout& layout,
                                      const InputOptions& options) {
  return std::make_unique<JsonReader>(std::move(stream), layout, options);
}

}  // namespace Tool
