#include <algorithm>
#include <array>
#include <cstring>

#include "Velmar/Version.h"
#include "c/Access.h"
#include "c/Lookup.h"

using namespace Velmar;
using namespace Velmar::Binding;

/// A layout is the address of one of these.
struct velmar_layout {
  U8 table;
  U8 chip;
};

namespace {

constexpr U32 most = 64;  // tables, and chips

constexpr auto layouts = [] {
  std::array<velmar_layout, most * most> all{};
  for (U32 i = 0; i < all.size(); ++i) {
    all[i] = {static_cast<U8>(i / most), static_cast<U8>(i % most)};
  }
  return all;
}();

Catalogue::Table tableOf(const velmar_layout* layout) { return Catalogue::table(layout->table); }
Catalogue::Chip chipOf(const velmar_layout* layout) { return Catalogue::chip(layout->chip); }
Catalogue::Geometry geometryOf(const velmar_layout* layout) {
  return tableOf(layout).geometry(chipOf(layout).number);
}

velmar_code checkPointer(const void* pointer, const char* name) {
  if (pointer != nullptr) return VELMAR_OK;
  return fail(VELMAR_NULL, "%s is NULL; give a pointer to it", name);
}

velmar_code checkIndex(const char* what, U32 index, U32 count) {
  if (index < count) return VELMAR_OK;
  return fail(VELMAR_INDEX, "there is no %s %u; give 0 to %u", what, index, count - 1);
}

velmar_code checkTable(U32 table) {
  return checkIndex("table", table, std::min(Catalogue::tableCount(), most));
}

velmar_code checkChip(U32 chip) {
  return checkIndex("chip", chip, std::min(Catalogue::chipCount(), most));
}

/// The field of a layout, which the chip has.
velmar_code checkField(const velmar_layout* layout, U32 field) {
  if (const velmar_code code = checkPointer(layout, "the layout")) return code;
  const Catalogue::Table table = tableOf(layout);
  if (const velmar_code code = checkIndex("field", field, table.fieldCount())) return code;
  return Binding::checkField(table, chipOf(layout), field);
}

velmar_code checkSize(const char* what, size_t size, size_t expected, const char* unit = "bytes") {
  if (size == expected) return VELMAR_OK;
  return fail(VELMAR_SIZE, "%s has %zu %s; give %zu", what, size, unit, expected);
}

velmar_code checkMask(const velmar_layout* layout, const U8* mask, size_t size) {
  if (const velmar_code code = checkPointer(mask, "the mask")) return code;
  return checkSize("the mask", size, 4U * geometryOf(layout).words);
}

/// Gives a structure to a caller, who may have an earlier or a later one. `first`: the size in the
/// first release.
template <class Facts>
velmar_code give(const Facts& facts, Facts* into, size_t size, size_t first = sizeof(Facts)) {
  if (const velmar_code code = checkPointer(into, "the structure")) return code;
  if (size < first) {
    return fail(VELMAR_SIZE, "the structure has %zu bytes; give sizeof, at least %zu", size, first);
  }
  std::memcpy(into, &facts, std::min(size, sizeof(facts)));
  if (size > sizeof(facts)) {
    std::memset(reinterpret_cast<U8*>(into) + sizeof(facts), 0, size - sizeof(facts));
  }
  return VELMAR_OK;
}

/// A field of a table, without its bits.
velmar_field fieldFacts(const Catalogue::Table& table, U32 index) {
  const Catalogue::Field field = table.field(index);
  velmar_field facts = {field.accessor,
                        field.hardwareName,
                        field.meaning,
                        index,
                        field.id,
                        static_cast<U32>(field.type),
                        0,
                        0,
                        field.overlaps,
                        0,
                        0};
  const bool isOfFamily =
      (index > 0 && areOfOneFamily(table.field(index - 1), field)) ||
      (index + 1 < table.fieldCount() && areOfOneFamily(field, table.field(index + 1)));
  if (isOfFamily) {
    const NumberedName name = *numberedName(field.accessor);
    facts.family_letters = static_cast<U32>(name.prefix.size());
    facts.family_number = name.number;
  }
  return facts;
}

/// Calls `use` with each range of bits that a field has in common with another field of the chip.
template <class Use>
void forEachShared(const velmar_layout* layout, U32 field, Use use) {
  const Catalogue::Table table = tableOf(layout);
  const U32 chip = chipOf(layout).number;
  const Catalogue::BitRange own = table.range(field, chip);
  for (U32 i = 0; i < table.fieldCount(); ++i) {
    const Catalogue::BitRange other = table.range(i, chip);
    const U32 begin = std::max<U32>(own.offset, other.offset);
    const U32 end = std::min<U32>(own.offset + own.width, other.offset + other.width);
    if (i != field && begin < end) use(begin, end);
  }
}

/// How a caller holds a value: as one number, as bytes, or as words.
enum class Form { number, bytes, words };
constexpr const char* formNames[] = {"numbers", "bytes", "words"};
constexpr U32 formBytes[] = {8, 1, 4};

/// The arguments of a call that reads or writes a field of an entry, or of all entries of a dump.
struct Call {
  const velmar_layout* layout;
  U32 field;
  const void* data;
  size_t size;
  Form form;
  const void* values;
  size_t count;
  bool isColumn = false;
};

/// What they come to.
struct Access {
  U32 entryBytes;
  size_t entries;
  Catalogue::BitRange range;
  U32 valueBytes;
};

velmar_code checkDump(const Call& call, const Access& access) {
  const U32 entries = indexCount(geometryOf(call.layout));
  if (call.size % access.entryBytes != 0) {
    return fail(VELMAR_SIZE, "the dump has %zu bytes; give whole entries of %u bytes", call.size,
                access.entryBytes);
  }
  if (access.entries <= entries) return VELMAR_OK;
  return fail(VELMAR_SIZE, "the dump has %zu entries; give at most %u, as many as %s on %s has",
              access.entries, entries, tableOf(call.layout).name(), chipOf(call.layout).name);
}

velmar_code check(const Call& call, Access& access) {
  if (const velmar_code code = checkField(call.layout, call.field)) return code;
  if (const velmar_code code = checkPointer(call.data, "the entry")) return code;
  if (const velmar_code code = checkPointer(call.values, "the value")) return code;
  const Catalogue::Table table = tableOf(call.layout);
  access.entryBytes = 4U * geometryOf(call.layout).words;
  access.entries = call.isColumn ? call.size / access.entryBytes : 1;
  access.range = table.range(call.field, chipOf(call.layout).number);
  const U32 unit = formBytes[static_cast<U32>(call.form)];
  const U32 units = (access.range.width + 8 * unit - 1) / (8 * unit);
  access.valueBytes = units * unit;
  if (call.form == Form::number && units > 1) {
    return fail(VELMAR_WIDE, "%s has %u bits; read and write words or bytes",
                table.field(call.field).accessor, access.range.width);
  }
  const velmar_code code = call.isColumn ? checkDump(call, access)
                                         : checkSize("the entry", call.size, access.entryBytes);
  if (code != VELMAR_OK) return code;
  return checkSize("the value", call.count, access.entries * units,
                   formNames[static_cast<U32>(call.form)]);
}

velmar_code read(const Call& call, void* values) {
  Access access;
  if (const velmar_code code = check(call, access)) return code;
  std::memset(values, 0, access.entries * access.valueBytes);
  const U8* entry = static_cast<const U8*>(call.data);
  U8* value = static_cast<U8*>(values);
  for (size_t i = 0; i < access.entries; ++i) {
    readBits(entry, access.entryBytes, access.range.offset, access.range.width, value,
             access.valueBytes);
    entry += access.entryBytes;
    value += access.valueBytes;
  }
  return VELMAR_OK;
}

velmar_code checkFits(const Call& call, const Access& access) {
  const U8* value = static_cast<const U8*>(call.values);
  const U32 last = (access.range.width - 1) / 8;
  U32 above = value[last] >> ((access.range.width - 1) % 8 + 1);
  for (U32 i = last + 1; i < access.valueBytes; ++i) above |= value[i];
  if (above == 0) return VELMAR_OK;
  Text text;
  if (call.form == Form::number) {
    text.append("%llu", static_cast<unsigned long long>(*static_cast<const U64*>(call.values)));
  } else {
    text.append("0x");
    for (U32 i = access.valueBytes; i-- > 0;) text.append("%02x", value[i]);
  }
  return failTooLarge(tableOf(call.layout).field(call.field).accessor, access.range.width,
                      text.text());
}

velmar_code write(const Call& call, void* entry) {
  Access access;
  if (const velmar_code code = check(call, access)) return code;
  if (const velmar_code code = checkFits(call, access)) return code;
  writeBits(static_cast<U8*>(entry), access.entryBytes, access.range.offset, access.range.width,
            call.values, access.valueBytes);
  return VELMAR_OK;
}

}  // namespace

