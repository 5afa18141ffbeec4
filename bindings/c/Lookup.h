#pragma once

#include "Velmar/Catalogue.h"
#include "c/Names.h"
#include "velmar.h"

// Chips, tables and fields by name, the checks of their combinations, and the messages: what the C
// functions and the command share. Nothing allocates, and nothing throws.

namespace Velmar {
namespace Binding {

/// Keeps a message for velmar_message(), and returns the code. Like the command's, it names what is
/// wrong and, after a semicolon, the remedy.
[[gnu::format(printf, 2, 3)]] velmar_code fail(velmar_code code, const char* format, ...);

/// Index of a chip, by its name or number.
velmar_code findChip(std::string_view name, U32& chip);
/// Index of a table, by its name with or without "Entry" or "Control" at the end.
velmar_code findTable(std::string_view name, U32& table);
/// Index of a field, by accessor, hardware name or identifier, which the chip must have.
velmar_code findField(const Catalogue::Table& table, const Catalogue::Chip& chip,
                      std::string_view name, U32& field);

/// Fails if the table does not exist on the chip and variant.
velmar_code checkLayout(const Catalogue::Table& table, const Catalogue::Chip& chip, U32 variant);
/// Fails if the chip does not have the field.
velmar_code checkField(const Catalogue::Table& table, const Catalogue::Chip& chip, U32 field);

/// An entry that has an address.
struct EntryOfAddress {
  U32 table;
  U32 index;  ///< of the entry, or of the element of a register array
  U32 identifier;
};

/// One of the entries of all tables of a chip and variant that have an address; `nth` counts them.
velmar_code findEntry(const Catalogue::Chip& chip, U32 variant, U32 address, U32 nth,
                      EntryOfAddress& entry);

/// Fails because a value, given as text, has more bits than its field.
velmar_code failTooLarge(const char* field, U32 width, std::string_view value);

/// Whether two fields that are declared one after the other belong to one family: numbered names
/// of one kind, and one meaning.
bool areOfOneFamily(const Catalogue::Field& a, const Catalogue::Field& b);

}  // namespace Binding
}  // namespace Velmar
