#pragma once

#include "cli/Failure.h"
#include "cli/Verb.h"
#include "core/Condition.h"
#include "core/Families.h"
#include "output/Output.h"

// Parts of the requests of the verbs, and what writes the words of the command line into them.

namespace Tool {

/// A table on a chip.
struct TableRequest {
  std::optional<Catalogue::Table> table;
  std::optional<Catalogue::Chip> chip;
  U8 variant = 0;

  Layout layout() const { return taken(Layout::of(*table, *chip, variant)); }
};

/// A dump.
struct InputRequest {
  std::string file;
  std::string inSnapshot;  ///< the dump, if `file` is the folder of a snapshot
  ReadOptions options;
};

/// Where the result goes, and its form.
struct OutputRequest {
  std::string file;
  std::string color;
  Format format = Format::table;

  bool isForPeople() const { return format == Format::table; }
};

/// Indexes, also as they were typed.
struct IndexRequest {
  IndexSet set;
  std::string typed;  ///< empty: none

  /// Fails for an index that the layout does not have.
  void check(const Layout& layout, const char* option) const;
};

/// Which entries of a dump are meant.
struct SelectionRequest {
  IndexRequest index;
  Texts where;
  bool nonzero = false;

  Selection selection(const Layout& layout) const;
};

Taker into(std::string& to);
Taker into(Texts& to);
Taker into(bool& to);
Taker into(Format& to);
Taker into(IndexRequest& to);
Taker into(std::optional<Catalogue::Table>& to);
Taker into(std::optional<Catalogue::Chip>& to);
Taker intoVariant(U8& to);
/// The name of one dump or log.
Taker intoOnlyFile(std::string& to, const char* what = "dump");
/// A number of results of 1 or more.
Taker intoLimit(std::optional<U64>& to);

/// The chips that are meant: one, or all.
inline std::vector<Catalogue::Chip> meantChips(const std::optional<Catalogue::Chip>& chip) {
  return chip ? std::vector{*chip} : allChips();
}
/// Whether a table is the one that is named, if one is.
inline bool isMeant(const std::optional<Catalogue::Table>& named, const Catalogue::Table& table) {
  return !named || named->name() == std::string_view(table.name());
}

std::vector<FieldPlace> inOrderOfBits(std::vector<FieldPlace> places);
/// The fields that lists of names choose, in their order. Lists that begin with a minus, or none, start
/// from all fields, for people in the order of their bits.
std::vector<FieldPlace> fieldsOf(const Layout& layout, const Texts& lists, bool isForPeople);
/// Whether lists of names start from all fields, so that the reserved bits belong to them.
inline bool startFromAll(const Texts& lists) { return lists.empty() || lists.front()[0] == '-'; }

/// Writes a list as the whole result.
void print(const OutputRequest& request, const Listing& listing, const JsonFrame& frame);
/// The same; for people nothing is written of an empty list.
void printIfAny(const OutputRequest& request, const Listing& listing, const JsonFrame& frame);

}  // namespace Tool