const char* velmar_version() { return Velmar::version(); }
uint32_t velmar_chip_count() { return Catalogue::chipCount(); }
uint32_t velmar_table_count() { return Catalogue::tableCount(); }

velmar_code velmar_chip_info(uint32_t chip, velmar_chip* info, size_t size) {
  if (const velmar_code code = checkChip(chip)) return code;
  const Catalogue::Chip found = Catalogue::chip(chip);
  return give(velmar_chip{found.name, chip, found.number}, info, size);
}

velmar_code velmar_table_info(uint32_t table, velmar_table* info, size_t size) {
  if (const velmar_code code = checkTable(table)) return code;
  const Catalogue::Table found = Catalogue::table(table);
  return give(velmar_table{found.name(), found.purpose(), table, static_cast<U32>(found.kind()),
                           found.fieldCount(), 0},
              info, size);
}

velmar_code velmar_field_info(uint32_t table, uint32_t field, velmar_field* info, size_t size) {
  if (const velmar_code code = checkTable(table)) return code;
  const Catalogue::Table found = Catalogue::table(table);
  if (const velmar_code code = checkIndex("field", field, found.fieldCount())) return code;
  return give(fieldFacts(found, field), info, size);
}

velmar_code velmar_find_chip(const char* name, uint32_t* chip) {
  if (const velmar_code code = checkPointer(name, "the name")) return code;
  if (const velmar_code code = checkPointer(chip, "the chip")) return code;
  return findChip(name, *chip);
}

