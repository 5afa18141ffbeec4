// Every table, chip and field through the C interface, with random entries, against a model that
// works bit by bit; every code with every argument that leads to it; and eight threads at once.

#include <pthread.h>
#include <stdio.h>
#include <string.h>

#include "velmar.h"

enum { dumpEntries = 5, mostBytes = 256, mostFields = 256, threads = 8, guard = 0xa5 };

typedef struct Sweep {
  uint64_t random;
  unsigned failures;
  const char* where;
} Sweep;

#define EXPECT(condition)                                                                   \
  do {                                                                                      \
    if (!(condition) && ++sweep->failures < 10) {                                           \
      fprintf(stderr, "%s:%d: %s: %s (%s)\n", __FILE__, __LINE__, sweep->where, #condition, \
              velmar_message());                                                            \
    }                                                                                       \
  } while (0)

/// A failure leaves a message with a remedy.
#define EXPECT_CODE(expected, call)                                           \
  do {                                                                        \
    EXPECT((call) == (expected));                                             \
    EXPECT((expected) == VELMAR_OK || strchr(velmar_message(), ';') != NULL); \
  } while (0)

static uint64_t nextRandom(Sweep* sweep) {
  sweep->random ^= sweep->random << 13;
  sweep->random ^= sweep->random >> 7;
  sweep->random ^= sweep->random << 17;
  return sweep->random;
}

static void fill(Sweep* sweep, void* into, size_t size) {
  for (size_t i = 0; i < size; ++i) ((uint8_t*)into)[i] = (uint8_t)(nextRandom(sweep) >> 32);
}

static unsigned bitOf(const void* bytes, size_t bit) {
  return ((const uint8_t*)bytes)[bit / 8] >> bit % 8 & 1;
}

/// Whether two entries are the same except for the bits of a field, which `value` has in `after`.
static int isWritten(const uint8_t* before, const uint8_t* after, size_t bits,
                     const velmar_field* field, const void* value) {
  for (size_t bit = 0; bit < bits; ++bit) {
    const size_t at = bit - field->first_bit;
    const unsigned expected = at < field->bits ? bitOf(value, at) : bitOf(before, bit);
    if (bitOf(after, bit) != expected) return 0;
  }
  return 1;
}

static void checkReads(Sweep* sweep, const velmar_layout* layout, const velmar_field* field,
                       const uint8_t* dump, size_t entryBytes, size_t entries) {
  const size_t words = (field->bits + 31) / 32;
  const size_t bytes = (field->bits + 7) / 8;
  const int isWide = field->bits > 64;
  uint32_t all[dumpEntries * mostBytes / 4];
  uint64_t numbers[dumpEntries];
  EXPECT_CODE(VELMAR_OK, velmar_read_word_column(layout, field->index, dump, entries * entryBytes,
                                                 all, entries * words));
  EXPECT_CODE(
      isWide ? VELMAR_WIDE : VELMAR_OK,
      velmar_read_column(layout, field->index, dump, entries * entryBytes, numbers, entries));
  for (size_t i = 0; i < entries; ++i) {
    const uint8_t* entry = dump + i * entryBytes;
    uint32_t value[mostBytes / 4 + 1];
    uint8_t narrow[mostBytes + 1];
    uint64_t number = 0;
    value[words] = narrow[bytes] = guard;
    EXPECT_CODE(VELMAR_OK,
                velmar_read_words(layout, field->index, entry, entryBytes, value, words));
    EXPECT_CODE(VELMAR_OK,
                velmar_read_bytes(layout, field->index, entry, entryBytes, narrow, bytes));
    EXPECT_CODE(isWide ? VELMAR_WIDE : VELMAR_OK,
                velmar_read(layout, field->index, entry, entryBytes, &number));
    for (size_t bit = 0; bit < 32 * words; ++bit) {
      const unsigned expected = bit < field->bits ? bitOf(entry, field->first_bit + bit) : 0;
      EXPECT(bitOf(value, bit) == expected);
      EXPECT(isWide || bitOf(&number, bit) == expected);
    }
    EXPECT(memcmp(value, narrow, bytes) == 0 && value[words] == guard && narrow[bytes] == guard);
    EXPECT(memcmp(all + i * words, value, 4 * words) == 0);
    EXPECT(isWide || numbers[i] == number);
  }
}

