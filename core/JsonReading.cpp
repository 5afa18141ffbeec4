#include <rapidjson/document.h>

#include <algorithm>
#include <cstring>
#include <new>

#include "core/Json.h"
#include "core/ValuesReading.h"

// Entries are read one by one, so that a document of any size takes little memory beside its text.

namespace Velmar {
namespace Core {
namespace {

/// RapidJSON ignores failed allocations; these do not fail.
struct JsonMemory {
  [[maybe_unused]] static constexpr bool kNeedFree = true;
  void* Malloc(size_t size) { return size == 0 ? nullptr : ::operator new(size); }
  void* Realloc(void* memory, size_t old, size_t size) {
    void* const result = Malloc(size);
    if (memory != nullptr && result != nullptr) std::memcpy(result, memory, std::min(old, size));
    Free(memory);
    return result;
  }
  static void Free(void* memory) { ::operator delete(memory); }
};

using JsonPool = rapidjson::MemoryPoolAllocator<JsonMemory>;
using JsonValue = rapidjson::GenericValue<rapidjson::UTF8<>, JsonPool>;
using JsonDocument = rapidjson::GenericDocument<rapidjson::UTF8<>, JsonPool, JsonMemory>;

std::string_view textOf(const JsonValue& text) {
  return {text.GetString(), text.GetStringLength()};
}

/// A value as messages quote it.
std::string shown(const JsonValue& value) {
  if (value.IsString()) return printable(jsonText(textOf(value))).substr(0, 60);
  if (value.IsUint64()) return std::to_string(value.GetUint64());
  if (value.IsBool()) return value.GetBool() ? "true" : "false";
  if (value.IsNull()) return "null";
  return value.IsObject() ? "an object" : value.IsArray() ? "a list" : "another number";
}

// Values.

Fault badValue(const FieldPlace& place, const char* what) {
  return Fault(Code::value,
               "{}: {}; give a number, a text such as \"0x1f\" or \"0-3,17\", or a list of ports",
               place.name(), what)
      .ofField(place.name());
}

Expected<Value> portsValue(const FieldPlace& place, const JsonValue& list) {
  if (!place.isBitmap()) return failed(badValue(place, "the field is not a bitmap"));
  Value value(place.width);
  for (const JsonValue& port : list.GetArray()) {
    if (!port.IsUint64()) return failed(badValue(place, "a port must be a number"));
    if (const Done done = addPort(place, value, port.GetUint64()); !done) return failed(done);
  }
  return value;
}

Expected<Value> valueOf(const FieldPlace& place, const JsonValue& value);

/// {"hex": ..., "decimal": ..., "ports": [...]}: one or more of them, with the same value.
Expected<Value> objectValue(const FieldPlace& place, const JsonValue& object) {
  std::optional<Value> result;
  std::string_view first;
  for (const auto& [name, member] : object.GetObject()) {
    const std::string_view key = textOf(name);
    if (key != "hex" && key != "decimal" && key != "ports") {
      return failed(badValue(place, "a value has the members hex, decimal and ports only"));
    }
    const Expected<Value> value = valueOf(place, member);
    if (!value) return value;
    if (result && *result != *value) {
      return failed(Fault(Code::value, "{}: {} and {} disagree; change both, or remove one",
                          place.name(), first, key)
                        .ofField(place.name()));
    }
    if (!result) first = key;
    result = *value;
  }
  if (!result) return failed(badValue(place, "there is no value"));
  return *result;
}

Expected<Value> valueOf(const FieldPlace& place, const JsonValue& value) {
  if (value.IsUint64()) return makeValue(place, value.GetUint64());
  if (value.IsBool() && place.width == 1) return makeValue(place, value.GetBool() ? 1 : 0);
  if (value.IsString()) return parseValue(place, textOf(value));
  if (value.IsArray()) return portsValue(place, value);
  if (value.IsObject()) return objectValue(place, value);
  return failed(
      badValue(place, value.IsNumber() ? "not a whole number of up to 64 bits" : "no value"));
}

Done readFields(const Layout& layout, const JsonValue& fields, EntryMaker& maker,
                EntryValues& entry) {
  entry.fields.reserve(fields.MemberCount());
  maker.start();
  for (const auto& [name, member] : fields.GetObject()) {
    const auto place = layout.find(textOf(name));
    if (!place) return failed(place);
    const Expected<Value> value = valueOf(**place, member);
    if (!value) return failed(value);
    if (const Done done = maker.set(**place, *value, entry); !done) return done;
  }
  maker.finish(entry);
  return {};
}

// Heads and entries.

/// A member that is there has this value.
Done checkMember(const JsonValue& object, const char* key, const JsonValue& expected) {
  const auto member = object.FindMember(key);
  if (member == object.MemberEnd() || member->value == expected) return {};
  return failed(Fault(Code::input, "{}: {}, not {}; check the file, and table, chip and variant",
                      key, shown(member->value), shown(expected)));
}

Expected<std::string> nameIn(const JsonValue& object, const char* key, const char* absent) {
  const auto member = object.FindMember(key);
  if (member == object.MemberEnd()) return absent;
  if (member->value.IsString()) return std::string(textOf(member->value));
  return failed(Fault(Code::input, "{}: not a text; give a name in quotes", key));
}

/// The table, chip and variant of an entry are those of the layout.
Done checkSource(const Layout& layout, const JsonValue& object) {
  const auto table = nameIn(object, "table", layout.name());
  const auto chip = nameIn(object, "chip", layout.chip().name);
  if (!table || !chip) return failed(table ? chip : table);
  if (simplified(*table) != simplified(layout.name()) || *chip != layout.chip().name) {
    return failed(Fault(Code::input, "an entry of {} on {}, not of {}; give that table and chip",
                        quoted(*table).view(), quoted(*chip).view(), layout.shown()));
  }
  return checkMember(object, "variant", JsonValue(U32{layout.variant()}));
}

/// What a document says of itself is true.
Done checkHead(const Layout& layout, const JsonValue& head) {
  const std::pair<const char*, JsonValue> members[] = {{"format", JsonValue("velmar-entries")},
                                                       {"version", JsonValue(1)}};
  for (const auto& [key, expected] : members) {
    if (const Done done = checkMember(head, key, expected); !done) return done;
  }
  if (const Done done = checkSource(layout, head); !done) return done;
  if (const Done done = checkMember(head, "entryBytes", JsonValue(layout.entryBytes())); !done) {
    return done;
  }
  const auto fields = head.FindMember("layout");
  if (fields == head.MemberEnd()) return {};
  if (!fields->value.IsObject()) {
    return failed(Fault(Code::input, "layout: not an object; check the file"));
  }
  for (const auto& [name, range] : fields->value.GetObject()) {
    const auto place = layout.find(textOf(name));
    if (!place) return failed(place);
    const bool isPlace = range.IsObject() && range.MemberCount() == 2 &&
                         range.HasMember("offset") && range["offset"] == (*place)->offset &&
                         range.HasMember("width") && range["width"] == (*place)->width;
    if (isPlace) continue;
    return failed(Fault(Code::input,
                        "layout: {} is not at {} with width {}, where it is on {}; check the chip",
                        (*place)->name(), (*place)->offset, (*place)->width, layout.chip().name));
  }
  return {};
}

Done readMember(const Layout& layout, std::string_view key, const JsonValue& member,
                EntryMaker& maker, EntryValues& entry) {
  if (key == "index") {
    if (!member.IsUint()) {
      return failed(Fault(Code::input, "index: not a number; give the index of the entry"));
    }
    entry.index = member.GetUint();
    entry.isNumbered = true;
  } else if (key == "fields") {
    if (member.IsObject()) return readFields(layout, member, maker, entry);
    return failed(Fault(Code::input, "fields: not an object; give {{\"field\": value}}"));
  } else if (key == "outsideFields") {
    const auto bits = parseReservedBits(layout, member.IsString() ? textOf(member) : "");
    if (!bits) return failed(bits);
    entry.reservedBits = *bits;
  } else if (key != "table" && key != "chip" && key != "variant" && key != "address" &&
             key != "accessType" && key != "block") {
    return failed(Fault(Code::input,
                        "unknown member {}; an entry has index, fields and outsideFields",
                        quoted(key).view()));
  }
  return {};
}

Expected<EntryValues> entryOf(const Layout& layout, const JsonValue& members, U32 nextIndex,
                              EntryMaker& maker) {
  EntryValues entry;
  if (!members.HasMember("fields")) {
    if (const Done done = readFields(layout, members, maker, entry); !done) return failed(done);
    return entry;
  }
  if (const Done done = checkSource(layout, members); !done) return failed(done);
  entry.index = nextIndex;
  for (const auto& [name, member] : members.GetObject()) {
    const Done done = readMember(layout, textOf(name), member, maker, entry);
    if (!done) return failed(done);
  }
  const auto address = members.FindMember("address");
  if (address == members.MemberEnd()) return entry;
  const std::string text =
      address->value.IsString() ? std::string(textOf(address->value)) : shown(address->value);
  if (address->value.IsNull() && *entry.index >= layout.indexCount()) return entry;
  if (const Done done = checkAddress(layout, *entry.index, text); !done) return failed(done);
  return entry;
}

// The text.

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
  constexpr size_t few = 4;
  std::vector<std::string_view> names;
  for (const auto& [name, member] : object.GetObject()) {
    if (object.MemberCount() > few) {
      names.push_back(textOf(name));
    } else if (&object.FindMember(name)->name != &name) {
      return textOf(name);
    }
  }
  // In order, equal names are neighbours.
  std::sort(names.begin(), names.end());
  const auto twice = std::adjacent_find(names.begin(), names.end());
  return twice == names.end() ? std::string_view() : *twice;
}

/// What is wrong with the objects in a value: a name twice, or too many in one another. Empty if nothing
/// is.
std::string faultIn(const JsonValue& value, U32 depth = 1) {
  constexpr U32 deepest = 16;
  if (depth > deepest) return "objects nested too deeply";
  std::string fault;
  if (value.IsArray()) {
    for (auto member = value.Begin(); fault.empty() && member != value.End(); ++member) {
      fault = faultIn(*member, depth + 1);
    }
  } else if (value.IsObject()) {
    const std::string_view twice = nameGivenTwice(value);
    if (!twice.empty()) {
      return formatText("the name {} is given twice; give it once", quoted(twice).view());
    }
    for (auto member = value.MemberBegin(); fault.empty() && member != value.MemberEnd();
         ++member) {
      fault = faultIn(member->value, depth + 1);
    }
  }
  return fault;
}

/// Characters of the text, as the library reads them.
struct Source {
  using Ch = char;

