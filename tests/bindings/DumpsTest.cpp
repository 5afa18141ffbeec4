// Dumps and documents through the C interface, with what a caller may do wrong: NULL pointers, wrong
// sizes, bytes that are no dump, faults with choices, and memory that runs out at any allocation.

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <memory>
#include <new>
#include <random>
#include <string>
#include <vector>

#include "AsicUtils/Types.h"
#include "velmar.h"

namespace {

std::atomic<long> allocationsLeft{-1};  // negative: as many as are asked for
std::atomic<long> live{0};

}  // namespace

// Also those of the library: it takes them from the program.
void* operator new(std::size_t size) {
  if (allocationsLeft == 0) throw std::bad_alloc();
  if (allocationsLeft > 0) --allocationsLeft;
  ++live;
  if (void* memory = std::malloc(size)) return memory;
  throw std::bad_alloc();
}
void* operator new[](std::size_t size) { return operator new(size); }
void operator delete(void* memory) noexcept {
  if (memory != nullptr) --live;
  std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }
void operator delete[](void* memory) noexcept { operator delete(memory); }
void operator delete[](void* memory, std::size_t) noexcept { operator delete(memory); }

namespace {

constexpr velmar_read_options noOptions = [] {
  velmar_read_options options{};
  options.size = sizeof options;
  return options;
}();

struct FreeDump {
  void operator()(velmar_dump* dump) const { velmar_dump_free(dump); }
};
using DumpPointer = std::unique_ptr<velmar_dump, FreeDump>;

const velmar_layout* layoutOf(const char* table, const char* chip = "BCM56990_B0") {
  const velmar_layout* layout = nullptr;
  EXPECT_EQ(velmar_find_layout(table, chip, 0, &layout), VELMAR_OK) << velmar_message();
  return layout;
}

velmar_read_options optionsOf(const char* input, const char* hexOrder = nullptr) {
  velmar_read_options options = noOptions;
  options.input = input;
  options.hex_order = hexOrder;
  return options;
}

velmar_code read(const velmar_layout* layout, const velmar_read_options& options,
                 const std::string& bytes, DumpPointer& into) {
  velmar_dump* dump = nullptr;
  const velmar_code code = velmar_dump_read(layout, &options, bytes.data(), bytes.size(), &dump);
  EXPECT_EQ(code == VELMAR_OK, dump != nullptr);
  into.reset(dump);
  return code;
}

DumpPointer dumpOf(const velmar_layout* layout, const std::string& text) {
  DumpPointer dump;
  EXPECT_EQ(read(layout, noOptions, text, dump), VELMAR_OK) << velmar_message();
  return dump;
}

std::string taken(char* text) {
  const std::string copy = text == nullptr ? "" : text;
  velmar_text_free(text);
  return copy;
}

std::vector<U32> selected(const velmar_dump* dump, std::vector<const char*> conditions,
                          const char* indexes, U32 nonzero) {
  std::size_t count = 0;
  EXPECT_EQ(velmar_dump_count(dump, &count), VELMAR_OK);
  std::vector<U32> positions(count);
  EXPECT_EQ(velmar_select(dump, conditions.data(), conditions.size(), indexes, nonzero,
                          positions.data(), positions.size(), &count),
            VELMAR_OK)
      << velmar_message();
  positions.resize(count);
  return positions;
}

velmar_fault lastFault() {
  velmar_fault fault{};
  EXPECT_EQ(velmar_last_fault(&fault, sizeof fault), VELMAR_OK);
  return fault;
}

const std::string fourEntries = "5: 00002001\n7: 00000002\n9: 00000000\n6: 00002003\n";

TEST(Dumps, textIsReadAndSelected) {
  const DumpPointer dump = dumpOf(layoutOf("VlanMpls"), fourEntries);
  U32 indexes[4];
  const U8* bytes = nullptr;
  std::size_t size = 0;
  const char* note = "";
  ASSERT_EQ(velmar_dump_index(dump.get(), 0, indexes, 4), VELMAR_OK);
  EXPECT_EQ(std::vector<U32>(indexes, indexes + 4), (std::vector<U32>{5, 7, 9, 6}));
  ASSERT_EQ(velmar_dump_bytes(dump.get(), &bytes, &size), VELMAR_OK);
  EXPECT_EQ(std::string(bytes, bytes + size),
            std::string("\1\x20\0\0\2\0\0\0\0\0\0\0\3\x20\0\0", 16));
  ASSERT_EQ(velmar_dump_note(dump.get(), 0, &note), VELMAR_OK);
  EXPECT_EQ(note, nullptr);
  EXPECT_EQ(selected(dump.get(), {}, nullptr, 0), (std::vector<U32>{0, 1, 2, 3}));
  EXPECT_EQ(selected(dump.get(), {}, nullptr, 1), (std::vector<U32>{0, 1, 3}));
  EXPECT_EQ(selected(dump.get(), {}, "6-8", 0), (std::vector<U32>{1, 3}));
  EXPECT_EQ(selected(dump.get(), {"mplsEnable=1"}, "6,7", 1), (std::vector<U32>{3}));
  EXPECT_EQ(selected(dump.get(), {"mplsEnable=1", "mplsEnable=0"}, nullptr, 0), std::vector<U32>{});
}

TEST(Dumps, rawBytesAreBorrowed) {
  const std::string bytes(64, '\3');
  const DumpPointer dump = dumpOf(layoutOf("VlanEntry"), bytes);
  const U8* data = nullptr;
  std::size_t size = 0;
  U32 index = 9;
  ASSERT_EQ(velmar_dump_bytes(dump.get(), &data, &size), VELMAR_OK);
  EXPECT_EQ(static_cast<const void*>(data), bytes.data());
  EXPECT_EQ(size, bytes.size());
  ASSERT_EQ(velmar_dump_index(dump.get(), 3, &index, 1), VELMAR_OK);
  EXPECT_EQ(index, 3U);
}

TEST(Dumps, documentsHoldWhatWasAsked) {
  const velmar_layout* layout = layoutOf("VlanMpls");
  const DumpPointer before = dumpOf(layout, fourEntries);
  const DumpPointer after = dumpOf(layout, "5: 00000000\n");
  const U32 second = 1;
  char* text = nullptr;
  ASSERT_EQ(velmar_entries_json(before.get(), &second, 1, 1, &text), VELMAR_OK);
  std::string json = taken(text);
  EXPECT_NE(json.find("\"velmar-entries\""), std::string::npos) << json;
  EXPECT_NE(json.find("\"index\":7"), std::string::npos) << json;
  EXPECT_EQ(json.find("\"index\":5"), std::string::npos) << json;
  ASSERT_EQ(velmar_diff(before.get(), after.get(), &text), VELMAR_OK);
  json = taken(text);
  EXPECT_NE(json.find("\"change\":\"changed\""), std::string::npos) << json;
  EXPECT_NE(json.find("\"change\":\"only in OLD\""), std::string::npos) << json;
  velmar_dump* moved = nullptr;
  U32 chip = 0;
  ASSERT_EQ(velmar_find_chip("BCM56980_A0", &chip), VELMAR_OK);
  ASSERT_EQ(velmar_translate(before.get(), chip, &moved, &text), VELMAR_OK);
  const DumpPointer translated(moved);
  EXPECT_NE(taken(text).find("\"velmar-translation\""), std::string::npos);
  EXPECT_EQ(selected(translated.get(), {"mplsEnable=1"}, "5", 0), (std::vector<U32>{0}));
}

TEST(Entries, areEncodedAndShown) {
  const velmar_layout* layout = layoutOf("VlanStg", "BCM56980_A0");
  U8 entry[48] = {};
  const char* const values[] = {"spTreePort*=1", "spTreePort0-3=1"};
  const char* const wrong[] = {"spTreePort159=2", "spTreePort0=4"};
  char* text = nullptr;
  ASSERT_EQ(velmar_encode(layout, values, 2, entry, sizeof entry), VELMAR_OK) << velmar_message();
  const std::string before(entry, entry + sizeof entry);
  EXPECT_EQ(velmar_encode(layout, wrong, 2, entry, sizeof entry), VELMAR_VALUE);
  EXPECT_EQ(lastFault().field, std::string("spTreePort0"));
  EXPECT_EQ(std::string(entry, entry + sizeof entry), before);
  ASSERT_EQ(velmar_encode(layout, wrong, 1, entry, sizeof entry), VELMAR_OK) << velmar_message();
  ASSERT_EQ(velmar_entry_text(layout, entry, sizeof entry, &text), VELMAR_OK);
  EXPECT_EQ(taken(text), "spTreePort = {1: 0-158  2: 159}\n");
  const DumpPointer old = dumpOf(layout, before);
  entry[0] = 0;
  const std::string after(entry, entry + sizeof entry);
  const DumpPointer now = dumpOf(layout, after);
  ASSERT_EQ(velmar_diff_text(old.get(), now.get(), &text), VELMAR_OK);
  EXPECT_EQ(taken(text), "0: spTreePort0-3 = 1 -> 0\n0: spTreePort159 = 1 -> 2\n");
  const DumpPointer four = dumpOf(layoutOf("VlanMpls"), fourEntries);
  const DumpPointer one = dumpOf(layoutOf("VlanMpls"), "9: 00000001\n");
  ASSERT_EQ(velmar_diff_text(four.get(), one.get(), &text), VELMAR_OK);
  const std::string lines = taken(text);
  EXPECT_EQ(lines.substr(0, 14), "5: only in OLD");
  EXPECT_NE(lines.find("\n9: "), std::string::npos) << lines;
}

TEST(Faults, haveAPlaceAndChoices) {
  struct Case {
    const char* table;
    velmar_read_options options;
    std::string input;
    velmar_code code;
    const char* message;  ///< a part of it
    const char* choices;
    U64 line;
  };
  velmar_read_options late = noOptions;
  late.has_first = 1;
  late.first = 8191;
  velmar_read_options variant = noOptions;
  variant.variant = 256;
  velmar_read_options stride = noOptions;
  stride.stride = 3;
  const Case cases[] = {
      {"VlanMpls", noOptions, "1 2 3 4\n", VELMAR_AMBIGUOUS,
       "line 1: these numbers may be bytes or words; give hex_order=\"bytes\" or "
       "\"words\"",
       "hex_order=bytes|words", 1},
      {"VlanMpls", optionsOf("raw", "words"), "abcd", VELMAR_OPTION, "leave out hex_order",
       "hex_order", 0},
      {"VlanMpls", optionsOf("yaml"), "abcd", VELMAR_OPTION, "input has no choice \"yaml\"", "", 0},
      {"VlanMpls", optionsOf("raw", "nibbles"), "abcd", VELMAR_OPTION, "\"words\" or \"int\"",
       "hex_order=bytes|words|int", 0},
      {"VlanMpls", stride, "abcd", VELMAR_OPTION, "give at least 4", "", 0},
      {"VlanMpls", variant, "abcd", VELMAR_VARIANT, "give 0 to 255", "", 0},
      {"VlanMpls", noOptions, "", VELMAR_INPUT, "empty; ", "", 0},
      {"VlanEntry", late, std::string(32, '\1'), VELMAR_INDEX, "from index 8191 on", "first", 0},
      {"VlanEntry", noOptions, std::string(33, '\1'), VELMAR_SIZE, "give stride", "stride", 0},
      {"VlanEntry", noOptions, std::string("\x1f\x8b\x08", 3), VELMAR_INPUT,
       "or give input=\"raw\" if", "input=raw", 0},
      {"VlanMpls", noOptions, "5: 00000001\n5: 00000002\n", VELMAR_INPUT, "; ", "", 2},
  };
  for (const Case& each : cases) {
    SCOPED_TRACE(each.message);
    DumpPointer dump;
    EXPECT_EQ(read(layoutOf(each.table), each.options, each.input, dump), each.code);
    const velmar_fault fault = lastFault();
    EXPECT_EQ(fault.code, static_cast<U32>(each.code));
    EXPECT_NE(std::string(velmar_message()).find(each.message), std::string::npos)
        << velmar_message();
    EXPECT_STREQ(fault.options, each.choices);
    EXPECT_EQ(fault.line, each.line);
    EXPECT_NE(fault.remedy[0], '\0');
  }
}

TEST(Faults, wrongArgumentsAreRefused) {
  const velmar_layout* layout = layoutOf("VlanMpls");
  const DumpPointer owner = dumpOf(layout, fourEntries);
  const DumpPointer other = dumpOf(layoutOf("VlanEntry"), std::string(16, '\1'));
  const velmar_dump* dump = owner.get();
  U8 bytes[8] = {1, 0, 0, 0, 2};
  const U32 twice[] = {3, 3};
  const U32 late[] = {0, 1 << 30};
  const char* const conditions[] = {"mplsEnable=1", nullptr};
  const char* const unknown[] = {"nosuch=1"};
  struct {
    velmar_read_options known = noOptions;
    U8 later[8] = {0, 1};
  } longer;
  U32 positions[4];
  U32 index = 0;
  std::size_t count = 0;
  const U8* data = nullptr;
  const char* note = nullptr;
  char* text = nullptr;
  velmar_dump* made = nullptr;
  longer.known.size = sizeof longer;
  velmar_read_options shorter = noOptions;
  --shorter.size;
  const std::pair<velmar_code, velmar_code> cases[] = {
      {VELMAR_NULL, velmar_last_fault(nullptr, sizeof(velmar_fault))},
      {VELMAR_NULL, velmar_dump_read(nullptr, nullptr, bytes, 8, &made)},
      {VELMAR_NULL, velmar_dump_read(layout, nullptr, nullptr, 8, &made)},
      {VELMAR_NULL, velmar_dump_read(layout, nullptr, bytes, 8, nullptr)},
      {VELMAR_SIZE, velmar_dump_read(layout, &shorter, bytes, 8, &made)},
      {VELMAR_OPTION, velmar_dump_read(layout, &longer.known, bytes, 8, &made)},
      {VELMAR_NULL, velmar_dump_of(nullptr, 0, nullptr, 2, bytes, 8, &made)},
      {VELMAR_NULL, velmar_dump_of(layout, 0, nullptr, 2, nullptr, 8, &made)},
      {VELMAR_NULL, velmar_dump_of(layout, 0, nullptr, 2, bytes, 8, nullptr)},
      {VELMAR_SIZE, velmar_dump_of(layout, 0, nullptr, 2, bytes, 7, &made)},
      {VELMAR_SIZE, velmar_dump_of(layout, 0, nullptr, 1, bytes, 8, &made)},
      {VELMAR_INDEX, velmar_dump_of(layout, 0, twice, 2, bytes, 8, &made)},
      {VELMAR_INDEX, velmar_dump_of(layout, 0, late, 2, bytes, 8, &made)},
      {VELMAR_NULL, velmar_dump_count(nullptr, &count)},
      {VELMAR_NULL, velmar_dump_count(dump, nullptr)},
      {VELMAR_INDEX, velmar_dump_index(dump, 4, &index, 1)},
      {VELMAR_NULL, velmar_dump_index(dump, 0, nullptr, 1)},
      {VELMAR_INDEX, velmar_dump_index(dump, 1, positions, 4)},
      {VELMAR_NULL, velmar_dump_index(nullptr, 0, positions, 4)},
      {VELMAR_NULL, velmar_dump_bytes(dump, &data, nullptr)},
      {VELMAR_NULL, velmar_dump_bytes(dump, nullptr, &count)},
      {VELMAR_NULL, velmar_dump_note(nullptr, 0, &note)},
      {VELMAR_NULL, velmar_dump_note(dump, 0, nullptr)},
      {VELMAR_NULL, velmar_select(nullptr, conditions, 1, nullptr, 0, positions, 4, &count)},
      {VELMAR_NULL, velmar_select(dump, nullptr, 1, nullptr, 0, positions, 4, &count)},
      {VELMAR_NULL, velmar_select(dump, conditions, 2, nullptr, 0, positions, 4, &count)},
      {VELMAR_NULL, velmar_select(dump, conditions, 1, nullptr, 0, nullptr, 4, &count)},
      {VELMAR_SIZE, velmar_select(dump, conditions, 1, nullptr, 0, positions, 3, &count)},
      {VELMAR_INDEX, velmar_select(dump, conditions, 1, "4-5,8", 0, positions, 4, &count)},
      {VELMAR_UNKNOWN, velmar_select(dump, unknown, 1, nullptr, 0, positions, 4, &count)},
      {VELMAR_NULL, velmar_entries_json(nullptr, nullptr, 0, 0, &text)},
      {VELMAR_NULL, velmar_entries_json(dump, nullptr, 1, 0, &text)},
      {VELMAR_NULL, velmar_entries_json(dump, nullptr, 0, 0, nullptr)},
      {VELMAR_INDEX, velmar_entries_json(dump, late, 2, 0, &text)},
      {VELMAR_NULL, velmar_diff(dump, nullptr, &text)},
      {VELMAR_NULL, velmar_diff(dump, dump, nullptr)},
      {VELMAR_INPUT, velmar_diff(dump, other.get(), &text)},
      {VELMAR_INDEX, velmar_compare(0, VELMAR_NONE, VELMAR_NONE, 0, &text)},
      {VELMAR_INDEX, velmar_compare(0, 1, 1000, 0, &text)},
      {VELMAR_VARIANT, velmar_compare(0, 1, VELMAR_NONE, 256, &text)},
      {VELMAR_NULL, velmar_compare(0, 1, VELMAR_NONE, 0, nullptr)},
      {VELMAR_NULL, velmar_identify(nullptr, 8, nullptr, VELMAR_NONE, VELMAR_NONE, &text)},
      {VELMAR_INPUT, velmar_identify(bytes, 0, nullptr, VELMAR_NONE, VELMAR_NONE, &text)},
      {VELMAR_INDEX, velmar_identify(bytes, 8, nullptr, 1000, VELMAR_NONE, &text)},
      {VELMAR_NULL, velmar_diff_text(dump, nullptr, &text)},
      {VELMAR_INPUT, velmar_diff_text(dump, other.get(), &text)},
      {VELMAR_NULL, velmar_entry_text(layout, bytes, 4, nullptr)},
      {VELMAR_SIZE, velmar_entry_text(layout, bytes, 8, &text)},
      {VELMAR_NULL, velmar_encode(layout, conditions, 2, bytes, 4)},
      {VELMAR_NULL, velmar_encode(layout, nullptr, 1, bytes, 4)},
      {VELMAR_SIZE, velmar_encode(layout, conditions, 1, bytes, 8)},
      {VELMAR_UNKNOWN, velmar_encode(layout, unknown, 1, bytes, 4)},
      {VELMAR_SIZE, velmar_find_fields(layout, "*", positions, 1, &count)},
      {VELMAR_UNKNOWN, velmar_find_fields(layout, "*x*y*", positions, 4, &count)},
      {VELMAR_NULL, velmar_find_fields(layout, nullptr, positions, 4, &count)},
      {VELMAR_INDEX, velmar_read_fields(layout, late + 1, 1, bytes, 4, bytes, 1)},
      {VELMAR_NULL, velmar_read_fields(layout, nullptr, 1, bytes, 4, bytes, 1)},
      {VELMAR_NULL, velmar_fields_of(layout, nullptr, sizeof(velmar_field), 1)},
      {VELMAR_NULL, velmar_translate(nullptr, 0, &made, &text)},
      {VELMAR_NULL, velmar_translate(dump, 0, nullptr, &text)},
      {VELMAR_NULL, velmar_translate(dump, 0, &made, nullptr)},
      {VELMAR_INDEX, velmar_translate(dump, VELMAR_NONE, &made, &text)},
  };
  for (std::size_t i = 0; i < std::size(cases); ++i)
    EXPECT_EQ(cases[i].second, cases[i].first) << i;
  EXPECT_EQ(text, nullptr);
  EXPECT_EQ(made, nullptr);
  velmar_dump_free(nullptr);
  velmar_text_free(nullptr);
}

/// Whatever the bytes are: a dump of whole entries that can be written, or a fault with a remedy.
TEST(Faults, changedInputIsRefusedOrWhole) {
  const velmar_layout* layout = layoutOf("VlanMpls");
  constexpr char likely[] = "0123456789abcdef: \n\n0x[]{}\",*.-|<+>index";
  const char* const inputs[] = {"auto", "raw", "hex", "xxd", "hexdump", "od", "json", "csv"};
  const std::string plain[] = {
      fourEntries,
      "00000000: 0120 0000 0200 0000 0000 0000 0320 0000  . ........... ..\n",
      "0000000 2001 0000 0002 0000\n0000008\n",
      R"([{"index": 1, "fields": {"mplsEnable": 1, "l3Iif": 0}}])",
      "index,mplsEnable,l3Iif\n3,1,8\n",
      std::string("\1\2\3\4\0\0\0\0", 8)};
  std::mt19937 random(7);
  unsigned dumps = 0;
  for (unsigned i = 0; i < 6000; ++i) {
    std::string input = plain[i % std::size(plain)];
    for (unsigned changes = random() % 4; changes > 0; --changes) {
      input[random() % input.size()] =
          changes == 3 ? static_cast<char>(random()) : likely[random() % (sizeof likely - 1)];
    }
    velmar_read_options options = optionsOf(i % 4 == 0 ? inputs[random() % 8] : "auto");
    if (random() % 4 == 0) options.hex_order = "bytes";
    if (random() % 16 == 0) options.has_origin = 1;
    DumpPointer dump;
    if (read(layout, options, input, dump) != VELMAR_OK) {
      EXPECT_NE(lastFault().text[0], '\0');
      EXPECT_NE(lastFault().remedy[0], '\0') << velmar_message();
      continue;
    }
    ++dumps;
    char* text = nullptr;
    ASSERT_EQ(velmar_entries_json(dump.get(), nullptr, 0, 0, &text), VELMAR_OK);
    const DumpPointer again = dumpOf(layout, taken(text));
    ASSERT_EQ(velmar_diff(dump.get(), again.get(), &text), VELMAR_OK);
    const std::string json = taken(text);
    EXPECT_NE(json.find("\"entries\": []"), std::string::npos) << input << json;
  }
  EXPECT_GT(dumps, 500U);
}

/// Also where they fail, with a list of near names in the message.
TEST(Faults, callsWithoutResultsAllocateNothing) {
  const velmar_layout* layout = layoutOf("VlanStgB");
  const U8 entry[64] = {};
  U32 found = 0;
  U64 value = 0;
  velmar_fault fault{};
  constexpr long many = 1000;
  allocationsLeft = many;
  const velmar_code codes[] = {velmar_find_table("VlanEntri", &found),
                               velmar_find_chip("BCM56990_C0", &found),
                               velmar_find_field(layout, "spTreePort", &found),
                               velmar_find_field(layout, "x", &found),
                               velmar_layout_of(0, 0, 256, &layout),
                               velmar_entry_at(0, 0, 1, 0, nullptr, 0),
                               velmar_read(layout, 0, entry, 1, &value),
                               velmar_last_fault(&fault, sizeof fault)};
  const long left = allocationsLeft;
  allocationsLeft = -1;
  EXPECT_EQ(left, many);
  EXPECT_EQ(codes[2], VELMAR_AMBIGUOUS);
  EXPECT_NE(fault.text[0], '\0');
}

/// Calls `call` with 0, 1, 2 ... allocations that succeed until it succeeds as a whole.
template <class Call>
void expectMemoryFaults(const char* what, const Call& call) {
  SCOPED_TRACE(what);
  for (long most = 0;; ++most) {
    const long before = live;
    allocationsLeft = most;
    const velmar_code code = call();
    allocationsLeft = -1;
    ASSERT_EQ(live, before);
    if (code == VELMAR_OK) {
      EXPECT_GT(most, 0);
      return;
    }
    ASSERT_EQ(code, VELMAR_MEMORY) << velmar_message();
    ASSERT_LT(most, 100000);
  }
}

TEST(Faults, memoryMayRunOutAnywhere) {
  const velmar_layout* layout = layoutOf("VlanMpls");
  const DumpPointer owner = dumpOf(layout, fourEntries);
  const velmar_dump* dump = owner.get();
  const char* const conditions[] = {"mplsEnable=1"};
  char* json = nullptr;
  ASSERT_EQ(velmar_entries_json(dump, nullptr, 0, 0, &json), VELMAR_OK);
  const std::string document = taken(json);
  const auto reading = [&](const std::string& text) {
    return [layout, &text] {
      velmar_dump* made = nullptr;
      const velmar_code code = velmar_dump_read(layout, nullptr, text.data(), text.size(), &made);
      velmar_dump_free(made);
      return code;
    };
  };
  const auto writing = [](auto call) {
    return [call] {
      char* text = nullptr;
      const velmar_code code = call(&text);
      velmar_text_free(text);
      return code;
    };
  };
  expectMemoryFaults("text", reading(fourEntries));
  expectMemoryFaults("json", reading(document));
  expectMemoryFaults("select", [&] {
    U32 positions[4];
    std::size_t count = 0;
    return velmar_select(dump, conditions, 1, "5-9", 1, positions, 4, &count);
  });
  expectMemoryFaults("encode", [&] {
    U8 entry[4] = {};
    return velmar_encode(layout, conditions, 1, entry, sizeof entry);
  });
  expectMemoryFaults("find fields", [&] {
    U32 fields[8];
    std::size_t count = 0;
    return velmar_find_fields(layout, "*", fields, 8, &count);
  });
  expectMemoryFaults("text", writing([&](char** text) {
                       const U8 entry[4] = {1};
                       return velmar_entry_text(layout, entry, sizeof entry, text);
                     }));
  expectMemoryFaults("difference text",
                     writing([&](char** text) { return velmar_diff_text(dump, dump, text); }));
  expectMemoryFaults("entries", writing([&](char** text) {
                       return velmar_entries_json(dump, nullptr, 0, 0, text);
                     }));
  expectMemoryFaults("difference",
                     writing([&](char** text) { return velmar_diff(dump, dump, text); }));
  expectMemoryFaults("translation", writing([&](char** text) {
                       velmar_dump* made = nullptr;
                       const velmar_code code = velmar_translate(dump, 0, &made, text);
                       velmar_dump_free(made);
                       return code;
                     }));
}

}  // namespace