static void checkWrites(Sweep* sweep, const velmar_layout* layout, const velmar_field* field,
                        const uint8_t* entry, size_t entryBytes) {
  const size_t words = (field->bits + 31) / 32;
  const size_t bytes = (field->bits + 7) / 8;
  uint8_t after[mostBytes];
  uint32_t value[mostBytes / 4] = {0};
  fill(sweep, value, bytes);
  if (field->bits % 8 != 0) ((uint8_t*)value)[bytes - 1] &= (uint8_t)((1U << field->bits % 8) - 1);
  memcpy(after, entry, entryBytes);
  EXPECT_CODE(VELMAR_OK, velmar_write_words(layout, field->index, after, entryBytes, value, words));
  EXPECT(isWritten(entry, after, 8 * entryBytes, field, value));
  memcpy(after, entry, entryBytes);
  EXPECT_CODE(VELMAR_OK,
              velmar_write_bytes(layout, field->index, after, entryBytes, (uint8_t*)value, bytes));
  EXPECT(isWritten(entry, after, 8 * entryBytes, field, value));
  memcpy(after, entry, entryBytes);
  if (field->bits <= 64) {
    uint64_t number = 0;
    memcpy(&number, value, bytes);
    EXPECT_CODE(VELMAR_OK, velmar_write(layout, field->index, after, entryBytes, number));
    EXPECT(isWritten(entry, after, 8 * entryBytes, field, value));
    memcpy(after, entry, entryBytes);
    for (uint32_t bit = field->bits; bit < 64; bit += bit < 63 ? 63 - bit : 1) {
      EXPECT_CODE(VELMAR_VALUE, velmar_write(layout, field->index, after, entryBytes,
                                             number | UINT64_C(1) << bit));
    }
  }
  // The bits above the field: the first and the last of a word.
  const uint32_t last = (uint32_t)(32 * words - 1);
  for (uint32_t bit = field->bits; bit <= last; bit += bit < last ? last - bit : 1) {
    value[words - 1] ^= 1U << bit % 32;
    EXPECT_CODE(VELMAR_VALUE,
                velmar_write_words(layout, field->index, after, entryBytes, value, words));
    if (bit < 8 * bytes) {
      EXPECT_CODE(VELMAR_VALUE, velmar_write_bytes(layout, field->index, after, entryBytes,
                                                   (uint8_t*)value, bytes));
    }
    value[words - 1] ^= 1U << bit % 32;
  }
  EXPECT(memcmp(after, entry, entryBytes) == 0);
}

/// Writes columns of random values: as entry by entry, or nothing if the last one does not fit.
static void checkColumnWrites(Sweep* sweep, const velmar_layout* layout, const velmar_field* field,
                              const uint8_t* dump, size_t entryBytes, size_t entries) {
  const size_t words = (field->bits + 31) / 32;
  const size_t size = entries * entryBytes;
  uint8_t expected[dumpEntries * mostBytes], after[dumpEntries * mostBytes];
  uint32_t values[dumpEntries * mostBytes / 4] = {0};
  uint64_t numbers[dumpEntries] = {0};
  memcpy(expected, dump, size);
  memcpy(after, dump, size);
  for (size_t i = 0; i < entries; ++i) {
    uint32_t* const value = values + i * words;
    fill(sweep, value, 4 * words);
    if (field->bits % 32 != 0) value[words - 1] &= (1U << field->bits % 32) - 1;
    if (words <= 2) memcpy(numbers + i, value, 4 * words);
    EXPECT_CODE(VELMAR_OK, velmar_write_words(layout, field->index, expected + i * entryBytes,
                                              entryBytes, value, words));
  }
  EXPECT_CODE(VELMAR_OK,
              velmar_write_word_column(layout, field->index, after, size, values, entries * words));
  EXPECT(memcmp(after, expected, size) == 0);
  memcpy(after, dump, size);
  EXPECT_CODE(words > 2 ? VELMAR_WIDE : VELMAR_OK,
              velmar_write_column(layout, field->index, after, size, numbers, entries));
  EXPECT(memcmp(after, words > 2 ? dump : expected, size) == 0);
  if (field->bits % 32 == 0) return;
  memcpy(after, dump, size);
  values[entries * words - 1] |= UINT32_C(1) << 31;
  numbers[entries - 1] |= UINT64_C(1) << 63;
  velmar_fault fault;
  EXPECT_CODE(VELMAR_VALUE,
              velmar_write_word_column(layout, field->index, after, size, values, entries * words));
  EXPECT_CODE(words > 2 ? VELMAR_WIDE : VELMAR_VALUE,
              velmar_write_column(layout, field->index, after, size, numbers, entries));
  EXPECT(velmar_last_fault(&fault, sizeof fault) == VELMAR_OK &&
         (words > 2 || fault.entry == entries - 1));
  EXPECT(memcmp(after, dump, size) == 0);
}

