#include "Velmar/Version.h"
#include "c/Calls.h"
#include "core/Families.h"

using namespace Velmar;
using namespace Velmar::Binding;

namespace {

constexpr U32 most = 64;  // tables, and chips

constexpr auto layouts = [] {
  std::array<velmar_layout, most * most> all{};
  for (U32 i = 0; i < all.size(); ++i) {
    all[i] = {static_cast<U8>(i / most), static_cast<U8>(i % most)};
  }
  return all;
}();

velmar_code checkMask(const velmar_layout* layout, const U8* mask, size_t size) {
  if (const auto code = checkPointer(mask, "the mask")) return code;
  return checkSize("the mask", size, 4U * geometryOf(layout).words);
}

bool areOfOneFamily(const Catalogue::Table& table, U32 a, U32 b) {
  const U32 length = table.family(a).prefixLength;
  return length != 0 && table.family(b).prefixLength == length &&
         std::memcmp(table.field(a).accessor, table.field(b).accessor, length) == 0;
}

/// The family of a field: its fields that a chip has, or that any chip has.
void addFamily(velmar_field& facts, const Catalogue::Table& table, std::optional<U32> chip) {
  facts.family_first = facts.index;
  for (U32 i = 0; facts.family_letters != 0 && i < table.fieldCount(); ++i) {
    if ((chip && table.range(i, *chip).width == 0) || !areOfOneFamily(table, facts.index, i))
      continue;
    if (facts.family_fields++ == 0) facts.family_first = i;
  }
}

/// A field of a table, without its bits and its family.
velmar_field fieldFacts(const Catalogue::Table& table, U32 index) {
  const Catalogue::Field field = table.field(index);
  const Catalogue::Family family = table.family(index);
  return {field.accessor,
          field.hardwareName,
          field.meaning,
          index,
          field.id,
          static_cast<U32>(field.type),
          0,
          0,
          field.overlaps,
          family.prefixLength,
          family.number,
          0,
          0};
}

constexpr size_t firstFieldSize = offsetof(velmar_field, family_first);

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

/// A field with its bits on a chip, which has it. `earlier`: one that is known, perhaps of its family.
velmar_field fieldOn(const velmar_layout* layout, U32 field, const velmar_field& earlier = {}) {
  const Catalogue::Table table = tableOf(layout);
  const U32 chip = chipOf(layout).number;
  const Catalogue::BitRange range = table.range(field, chip);
  velmar_field facts = fieldFacts(table, field);
  if (earlier.family_fields != 0 && areOfOneFamily(table, earlier.index, field)) {
    facts.family_first = earlier.family_first;
    facts.family_fields = earlier.family_fields;
  } else {
    addFamily(facts, table, chip);
  }
  facts.first_bit = range.offset;
  facts.bits = range.width;
  facts.overlaps = 0;
  forEachShared(layout, field, [&facts](U32, U32) { facts.overlaps = 1; });
  return facts;
}

}  // namespace

namespace Velmar {
namespace Binding {

velmar_code checkTable(U32 table) {
  return checkIndex("table", table, std::min(Catalogue::tableCount(), most));
}

velmar_code checkChip(U32 chip) {
  return checkIndex("chip", chip, std::min(Catalogue::chipCount(), most));
}

velmar_code checkField(const velmar_layout* layout, U32 field) {
  if (const auto code = checkPointer(layout, "the layout")) return code;
  const Catalogue::Table table = tableOf(layout);
  if (const auto code = checkIndex("field", field, table.fieldCount())) return code;
  if (table.range(field, chipOf(layout).number).width != 0) return VELMAR_OK;
  return fail(Core::checkField(table, chipOf(layout), field).error());
}

}  // namespace Binding
}  // namespace Velmar

const char* velmar_version() { return Velmar::version(); }
uint32_t velmar_chip_count() { return Catalogue::chipCount(); }
uint32_t velmar_table_count() { return Catalogue::tableCount(); }

