#include "c/Calls.h"

using namespace Velmar;
using namespace Velmar::Binding;

velmar_code Velmar::Binding::checkEntries(const velmar_layout* layout, size_t size) {
  const Catalogue::Geometry geometry = geometryOf(layout);
  const U32 entryBytes = 4U * geometry.words;
  const U32 most = Core::indexCount(geometry);
  if (size % entryBytes != 0) {
    return fail(Fault(Code::size, "the dump has {} bytes", size)
                    .advise("give whole entries of {} bytes", entryBytes));
  }
  if (size / entryBytes <= most) return VELMAR_OK;
  return fail(Fault(Code::size, "the dump has {} entries", size / entryBytes)
                  .advise("give at most {}, as many as {} on {} has", most, tableOf(layout).name(),
                          chipOf(layout).name));
}

namespace {

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

velmar_code checkCounts(const Call& call, const Access& access, size_t units, const char* unit) {
  const bool needsPointers = !call.isColumn || call.size != 0 || call.count != 0;
  if (needsPointers) {
    if (const auto code = checkPointer(call.data, "the entry")) return code;
    if (const auto code = checkPointer(call.values, "the value")) return code;
  }
  const velmar_code code = call.isColumn ? checkEntries(call.layout, call.size)
                                         : checkSize("the entry", call.size, access.entryBytes);
  if (code != VELMAR_OK) return code;
  return checkSize("the value", call.count, access.entries * units, unit);
}

Access accessOf(const Call& call) {
  const U32 entryBytes = 4U * geometryOf(call.layout).words;
  return {entryBytes, call.isColumn ? call.size / entryBytes : 1,
          tableOf(call.layout).range(call.field, chipOf(call.layout).number), 0};
}

velmar_code tooWide(const Catalogue::Field& field, U32 width, const char* advice) {
  return fail(Fault(Code::wide, "{} has {} bits", field.accessor, width)
                  .ofField(field.accessor)
                  .advise("{}", advice));
}

velmar_code check(const Call& call, Access& access) {
  if (const auto code = checkField(call.layout, call.field)) return code;
  access = accessOf(call);
  const U32 unit = formBytes[static_cast<U32>(call.form)];
  const U32 units = (access.range.width + 8 * unit - 1) / (8 * unit);
  access.valueBytes = units * unit;
  if (call.form == Form::number && units > 1) {
    return tooWide(tableOf(call.layout).field(call.field), access.range.width,
                   "read and write words or bytes");
  }
  return checkCounts(call, access, units, formNames[static_cast<U32>(call.form)]);
}

velmar_code read(const Call& call, void* values) {
  Access access;
  if (const auto code = check(call, access)) return code;
  if (access.entries == 0) return VELMAR_OK;
  std::memset(values, 0, access.entries * access.valueBytes);
  const U8* entry = static_cast<const U8*>(call.data);
  U8* value = static_cast<U8*>(values);
  for (size_t i = 0; i < access.entries; ++i) {
    Core::readBits(entry, access.entryBytes, access.range.offset, access.range.width, value,
                   access.valueBytes);
    entry += access.entryBytes;
    value += access.valueBytes;
  }
  return VELMAR_OK;
}

bool fits(const U8* value, const Access& access) {
  const U32 last = (access.range.width - 1) / 8;
  U32 above = value[last] >> ((access.range.width - 1) % 8 + 1);
  for (U32 i = last + 1; i < access.valueBytes; ++i) above |= value[i];
  return above == 0;
}

velmar_code checkFits(const Call& call, const Access& access) {
  const U8* value = static_cast<const U8*>(call.values);
  for (size_t entry = 0; entry < access.entries; ++entry, value += access.valueBytes) {
    if (fits(value, access)) continue;
    Core::Text text;
    if (call.form == Form::number) {
      U64 number = 0;
      std::memcpy(&number, value, sizeof number);
      text.append("{}", number);
    } else {
      text.append("0x");
      for (U32 i = access.valueBytes; i-- > 0;) text.append("{:02x}", value[i]);
    }
    Fault fault = Core::tooLarge(tableOf(call.layout).field(call.field).accessor,
                                 access.range.width, text.view());
    if (call.isColumn) fault.ofEntry(entry);
    return fail(fault);
  }
  return VELMAR_OK;
}

/// Whether all numbers fit, without looking at each: that takes longer than to write them.
bool allFit(const Call& call, const Access& access) {
  if (call.form != Form::number) return false;
  if (access.range.width == 64) return true;
  U64 all = 0;
  const U64* const numbers = static_cast<const U64*>(call.values);
  for (size_t i = 0; i < access.entries; ++i) all |= numbers[i];
  return all >> access.range.width == 0;
}

velmar_code write(const Call& call, void* data) {
  Access access;
  if (const auto code = check(call, access)) return code;
  if (!allFit(call, access)) {
    if (const auto code = checkFits(call, access)) return code;
  }
  U8* entry = static_cast<U8*>(data);
  const U8* value = static_cast<const U8*>(call.values);
  for (size_t i = 0; i < access.entries; ++i) {
    Core::writeBits(entry, access.entryBytes, access.range.offset, access.range.width, value,
                    access.valueBytes);
    entry += access.entryBytes;
    value += access.valueBytes;
  }
  return VELMAR_OK;
}

/// Fields of one width that follow each other in an entry.
struct Run {
  U32 offset;  ///< of the first bit
  U32 width;
  U32 fields;
  size_t column;  ///< of the first field among those of the call
};

/// What a call says of several fields; `count` is their number.
struct FieldsCall {
  const velmar_layout* layout;
  const U32* fields;
  size_t fieldCount;
  const void* data;
  size_t size;
  const U8* values;
  size_t count;
};

velmar_code check(const FieldsCall& call, Access& access) {
  if (const auto code = checkPointers({{call.layout, "the layout"}, {call.fields, "the fields"}}))
    return code;
  const Catalogue::Table table = tableOf(call.layout);
  const U32 chip = chipOf(call.layout).number;
  for (size_t i = 0; i < call.fieldCount; ++i) {
    const U32 field = call.fields[i];
    const U32 width = field < table.fieldCount() ? table.range(field, chip).width : 0;
    if (width == 0) return checkField(call.layout, field);
    if (width > 8) return tooWide(table.field(field), width, "read and write columns");
  }
  const Call all{call.layout, 0, call.data, call.size, Form::bytes, call.values, call.count, true};
  access = accessOf(all);
  return checkCounts(all, access, call.fieldCount, "bytes");
}

/// Calls `use` with each run of the fields.
template <class Use>
void forEachRun(const FieldsCall& call, Use use) {
  const Catalogue::Table table = tableOf(call.layout);
  const U32 chip = chipOf(call.layout).number;
  Run run{0, 0, 0, 0};
  for (size_t i = 0; i < call.fieldCount; ++i) {
    const Catalogue::BitRange range = table.range(call.fields[i], chip);
    if (range.width == run.width && range.offset == run.offset + run.fields * run.width) {
      ++run.fields;
      continue;
    }
    if (run.fields != 0) use(run);
    run = {range.offset, range.width, 1, i};
  }
  if (run.fields != 0) use(run);
}

/// Four values, anywhere in memory.
typedef U32 FourValues __attribute__((aligned(1), may_alias));

/// Port states are four fields of two bits in each byte: the compiler makes vectors of these loops.
void readPairs(const U8* __restrict from, U32 bytes, FourValues* __restrict values) {
  for (U32 i = 0; i < bytes; ++i) {
    const U32 four = from[i];
    values[i] = (four | four << 6 | four << 12 | four << 18) & 0x03030303;
  }
}

void writePairs(U8* __restrict into, U32 bytes, const FourValues* __restrict values) {
  for (U32 i = 0; i < bytes; ++i) {
    const U32 four = values[i];
    into[i] = static_cast<U8>(four | four >> 6 | four >> 12 | four >> 18);
  }
}

/// Bytes of a run that have four fields of two bits each.
U32 pairBytes(const Run& run) { return run.width == 2 && run.offset % 8 == 0 ? run.fields / 4 : 0; }

void readRun(const FieldsCall& call, const Access& access, const Run& run, U8* values) {
  const U8* entry = static_cast<const U8*>(call.data);
  const U32 bytes = pairBytes(run);
  values += run.column;
  for (size_t i = 0; i < access.entries; ++i) {
    readPairs(entry + run.offset / 8, bytes, reinterpret_cast<FourValues*>(values));
    for (U32 at = 4 * bytes; at < run.fields; ++at) {
      values[at] = 0;
      Core::readBits(entry, access.entryBytes, run.offset + at * run.width, run.width, values + at,
                     1);
    }
    entry += access.entryBytes;
    values += call.fieldCount;
  }
}

void writeRun(const FieldsCall& call, const Access& access, const Run& run, U8* entry) {
  const U8* values = call.values + run.column;
  const U32 bytes = pairBytes(run);
  for (size_t i = 0; i < access.entries; ++i) {
    writePairs(entry + run.offset / 8, bytes, reinterpret_cast<const FourValues*>(values));
    for (U32 at = 4 * bytes; at < run.fields; ++at) {
      Core::writeBits(entry, access.entryBytes, run.offset + at * run.width, run.width, values + at,
                      1);
    }
    entry += access.entryBytes;
    values += call.fieldCount;
  }
}

velmar_code checkFit(const FieldsCall& call, const Access& access, const Run& run) {
  for (size_t entry = 0; entry < access.entries; ++entry) {
    const U8* const values = call.values + entry * call.fieldCount + run.column;
    U32 all = 0;
    for (U32 i = 0; i < run.fields; ++i) all |= values[i];
    if (all >> run.width == 0) continue;
    U32 at = 0;
    while (values[at] >> run.width == 0) ++at;
    Core::Text text;
    text.append("{}", values[at]);
    const U32 field = call.fields[run.column + at];
    return fail(Core::tooLarge(tableOf(call.layout).field(field).accessor, run.width, text.view())
                    .ofEntry(entry));
  }
  return VELMAR_OK;
}

}  // namespace

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