/// Fields of up to 8 bits at once, in any order, against columns of each.
static void checkFieldsAtOnce(Sweep* sweep, const velmar_layout* layout, const velmar_field* fields,
                              size_t count, const uint8_t* dump, size_t entryBytes,
                              size_t entries) {
  uint32_t chosen[mostFields];
  static _Thread_local uint8_t values[dumpEntries * mostFields];
  uint8_t after[dumpEntries * mostBytes];
  const size_t size = entries * entryBytes;
  const size_t start = (size_t)nextRandom(sweep) % count;
  size_t own = 0;
  for (size_t i = start; i < count; ++i) {
    if (fields[i].bits <= 8) chosen[own++] = fields[i].index;
  }
  if (own == 0) return;
  EXPECT_CODE(VELMAR_OK,
              velmar_read_fields(layout, chosen, own, dump, size, values, own * entries));
  for (size_t i = 0; i < own; ++i) {
    uint64_t numbers[dumpEntries];
    EXPECT_CODE(VELMAR_OK, velmar_read_column(layout, chosen[i], dump, size, numbers, entries));
    for (size_t at = 0; at < entries; ++at) EXPECT(values[at * own + i] == numbers[at]);
  }
  fill(sweep, after, size);
  EXPECT_CODE(VELMAR_OK,
              velmar_write_fields(layout, chosen, own, after, size, values, own * entries));
  for (size_t i = 0; i < own; ++i) {
    uint64_t before[dumpEntries], now[dumpEntries];
    EXPECT(velmar_read_column(layout, chosen[i], dump, size, before, entries) == VELMAR_OK);
    EXPECT(velmar_read_column(layout, chosen[i], after, size, now, entries) == VELMAR_OK);
    EXPECT(memcmp(before, now, entries * sizeof *now) == 0);
  }
  uint64_t number;
  EXPECT(velmar_read(layout, chosen[own - 1], dump, entryBytes, &number) == VELMAR_OK);
  values[own * entries - 1] = 255;
  memcpy(after, dump, size);
  const velmar_code code =
      velmar_write_fields(layout, chosen, own, after, size, values, own * entries);
  EXPECT(code == VELMAR_VALUE || code == VELMAR_OK);
  EXPECT(code == VELMAR_OK || memcmp(after, dump, size) == 0);
  EXPECT_CODE(VELMAR_SIZE,
              velmar_read_fields(layout, chosen, own, dump, size, values, own * entries - 1));
}

/// All fields in one call; a family by its name has as many fields as each of them says.
static void checkFields(Sweep* sweep, const velmar_layout* layout, const velmar_field* fields,
                        size_t count) {
  velmar_field all[mostFields];
  uint32_t found[mostFields];
  size_t number = 0;
  char name[64];
  EXPECT_CODE(VELMAR_SIZE, velmar_fields_of(layout, all, sizeof *all, count + 1));
  EXPECT_CODE(VELMAR_OK, velmar_fields_of(layout, all, sizeof *all, count));
  for (size_t i = 0; i < count; ++i) {
    const velmar_field* field = &fields[i];
    EXPECT(memcmp(&all[i], field, sizeof *field) == 0);
    EXPECT_CODE(VELMAR_OK,
                velmar_find_fields(layout, field->hardware_name, found, mostFields, &number));
    EXPECT(number == 1 && found[0] == field->index);
    if (field->family_letters == 0) EXPECT(field->family_first == field->index);
    if (field->family_letters == 0 || field->family_first != field->index) continue;
    snprintf(name, sizeof name, "%.*s", (int)field->family_letters, field->accessor);
    EXPECT_CODE(VELMAR_OK, velmar_find_fields(layout, name, found, mostFields, &number));
    EXPECT(number == field->family_fields && found[0] == field->index && number > 1);
    snprintf(name, sizeof name, "%s-%u", field->accessor, field->family_number + 3);
    EXPECT_CODE(VELMAR_OK, velmar_find_fields(layout, name, found, mostFields, &number));
    EXPECT(number == 4 && found[3] == field->index + 3);
  }
}