  char Peek() const { return at < text.size() ? text[at] : '\0'; }
  char Take() { return at < text.size() ? text[at++] : '\0'; }
  size_t Tell() const { return at; }
  // The library needs these for writing only.
  char* PutBegin() { return nullptr; }
  void Put(char) {}
  size_t PutEnd(char*) { return 0; }

  std::string_view text;
  size_t at = 0;
};

class JsonReader {
 public:
  JsonReader(const Layout& layout, std::string_view text, U32 first, const EntrySink& sink)
      : layout_(layout), sink_(sink), maker_(layout), source_{text}, index_(first) {}

  Done read() {
    const size_t zero = source_.text.find('\0');
    if (zero != source_.text.npos) {
      source_.at = zero;
      return failed(faultHere("NUL byte in JSON"));
    }
    bool isDone = true;
    while (isDone && peek() != '\0') isDone = readTop();
    if (fault_) return failed(*fault_);
    if (!isStarted_) return failed(Fault(Code::input, "no entry; check the file"));
    return {};
  }

 private:
  static constexpr size_t longestEntry = size_t{1} << 20;

  char peek() {
    while (source_.at < source_.text.size() &&
           (isBlank(source_.text[source_.at]) || source_.text[source_.at] == '\n')) {
      ++source_.at;
    }
    return source_.Peek();
  }
  bool takeIf(char character) {
    if (peek() != character || source_.at == source_.text.size()) return false;
    ++source_.at;
    return true;
  }
  bool expect(char character, const char* what) { return takeIf(character) || fail(what); }