velmar_code velmar_chip_info(uint32_t chip, velmar_chip* info, size_t size) {
  if (const auto code = checkChip(chip)) return code;
  const Catalogue::Chip found = Catalogue::chip(chip);
  return give(velmar_chip{found.name, chip, found.number}, info, size);
}

velmar_code velmar_table_info(uint32_t table, velmar_table* info, size_t size) {
  if (const auto code = checkTable(table)) return code;
  const Catalogue::Table found = Catalogue::table(table);
  return give(velmar_table{found.name(), found.purpose(), table, static_cast<U32>(found.kind()),
                           found.fieldCount(), 0},
              info, size);
}

velmar_code velmar_field_info(uint32_t table, uint32_t field, velmar_field* info, size_t size) {
  if (const auto code = checkTable(table)) return code;
  const Catalogue::Table found = Catalogue::table(table);
  if (const auto code = checkIndex("field", field, found.fieldCount())) return code;
  velmar_field facts = fieldFacts(found, field);
  addFamily(facts, found, std::nullopt);
  return give(facts, info, size, firstFieldSize);
}

velmar_code velmar_find_chip(const char* name, uint32_t* chip) {
  if (const auto code = checkPointers({{name, "the name"}, {chip, "the chip"}})) return code;
  return take(Core::findChipIndex(name), *chip);
}

velmar_code velmar_find_table(const char* name, uint32_t* table) {
  if (const auto code = checkPointers({{name, "the name"}, {table, "the table"}})) return code;
  return take(Core::findTableIndex(name), *table);
}

velmar_code velmar_find_field(const velmar_layout* layout, const char* name, uint32_t* field) {
  if (const auto code =
          checkPointers({{layout, "the layout"}, {name, "the name"}, {field, "the field"}}))
    return code;
  auto found = Core::findField(tableOf(layout), chipOf(layout), name);
  // What the core advises for a family are many fields, too.
  if (!found && found.error().code == Code::ambiguous) {
    found.error().advise("give one of them, with its number");
  }
  return take(found, *field);
}

velmar_code velmar_find_fields(const velmar_layout* layout, const char* name, uint32_t* fields,
                               size_t room, size_t* count) {
  if (const auto code = checkPointers({{layout, "the layout"},
                                       {name, "the name"},
                                       {fields, "the array"},
                                       {count, "the count"}}))
    return code;
  const U32 fieldCount = geometryOf(layout).fieldCount;
  if (room < fieldCount) return checkSize("the array", room, fieldCount, "fields");
  return allocating([&] {
    const auto own = Core::Layout::of(tableOf(layout), chipOf(layout), 0);
    if (!own) return fail(own.error());
    const auto found = Core::findMembers(*own, name);
    if (!found) return fail(found.error());
    for (size_t i = 0; i < found->size(); ++i) fields[i] = (*found)[i].index;
    *count = found->size();
    return VELMAR_OK;
  });
}

velmar_code velmar_field_of_id(const velmar_layout* layout, uint32_t id, uint32_t* field) {
  Core::Text name;
  name.append("{}", id);
  return velmar_find_field(layout, name.text(), field);
}

velmar_code velmar_layout_of(uint32_t table, uint32_t chip, uint32_t variant,
                             const velmar_layout** layout) {
  if (const auto code = checkPointer(layout, "the layout")) return code;
  if (const auto code = checkTable(table)) return code;
  if (const auto code = checkChip(chip)) return code;
  const velmar_layout* found = &layouts[most * table + chip];
  const Core::Done done = Core::checkLayout(tableOf(found), chipOf(found), variant);
  if (!done) return fail(done.error());
  *layout = found;
  return VELMAR_OK;
}

velmar_code velmar_find_layout(const char* table, const char* chip, uint32_t variant,
                               const velmar_layout** layout) {
  U32 tableIndex = 0;
  U32 chipIndex = 0;
  if (const auto code = velmar_find_table(table, &tableIndex)) return code;
  if (const auto code = velmar_find_chip(chip, &chipIndex)) return code;
  return velmar_layout_of(tableIndex, chipIndex, variant, layout);
}