/// Whether a field and the one after it have numbered names of one kind, and one meaning.
static int areOfOneFamily(uint32_t table, uint32_t first) {
  velmar_field pair[2];
  size_t letters[2];
  for (uint32_t i = 0; i < 2; ++i) {
    if (velmar_field_info(table, first + i, &pair[i], sizeof pair[i]) != VELMAR_OK) return 0;
    letters[i] = strlen(pair[i].accessor);
    while (letters[i] > 0 && strchr("0123456789", pair[i].accessor[letters[i] - 1])) --letters[i];
    if (pair[i].accessor[letters[i]] == '\0') return 0;
  }
  return letters[0] == letters[1] && strcmp(pair[0].meaning, pair[1].meaning) == 0 &&
         memcmp(pair[0].accessor, pair[1].accessor, letters[0]) == 0;
}

static void checkNames(Sweep* sweep, const velmar_layout* layout, uint32_t table,
                       const velmar_field* field) {
  char number[16];
  uint32_t found = mostFields;
  snprintf(number, sizeof number, "%u", field->id);
  EXPECT(velmar_find_field(layout, field->accessor, &found) == VELMAR_OK && found == field->index);
  EXPECT(velmar_find_field(layout, field->hardware_name, &found) == VELMAR_OK &&
         found == field->index);
  EXPECT(velmar_find_field(layout, number, &found) == VELMAR_OK && found == field->index);
  EXPECT(velmar_field_of_id(layout, field->id, &found) == VELMAR_OK && found == field->index);
  EXPECT((field->family_letters != 0) ==
         (areOfOneFamily(table, field->index - 1) || areOfOneFamily(table, field->index)));
  if (field->family_letters == 0) return;
  snprintf(number, sizeof number, "%u", field->family_number);
  EXPECT(strcmp(field->accessor + field->family_letters, number) == 0);
}

/// The masks, against the number of fields that have each bit.
static void checkMasks(Sweep* sweep, const velmar_layout* layout, const velmar_field* fields,
                       size_t count, size_t entryBytes) {
  unsigned users[8 * mostBytes] = {0};
  uint8_t mask[mostBytes + 1];
  mask[entryBytes] = guard;
  for (size_t i = 0; i < count; ++i) {
    for (uint32_t bit = 0; bit < fields[i].bits; ++bit) ++users[fields[i].first_bit + bit];
  }
  EXPECT_CODE(VELMAR_OK, velmar_field_mask(layout, mask, entryBytes));
  for (size_t bit = 0; bit < 8 * entryBytes; ++bit) EXPECT(bitOf(mask, bit) == (users[bit] > 0));
  for (size_t i = 0; i < count; ++i) {
    unsigned shared = 0;
    EXPECT_CODE(VELMAR_OK, velmar_shared_mask(layout, fields[i].index, mask, entryBytes));
    for (size_t bit = 0; bit < 8 * entryBytes; ++bit) {
      const int isOwn = bit - fields[i].first_bit < fields[i].bits;
      EXPECT(bitOf(mask, bit) == (isOwn && users[bit] > 1));
      shared |= bitOf(mask, bit);
    }
    EXPECT(fields[i].overlaps == shared);
  }
  EXPECT(mask[entryBytes] == guard);
}

/// All entries of an address have it; returns whether `wanted` is one of them.
static int isEntryAt(Sweep* sweep, uint32_t chip, uint32_t address, const velmar_place* wanted) {
  int isFound = 0;
  for (uint32_t nth = 0;; ++nth) {
    velmar_place place;
    uint32_t own = 0;
    const velmar_code code = velmar_entry_at(chip, 0, address, nth, &place, sizeof place);
    EXPECT(code == VELMAR_OK || code == VELMAR_NO_ENTRY);
    if (code != VELMAR_OK) return isFound;
    EXPECT_CODE(VELMAR_OK, velmar_address(place.layout, place.index, place.identifier, &own));
    EXPECT(own == address);
    isFound |= memcmp(&place, wanted, sizeof place) == 0;
  }
}

