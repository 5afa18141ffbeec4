#include "core/Snapshot.h"

#include <algorithm>

#include "core/Json.h"
#include "core/JsonText.h"

namespace Velmar {
namespace Core {
namespace {

constexpr size_t mostDumps = 1024;
constexpr size_t longestLabel = 200;
constexpr size_t longestPath = 255;

bool isSame(const Catalogue::Table& a, const Catalogue::Table& b) {
  return a.name() == std::string_view(b.name());
}

/// Whether a text has the form of another one, in which 0 stands for any digit.
bool hasForm(std::string_view text, std::string_view form) {
  return text.size() == form.size() &&
         std::equal(text.begin(), text.end(), form.begin(), [](char is, char expected) {
           return expected == '0' ? isDecimalDigit(is) : is == expected;
         });
}

/// Whether two digits are a number in a range.
bool isAmong(std::string_view digits, int first, int last) {
  const int number = 10 * (digits[0] - '0') + digits[1] - '0';
  return first <= number && number <= last;
}

/// A date, with or without a time of the day, and that with or without a zone.
bool isTime(std::string_view text) {
  constexpr std::string_view whole = "0000-00-00T00:00:00";
  constexpr size_t date = 10, minutes = 16;
  const size_t end = std::min(text.find_first_of("Z+-", date), text.size());
  const std::string_view moment = text.substr(0, end);
  const std::string_view zone = text.substr(end);
  const bool isSized = end == date || end == minutes || end == whole.size();
  if (!isSized || !hasForm(moment, whole.substr(0, end))) return false;
  if (!isAmong(text.substr(5), 1, 12) || !isAmong(text.substr(8), 1, 31)) return false;
  if (end == date) return zone.empty();
  if (!isAmong(text.substr(11), 0, 23) || !isAmong(text.substr(14), 0, 59)) return false;
  if (end == whole.size() && !isAmong(text.substr(17), 0, 59)) return false;
  return zone.empty() || zone == "Z" || hasForm(zone.substr(1), "00:00");
}

bool isPrintable(std::string_view text) {
  return std::none_of(text.begin(), text.end(), [](char character) {
    return static_cast<unsigned char>(character) < ' ' || character == '\x7f';
  });
}

/// Whether a path stays in its folder: names with slashes between them.
bool isInside(std::string_view path) {
  if (path.size() > longestPath || !isPrintable(path)) return false;
  for (size_t begin = 0; begin <= path.size();) {
    const size_t end = std::min(path.find('/', begin), path.size());
    const std::string_view name = path.substr(begin, end - begin);
    if (name.empty() || name == "." || name == "..") return false;
    begin = end + 1;
  }
  return path != manifestName;
}

Done checkDump(const Snapshot& snapshot, const SnapshotDump& dump) {
  const auto layout = Layout::of(dump.table, snapshot.chip, snapshot.variant);
  if (!layout) return failed(layout);
  const U32 identifiers = layout->geometry().identifiers;
  if (dump.identifier >= identifiers) {
    return failed(Fault(Code::input, "{} has no identifier {}; give one from 0 to {}",
                        layout->shown(), dump.identifier, identifiers - 1));
  }
  if (isInside(dump.file)) return {};
  return failed(Fault(Code::input,
                      "file {}: not the name of a dump in the folder; give a relative path of at "
                      "most {} bytes, without .. in it",
                      quoted(dump.file).view(), longestPath));
}

/// Two dumps are of different tables or identifiers, in different files.
Done checkDifferent(const SnapshotDump& a, const SnapshotDump& b) {
  if (a.file == b.file) {
    return failed(Fault(Code::input, "file {} is given twice; give each dump a file of its own",
                        quoted(a.file).view()));
  }
  if (!isSame(a.table, b.table) || a.identifier != b.identifier) return {};
  return failed(Fault(Code::input, "{} with identifier {} is given twice; give it once",
                      a.table.name(), a.identifier));
}

/// Reads the manifest. What is wrong with a value is said with the line on which that begins.
class ManifestReader {
 public:
  explicit ManifestReader(std::string_view text) : json_(text) {}

  Expected<Snapshot> read() {
    const auto take = [this](std::string_view name) { return takeMember(name); };
    bool isRead = json_.checkNoZeros() && json_.readMembers(take);
    if (isRead && json_.peek() != '\0') isRead = json_.fail("something follows the manifest");
    if (isRead) isRead = checkHead();
    if (!isRead) return failed(fault_ ? *fault_ : *json_.fault());
    return std::move(snapshot_);
  }

 private:
  bool fail(size_t mark, Fault fault) {
    if (!fault_) fault_ = fault.onLine(json_.lineOf(mark));
    return false;
  }

  bool readText(std::string& to) {
    std::string_view text;
    if (!json_.readText(text)) return false;
    to = text;
    return true;
  }
  bool readNumber(U32& to, U32 largest) {
    const bool isText = json_.peek() == '"';
    const size_t mark = json_.mark();
    std::string_view scalar;
    if (!json_.readScalar(scalar)) return false;
    const std::optional<U64> number = parseNumber(scalar);
    if (isText || !number || *number > largest) {
      return fail(mark, Fault(Code::input, "{}: not a number from 0 to {}; correct it",
                              quoted(scalar).view(), largest));
    }
    to = static_cast<U32>(*number);
    return true;
  }
  template <class Found, class Find>
  bool readNamed(std::optional<Found>& to, const Find& find) {
    const size_t mark = json_.mark();
    std::string name;
    if (!readText(name)) return false;
    const Expected<Found> found = find(name);
    if (!found) return fail(mark, found.error());
    to = *found;
    return true;
  }

