#pragma once

#include <functional>
#include <memory>
#include <unordered_map>

#include "core/AddressMap.h"
#include "core/Difference.h"
#include "core/TraceReader.h"

// What a log of bus transactions did to the entries of a chip.

namespace Velmar {
namespace Core {

/// What is worth looking at in a transaction.
enum class TraceFinding : U8 {
  noTable,
  tooShort,
  tooLong,
  unchanged,
  reservedBits,
  readDiffers,
  accessCode,
  sharedAddress
};
/// As documents name it, such as "no-table".
const char* nameOf(TraceFinding finding);

/// A set of findings.
class TraceFindings {
 public:
  void add(TraceFinding finding) { bits_ |= bitOf(finding); }
  bool has(TraceFinding finding) const { return (bits_ & bitOf(finding)) != 0; }
  /// Whether there are others than that two tables share the address.
  bool haveFault() const { return (bits_ & ~bitOf(TraceFinding::sharedAddress)) != 0; }
  std::vector<std::string> names() const;

 private:
  static U32 bitOf(TraceFinding finding) { return 1U << static_cast<U32>(finding); }

  U32 bits_ = 0;
};

/// A table that a log touches.
struct TracedTable {
  Layout layout;
  std::vector<U64> wordsOf;  ///< of each field: the words of the entry that have its bits
  bool isTouched = false;    ///< by the log, or by what is known at the start
};

/// How the state of an entry came to be known.
enum class Origin : U8 { unknown, before, written, read };

/// What a transaction did. It is valid until the next one.
struct TraceEvent {
  const BusLine* bus = nullptr;
  U32 table = 0;                   ///< in the catalogue
  const Layout* layout = nullptr;  ///< null: no table has the address
  U32 index = 0;                   ///< of the entry or element
  TraceFindings findings;
  std::vector<U32> others;                ///< tables that have the address too
  Origin origin = Origin::unknown;        ///< of the state before
  const U8* before = nullptr;             ///< zeros where it is not known
  const U8* after = nullptr;              ///< null: the words are no entry
  const U8* changes = nullptr;            ///< the bits that differ
  std::vector<const FieldPlace*> fields;  ///< that differ; null: the reserved bits
};

/// Follows the state of all entries that a log touches.
class Trace {
 public:
  struct Options {
    std::vector<U32>
        tables;  ///< an address that several have is shown as the one that is named here
    bool wordsApart =
        false;  ///< lines of one address follow each other until its entry has its words
  };
  using Show = std::function<void(const TraceEvent&)>;

  Trace(const Catalogue::Chip& chip, U8 variant, Options options, Show show);

  /// Sets the state at the start.
  void know(U32 table, const Dump& dump);
  void take(const BusLine& transaction);
  /// Takes it that the log has ended.
  void finish();

  const Layout& layoutOf(U32 table) { return tracedOf(table).layout; }
  /// The known entries of each table, in the order of the catalogue.
  std::vector<std::pair<const Layout*, Dump>> state();

 private:
  struct Known {
    size_t at;  ///< in bytes_
    Origin origin;
  };

  TracedTable& tracedOf(U32 table);
  void locate(U32 address);
  void interpret(const BusLine& transaction);
  void checkAccess(const BusLine& transaction);
  void follow(const BusLine& transaction, TracedTable& traced);
  void compare(const TracedTable& traced);
  Known& knownOf(U32 address, U32 size);

  Catalogue::Chip chip_;
  U8 variant_;
  Options options_;
  Show show_;
  AddressMap addresses_;
  std::vector<std::unique_ptr<TracedTable>> tables_;  ///< of the catalogue; null: not touched yet
  std::unordered_map<U32, Known> known_;              ///< by address
  std::vector<U8> bytes_;                             ///< of all known entries
  std::vector<U8> before_, after_, changes_;
  TraceEvent event_;
  BusLine joined_;  ///< words apart, as far as they have come; without words: none
};

}  // namespace Core
}  // namespace Velmar
