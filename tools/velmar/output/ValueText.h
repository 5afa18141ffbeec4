#pragma once

#include "model/Families.h"
#include "model/Formatting.h"
#include "model/Value.h"
#include "output/Append.h"

// Values of fields as the formats show them.

namespace Tool {

/// Whether a decimal number of so many bits is exact in every JSON reader.
constexpr bool isExactInJson(U32 bits) { return bits <= 53; }

/// The type of a value for people, such as "U16" or "bitmap".
inline const char* shortNameOf(Catalogue::ValueType type) {
  return type == Catalogue::ValueType::bitmap ? "bitmap" : Catalogue::valueTypeName(type);
}

/// A value for spreadsheets: decimal where that is exact, bitmaps as ports.
std::string plainText(const FieldPlace& place, const Value& value);

/// The values of a family, the fields of one value together: "3: 1-9,11-20  0: 0,10".
std::string familyText(const FieldGroup& family, const U8* entry, U32 entryBytes);

/// Bit ranges as tables show them, with the colons below each other.
std::string alignedBits(const Layout& layout, const std::string& bits);

/// The value of a field as a JSON object.
std::string valueJson(const FieldPlace& place, const U8* entry, U32 entryBytes);
/// Appends that object without its beginning, `{"hex":"0x`, to a buffer with enough room.
char* appendWideJson(char* at, const FieldPlace& place, const U8* entry, U32 entryBytes);
inline char* appendValueJson(char* at, const FieldPlace& place, const U8* entry, U32 entryBytes) {
  if (!place.isScalar()) return appendWideJson(at, place, entry, entryBytes);
  const U64 value = readScalar(place, entry, entryBytes);
  at = appendHex(at, value);
  *at++ = '"';
  if (isExactInJson(place.width)) at = appendDecimal(append(at, R"(,"decimal":)"), value);
  *at++ = '}';
  return at;
}
/// Appends the value alone: a number where it is exact, a list of ports, or hexadecimal text.
char* appendPlainJson(char* at, const FieldPlace& place, const U8* entry, U32 entryBytes);
/// The members that say of which table a document is: "table", "chip" and "variant".
std::string sourceJson(const Layout& layout);
/// Room for any value of a field.
size_t longestValueJson(const FieldPlace& place);

/// The reserved bits of an entry, as a hexadecimal number of the whole entry.
std::string reservedBits(const Layout& layout, const U8* entry);

}  // namespace Tool