velmar_code velmar_layout_info(const velmar_layout* layout, velmar_layout_facts* info,
                               size_t size) {
  if (const auto code = checkPointer(layout, "the layout")) return code;
  const Catalogue::Geometry own = geometryOf(layout);
  return give(velmar_layout_facts{layout->table, layout->chip, static_cast<U32>(own.variants),
                                  own.fieldCount, 4U * own.words, own.words, own.entries,
                                  own.arrayElements, own.identifiers, own.base, own.addrStride,
                                  own.identifierTerm, own.accessType, own.block},
              info, size);
}

velmar_code velmar_layout_field(const velmar_layout* layout, uint32_t field, velmar_field* info,
                                size_t size) {
  if (const auto code = checkField(layout, field)) return code;
  return give(fieldOn(layout, field), info, size, firstFieldSize);
}

velmar_code velmar_fields_of(const velmar_layout* layout, velmar_field* fields, size_t size,
                             size_t count) {
  if (const auto code = checkPointers({{layout, "the layout"}, {fields, "the array"}})) return code;
  const U32 own = geometryOf(layout).fieldCount;
  if (const auto code = checkSize("the array", count, own, "fields")) return code;
  U8* into = reinterpret_cast<U8*>(fields);
  velmar_field facts{};
  for (U32 i = 0; i < tableOf(layout).fieldCount(); ++i) {
    if (tableOf(layout).range(i, chipOf(layout).number).width == 0) continue;
    facts = fieldOn(layout, i, facts);
    velmar_field* const one = reinterpret_cast<velmar_field*>(into);
    if (const auto code = give(facts, one, size, firstFieldSize)) return code;
    into += size;
  }
  return VELMAR_OK;
}

velmar_code velmar_field_mask(const velmar_layout* layout, uint8_t* mask, size_t size) {
  if (const auto code = checkPointer(layout, "the layout")) return code;
  if (const auto code = checkMask(layout, mask, size)) return code;
  Core::fieldMask(tableOf(layout), chipOf(layout), mask);
  return VELMAR_OK;
}

velmar_code velmar_shared_mask(const velmar_layout* layout, uint32_t field, uint8_t* mask,
                               size_t size) {
  if (const auto code = checkField(layout, field)) return code;
  if (const auto code = checkMask(layout, mask, size)) return code;
  std::memset(mask, 0, size);
  forEachShared(layout, field, [mask](U32 begin, U32 end) {
    for (U32 bit = begin; bit < end; ++bit) Core::setBit(mask, bit);
  });
  return VELMAR_OK;
}

velmar_code velmar_address(const velmar_layout* layout, uint32_t index, uint32_t identifier,
                           uint32_t* address) {
  if (const auto code = checkPointers({{layout, "the layout"}, {address, "the address"}}))
    return code;
  const Catalogue::Geometry geometry = geometryOf(layout);
  const char* what = geometry.addrStride == 0 ? "entry" : "element";
  if (const auto code = checkIndex(what, index, Core::indexCount(geometry))) return code;
  if (const auto code = checkIndex("identifier", identifier, geometry.identifiers)) return code;
  *address = Core::addressOf(geometry, index, identifier);
  return VELMAR_OK;
}

velmar_code velmar_entry_at(uint32_t chip, uint32_t variant, uint32_t address, uint32_t nth,
                            velmar_place* place, size_t size) {
  if (const auto code = checkChip(chip)) return code;
  Core::EntryOfAddress entry{};
  const auto found = Core::findEntry(Catalogue::chip(chip), variant, address, nth);
  if (const auto code = take(found, entry)) return code;
  return give(velmar_place{&layouts[most * entry.table + chip], entry.index, entry.identifier},
              place, size);
}
