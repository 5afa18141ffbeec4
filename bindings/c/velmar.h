#ifndef VELMAR_H
#define VELMAR_H

#include <stddef.h>
#include <stdint.h>

/// Velmar for C and for languages that call C: what the library knows of chips, tables and fields,
/// and the fields of entries that the caller holds.
///
/// The numbers come from the rows of the view classes. Chips, tables and the fields of a table have
/// indexes from 0. An index is good while the program runs; to store one, store the name, the
/// chip's number or the field's identifier.
///
/// A call that can fail returns a code, and writes nothing but the fault when it fails. Nothing
/// prints, aborts or throws. Dumps and documents are allocated, and freed by the caller with
/// velmar_dump_free() and velmar_text_free(); a call that makes one returns VELMAR_MEMORY if there is
/// no memory. Other calls allocate nothing; only the C library may allocate the place of a thread's
/// fault, once. All calls may run in several threads at once, on different entries; a dump may be
/// used in several threads at once. Other texts and layouts live as long as the library.
///
/// An entry is `entry_bytes` bytes as they were read from the chip: bit n is bit n % 8 of its byte
/// n / 8. It needs no alignment. A dump is entries without gaps. Buffers of one call must not
/// overlap.

#ifdef __cplusplus
extern "C" {
#endif

#ifndef VELMAR_API
#define VELMAR_API __attribute__((visibility("default")))
#endif

/// What a call returns. A later release may add codes.
typedef enum velmar_code {
  VELMAR_OK = 0,
  VELMAR_NULL = 1,       ///< a pointer is NULL
  VELMAR_SIZE = 2,       ///< a buffer is too short or too long
  VELMAR_INDEX = 3,      ///< no chip, table, field, entry, element or identifier has the number
  VELMAR_UNKNOWN = 4,    ///< no chip, table or field has the name or identifier
  VELMAR_AMBIGUOUS = 5,  ///< several chips or fields have the name, or several readings fit a text
  VELMAR_NOT_ON_CHIP = 6,  ///< the chip does not have the table or the field
  VELMAR_VARIANT = 7,      ///< the table on the chip does not have the variant
  VELMAR_VALUE = 8,        ///< the value has more bits than the field
  VELMAR_WIDE = 9,         ///< the field has more than 64 bits: read and write words or bytes
  VELMAR_NO_ENTRY = 10,    ///< the chip has no entry, or no further one, at the address
  VELMAR_INPUT = 11,       ///< what is read is damaged or incomplete, or contradicts itself
  VELMAR_OPTION = 12,      ///< an option is wrong, is missing, or has no effect
  VELMAR_MEMORY = 13       ///< there is no memory
} velmar_code;

/// What went wrong in the last call of this thread that failed, where in the input if it has lines,
/// and what to do about it, such as "unknown table "VlanEntri"; did you mean VlanEntry? "velmar
/// tables" lists the tables". Empty before the first failure. The text is good until the next call of
/// this thread that fails.
VELMAR_API const char* velmar_message(void);

/// The version of the library, such as "0.2.0".
VELMAR_API const char* velmar_version(void);

// Structures. The caller passes the size of its own structure, sizeof *info. Later releases add
// members at the end: a program gets those that it was compiled with, and 0 for those that the
// library does not have yet. VELMAR_SIZE: the structure is smaller than that of the first release.

/// No entry, chip or table.
#define VELMAR_NONE UINT32_MAX

/// The last call of a thread that failed, in parts.
typedef struct velmar_fault {
  const char* text;    ///< what is wrong, without the place
  const char* remedy;  ///< what to do about it, such as give hex_order="bytes" or "words"; or ""
  const char*
      options;  ///< those that mend it, such as "hex_order=bytes|words;input=xxd": the members
                ///< of velmar_read_options with the texts or numbers that they may have,
                ///< "origin" alone for any; "" if there is none
  const char* field;  ///< accessor of the field that is meant, or ""
  uint64_t line;      ///< of the input, from 1; 0: not known
  uint64_t column;    ///< of the line, from 1; 0: not known
  uint32_t entry;     ///< index of the entry that is meant, or VELMAR_NONE
  uint32_t code;      ///< velmar_code; 0 before the first failure
} velmar_fault;

/// The texts are good until the next call of this thread that fails.
VELMAR_API velmar_code velmar_last_fault(velmar_fault* fault, size_t size);

typedef struct velmar_chip {
  const char* name;  ///< such as "BCM56990_B0"
  uint32_t index;
  uint32_t number;  ///< the ChipType_ value; never changes
} velmar_chip;

enum { VELMAR_TABLE = 0, VELMAR_REGISTER_ARRAY = 1 };

typedef struct velmar_table {
  const char* name;     ///< name of the view class, such as "VlanEntry"
  const char* purpose;  ///< its contents, in a few words
  uint32_t index;
  uint32_t kind;         ///< VELMAR_TABLE or VELMAR_REGISTER_ARRAY
  uint32_t field_count;  ///< number of fields on all chips together: indexes are below it
  uint32_t unused;       ///< 0
} velmar_table;

/// What the getter of the view class returns.
enum {
  VELMAR_U8 = 0,
  VELMAR_U16 = 1,
  VELMAR_U32 = 2,
  VELMAR_U64 = 3,
  VELMAR_RAW128 = 4,
  VELMAR_BITMAP = 5  ///< a set of ports: bit n is port n
};

typedef struct velmar_field {
  const char* accessor;       ///< such as "fidId"
  const char* hardware_name;  ///< such as "FID_ID"
  const char* meaning;        ///< a few words
  uint32_t index;             ///< the same on every chip
  uint32_t id;                ///< identifier; never changes
  uint32_t type;              ///< VELMAR_U8 to VELMAR_BITMAP
  uint32_t first_bit;         ///< bit of the entry
  uint32_t bits;              ///< width
  uint32_t overlaps;          ///< 1: shares bits with another field, 0: does not
  uint32_t
      family_letters;  ///< letters of `accessor` before its number, for a field of a family such as
                       ///< spTreePort0, spTreePort1 ...; 0 for a field alone
  uint32_t family_number;  ///< its number in the family
  uint32_t family_first;   ///< index of the first field of the family; of a field alone its own
  uint32_t
      family_fields;  ///< number of fields of the family that the chip has; 0 for a field alone
} velmar_field;

/// Which variants a table on a chip has.
enum { VELMAR_ANY_VARIANT = 0, VELMAR_VARIANT_0_ONLY = 1 };

/// A table on a chip: the same for all its variants.
typedef struct velmar_layout velmar_layout;

typedef struct velmar_layout_facts {
  uint32_t table;            ///< index
  uint32_t chip;             ///< index
  uint32_t variants;         ///< VELMAR_ANY_VARIANT or VELMAR_VARIANT_0_ONLY
  uint32_t fields;           ///< number of fields that the chip has
  uint32_t entry_bytes;      ///< size of an entry: 4 * words
  uint32_t words;            ///< size of an entry in 32-bit words
  uint32_t entries;          ///< number of entries; 1 for a register array
  uint32_t elements;         ///< number of elements of a register array; 1 for a table
  uint32_t identifiers;      ///< number of instance identifiers, from 0
  uint32_t base;             ///< S-channel address of entry 0, element 0, identifier 0
  uint32_t element_step;     ///< added to the address per element; 0 for a table
  uint32_t identifier_step;  ///< added to the address per identifier
  uint32_t access_type;      ///< S-channel access code
  uint32_t block;            ///< pipeline block: 1 ingress, 2 egress
} velmar_layout_facts;

typedef struct velmar_place {
  const velmar_layout* layout;
  uint32_t index;       ///< of the entry, or of the element of a register array
  uint32_t identifier;  ///< instance identifier
} velmar_place;

// Lists. Chips are in ascending order of their numbers; tables and fields have a fixed order.
// VELMAR_INDEX: the index is not below the count.

VELMAR_API uint32_t velmar_chip_count(void);
VELMAR_API uint32_t velmar_table_count(void);
VELMAR_API velmar_code velmar_chip_info(uint32_t chip, velmar_chip* info, size_t size);
VELMAR_API velmar_code velmar_table_info(uint32_t table, velmar_table* info, size_t size);
/// A field of a table, whatever the chip: `first_bit` and `bits` are 0, `overlaps` and the family are
/// those of all chips.
VELMAR_API velmar_code velmar_field_info(uint32_t table, uint32_t field, velmar_field* info,
                                         size_t size);

// Names, in any case and with or without underscores and hyphens. VELMAR_UNKNOWN: nothing has the
// name; the message proposes similar ones.

/// A chip by its name ("BCM56990_B0", "56990_b0", or "56990" if only one chip has that number;
/// otherwise VELMAR_AMBIGUOUS), or by its number.
VELMAR_API velmar_code velmar_find_chip(const char* name, uint32_t* chip);
/// A table by its name, with or without "Entry" or "Control" at the end.
VELMAR_API velmar_code velmar_find_table(const char* name, uint32_t* table);
/// A field of a layout by its accessor, hardware name, or identifier in decimal or after "0x".
/// VELMAR_NOT_ON_CHIP: only other chips have it. VELMAR_AMBIGUOUS: a family of fields has the name.
VELMAR_API velmar_code velmar_find_field(const velmar_layout* layout, const char* name,
                                         uint32_t* field);
/// All fields of a name: a field, a family such as "spTreePort", a part of it such as "spTreePort0-3",
/// or those that match a name with * and ?. `fields` has room for `room` indexes, at least the number of
/// fields of the layout, otherwise VELMAR_SIZE; `count` is how many are written.
VELMAR_API velmar_code velmar_find_fields(const velmar_layout* layout, const char* name,
                                          uint32_t* fields, size_t room, size_t* count);
/// The field of an identifier.
VELMAR_API velmar_code velmar_field_of_id(const velmar_layout* layout, uint32_t id,
                                          uint32_t* field);

// Layouts. VELMAR_NOT_ON_CHIP: the chip does not have the table. VELMAR_VARIANT: the table on the
// chip has variant 0 only, or the variant is above 255.

VELMAR_API velmar_code velmar_layout_of(uint32_t table, uint32_t chip, uint32_t variant,
                                        const velmar_layout** layout);
/// The same by names.
VELMAR_API velmar_code velmar_find_layout(const char* table, const char* chip, uint32_t variant,
                                          const velmar_layout** layout);
VELMAR_API velmar_code velmar_layout_info(const velmar_layout* layout, velmar_layout_facts* info,
                                          size_t size);
/// A field with its bits on the chip, and whether it shares bits there.
VELMAR_API velmar_code velmar_layout_field(const velmar_layout* layout, uint32_t field,
                                           velmar_field* info, size_t size);
/// All fields that the chip has, in ascending order of their indexes. `size` is that of one structure,
/// `count` the number of fields of the layout, otherwise VELMAR_SIZE.
VELMAR_API velmar_code velmar_fields_of(const velmar_layout* layout, velmar_field* fields,
                                        size_t size, size_t count);
/// Sets the bits of `mask` that belong to a field of the chip, and clears the others, the reserved
/// bits. `size` is `entry_bytes`.
VELMAR_API velmar_code velmar_field_mask(const velmar_layout* layout, uint8_t* mask, size_t size);
/// Sets the bits of `mask` that the field shares with other fields of the chip, and clears the
/// others.
VELMAR_API velmar_code velmar_shared_mask(const velmar_layout* layout, uint32_t field,
                                          uint8_t* mask, size_t size);

// Fields of an entry, by the index of the field. `entry_size` is `entry_bytes`. VELMAR_NOT_ON_CHIP:
// the chip does not have the field. A write changes the bits of the field alone; VELMAR_VALUE: the
// value has a bit set above those of the field.

/// A field of up to 64 bits as a number; for a wider one VELMAR_WIDE.
VELMAR_API velmar_code velmar_read(const velmar_layout* layout, uint32_t field, const void* entry,
                                   size_t entry_size, uint64_t* value);
VELMAR_API velmar_code velmar_write(const velmar_layout* layout, uint32_t field, void* entry,
                                    size_t entry_size, uint64_t value);
/// A field of any width as (bits + 7) / 8 bytes, the lowest bits first. `size` is their number.
VELMAR_API velmar_code velmar_read_bytes(const velmar_layout* layout, uint32_t field,
                                         const void* entry, size_t entry_size, uint8_t* bytes,
                                         size_t size);
VELMAR_API velmar_code velmar_write_bytes(const velmar_layout* layout, uint32_t field, void* entry,
                                          size_t entry_size, const uint8_t* bytes, size_t size);
/// A field of any width as (bits + 31) / 32 words, the lowest bits first: word i of a bitmap has
/// ports 32 * i to 32 * i + 31, port 32 * i in bit 0. `count` is the number of words.
VELMAR_API velmar_code velmar_read_words(const velmar_layout* layout, uint32_t field,
                                         const void* entry, size_t entry_size, uint32_t* words,
                                         size_t count);
VELMAR_API velmar_code velmar_write_words(const velmar_layout* layout, uint32_t field, void* entry,
                                          size_t entry_size, const uint32_t* words, size_t count);

/// Sets fields of an entry as the verb encode of the command does: `values` are `count` texts such as
/// "stg=5", "portBitmap=0-3,17", "portBitmap+=20", "spTreePort0-3=3" or "outsideFields=0x1", which sets
/// the bits outside all fields. Other fields stay. VELMAR_VALUE: a value does not fit, a field is given
/// twice with two values, or values of fields that share bits disagree.
VELMAR_API velmar_code velmar_encode(const velmar_layout* layout, const char* const* values,
                                     size_t count, void* entry, size_t entry_size);

// A column: one field of all entries of a dump. VELMAR_SIZE: `dump_size` bytes are not a whole
// number of entries, or are more than the table has, or `count` does not go with them. A column of 0
// entries takes NULL pointers. A write changes the bits of the field alone, or nothing if one of the
// values does not fit: VELMAR_VALUE, with the entry in velmar_last_fault(), counted from 0.

/// A field of up to 64 bits as `count` numbers, one for each entry; for a wider one VELMAR_WIDE.
VELMAR_API velmar_code velmar_read_column(const velmar_layout* layout, uint32_t field,
                                          const void* dump, size_t dump_size, uint64_t* values,
                                          size_t count);
/// A field of any width as `count` words: those of velmar_read_words() for the first entry, then
/// those for the second, and so on.
VELMAR_API velmar_code velmar_read_word_column(const velmar_layout* layout, uint32_t field,
                                               const void* dump, size_t dump_size, uint32_t* words,
                                               size_t count);
/// Several fields of up to 8 bits, such as those of a family, as `count` bytes: one for each of the
/// `field_count` fields for the first entry, then for the second, and so on. VELMAR_WIDE: a field has
/// more bits.
VELMAR_API velmar_code velmar_read_fields(const velmar_layout* layout, const uint32_t* fields,
                                          size_t field_count, const void* dump, size_t dump_size,
                                          uint8_t* values, size_t count);
VELMAR_API velmar_code velmar_write_column(const velmar_layout* layout, uint32_t field, void* dump,
                                           size_t dump_size, const uint64_t* values, size_t count);
VELMAR_API velmar_code velmar_write_word_column(const velmar_layout* layout, uint32_t field,
                                                void* dump, size_t dump_size, const uint32_t* words,
                                                size_t count);
VELMAR_API velmar_code velmar_write_fields(const velmar_layout* layout, const uint32_t* fields,
                                           size_t field_count, void* dump, size_t dump_size,
                                           const uint8_t* values, size_t count);

// Addresses on the S-channel.

/// The address of an entry, or of an element of a register array. VELMAR_INDEX: the table does not
/// have the entry, the element or the identifier.
VELMAR_API velmar_code velmar_address(const velmar_layout* layout, uint32_t index,
                                      uint32_t identifier, uint32_t* address);
/// One of the entries of all tables of a chip and variant that have an address: `nth` counts them
/// from 0, in the order of the tables, until VELMAR_NO_ENTRY.
VELMAR_API velmar_code velmar_entry_at(uint32_t chip, uint32_t variant, uint32_t address,
                                       uint32_t nth, velmar_place* place, size_t size);

// Dumps: entries of one table on one chip, each with its index, from bytes or text in any notation.

/// How to read a dump. All but `size` may be zero, which is the default. Later releases add members at
/// the end.
typedef struct velmar_read_options {
  size_t size;        ///< sizeof(velmar_read_options)
  const char* input;  ///< notation: "raw", "hex", "xxd", "hexdump", "od", "json" or "csv"; NULL or
                      ///< "auto": recognized
  const char*
      hex_order;  ///< what hexadecimal digits are: "bytes" (the first byte first), "words" (of
                  ///< 32 bits, the first word first) or "int" (one number for each entry, the
                  ///< highest digit first); NULL: as their groups say it
  const char* byte_order;  ///< the byte of each 32-bit word that comes first: "little" (lowest) or
                           ///< "big" (highest); NULL: "little"
  uint64_t origin;         ///< if has_origin is not 0: address of entry 0, for lines with addresses
  uint32_t has_origin;
  uint32_t has_first;
  uint32_t first;       ///< if has_first is not 0: index of the first entry
  uint32_t stride;      ///< bytes from one entry to the next; 0: entry_bytes
  uint32_t beyond_end;  ///< not 0: take entries beyond the end of the table, too
  uint32_t variant;     ///< of the table
} velmar_read_options;

/// Entries with their indexes. It does not change.
typedef struct velmar_dump velmar_dump;

/// Reads the `size` bytes of a file or text, at most 64 MiB. `options` may be NULL. A raw dump without a stride borrows `bytes`, which must outlive it; others copy.
/// VELMAR_INPUT: it is not a dump of the table. VELMAR_OPTION: an option is wrong or has no effect.
/// VELMAR_AMBIGUOUS: several readings fit; velmar_last_fault() gives the options that part them.
/// VELMAR_INDEX, VELMAR_SIZE: it has an entry that the table does not have, or no whole entries.
VELMAR_API velmar_code velmar_dump_read(const velmar_layout* layout,
                                        const velmar_read_options* options, const void* bytes,
                                        size_t size, velmar_dump** dump);
/// A dump of `count` entries without gaps, `size` bytes. `indexes`: their indexes in any order, each
/// once; NULL: from 0 on, and the dump borrows `bytes`, which must outlive it.
VELMAR_API velmar_code velmar_dump_of(const velmar_layout* layout, uint32_t variant,
                                      const uint32_t* indexes, size_t count, const void* bytes,
                                      size_t size, velmar_dump** dump);
/// Frees a dump; NULL does nothing.
VELMAR_API void velmar_dump_free(velmar_dump* dump);
/// Number of entries. The entries of a dump have positions from 0, below it.
VELMAR_API velmar_code velmar_dump_count(const velmar_dump* dump, size_t* count);
/// The indexes of `count` entries from a position on. VELMAR_INDEX: there are not so many.
VELMAR_API velmar_code velmar_dump_index(const velmar_dump* dump, size_t position,
                                         uint32_t* indexes, size_t count);
/// The bytes of all entries, without gaps, and their number: count * entry_bytes. Those of a dump that
/// borrows are the caller's own; others are good until the dump is freed.
VELMAR_API velmar_code velmar_dump_bytes(const velmar_dump* dump, const uint8_t** bytes,
                                         size_t* size);
/// What was left out of the input, or is worth saying: sentence `nth`, from 0 on; NULL after the last
/// one. It is good until the dump is freed.
VELMAR_API velmar_code velmar_dump_note(const velmar_dump* dump, size_t nth, const char** note);

/// The entries that fit, as ascending positions: all `conditions` hold, such as "stg=2-5,9 and not
/// valid=0", "portBitmap~20-22" or "any spTreePort=2" (CONDITIONS of velmar(1)); the index is one of `indexes`, such as "5,100-199", or NULL for
/// any; if `nonzero` is not 0, a bit is set. `positions` has room for `room` numbers, at least the
/// number of entries, otherwise VELMAR_SIZE; `count` is how many are written. VELMAR_INDEX: the dump
/// has no entry in a part of `indexes`.
VELMAR_API velmar_code velmar_select(const velmar_dump* dump, const char* const* conditions,
                                     size_t condition_count, const char* indexes, uint32_t nonzero,
                                     uint32_t* positions, size_t room, size_t* count);

// Documents: JSON that ends in a zero character, in the forms of docs/schema, and text for people. Each
// is freed with velmar_text_free().

VELMAR_API void velmar_text_free(char* text);
/// The values of all fields, as "velmar-entries": of the entries at `count` positions, or of all if
/// `positions` is NULL and `count` 0. `plain` not 0: numbers, lists of ports and hexadecimal text alone.
VELMAR_API velmar_code velmar_entries_json(const velmar_dump* dump, const uint32_t* positions,
                                           size_t count, uint32_t plain, char** text);
/// The values of an entry for people, a line such as "stg = 5" for each field, or for a family of fields
/// "spTreePort = {3: 0-7  0: 8-159}".
VELMAR_API velmar_code velmar_entry_text(const velmar_layout* layout, const void* entry,
                                         size_t entry_size, char** text);
/// What velmar_diff() says for people, a line such as "20: stg = 2 -> 7" for each field that differs,
/// or for those of a family that change alike, and such as "21: only in OLD" for an entry.
VELMAR_API velmar_code velmar_diff_text(const velmar_dump* before, const velmar_dump* after,
                                        char** text);
/// What changed between two dumps of one layout and variant, as "velmar-diff". Entries are matched by
/// their indexes. VELMAR_INPUT: the dumps are of different tables, chips or variants.
VELMAR_API velmar_code velmar_diff(const velmar_dump* before, const velmar_dump* after,
                                   char** text);
/// What changes from one chip to another, as "velmar-comparison": in one table, or in all for
/// VELMAR_NONE.
VELMAR_API velmar_code velmar_compare(uint32_t before, uint32_t after, uint32_t table,
                                      uint32_t variant, char** text);
/// The tables and chips that a dump fits, the likeliest first, as "velmar-identification". `table` and
/// `chip` are the only ones that are tried, or VELMAR_NONE. The variant is 0. VELMAR_INPUT: there is
/// nothing to read, or too much.
VELMAR_API velmar_code velmar_identify(const void* bytes, size_t size,
                                       const velmar_read_options* options, uint32_t table,
                                       uint32_t chip, char** text);
/// Moves the entries of a dump to another chip, each field to its place there. Fields that only that
/// chip has are zero. `translated` is a dump like any other, or has no entry if none can be moved.
/// `losses` is what it does not hold, as "velmar-translation"; its list is empty if nothing is lost.
VELMAR_API velmar_code velmar_translate(const velmar_dump* dump, uint32_t chip,
                                        velmar_dump** translated, char** losses);

#ifdef __cplusplus
}  // extern "C"
#endif

#endif