static void checkAddresses(Sweep* sweep, const velmar_layout* layout,
                           const velmar_layout_facts* facts) {
  const uint32_t count = facts->entries * facts->elements;
  const uint32_t step = facts->element_step == 0 ? 1 : facts->element_step;
  const uint32_t indexes[] = {0, count - 1, (uint32_t)(nextRandom(sweep) % count)};
  uint32_t address = 0;
  for (uint32_t i = 0; i < 3 * facts->identifiers; ++i) {
    const velmar_place place = {layout, indexes[i % 3], i / 3};
    EXPECT_CODE(VELMAR_OK, velmar_address(layout, place.index, place.identifier, &address));
    EXPECT(address == facts->base + place.index * step + place.identifier * facts->identifier_step);
    EXPECT(isEntryAt(sweep, facts->chip, address, &place));
    EXPECT(!isEntryAt(sweep, facts->chip, address - 1, &place));
    EXPECT(!isEntryAt(sweep, facts->chip, address + 1, &place));
  }
  EXPECT_CODE(VELMAR_INDEX, velmar_address(layout, count, 0, &address));
  EXPECT_CODE(VELMAR_INDEX, velmar_address(layout, 0, facts->identifiers, &address));
}

static void checkLayout(Sweep* sweep, const velmar_layout* layout, uint32_t allFields) {
  static const velmar_field none;
  velmar_layout_facts facts;
  velmar_field fields[mostFields];
  uint8_t dump[dumpEntries * mostBytes];
  size_t count = 0;
  EXPECT_CODE(VELMAR_OK, velmar_layout_info(layout, &facts, sizeof facts));
  EXPECT(facts.entry_bytes <= mostBytes && allFields <= mostFields);
  const uint32_t size = facts.entries * facts.elements;
  const size_t entries = size < dumpEntries ? size : dumpEntries;
  fill(sweep, dump, sizeof dump);
  for (uint32_t i = 0; i < allFields; ++i) {
    velmar_field field = none;
    const velmar_code code = velmar_layout_field(layout, i, &field, sizeof field);
    if (code == VELMAR_OK) {
      fields[count++] = field;
      checkReads(sweep, layout, &field, dump, facts.entry_bytes, entries);
      checkWrites(sweep, layout, &field, dump, facts.entry_bytes);
      checkColumnWrites(sweep, layout, &field, dump, facts.entry_bytes, entries);
      checkNames(sweep, layout, facts.table, &field);
      continue;
    }
    uint64_t value = 0;
    EXPECT_CODE(VELMAR_NOT_ON_CHIP, code);
    EXPECT_CODE(VELMAR_NOT_ON_CHIP, velmar_read(layout, i, dump, facts.entry_bytes, &value));
    EXPECT_CODE(VELMAR_OK, velmar_field_info(facts.table, i, &field, sizeof field));
    EXPECT_CODE(VELMAR_NOT_ON_CHIP, velmar_find_field(layout, field.accessor, &i));
  }
  EXPECT(count == facts.fields);
  checkFields(sweep, layout, fields, count);
  checkFieldsAtOnce(sweep, layout, fields, count, dump, facts.entry_bytes, entries);
  checkMasks(sweep, layout, fields, count, facts.entry_bytes);
  checkAddresses(sweep, layout, &facts);
}

/// Every table on every chip; returns the number of layouts.
static unsigned sweepAll(Sweep* sweep) {
  unsigned layouts = 0;
  for (uint32_t i = 0; i < velmar_table_count() * velmar_chip_count(); ++i) {
    velmar_table table = {NULL, NULL, 0, 0, 0, 0};
    velmar_chip chip = {NULL, 0, 0};
    const velmar_layout* layout = NULL;
    const velmar_layout* same = NULL;
    EXPECT_CODE(VELMAR_OK, velmar_table_info(i / velmar_chip_count(), &table, sizeof table));
    EXPECT_CODE(VELMAR_OK, velmar_chip_info(i % velmar_chip_count(), &chip, sizeof chip));
    sweep->where = table.name;
    const velmar_code code = velmar_layout_of(table.index, chip.index, 0, &layout);
    EXPECT(code == VELMAR_OK || code == VELMAR_NOT_ON_CHIP);
    EXPECT_CODE(code, velmar_find_layout(table.name, chip.name, 0, &same));
    EXPECT(layout == same);
    if (layout == NULL) continue;
    checkLayout(sweep, layout, table.field_count);
    ++layouts;
  }
  return layouts;
}

