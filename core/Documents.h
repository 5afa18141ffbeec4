#pragma once

#include "core/Condition.h"
#include "core/Dump.h"
#include "core/Families.h"
#include "core/Listing.h"

// Entries and values as JSON and CSV.

namespace Velmar {
namespace Core {

class TextBuffer;

/// Writes entries as JSON, JSON lines or CSV at the end of a text.
class EntryDocument {
 public:
  struct Style {
    RowFormat format = RowFormat::json;
    bool isPlain = false;    ///< JSON with values alone: numbers, lists of ports, hexadecimal text
    bool isCompact = false;  ///< JSON with a member for each family of fields
  };

  EntryDocument(std::string& to, const Layout& layout, std::vector<FieldPlace> fields, Style style);

  void write(U64 index, const U8* bytes);
  void end() { rows_.end(); }

 private:
  /// How a value is written in JSON: found once, because whole tables are written this way.
  enum class Form : U8 { exactNumber, number, value, plainNumber, plainValue, family };

  struct Column {
    FieldPlace place;
    Form form;
    std::string key;          ///< all JSON before the value
    std::string keyAndDigit;  ///< with an object of the value 0
    FieldGroup family{};      ///< the fields of a family
  };

  static std::vector<std::string> columnNames(const Layout& layout,
                                              const std::vector<FieldPlace>& fields);
  static JsonFrame frame(const Layout& layout, const std::vector<FieldPlace>& fields);
  Form formOf(const FieldPlace& place) const;
  void addColumn(const FieldPlace& place);
  static void addExactNumber(TextBuffer& to, const Column& column, U64 number);
  void writeObject(U64 index, const U8* bytes);
  void writeCsv(U64 index, const U8* bytes);

  std::string& to_;
  const Layout& layout_;
  Style style_;
  bool showsReservedBits_;
  RowWriter rows_;
  std::string head_;  ///< JSON before the index of an entry
  std::string tail_;  ///< JSON between the address and the fields
  std::vector<Column> columns_;
};

/// The value of a field as a JSON object: {"hex": ..., "decimal": ..., "ports": [...]}.
std::string valueJson(const FieldPlace& place, const Value& value);
/// The members that say of which table a document is: "table", "chip" and "variant".
std::string sourceJson(const Layout& layout);

}  // namespace Core
}  // namespace Velmar
