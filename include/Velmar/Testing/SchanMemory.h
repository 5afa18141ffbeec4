#pragma once

#include <algorithm>
#include <cstdio>
#include <fstream>
#include <functional>
#include <stdexcept>
#include <string>
#include <unordered_map>
#include <vector>

#include "Velmar/Generic.h"

// A stand-in for the bus and memories of a chip, for tests of an agent.

namespace Velmar {
namespace Testing {

/// An access that no chip would accept: an address without an entry, a wrong access code, a wrong
/// number of words. It ends a test with its text.
class BusError : public std::logic_error {
 public:
  using std::logic_error::logic_error;
};

/// The words of an entry, by value.
class EntryWords {
 public:
  /// More than any entry has.
  static constexpr U32 most = 32;

  EntryWords() = default;
  explicit EntryWords(Words words) : size_(static_cast<U32>(words.size())) {
    std::memcpy(words_, words.data(), 4 * words.size());
  }
  EntryWords(const EntryWords& other) : EntryWords(other.words_, other.size_) {}
  EntryWords& operator=(const EntryWords& other) {
    size_ = other.size_;
    copyBlocks(words_, other.words_, size_);
    return *this;
  }
  ~EntryWords() = default;

  const U32* data() const { return words_; }
  std::size_t size() const { return size_; }
  const U32* begin() const { return words_; }
  const U32* end() const { return words_ + size_; }
  const U32& operator[](std::size_t index) const { return words_[index]; }

  friend bool operator==(const EntryWords& a, const EntryWords& b) { return Words(a) == Words(b); }
  friend bool operator!=(const EntryWords& a, const EntryWords& b) { return !(a == b); }

 private:
  friend class SchanMemory;

  /// Words are copied in blocks, which the compiler writes out: a call takes longer than the rest of
  /// an access.
  static constexpr U32 block = 4;
  /// Up to block - 1 words more are read and written.
  static void copyBlocks(U32* into, const U32* from, U32 count) {
    for (U32 i = 0; i < count; i += block) std::memcpy(into + i, from + i, 4 * std::size_t{block});
  }
  EntryWords(const U32* words, U32 count) : size_(count) { copyBlocks(words_, words, count); }

  U32 size_ = 0;
  U32 words_[most];
};

/// One access that the memory accepted.
struct Transaction {
  U64 number;  ///< from 1
  bool isWrite;
  U32 address;
  U32 accessType;
  Words words;  ///< valid until the next access

  /// As `velmar trace` reads it: a time of one microsecond for each transaction, W or R, the address
  /// and the words, lowest first.
  std::string text() const {
    char part[48];
    std::snprintf(part, sizeof(part), "%llu.%06llu %c 0x%08x",
                  static_cast<unsigned long long>(number / 1000000),
                  static_cast<unsigned long long>(number % 1000000), isWrite ? 'W' : 'R', address);
    std::string text = part;
    for (const U32 word : words) {
      std::snprintf(part, sizeof(part), " %08x", word);
      text += part;
    }
    return text;
  }
};

/// What a test expects of the last write to an entry: `EXPECT_TRUE(bus.wrote<VlanEntry>(20).with("stg",
/// 7))`. If it does not hold, the test shows the entry.
template <class View>
class Wrote {
 public:
  /// `words` are those of the last write; nothing if there is none.
  Wrote(Entry<View> entry, const std::optional<EntryWords>& words, std::string name)
      : entry_(std::move(entry)), name_(std::move(name)) {
    if (words) entry_.assign(*words);
    if (!words) message_ = name_ + " was not written";
  }

  /// The field of an accessor name or hardware name has a value.
  template <class Number, class = std::enable_if_t<std::is_integral<Number>::value>>
  Wrote& with(const char* field, Number value) {
    return expect(field, [value](const Catalogue::Field&, const FieldValue& found) {
      return found.number() == static_cast<U64>(value) ? std::string() : std::to_string(value);
    });
  }
  /// The field has a value as text, such as the ports "0-3,17" of a bitmap.
  Wrote& with(const char* field, const std::string& text) {
    return expect(field, [&](const Catalogue::Field& facts, const FieldValue& found) {
      return found.text(facts.type) == text ? std::string() : text;
    });
  }
  Wrote& with(const char* field, const char* text) { return with(field, std::string(text)); }

  explicit operator bool() const { return message_.empty(); }
  /// What does not hold; empty if all does.
  const std::string& message() const { return message_; }