static void checkNullPointers(Sweep* sweep, const velmar_layout* layout) {
  uint32_t number = 0;
  uint64_t value = 0;
  uint8_t entry[mostBytes] = {0};
  EXPECT_CODE(VELMAR_NULL, velmar_chip_info(0, NULL, sizeof(velmar_chip)));
  EXPECT_CODE(VELMAR_NULL, velmar_find_chip(NULL, &number));
  EXPECT_CODE(VELMAR_NULL, velmar_find_chip("56990_B0", NULL));
  EXPECT_CODE(VELMAR_NULL, velmar_find_table(NULL, &number));
  EXPECT_CODE(VELMAR_NULL, velmar_find_table("vlan", NULL));
  EXPECT_CODE(VELMAR_NULL, velmar_find_field(NULL, "valid", &number));
  EXPECT_CODE(VELMAR_NULL, velmar_find_field(layout, NULL, &number));
  EXPECT_CODE(VELMAR_NULL, velmar_find_field(layout, "valid", NULL));
  EXPECT_CODE(VELMAR_NULL, velmar_layout_of(0, 0, 0, NULL));
  EXPECT_CODE(VELMAR_NULL, velmar_layout_info(NULL, NULL, 0));
  EXPECT_CODE(VELMAR_NULL, velmar_layout_field(NULL, 0, NULL, 0));
  EXPECT_CODE(VELMAR_NULL, velmar_field_mask(NULL, entry, 16));
  EXPECT_CODE(VELMAR_NULL, velmar_field_mask(layout, NULL, 16));
  EXPECT_CODE(VELMAR_NULL, velmar_shared_mask(layout, 0, NULL, 16));
  EXPECT_CODE(VELMAR_NULL, velmar_read(NULL, 0, entry, 16, &value));
  EXPECT_CODE(VELMAR_NULL, velmar_read(layout, 0, NULL, 16, &value));
  EXPECT_CODE(VELMAR_NULL, velmar_read(layout, 0, entry, 16, NULL));
  EXPECT_CODE(VELMAR_NULL, velmar_write(layout, 0, NULL, 16, 0));
  EXPECT_CODE(VELMAR_NULL, velmar_address(NULL, 0, 0, &number));
  EXPECT_CODE(VELMAR_NULL, velmar_address(layout, 0, 0, NULL));
}

