#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "core/Layout.h"

namespace Velmar {
namespace Core {

using Value = FieldValue;

/// The largest number of bits for which every JSON reader keeps a decimal number exact.
constexpr U32 exactBits = Value::exactBits;

/// A scalar field's value, for the loops that must be fast.
U64 readScalar(const FieldPlace& place, const U8* entry, U32 entryBytes);

/// A value as it is typed: a number, decimal or hexadecimal; for a bitmap a list of ports such as
/// "0-3,17", "none", or a hexadecimal number. A fault if it does not fit the field.
Expected<Value> parseValue(const FieldPlace& place, std::string_view text);
/// The value of a number; a fault if it does not fit the field.
Expected<Value> makeValue(const FieldPlace& place, U64 number);
/// Adds a port to a bitmap's value; a fault if the bitmap does not have it.
Done addPort(const FieldPlace& place, Value& value, U64 port);

/// The reserved bits that are set in an entry, as a hexadecimal number of the whole entry.
std::string reservedBits(const Layout& layout, const U8* entry);
/// A value for spreadsheets: decimal if that is exact, bitmaps as ports.
inline std::string plainText(const FieldPlace& place, const Value& value) {
  return value.text(place.field.type);
}

}  // namespace Core
}  // namespace Velmar
