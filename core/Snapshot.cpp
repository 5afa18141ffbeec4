#include "core/Snapshot.h"

#include <algorithm>

#include "core/Json.h"
#include "core/JsonTree.h"

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

Done unknownMember(std::string_view name, const char* known) {
  return failed(Fault(Code::input, "unknown member {}; {}", quoted(name).view(), known));
}

Done takeText(const JsonValue& value, std::string& to) {
  if (!value.IsString()) {
    return failed(
        Fault(Code::input, "{}: not a text in quotes; correct it", quoted(shown(value)).view()));
  }
  to = textOf(value);
  return succeeded();
}

Done takeNumber(const JsonValue& value, U32 largest, U32& to) {
  if (!value.IsUint() || value.GetUint() > largest) {
    return failed(Fault(Code::input, "{}: not a number from 0 to {}; correct it",
                        quoted(shown(value)).view(), largest));
  }
  to = value.GetUint();
  return succeeded();
}

template <class Found, class Find>
Done takeNamed(const JsonValue& value, const Find& find, std::optional<Found>& to) {
  std::string name;
  if (const Done done = takeText(value, name); !done) return done;
  const Expected<Found> found = find(name);
  if (!found) return failed(found);
  to = *found;
  return succeeded();
}

/// Reads the manifest. A fault has the line on which its object begins.
class ManifestReader {
 public:
  explicit ManifestReader(std::string_view text) : texts_(text) {}

  Expected<Snapshot> read() {
    texts_.peek();
    Done done = texts_.parse(document_);
    if (done) done = checked(document_, readManifest());
    if (!done) return failed(done);
    return std::move(snapshot_);
  }

 private:
  Done checked(const JsonValue& object, Done done) const {
    if (!done && done.error().place.line == 0) done.error().onLine(texts_.lineOf(object));
    return done;
  }

  Done readManifest() {
    if (texts_.peek() != '\0') {
      return failed(Fault(Code::input, "something follows the manifest; remove it"));
    }
    if (const Done done = texts_.checkEnd(); !done) return done;
    if (!document_.IsObject()) {
      return failed(Fault(Code::input, "not an object; give a manifest of a snapshot"));
    }
    if (const Done done = checkNames(document_); !done) return done;
    for (const auto& [name, value] : document_.GetObject()) {
      if (const Done done = takeMember(textOf(name), value); !done) return done;
    }
    return checkHead();
  }

  Done takeMember(std::string_view name, const JsonValue& value) {
    if (name == "format") return takeText(value, format_);
    if (name == "version") return takeNumber(value, ~U32{0}, version_);
    if (name == "chip") return takeNamed(value, findChip, chip_);
    if (name == "variant") return takeNumber(value, 255, variant_);
    if (name == "time") return takeText(value, snapshot_.time);
    if (name == "label") return takeText(value, snapshot_.label);
    if (name != "tables") {
      return unknownMember(name,
                           "a snapshot has format, version, chip, variant, time, label and tables");
    }
    if (!value.IsArray()) return failed(Fault(Code::input, "tables: not a list; correct it"));
    for (const JsonValue& table : value.GetArray()) {
      if (Done done = checked(table, readDump(table)); !done) return done;
    }
    return succeeded();
  }

  Done readDump(const JsonValue& object) {
    if (!object.IsObject()) return failed(Fault(Code::input, "tables: not objects; correct them"));
    if (snapshot_.dumps.size() == mostDumps) {
      return failed(Fault(Code::input, "more than {} tables; remove some", mostDumps));
    }
    std::optional<Catalogue::Table> table;
    SnapshotDump dump{Catalogue::table(0), 0, {}, {}};
    Done done = checkNames(object);
    for (auto member = object.MemberBegin(); done && member != object.MemberEnd(); ++member) {
      const std::string_view name = textOf(member->name);
      if (name == "class") {
        done = takeNamed(member->value, findTable, table);
      } else if (name == "identifier") {
        done = takeNumber(member->value, ~U32{0}, dump.identifier);
      } else if (name == "file") {
        done = takeText(member->value, dump.file);
      } else if (name == "notation") {
        done = takeNotation(member->value, dump.notation);
      } else {
        done = unknownMember(name, "a table has class, identifier, file and notation");
      }
    }
    if (!done) return done;
    if (!table || dump.file.empty()) {
      return failed(Fault(Code::input, "a table without {}; add it", !table ? "class" : "file"));
    }
    dump.table = *table;
    snapshot_.dumps.push_back(std::move(dump));
    return succeeded();
  }

  static Done takeNotation(const JsonValue& value, Notation& to) {
    std::string text;
    if (const Done done = takeText(value, text); !done) return done;
    const std::optional<Notation> notation = notationNamed(text);
    if (!notation) {
      return failed(Fault(Code::input, "unknown notation {}; give one that --input has",
                          quoted(text).view()));
    }
    to = *notation;
    return succeeded();
  }

  Done checkHead() {
    if (format_ != "velmar-snapshot" || version_ != 1) {
      return failed(Fault(Code::input,
                          "format and version are not velmar-snapshot and 1; give a manifest of a "
                          "snapshot"));
    }
    if (!chip_) return failed(Fault(Code::input, "no chip; add the member chip"));
    snapshot_.chip = *chip_;
    snapshot_.variant = static_cast<U8>(variant_);
    return checkSnapshot(snapshot_);
  }

  JsonTexts texts_;
  JsonDocument document_;
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