  /// For the assertions of a test framework that take a result with a message.
  template <class Result,
            class = decltype(std::declval<Result&>() << std::string(),
                             std::enable_if_t<std::is_constructible<Result, bool>::value>())>
  operator Result() const {  // NOLINT(google-explicit-constructor)
    Result result(message_.empty());
    result << message_;
    return result;
  }

 private:
  template <class Check>
  Wrote& expect(const char* field, const Check& check) {
    if (!message_.empty()) return *this;
    const std::string name = field;
    bool isKnown = false;
    forEachField(entry_, [&](const Catalogue::Field& facts, const FieldValue& value) {
      if (name != facts.accessor && name != facts.hardwareName) return;
      isKnown = true;
      const std::string expected = check(facts, value);
      if (expected.empty()) return;
      message_ = name_ + " was written with " + facts.accessor + "=" + value.text(facts.type) +
                 ", not " + expected + ": " + toText(entry_);
    });
    if (!isKnown) {
      message_ = "there is no field \"" + name + "\" to expect; give a name of " + toText(entry_);
    }
    return *this;
  }

  Entry<View> entry_;
  std::string name_;
  std::string message_;
};

/// The memories and register arrays of one chip, by address and access code, with the addresses and
/// sizes of the catalogue. Every entry is zero at first.
class SchanMemory {
 public:
  explicit SchanMemory(ChipType_ chip, U8 variant = 0) : chip_(chip), variant_(variant) {
    for (U32 i = 0; i < Catalogue::tableCount(); ++i) addTable(Catalogue::table(i));
    if (regions_.empty()) {
      throw BusError("no table is on chip " + std::to_string(U32{chip}) + " with variant " +
                     std::to_string(variant) + "; give a chip that `velmar chips` lists");
    }
    // No access has been there: a region without addresses.
    regions_.push_back({~U32{0}, 1, 0, 0, 0, Catalogue::table(0), {}});
    last_ = regions_.size() - 1;
    std::sort(regions_.begin(), regions_.end(),
              [](const Region& a, const Region& b) { return a.first < b.first; });
  }

  ChipType_ chip() const { return chip_; }
  U8 variant() const { return variant_; }

  /// Writes all words of the entry at an address. Returns false, and nothing happens, where a fault
  /// is injected. Throws BusError for what no chip accepts.
  bool write(U32 address, U32 accessType, Words words) {
    const Place place = placeOf(address, accessType);
    if (words.size() != place.region->words) failWords(place, words.size());
    if (!faults_.empty() && !mayWrite(place)) return false;
    std::memcpy(wordsAt(place), words.data(), 4 * words.size());
    record(true, place, wordsAt(place));
    return true;
  }
  /// Reads the entry at an address. Throws BusError for what no chip accepts.
  EntryWords read(U32 address, U32 accessType) {
    const Place place = placeOf(address, accessType);
    EntryWords words(wordsAt(place), place.region->words);
    if (!faults_.empty()) delay(place, words);
    record(false, place, words.data());
    return words;
  }

  /// Writes an entry as an agent does.
  template <class View>
  bool write(const Entry<View>& entry, U32 index, U32 identifier = 0) {
    const EntryAddress at = addressOf<View>(index, identifier);
    return write(at.address, at.accessType, entry.words());
  }
  /// What an entry holds now. No access: it is not in the log and meets no fault.
  template <class View>
  Entry<View> entry(U32 index, U32 identifier = 0) {
    const EntryAddress at = addressOf<View>(index, identifier);
    Entry<View> entry(chip_, variant_);
    entry.assign(wordsAt(placeOf(at.address, at.accessType)), entry.words().size());
    return entry;
  }

  /// The accesses since the start or the last clearLog(), in their order.
  std::vector<Transaction> log() const {
    std::vector<Transaction> transactions;
    for (std::size_t at = 0; at < logSize_;) {
      const U32* const head = log_.data() + at;
      const U32 words = head[1] & wordsMask;
      transactions.push_back({firstNumber_ + transactions.size(), (head[1] & writeBit) != 0,
                              head[0], head[1] >> accessTypeShift, Words(head + headWords, words)});
      at += headWords + words;
    }
    return transactions;
  }
  /// The log as `velmar trace` reads it, one transaction a line.
  std::string logText() const {
    std::string text;
    for (const Transaction& transaction : log()) text += transaction.text() + "\n";
    return text;
  }
  void clearLog() {
    firstNumber_ += accesses_;
    accesses_ = 0;
    logSize_ = 0;
  }