static void checkSizes(Sweep* sweep, const velmar_layout* layout, uint32_t field, size_t entryBytes,
                       uint32_t entries) {
  static uint8_t dump[1 << 20];
  static uint64_t values[1 << 16];
  uint32_t words[2];
  struct {
    velmar_chip known;
    uint8_t later[8];
  } chip = {{NULL, 0, 0}, {1, 1, 1, 1, 1, 1, 1, 1}};
  EXPECT_CODE(VELMAR_SIZE, velmar_chip_info(0, &chip.known, sizeof chip.known - 1));
  EXPECT_CODE(VELMAR_OK, velmar_chip_info(0, &chip.known, sizeof chip));
  for (size_t i = 0; i < sizeof chip.later; ++i) EXPECT(chip.later[i] == 0);
  for (size_t size = entryBytes - 1; size <= entryBytes + 1; size += 2) {
    EXPECT_CODE(VELMAR_SIZE, velmar_read(layout, field, dump, size, values));
    EXPECT_CODE(VELMAR_SIZE, velmar_write(layout, field, dump, size, 0));
    EXPECT_CODE(VELMAR_SIZE, velmar_field_mask(layout, dump, size));
    EXPECT_CODE(VELMAR_SIZE, velmar_shared_mask(layout, field, dump, size));
    EXPECT_CODE(VELMAR_SIZE, velmar_read_column(layout, field, dump, size, values, 1));
  }
  for (size_t count = 0; count <= 2; count += 2) {
    EXPECT_CODE(VELMAR_SIZE, velmar_read_words(layout, field, dump, entryBytes, words, count));
    EXPECT_CODE(VELMAR_SIZE, velmar_read_bytes(layout, field, dump, entryBytes, dump + 64, count));
    EXPECT_CODE(VELMAR_SIZE, velmar_write_words(layout, field, dump, entryBytes, words, count));
    EXPECT_CODE(VELMAR_SIZE, velmar_read_column(layout, field, dump, entryBytes, values, count));
  }
  EXPECT_CODE(VELMAR_OK, velmar_read_column(layout, field, NULL, 0, NULL, 0));
  EXPECT_CODE(VELMAR_OK, velmar_write_column(layout, field, NULL, 0, NULL, 0));
  EXPECT_CODE(VELMAR_OK, velmar_read_fields(layout, &field, 1, NULL, 0, NULL, 0));
  EXPECT_CODE(VELMAR_NULL, velmar_read_column(layout, field, NULL, 0, NULL, 1));
  EXPECT_CODE(VELMAR_NULL, velmar_write_column(layout, field, NULL, entryBytes, values, 1));
  velmar_field facts = {NULL, NULL, NULL, 0, 0, 0, 0, 0, 0, 0, 0, 77, 77};
  const size_t earlier = offsetof(velmar_field, family_first);
  EXPECT_CODE(VELMAR_SIZE, velmar_layout_field(layout, field, &facts, earlier - 1));
  EXPECT_CODE(VELMAR_OK, velmar_layout_field(layout, field, &facts, earlier));
  EXPECT(facts.accessor != NULL && facts.family_first == 77);
  EXPECT((entries + 1) * entryBytes <= sizeof dump);
  EXPECT_CODE(VELMAR_OK,
              velmar_read_column(layout, field, dump, entries * entryBytes, values, entries));
  EXPECT_CODE(VELMAR_SIZE, velmar_read_column(layout, field, dump, (entries + 1) * entryBytes,
                                              values, entries + 1));
}

static void checkIndexesAndNames(Sweep* sweep, const velmar_layout* layout) {
  const uint32_t none = UINT32_MAX;
  uint32_t number = none;
  uint64_t value = 0;
  uint8_t entry[mostBytes] = {0};
  const velmar_layout* other = NULL;
  velmar_field field;
  velmar_place place;
  EXPECT_CODE(VELMAR_INDEX, velmar_chip_info(velmar_chip_count(), NULL, 0));
  EXPECT_CODE(VELMAR_INDEX, velmar_table_info(velmar_table_count(), NULL, 0));
  EXPECT_CODE(VELMAR_INDEX, velmar_field_info(0, none, &field, sizeof field));
  EXPECT_CODE(VELMAR_INDEX, velmar_field_info(none, 0, &field, sizeof field));
  EXPECT_CODE(VELMAR_INDEX, velmar_layout_field(layout, none, &field, sizeof field));
  EXPECT_CODE(VELMAR_INDEX, velmar_layout_of(none, 0, 0, &other));
  EXPECT_CODE(VELMAR_INDEX, velmar_layout_of(0, none, 0, &other));
  EXPECT_CODE(VELMAR_INDEX, velmar_read(layout, none, entry, 16, &value));
  EXPECT_CODE(VELMAR_INDEX, velmar_entry_at(none, 0, 0, 0, &place, sizeof place));
  EXPECT_CODE(VELMAR_VARIANT, velmar_find_layout("VlanEntry", "BCM56990_B0", 256, &other));
  EXPECT_CODE(VELMAR_VARIANT, velmar_entry_at(0, 256, 0, 0, &place, sizeof place));
  EXPECT(velmar_entry_at(0, 0, none, 0, &place, sizeof place) == VELMAR_NO_ENTRY);
  EXPECT_CODE(VELMAR_UNKNOWN, velmar_find_chip("BCM56990_C0", &number));
  EXPECT_CODE(VELMAR_UNKNOWN, velmar_find_field(layout, "", &number));
  EXPECT_CODE(VELMAR_UNKNOWN, velmar_field_of_id(layout, none, &number));
  EXPECT_CODE(VELMAR_UNKNOWN, velmar_find_table("VlanEntri", &number));
  EXPECT(strstr(velmar_message(), "did you mean VlanEntry") != NULL);
  EXPECT(other == NULL && number == none);
}

