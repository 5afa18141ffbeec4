#pragma once

#include "model/Value.h"
#include "output/Append.h"

// Values of fields as the formats show them.

namespace Tool {

/// Whether a decimal number of so many bits is exact in every JSON reader.
constexpr bool isExactInJson(U32 bits) { return bits <= 53; }

/// A value for spreadsheets: decimal where that is exact, bitmaps as ports.
std::string plainText(const FieldPlace& place, const Value& value);

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
/// Room for any value of a field.
size_t longestValueJson(const FieldPlace& place);

/// The reserved bits of an entry, as a hexadecimal number of the whole entry.
std::string reservedBits(const Layout& layout, const U8* entry);

}  // namespace Tool
