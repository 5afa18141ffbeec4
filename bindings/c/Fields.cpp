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

velmar_code check(const Call& call, Access& access) {
  if (const auto code = checkField(call.layout, call.field)) return code;
  if (const auto code = checkPointer(call.data, "the entry")) return code;
  if (const auto code = checkPointer(call.values, "the value")) return code;
  const Catalogue::Table table = tableOf(call.layout);
  access.entryBytes = 4U * geometryOf(call.layout).words;
  access.entries = call.isColumn ? call.size / access.entryBytes : 1;
  access.range = table.range(call.field, chipOf(call.layout).number);
  const U32 unit = formBytes[static_cast<U32>(call.form)];
  const U32 units = (access.range.width + 8 * unit - 1) / (8 * unit);
  access.valueBytes = units * unit;
  if (call.form == Form::number && units > 1) {
    const char* const name = table.field(call.field).accessor;
    return fail(Fault(Code::wide, "{} has {} bits", name, access.range.width)
                    .ofField(name)
                    .advise("read and write words or bytes"));
  }
  const velmar_code code = call.isColumn ? checkEntries(call.layout, call.size)
                                         : checkSize("the entry", call.size, access.entryBytes);
  if (code != VELMAR_OK) return code;
  return checkSize("the value", call.count, access.entries * units,
                   formNames[static_cast<U32>(call.form)]);
}

velmar_code read(const Call& call, void* values) {
  Access access;
  if (const auto code = check(call, access)) return code;
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

velmar_code checkFits(const Call& call, const Access& access) {
  const U8* value = static_cast<const U8*>(call.values);
  const U32 last = (access.range.width - 1) / 8;
  U32 above = value[last] >> ((access.range.width - 1) % 8 + 1);
  for (U32 i = last + 1; i < access.valueBytes; ++i) above |= value[i];
  if (above == 0) return VELMAR_OK;
  Core::Text text;
  if (call.form == Form::number) {
    text.append("{}", *static_cast<const U64*>(call.values));
  } else {
    text.append("0x");
    for (U32 i = access.valueBytes; i-- > 0;) text.append("{:02x}", value[i]);
  }
  return fail(Core::tooLarge(tableOf(call.layout).field(call.field).accessor, access.range.width,
                             text.view()));
}

velmar_code write(const Call& call, void* entry) {
  Access access;
  if (const auto code = check(call, access)) return code;
  if (const auto code = checkFits(call, access)) return code;
  Core::writeBits(static_cast<U8*>(entry), access.entryBytes, access.range.offset,
                  access.range.width, call.values, access.valueBytes);
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