  bool takeMember(std::string_view name) {
    const size_t mark = json_.mark();
    if (name == "format") return readText(format_);
    if (name == "version") return readNumber(version_, ~U32{0});
    if (name == "chip") return readNamed(chip_, findChip);
    if (name == "variant") return readNumber(variant_, 255);
    if (name == "time") return readText(snapshot_.time);
    if (name == "label") return readText(snapshot_.label);
    if (name == "tables") return json_.readItems([this] { return readDump(); });
    return fail(mark, Fault(Code::input,
                            "unknown member {}; a snapshot has format, version, chip, variant, "
                            "time, label and tables",
                            quoted(name).view()));
  }

  bool readDump() {
    const size_t mark = json_.mark();
    std::optional<Catalogue::Table> table;
    std::optional<Notation> notation = Notation::automatic;
    SnapshotDump dump{Catalogue::table(0), 0, {}, {}};
    const auto take = [&](std::string_view name) {
      const size_t value = json_.mark();
      if (name == "class") return readNamed(table, findTable);
      if (name == "identifier") return readNumber(dump.identifier, ~U32{0});
      if (name == "file") return readText(dump.file);
      if (name != "notation") {
        return fail(value, Fault(Code::input,
                                 "unknown member {}; a table has class, identifier, file and "
                                 "notation",
                                 quoted(name).view()));
      }
      std::string text;
      if (!readText(text)) return false;
      notation = notationNamed(text);
      return notation ||
             fail(value, Fault(Code::input, "unknown notation {}; give one that --input has",
                               quoted(text).view()));
    };
    if (!json_.readMembers(take)) return false;
    if (!table || dump.file.empty()) {
      return fail(mark,
                  Fault(Code::input, "a table without {}; add it", !table ? "class" : "file"));
    }
    if (snapshot_.dumps.size() == mostDumps) {
      return fail(mark, Fault(Code::input, "more than {} tables; remove some", mostDumps));
    }
    dump.table = *table;
    dump.notation = *notation;
    snapshot_.dumps.push_back(std::move(dump));
    return true;
  }

  bool checkHead() {
    if (format_ != "velmar-snapshot" || version_ != 1) {
      return fail(0, Fault(Code::input,
                           "format and version are not velmar-snapshot and 1; give a manifest of "
                           "a snapshot"));
    }
    if (!chip_) return fail(0, Fault(Code::input, "no chip; add the member chip"));
    snapshot_.chip = *chip_;
    snapshot_.variant = static_cast<U8>(variant_);
    const Done done = checkSnapshot(snapshot_);
    if (!done) fault_ = done.error();
    return done.has_value();
  }

  JsonText json_;
  std::optional<Fault> fault_;
  std::string format_;
  U32 version_ = 0;
  std::optional<Catalogue::Chip> chip_;
  U32 variant_ = 0;
  Snapshot snapshot_;
};

}  // namespace

std::vector<const SnapshotDump*> Snapshot::dumpsOf(const Catalogue::Table& table) const {
  std::vector<const SnapshotDump*> found;
  for (const SnapshotDump& dump : dumps) {
    if (isSame(dump.table, table)) found.push_back(&dump);
  }
  return found;
}

Done checkSnapshot(const Snapshot& snapshot) {
  if (!snapshot.time.empty() && !isTime(snapshot.time)) {
    return failed(Fault(Code::input,
                        "time {}: not a time; give one such as 2026-11-21 or 2026-11-21T08:30:00Z",
                        quoted(snapshot.time).view()));
  }
  if (snapshot.label.size() > longestLabel || !isPrintable(snapshot.label)) {
    return failed(Fault(Code::input, "label {}: not one line of at most {} bytes; shorten it",
                        quoted(snapshot.label).view(), longestLabel));
  }
  if (snapshot.dumps.empty() || snapshot.dumps.size() > mostDumps) {
    return failed(Fault(Code::input, "{} tables; give 1 to {}", snapshot.dumps.size(), mostDumps));
  }
  for (const SnapshotDump& dump : snapshot.dumps) {
    if (const Done done = checkDump(snapshot, dump); !done) return done;
    for (const SnapshotDump* other = snapshot.dumps.data(); other != &dump; ++other) {
      if (const Done done = checkDifferent(*other, dump); !done) return done;
    }
  }
  return {};
}

Expected<Snapshot> readSnapshot(std::string_view manifest) {
  if (manifest.size() > longestManifest) {
    return failed(Fault(Code::input, "more than {} MiB; give the manifest of a snapshot",
                        longestManifest >> 20));
  }
  return ManifestReader(manifest).read();
}

std::string snapshotText(const Snapshot& snapshot) {
  constexpr unsigned indent = 2;
  std::string text;
  JsonWriter json(text, indent);
  json.openObject().key("format").text("velmar-snapshot").key("version").number(1);
  json.key("chip").text(snapshot.chip.name).key("variant").number(snapshot.variant);
  if (!snapshot.time.empty()) json.key("time").text(snapshot.time);
  if (!snapshot.label.empty()) json.key("label").text(snapshot.label);
  json.key("tables").openList();
  for (const SnapshotDump& dump : snapshot.dumps) {
    json.openObject().key("class").text(dump.table.name());
    json.key("identifier").number(dump.identifier).key("file").text(dump.file);
    json.key("notation").text(nameOf(dump.notation)).closeObject();
  }
  json.closeList().closeObject();
  return text + "\n";
}

}  // namespace Core
}  // namespace Velmar