velmar_code velmar_write_column(const velmar_layout* layout, uint32_t field, void* dump,
                                size_t dump_size, const uint64_t* values, size_t count) {
  return write({layout, field, dump, dump_size, Form::number, values, count, true}, dump);
}

velmar_code velmar_write_word_column(const velmar_layout* layout, uint32_t field, void* dump,
                                     size_t dump_size, const uint32_t* words, size_t count) {
  return write({layout, field, dump, dump_size, Form::words, words, count, true}, dump);
}

velmar_code velmar_read_fields(const velmar_layout* layout, const uint32_t* fields,
                               size_t field_count, const void* dump, size_t dump_size,
                               uint8_t* values, size_t count) {
  const FieldsCall call{layout, fields, field_count, dump, dump_size, values, count};
  Access access;
  if (const auto code = check(call, access)) return code;
  forEachRun(call, [&](const Run& run) { readRun(call, access, run, values); });
  return VELMAR_OK;
}

velmar_code velmar_write_fields(const velmar_layout* layout, const uint32_t* fields,
                                size_t field_count, void* dump, size_t dump_size,
                                const uint8_t* values, size_t count) {
  const FieldsCall call{layout, fields, field_count, dump, dump_size, values, count};
  Access access;
  if (const auto code = check(call, access)) return code;
  velmar_code code = VELMAR_OK;
  forEachRun(call, [&](const Run& run) {
    if (code == VELMAR_OK) code = checkFit(call, access, run);
  });
  if (code != VELMAR_OK) return code;
  forEachRun(call, [&](const Run& run) { writeRun(call, access, run, static_cast<U8*>(dump)); });
  return VELMAR_OK;
}