  Fault faultHere(std::string_view what) const {
    const std::string_view before = source_.text.substr(0, source_.at);
    const auto line = static_cast<U64>(std::count(before.begin(), before.end(), '\n')) + 1;
    const size_t column = before.size() - (before.rfind('\n') + 1) + 1;
    const size_t semicolon = std::min(what.find("; "), what.size());
    const std::string_view advice = semicolon < what.size() ? what.substr(semicolon + 2)
                                    : source_.at == source_.text.size()
                                        ? std::string_view("the JSON ends too early")
                                        : std::string_view("check the JSON");
    return Fault(Code::input, "{}; {}", what.substr(0, semicolon), advice).onLine(line, column);
  }
  bool fail(std::string_view what) {
    fault_ = faultHere(what);
    return false;
  }
  /// A fault of what an object says: it has the line on which that begins.
  bool fail(const Fault& fault) {
    fault_ = fault;
    fault_->onLine(line_);
    return false;
  }
  /// Remembers the line of what begins here.
  void startPart() {
    peek();
    const std::string_view passed = source_.text.substr(counted_, source_.at - counted_);
    line_ += static_cast<U64>(std::count(passed.begin(), passed.end(), '\n'));
    counted_ = source_.at;
  }

  bool readValue(JsonDocument& value) {
    constexpr unsigned flags = rapidjson::kParseIterativeFlag | rapidjson::kParseStopWhenDoneFlag;
    peek();
    const size_t begin = source_.at;
    // A part that is too long is cut, and is then a fault.
    Source part{source_.text.substr(0, std::min(source_.text.size(), begin + longestEntry)), begin};
    value.ParseStream<flags>(part);
    source_.at = part.at;
    if (value.HasParseError()) {
      if (part.at == begin + longestEntry) return fail("an entry has more than 1 MiB");
      // A fault of a text or number is where that begins.
      source_.at = std::max(begin, value.GetErrorOffset());
      return fail(expectedAt(value.GetParseError()));
    }
    const std::string fault = faultIn(value);
    if (fault.empty()) return true;
    source_.at = begin;
    return fail(fault);
  }