/// Names of several chips and of a family, and a table that has variant 0 only: what the data has.
static void checkRareCodes(Sweep* sweep) {
  const velmar_layout* layout = NULL;
  unsigned families = 0, revisions = 0, variants = 0;
  uint32_t number = 0;
  for (uint32_t i = 0; i < velmar_table_count() * velmar_chip_count(); ++i) {
    velmar_chip chip;
    velmar_field field;
    velmar_layout_facts facts;
    char name[64];
    if (velmar_layout_of(i / velmar_chip_count(), i % velmar_chip_count(), 0, &layout)) continue;
    EXPECT_CODE(VELMAR_OK, velmar_layout_info(layout, &facts, sizeof facts));
    EXPECT_CODE(VELMAR_OK, velmar_chip_info(facts.chip, &chip, sizeof chip));
    EXPECT_CODE(VELMAR_OK, velmar_field_info(facts.table, 0, &field, sizeof field));
    EXPECT_CODE(facts.variants == VELMAR_VARIANT_0_ONLY ? VELMAR_VARIANT : VELMAR_OK,
                velmar_layout_of(facts.table, facts.chip, 1, &layout));
    variants += facts.variants == VELMAR_VARIANT_0_ONLY;
    snprintf(name, sizeof name, "%.*s", (int)field.family_letters, field.accessor);
    if (field.family_letters != 0) {
      EXPECT_CODE(VELMAR_AMBIGUOUS, velmar_find_field(layout, name, &number));
      EXPECT(strstr(velmar_message(), "with its number") != NULL);
      ++families;
    }
    snprintf(name, sizeof name, "%.*s", (int)(strlen(chip.name) - 3), chip.name);
    const velmar_code code = velmar_find_chip(name, &number);
    EXPECT(code == VELMAR_AMBIGUOUS || (code == VELMAR_OK && number == chip.index));
    revisions += code == VELMAR_AMBIGUOUS;
  }
  EXPECT(families > 0 && revisions > 0 && variants > 0);
}

static void* runThread(void* argument) {
  Sweep* sweep = argument;
  char name[32];
  uint32_t number = 0;
  snprintf(name, sizeof name, "thread%u", (unsigned)(sweep->random & 0xff));
  for (unsigned i = 0; i < 100; ++i) {
    EXPECT_CODE(VELMAR_UNKNOWN, velmar_find_table(name, &number));
    EXPECT(strstr(velmar_message(), name) != NULL);
  }
  sweepAll(sweep);
  return NULL;
}

int main(void) {
  Sweep all = {UINT64_C(0x9e3779b97f4a7c15), 0, "codes"};
  Sweep* sweep = &all;
  const velmar_layout* layout = NULL;
  velmar_layout_facts facts;
  uint32_t field = 0;
  EXPECT(velmar_message()[0] == '\0' && velmar_version()[0] != '\0');
  EXPECT_CODE(VELMAR_OK, velmar_find_layout("vlan", "56990_b0", 0, &layout));
  EXPECT_CODE(VELMAR_OK, velmar_layout_info(layout, &facts, sizeof facts));
  EXPECT_CODE(VELMAR_OK, velmar_find_field(layout, "valid", &field));
  checkNullPointers(sweep, layout);
  checkSizes(sweep, layout, field, facts.entry_bytes, facts.entries);
  checkIndexesAndNames(sweep, layout);
  checkRareCodes(sweep);

  pthread_t handles[threads];
  Sweep sweeps[threads];
  for (unsigned i = 0; i < threads; ++i) {
    sweeps[i] = (Sweep){nextRandom(sweep) << 8 | i, 0, "thread"};
    EXPECT(pthread_create(&handles[i], NULL, runThread, &sweeps[i]) == 0);
  }
  for (unsigned i = 0; i < threads; ++i) {
    EXPECT(pthread_join(handles[i], NULL) == 0);
    all.failures += sweeps[i].failures;
  }
  printf("%u failures\n", all.failures);
  return all.failures != 0;
}