  /// The last write to an entry since the start of the log, for an expectation.
  template <class View>
  Wrote<View> wrote(U32 index, U32 identifier = 0) const {
    const EntryAddress at = addressOf<View>(index, identifier);
    std::optional<EntryWords> last;
    for (const Transaction& transaction : log()) {
      if (transaction.isWrite && transaction.address == at.address) last.emplace(transaction.words);
    }
    return {Entry<View>(chip_, variant_), last, nameOf(tableOf<View>(), index)};
  }

  /// The next writes to an entry fail: write() returns false.
  template <class View>
  void failWrites(U32 index, U32 times = 1, U32 identifier = 0) {
    faults_[addressOf<View>(index, identifier).address].failingWrites = times;
  }
  /// The next write to an entry is seen late: so many reads give the words before it.
  template <class View>
  void delayReads(U32 index, U32 times = 1, U32 identifier = 0) {
    faults_[addressOf<View>(index, identifier).address].delayAfterWrite = times;
  }

  /// Saves all tables that were accessed as a snapshot: a folder, which must exist, with raw dumps and
  /// a manifest. Throws std::runtime_error if a file cannot be written.
  void save(const std::string& folder) const {
    std::string tables;
    for (const Region& region : regions_) {
      if (region.memory.empty()) continue;
      const std::string name = region.table.name();
      writeFile(folder + "/" + name + ".bin", {reinterpret_cast<const char*>(region.memory.data()),
                                               4 * std::size_t{region.count} * region.words});
      tables += (tables.empty() ? "\n" : ",\n") + ("    {\"class\": \"" + name) +
                "\", \"identifier\": 0, \"file\": \"" + name + ".bin\", \"notation\": \"raw\"}";
    }
    writeFile(
        folder + "/snapshot.json",
        std::string("{\n  \"format\": \"velmar-snapshot\",\n  \"version\": 1,\n  \"chip\": \"") +
            chipName() + "\",\n  \"variant\": " + std::to_string(variant_) + ",\n  \"tables\": [" +
            tables + "\n  ]\n}\n");
  }

 private:
  /// The entries of a table. Tables that view one memory share it.
  struct Region {
    U32 first;  ///< address of entry 0
    U32 step;   ///< addresses from entry to entry
    U32 count;
    U32 words;
    U32 accessType;
    Catalogue::Table table;
    std::vector<U32> memory;  ///< none until an entry is touched
  };
  struct Place {
    Region* region;
    std::size_t index;
  };
  struct Fault {
    U32 failingWrites = 0;
    U32 delayAfterWrite = 0;
    U32 delayedReads = 0;
    EntryWords before;
  };

  template <class View>
  static Catalogue::Table tableOf() {
    return Catalogue::Table::of<typename ViewClass<View>::Type>();
  }

  void addTable(const Catalogue::Table& table) {
    if (!table.isOn(chip_, variant_)) return;
    const Catalogue::Geometry geometry = table.geometry(chip_);
    const U32 first = geometry.addressOfIndex(0, 0);
    for (const Region& region : regions_) {
      if (region.first == first) return;
    }
    regions_.push_back({first,
                        geometry.addrStride == 0 ? 1 : geometry.addrStride,
                        geometry.indexCount(),
                        geometry.words,
                        geometry.accessType,
                        table,
                        {}});
  }

  Place placeOf(U32 address, U32 accessType) {
    // An agent stays in a table for a while.
    Region* region = &regions_[last_];
    if (region->step != 1 || address - region->first >= region->count) {
      region = findRegion(address);
    }
    std::size_t index = address - region->first;
    if (region->step != 1) index = elementAt(*region, address);
    if (accessType != region->accessType) failAccessType({region, index}, accessType);
    return {region, index};
  }
  /// The region that has an address, with memory.
  [[gnu::noinline]] Region* findRegion(U32 address) {
    auto region =
        std::upper_bound(regions_.begin(), regions_.end(), address,
                         [](U32 value, const Region& each) { return value < each.first; });
    if (region-- == regions_.begin()) failAddress(address);
    if (elementAt(*region, address) >= region->count) failAddress(address);
    region->memory.resize(std::size_t{region->count} * region->words + EntryWords::block);
    last_ = static_cast<std::size_t>(region - regions_.begin());
    return &*region;
  }
  /// The largest number for an address between two elements.
  static U32 elementAt(const Region& region, U32 address) {
    const U32 distance = address - region.first;
    return distance % region.step == 0 ? distance / region.step : ~U32{0};
  }
  static U32* wordsAt(const Place& place) {
    return place.region->memory.data() + place.index * place.region->words;
  }
  static U32 addressAt(const Place& place) {
    return place.region->first + static_cast<U32>(place.index) * place.region->step;
  }