  bool readTop() {
    if (takeIf('[')) return readList();
    isStarted_ = true;
    startPart();
    if (!expect('{', "an entry in braces is expected")) return false;
    JsonPool pool;
    JsonDocument object(&pool);
    object.SetObject();
    const U64 line = line_;
    bool isDocument = false;
    if (!takeIf('}') && !readMembers(object, isDocument)) return false;
    if (isDocument) return true;
    line_ = line;
    return addEntry(object);
  }

  /// Reads the members of an object to its end. A list of entries among them makes it a document.
  bool readMembers(JsonDocument& object, bool& isDocument) {
    auto& allocator = object.GetAllocator();
    do {
      JsonDocument name(&allocator), value(&allocator);
      if (peek() != '"') return fail("a name in quotes is expected");
      if (!readValue(name) || !expect(':', "a colon is expected after the name")) return false;
      if (name == "entries") {
        if (isDocument) {
          return expect('[', "a list of the entries is expected") &&
                 fail("a second list of entries");
        }
        isDocument = true;
        if (!expect('[', "a list of the entries is expected")) return false;
        if (!checkDocument(object) || !readList()) return false;
        object.RemoveAllMembers();
        continue;
      }
      if (object.HasMember(name)) return fail("the name before is given twice; give it once");
      if (!readValue(value)) return false;
      object.AddMember(name, value, allocator);
    } while (takeIf(','));
    const bool isEnd = expect('}', isDocument && object.ObjectEmpty()
                                       ? "a comma or } is expected after the entries"
                                       : "a comma or } is expected");
    return isEnd && (!isDocument || checkDocument(object));
  }

  bool checkDocument(const JsonDocument& head) {
    const Done done = checkHead(layout_, head);
    return done || fail(done.error());
  }

  bool readList() {
    for (bool isFirst = true; !takeIf(']'); isFirst = false) {
      if (!isFirst && !expect(',', "a comma or ] is expected")) return false;
      startPart();
      if (peek() != '{') return fail("an entry in braces is expected");
      isStarted_ = true;
      pool_.Clear();
      JsonDocument value(&pool_);
      if (!readValue(value) || !addEntry(value)) return false;
    }
    return true;
  }

  bool addEntry(const JsonValue& value) {
    Expected<EntryValues> entry = entryOf(layout_, value, index_, maker_);
    if (!entry) return fail(entry.error());
    if (entry->index) {
      if (!seen_.insert(*entry->index)) {
        return fail(Fault(Code::input, "entry {} is given twice; give it once", *entry->index)
                        .ofEntry(*entry->index));
      }
      index_ = *entry->index + 1;
    }
    entry->line = line_;
    const Done done = sink_(*entry);
    return done || fail(done.error());
  }

  const Layout& layout_;
  const EntrySink& sink_;
  EntryMaker maker_;
  Source source_;
  JsonPool pool_;  ///< memory for an entry
  U32 index_;      ///< of the next entry without one
  SeenIndexes seen_;
  std::optional<Fault> fault_;
  bool isStarted_ = false;
  U64 line_ = 1;        ///< on which the part begins
  size_t counted_ = 0;  ///< up to where lines are counted
};

}  // namespace

Done readJson(const Layout& layout, std::string_view text, U32 first, const EntrySink& sink) {
  return JsonReader(layout, text, first, sink).read();
}

}  // namespace Core
}  // namespace Velmar