velmar_code velmar_find_table(const char* name, uint32_t* table) {
  if (const velmar_code code = checkPointer(name, "the name")) return code;
  if (const velmar_code code = checkPointer(table, "the table")) return code;
  return findTable(name, *table);
}

velmar_code velmar_find_field(const velmar_layout* layout, const char* name, uint32_t* field) {
  if (const velmar_code code = checkPointer(layout, "the layout")) return code;
  if (const velmar_code code = checkPointer(name, "the name")) return code;
  if (const velmar_code code = checkPointer(field, "the field")) return code;
  return findField(tableOf(layout), chipOf(layout), name, *field);
}

velmar_code velmar_field_of_id(const velmar_layout* layout, uint32_t id, uint32_t* field) {
  Text name;
  name.append("%u", id);
  return velmar_find_field(layout, name.text(), field);
}

velmar_code velmar_layout_of(uint32_t table, uint32_t chip, uint32_t variant,
                             const velmar_layout** layout) {
  if (const velmar_code code = checkPointer(layout, "the layout")) return code;
  if (const velmar_code code = checkTable(table)) return code;
  if (const velmar_code code = checkChip(chip)) return code;
  const velmar_layout* found = &layouts[most * table + chip];
  const velmar_code code = checkLayout(tableOf(found), chipOf(found), variant);
  if (code == VELMAR_OK) *layout = found;
  return code;
}

velmar_code velmar_find_layout(const char* table, const char* chip, uint32_t variant,
                               const velmar_layout** layout) {
  U32 tableIndex = 0;
  U32 chipIndex = 0;
  if (const velmar_code code = velmar_find_table(table, &tableIndex)) return code;
  if (const velmar_code code = velmar_find_chip(chip, &chipIndex)) return code;
  return velmar_layout_of(tableIndex, chipIndex, variant, layout);
}

velmar_code velmar_layout_info(const velmar_layout* layout, velmar_layout_facts* info,
                               size_t size) {
  if (const velmar_code code = checkPointer(layout, "the layout")) return code;
  const Catalogue::Geometry own = geometryOf(layout);
  return give(velmar_layout_facts{layout->table, layout->chip, static_cast<U32>(own.variants),
                                  own.fieldCount, 4U * own.words, own.words, own.entries,
                                  own.arrayElements, own.identifiers, own.base, own.addrStride,
                                  own.identifierTerm, own.accessType, own.block},
              info, size);
}