  void record(bool isWrite, const Place& place, const U32* words) {
    const U32 count = place.region->words;
    if (logSize_ + headWords + EntryWords::most > log_.size()) {
      log_.resize(2 * log_.size() + headWords + EntryWords::most);
    }
    U32* const line = log_.data() + logSize_;
    line[0] = addressAt(place);
    line[1] = place.region->accessType << accessTypeShift | (isWrite ? writeBit : 0) | count;
    EntryWords::copyBlocks(line + headWords, words, count);
    logSize_ += headWords + count;
    ++accesses_;
  }

  bool mayWrite(const Place& place) {
    const auto found = faults_.find(addressAt(place));
    if (found == faults_.end()) return true;
    Fault& fault = found->second;
    if (fault.failingWrites != 0) {
      --fault.failingWrites;
      return false;
    }
    if (fault.delayAfterWrite != 0) {
      fault.before = EntryWords(wordsAt(place), place.region->words);
      fault.delayedReads = fault.delayAfterWrite;
      fault.delayAfterWrite = 0;
    }
    return true;
  }
  void delay(const Place& place, EntryWords& words) {
    const auto found = faults_.find(addressAt(place));
    if (found == faults_.end() || found->second.delayedReads == 0) return;
    --found->second.delayedReads;
    words = found->second.before;
  }

  template <class View>
  EntryAddress addressOf(U32 index, U32 identifier) const {
    const Catalogue::Table table = tableOf<View>();
    const auto address = Velmar::addressOf(table, chip_, variant_, index, identifier);
    if (address) return *address;
    if (!table.isOn(chip_, variant_)) {
      throw BusError(std::string(table.name()) + " is not on " + chipName() + " with variant " +
                     std::to_string(variant_) + "; choose a table of the chip");
    }
    throw BusError(nameOf(table, index) + " with identifier " + std::to_string(identifier) +
                   " does not exist on " + chipName() + "; there are " +
                   std::to_string(table.geometry(chip_).indexCount()) + " entries and " +
                   std::to_string(table.geometry(chip_).identifiers) + " identifiers from 0 on");
  }

  std::string chipName() const {
    for (U32 i = 0; i < Catalogue::chipCount(); ++i) {
      if (Catalogue::chip(i).number == chip_) return Catalogue::chip(i).name;
    }
    return std::to_string(U32{chip_});
  }
  static std::string nameOf(const Catalogue::Table& table, std::size_t index) {
    return std::string(table.name()) + " " + std::to_string(index);
  }
  std::string nameOf(const Place& place) const {
    return nameOf(place.region->table, place.index) + " on " + chipName();
  }
  [[noreturn, gnu::cold]] void failAddress(U32 address) const {
    char text[16];
    std::snprintf(text, sizeof(text), "0x%08x", address);
    throw BusError(std::string("no entry has the address ") + text + " on " + chipName() +
                   "; take it from Entry::address()");
  }
  [[noreturn, gnu::cold]] void failAccessType(const Place& place, U32 accessType) const {
    throw BusError(nameOf(place) + " has the access code " +
                   std::to_string(place.region->accessType) + ", not " +
                   std::to_string(accessType) + "; take it from Entry::address()");
  }
  [[noreturn, gnu::cold]] void failWords(const Place& place, std::size_t words) const {
    throw BusError(nameOf(place) + " has " + std::to_string(place.region->words) + " words, not " +
                   std::to_string(words) + "; write the whole entry");
  }
  static void writeFile(const std::string& path, std::string_view bytes) {
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (!file.flush()) throw std::runtime_error("cannot write " + path + "; make its folder first");
  }

  // A transaction in the log: its address, then access code, kind and number of words, the words.
  static constexpr U32 headWords = 2;
  static constexpr U32 wordsMask = 0xff;
  static constexpr U32 writeBit = 0x100;
  static constexpr U32 accessTypeShift = 16;

  ChipType_ chip_;
  U8 variant_;
  std::vector<Region> regions_;  ///< by their first address
  std::size_t last_;             ///< region of the last access
  std::vector<U32> log_;         ///< of which the first words are used
  std::size_t logSize_ = 0;
  U64 firstNumber_ = 1;                    ///< of the log's first transaction
  U64 accesses_ = 0;                       ///< in the log
  std::unordered_map<U32, Fault> faults_;  ///< by address
};

}  // namespace Testing
}  // namespace Velmar
