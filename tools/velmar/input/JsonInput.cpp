#include "input/JsonInput.h"

#include <rapidjson/writer.h>

#include <algorithm>

#include "input/EntryReader.h"
#include "model/Failure.h"
#include "model/Text.h"

namespace Tool {
namespace {

std::string_view textOf(const JsonValue& text) {
  return {text.GetString(), text.GetStringLength()};
}

[[noreturn]] void failValue(const FieldPlace& place, const char* what) {
  fail("{}: {}; give a number, a text such as \"0x1f\" or \"0-3,17\", or a list of ports",
       place.name(), what);
}

Value portsValue(const FieldPlace& place, const JsonValue& list) {
  if (!place.isBitmap()) failValue(place, "the field is not a bitmap");
  Value value(place.width);
  for (const JsonValue& port : list.GetArray()) {
    if (!port.IsUint64()) failValue(place, "a port must be a number");
    addPort(place, value, port.GetUint64());
  }
  return value;
}

Value valueOf(const FieldPlace& place, const JsonValue& value);

/// {"hex": ..., "decimal": ..., "ports": [...]}: one or more of them, with the same value.
Value objectValue(const FieldPlace& place, const JsonValue& object) {
  std::optional<Value> result;
  std::string_view first;
  for (const auto& [name, member] : object.GetObject()) {
    const std::string_view key = textOf(name);
    if (key != "hex" && key != "decimal" && key != "ports") {
      failValue(place, "a value has the members hex, decimal and ports only");
    }
    const Value value = valueOf(place, member);
    if (result && *result != value) {
      fail("{}: {} and {} disagree; change both, or remove one", place.name(), first, key);
    }
    if (!result) first = key;
    result = value;
  }
  if (!result) failValue(place, "there is no value");
  return *result;
}

Value valueOf(const FieldPlace& place, const JsonValue& value) {
  if (value.IsUint64()) return makeValue(place, value.GetUint64());
  if (value.IsBool() && place.width == 1) return makeValue(place, value.GetBool() ? 1 : 0);
  if (value.IsString()) return parseValue(place, textOf(value));
  if (value.IsArray()) return portsValue(place, value);
  if (value.IsObject()) return objectValue(place, value);
  failValue(place, value.IsNumber() ? "not a whole number of up to 64 bits" : "no value");
}

std::vector<Assignment> assignmentsOf(const Layout& layout, const JsonValue& fields) {
  std::vector<Assignment> assignments;
  assignments.reserve(fields.MemberCount());
  for (const auto& [name, value] : fields.GetObject()) {
    const FieldPlace& place = layout.find(textOf(name));
    assignments.push_back({place, valueOf(place, value)});
  }
  return assignments;
}

/// The whole entry as a number, of which only reserved bits may be set.
std::vector<U8> reservedBitsOf(const Layout& layout, const JsonValue& member) {
  const std::string_view text = member.IsString() ? textOf(member) : "";
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

/// JSON as messages quote it.
std::string shown(const JsonValue& value) {
  JsonBuffer text;
  rapidjson::Writer<JsonBuffer, rapidjson::UTF8<>, rapidjson::ASCII<>, JsonMemory> writer(text);
  value.Accept(writer);
  return printable(text.GetString()).substr(0, 60);
}

/// Fails unless a member, where it is there, has this value.
void checkMember(const JsonValue& object, const char* key, const JsonValue& expected) {
  const auto member = object.FindMember(key);
  if (member == object.MemberEnd() || member->value == expected) return;
  fail("{}: {}, not {}; check the file, and table, chip and variant", key, shown(member->value),
       shown(expected));
}

std::string nameIn(const JsonValue& object, const char* key, const char* absent) {
  const auto member = object.FindMember(key);
  if (member == object.MemberEnd()) return absent;
  if (!member->value.IsString()) fail("{}: not a text; give a name in quotes", key);
  return std::string(textOf(member->value));
}

/// The table, chip and variant of an entry must be those of the command line.
void checkSource(const Layout& layout, const JsonValue& object) {
  const std::string table = nameIn(object, "table", layout.name());
  const std::string chip = nameIn(object, "chip", layout.chip().name);
  if (simplified(table) != simplified(layout.name()) || chip != layout.chip().name) {
    fail("an entry of {} on {}, not of {} on {}; give that table and chip", inQuotes(table),
         inQuotes(chip), layout.name(), layout.chip().name);
  }
  checkMember(object, "variant", JsonValue(U32{layout.variant()}));
}

/// What a document says of itself must be true.
void checkHead(const Layout& layout, const JsonValue& head) {
  checkMember(head, "format", JsonValue("velmar-entries"));
  checkMember(head, "version", JsonValue(1));
  checkSource(layout, head);
  checkMember(head, "entryBytes", JsonValue(layout.entryBytes()));
  const auto fields = head.FindMember("layout");
  if (fields == head.MemberEnd()) return;
  if (!fields->value.IsObject()) fail("layout: not an object; check the file");
  for (const auto& [name, range] : fields->value.GetObject()) {
    const FieldPlace& place = layout.find(textOf(name));
    const bool isPlace = range.IsObject() && range.MemberCount() == 2 &&
                         range.HasMember("offset") && range["offset"] == place.offset &&
                         range.HasMember("width") && range["width"] == place.width;
    if (!isPlace) {
      fail("layout: {} is not at {} with width {}, where it is on {}; check the chip", place.name(),
           place.offset, place.width, layout.chip().name);
    }
  }
}

/// The address of an entry follows from its index.
void checkAddress(const Layout& layout, const JsonValue& members, U64 index) {
  const auto address = members.FindMember("address");
  if (address == members.MemberEnd() || index >= layout.indexCount()) return;
  const std::string expected = addressText(layout.addressOf(static_cast<U32>(index)).address);
  if (address->value.IsString() && textOf(address->value) == expected) return;
  fail("address: {}, but entry {} has {}; check the index, or leave out the address",
       shown(address->value), index, expected);
}

JsonInput::Object objectOf(const Layout& layout, const JsonValue& members, U64 nextIndex) {
  if (!members.HasMember("fields"))
    return {std::nullopt, false, assignmentsOf(layout, members), {}};
  checkSource(layout, members);
  JsonInput::Object object;
  object.index = nextIndex;
  for (const auto& [name, member] : members.GetObject()) {
    const std::string_view key = textOf(name);
    if (key == "index") {
      if (!member.IsUint()) fail("index: not a number; give the index of the entry");
      object.index = member.GetUint();
      object.isNumbered = true;
    } else if (key == "fields") {
      if (!member.IsObject()) fail("fields: not an object; give {{\"field\": value}}");
      object.assignments = assignmentsOf(layout, member);
    } else if (key == "outsideFields") {
      object.reservedBits = reservedBitsOf(layout, member);
    } else if (key != "table" && key != "chip" && key != "variant" && key != "address" &&
               key != "accessType" && key != "block") {
      fail("unknown member {}; an entry has index, fields and outsideFields", inQuotes(key));
    }
  }
  checkAddress(layout, members, *object.index);
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

  U64 sizeInBytes() const override { return input_.stream().sizeInBytes(); }
  U64 bytesTaken() const override { return input_.stream().bytesTaken(); }

  bool read(Entry& entry) override {
    JsonInput::Object object;
    if (!input_.next(object)) return false;
    if (!object.index) {
      fail(
          "{}:{}: an object without \"fields\" is not an entry of a dump; give JSON such as decode "
          "--format json prints",
          input_.name(), input_.line());
    }
    if (object.isNumbered) checkFirst();
    checkComplete(object);
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

  /// An entry of a dump has all fields: none may count as zero because it was not printed.
  void checkComplete(const JsonInput::Object& object) const {
    for (const FieldPlace& place : layout_.fields()) {
      const bool isGiven = std::any_of(object.assignments.begin(), object.assignments.end(),
                                       [&place](const Assignment& assignment) {
                                         return assignment.place.field.id == place.field.id;
                                       });
      if (isGiven) continue;
      fail("{}:{}: entry {} has no {}; decode all fields, or change a dump with encode --base",
           input_.name(), input_.line(), *object.index, place.name());
    }
  }

  JsonInput input_;
  EntryBuilder builder_;
};

}  // namespace

JsonInput::JsonInput(std::unique_ptr<ByteStream> stream, const Layout& layout, U64 first)
    : stream_(std::move(stream)), text_(*stream_), layout_(layout), index_(first) {}

bool JsonInput::next(Object& object) {
  for (;;) {
    pool_.Clear();
    JsonDocument value(&pool_);
    const Part part = readPart(value);
    if (part == Part::end) return false;
    try {
      if (part == Part::head) {
        checkHead(layout_, value);
        continue;
      }
      object = objectOf(layout_, value, index_);
      if (object.index) {
        if (!seen_.insert(*object.index))
          fail("entry {} is given twice; give it once", *object.index);
        index_ = *object.index + 1;
      }
      return true;
    } catch (const Failure& failure) {
      fail("{}:{}: {}", name(), line(), failure.what());
    }
  }
}

JsonInput::Part JsonInput::readPart(JsonDocument& value) {
  value.SetObject();
  text_.startPart();
  if (list_ != List::none) return readInList(value);
  if (text_.peek() == '\0') {
    if (!isStarted_) fail("{}: no entry; check the file", name());
    return Part::end;
  }
  if (text_.takeIf('[')) {
    startList(List::plain);
    return readInList(value);
  }
  isStarted_ = true;
  text_.expect('{', "an entry in braces is expected");
  if (text_.takeIf('}')) return Part::entry;
  return readMembers(value) ? Part::head : Part::entry;
}

JsonInput::Part JsonInput::readInList(JsonDocument& value) {
  if (text_.takeIf(']')) {
    const bool hasTail = std::exchange(list_, List::none) == List::ofDocument;
    if (!hasTail || text_.takeIf('}')) return Part::head;
    text_.expect(',', "a comma or } is expected after the entries");
    if (readMembers(value)) text_.fail("a second list of entries");
    return Part::head;
  }
  if (!std::exchange(isFirst_, false)) text_.expect(',', "a comma or ] is expected");
  text_.startPart();
  if (text_.peek() != '{') text_.fail("an entry in braces is expected");
  isStarted_ = true;
  text_.read(value);
  return Part::entry;
}

bool JsonInput::readMembers(JsonDocument& object) {
  auto& allocator = object.GetAllocator();
  do {
    JsonDocument name(&allocator), value(&allocator);
    if (text_.peek() != '"') text_.fail("a name in quotes is expected");
    text_.read(name);
    text_.expect(':', "a colon is expected after the name");
    if (name == "entries") {
      text_.expect('[', "a list of the entries is expected");
      startList(List::ofDocument);
      return true;
    }
    if (object.HasMember(name)) text_.fail("the name before is given twice; give it once");
    text_.read(value);
    object.AddMember(name, value, allocator);
  } while (text_.takeIf(','));
  text_.expect('}', "a comma or } is expected");
  return false;
}

void JsonInput::startList(List list) {
  list_ = list;
  isFirst_ = true;
}

std::unique_ptr<EntryReader> openJson(std::unique_ptr<ByteStream> stream, const Layout& layout,
                                      const InputOptions& options) {
  return std::make_unique<JsonReader>(std::move(stream), layout, options);
}

}  // namespace Tool