velmar_code velmar_layout_field(const velmar_layout* layout, uint32_t field, velmar_field* info,
                                size_t size) {
  if (const velmar_code code = checkField(layout, field)) return code;
  const Catalogue::BitRange range = tableOf(layout).range(field, chipOf(layout).number);
  velmar_field facts = fieldFacts(tableOf(layout), field);
  facts.first_bit = range.offset;
  facts.bits = range.width;
  facts.overlaps = 0;
  forEachShared(layout, field, [&facts](U32, U32) { facts.overlaps = 1; });
  return give(facts, info, size);
}

velmar_code velmar_field_mask(const velmar_layout* layout, uint8_t* mask, size_t size) {
  if (const velmar_code code = checkPointer(layout, "the layout")) return code;
  if (const velmar_code code = checkMask(layout, mask, size)) return code;
  Binding::fieldMask(tableOf(layout), chipOf(layout), mask);
  return VELMAR_OK;
}

velmar_code velmar_shared_mask(const velmar_layout* layout, uint32_t field, uint8_t* mask,
                               size_t size) {
  if (const velmar_code code = checkField(layout, field)) return code;
  if (const velmar_code code = checkMask(layout, mask, size)) return code;
  std::memset(mask, 0, size);
  forEachShared(layout, field, [mask](U32 begin, U32 end) {
    for (U32 bit = begin; bit < end; ++bit) setBit(mask, bit);
  });
  return VELMAR_OK;
}

velmar_code velmar_read(const velmar_layout* layout, uint32_t field, const void* entry,
                        size_t entry_size, uint64_t* value) {
  return read({layout, field, entry, entry_size, Form::number, value, 1}, value);
}

velmar_code velmar_write(const velmar_layout* layout, uint32_t field, void* entry,
                         size_t entry_size, uint64_t value) {
  return write({layout, field, entry, entry_size, Form::number, &value, 1}, entry);
}

velmar_code velmar_read_bytes(const velmar_layout* layout, uint32_t field, const void* entry,
                              size_t entry_size, uint8_t* bytes, size_t size) {
  return read({layout, field, entry, entry_size, Form::bytes, bytes, size}, bytes);
}

velmar_code velmar_write_bytes(const velmar_layout* layout, uint32_t field, void* entry,
                               size_t entry_size, const uint8_t* bytes, size_t size) {
  return write({layout, field, entry, entry_size, Form::bytes, bytes, size}, entry);
}

velmar_code velmar_read_words(const velmar_layout* layout, uint32_t field, const void* entry,
                              size_t entry_size, uint32_t* words, size_t count) {
  return read({layout, field, entry, entry_size, Form::words, words, count}, words);
}

velmar_code velmar_write_words(const velmar_layout* layout, uint32_t field, void* entry,
                               size_t entry_size, const uint32_t* words, size_t count) {
  return write({layout, field, entry, entry_size, Form::words, words, count}, entry);
}

velmar_code velmar_read_column(const velmar_layout* layout, uint32_t field, const void* dump,
                               size_t dump_size, uint64_t* values, size_t count) {
  return read({layout, field, dump, dump_size, Form::number, values, count, true}, values);
}

velmar_code velmar_read_word_column(const velmar_layout* layout, uint32_t field, const void* dump,
                                    size_t dump_size, uint32_t* words, size_t count) {
  return read({layout, field, dump, dump_size, Form::words, words, count, true}, words);
}

velmar_code velmar_address(const velmar_layout* layout, uint32_t index, uint32_t identifier,
                           uint32_t* address) {
  if (const velmar_code code = checkPointer(layout, "the layout")) return code;
  if (const velmar_code code = checkPointer(address, "the address")) return code;
  const Catalogue::Geometry geometry = geometryOf(layout);
  const char* what = geometry.addrStride == 0 ? "entry" : "element";
  if (const velmar_code code = checkIndex(what, index, indexCount(geometry))) return code;
  if (const velmar_code code = checkIndex("identifier", identifier, geometry.identifiers)) {
    return code;
  }
  *address = addressOf(geometry, index, identifier);
  return VELMAR_OK;
}

velmar_code velmar_entry_at(uint32_t chip, uint32_t variant, uint32_t address, uint32_t nth,
                            velmar_place* place, size_t size) {
  if (const velmar_code code = checkChip(chip)) return code;
  EntryOfAddress entry{};
  const velmar_code code = findEntry(Catalogue::chip(chip), variant, address, nth, entry);
  if (code != VELMAR_OK) return code;
  return give(velmar_place{&layouts[most * entry.table + chip], entry.index, entry.identifier},
              place, size);
}
