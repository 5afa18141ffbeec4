#include "c/Calls.h"
#include "core/Condition.h"

using namespace Velmar;
using namespace Velmar::Binding;

namespace {

bool isGiven(const char* text) { return text != nullptr && *text != '\0'; }

Fault unknownChoice(const char* option, const char* text) {
  return Fault(Code::option, "{} has no choice {}", option, Core::quoted(text).view());
}

velmar_code takeTexts(const velmar_read_options& own, Core::ReadOptions& into) {
  if (isGiven(own.input)) {
    const auto notation = Core::notationNamed(own.input);
    if (!notation) {
      return fail(unknownChoice("input", own.input)
                      .advise("give auto, raw, hex, xxd, hexdump, od, json or csv"));
    }
    into.notation = *notation;
  }
  if (isGiven(own.hex_order)) {
    const auto order = Core::hexOrderNamed(own.hex_order);
    if (!order) {
      return fail(unknownChoice("hex_order", own.hex_order)
                      .advise("give $1")
                      .offer("hex-order", {"bytes", "words", "int"}));
    }
    into.hexOrder = *order;
  }
  if (!isGiven(own.byte_order)) return VELMAR_OK;
  into.bigEndian = own.byte_order == std::string_view("big");
  if (into.bigEndian || own.byte_order == std::string_view("little")) return VELMAR_OK;
  return fail(unknownChoice("byte_order", own.byte_order)
                  .advise("give $1")
                  .offer("byte-order", {"little", "big"}));
}

/// The layout with all that the core knows of it.
velmar_code coreLayoutOf(const velmar_layout* layout, U32 variant,
                         std::optional<Core::Layout>& into) {
  auto found = Core::Layout::of(tableOf(layout), chipOf(layout), variant);
  if (!found) return fail(found.error());
  into = std::move(*found);
  return VELMAR_OK;
}

velmar_code checkIndexes(const Core::Layout& layout, const U32* indexes, size_t count) {
  std::vector<bool> isMet(layout.indexCount());
  for (size_t i = 0; i < count; ++i) {
    if (const auto code = checkIndex("entry", indexes[i], isMet.size())) return code;
    if (isMet[indexes[i]]) {
      return fail(Fault(Code::index, "entry {} is there twice", indexes[i])
                      .ofEntry(indexes[i])
                      .advise("give each entry once"));
    }
    isMet[indexes[i]] = true;
  }
  return VELMAR_OK;
}

velmar_code selectIn(const velmar_dump& dump, const std::vector<std::string>& conditions,
                     const char* indexes, bool nonzero, std::vector<size_t>& positions) {
  Core::Expected<Core::Selection> selection = Core::Selection::of(dump.layout, conditions);
  if (!selection) return fail(selection.error());
  if (isGiven(indexes)) {
    if (const auto code = take(Core::IndexSet::of(indexes), selection->indexes)) return code;
  }
  selection->nonzero = nonzero;
  positions = selection->in(dump.entries);
  const std::string unmet = selection->indexes.unmet();
  if (unmet.empty()) return VELMAR_OK;
  return fail(Fault(Code::index, "the dump has no entry with index {}", unmet)
                  .advise("give indexes of its entries"));
}

}  // namespace

velmar_code Velmar::Binding::takeOptions(const velmar_read_options* options,
                                         Core::ReadOptions& into, U32& variant) {
  velmar_read_options own{};
  if (options == nullptr) return VELMAR_OK;
  const size_t size = options->size;
  if (size < sizeof own) {
    return fail(Fault(Code::size, "the options have a size of {} bytes", size)
                    .advise("give sizeof, at least {}", sizeof own));
  }
  const U8* const bytes = reinterpret_cast<const U8*>(options);
  if (std::any_of(bytes + sizeof own, bytes + size, [](U8 byte) { return byte != 0; })) {
    return fail(Fault(Code::option, "the options have one that this library does not know")
                    .advise("leave it zero, or use a later library"));
  }
  std::memcpy(&own, options, sizeof own);
  if (const auto code = takeTexts(own, into)) return code;
  into.stride = own.stride;
  into.beyondEnd = own.beyond_end != 0;
  if (own.has_first != 0) into.first = own.first;
  if (own.has_origin != 0) into.origin = own.origin;
  variant = own.variant;
  return VELMAR_OK;
}

velmar_code velmar_dump_read(const velmar_layout* layout, const velmar_read_options* options,
                             const void* bytes, size_t size, velmar_dump** dump) {
  if (const auto code =
          checkPointers({{layout, "the layout"}, {bytes, "the input"}, {dump, "the dump"}}))
    return code;
  return allocating([&] {
    Core::ReadOptions own;
    U32 variant = 0;
    if (const auto code = takeOptions(options, own, variant)) return code;
    std::optional<Core::Layout> of;
    if (const auto code = coreLayoutOf(layout, variant, of)) return code;
    auto entries = Core::readDump(*of, own, {static_cast<const char*>(bytes), size});
    if (!entries) return fail(entries.error());
    *dump = new velmar_dump{std::move(*of), std::move(*entries)};
    return VELMAR_OK;
  });
}
velmar_code velmar_dump_of(const velmar_layout* layout, uint32_t variant, const uint32_t* indexes,
                           size_t count, const void* bytes, size_t size, velmar_dump** dump) {
  if (const auto code =
          checkPointers({{layout, "the layout"}, {bytes, "the input"}, {dump, "the dump"}}))
    return code;
  return allocating([&] {
    std::optional<Core::Layout> of;
    if (const auto code = coreLayoutOf(layout, variant, of)) return code;
    const U32 entryBytes = of->entryBytes();
    if (const auto code = checkEntries(layout, size)) return code;
    if (const auto code = checkSize("the dump", size / entryBytes, count, "entries")) return code;
    const U8* const data = static_cast<const U8*>(bytes);
    Core::Dump entries(entryBytes, 0, data, count);
    if (indexes != nullptr) {
      if (const auto code = checkIndexes(*of, indexes, count)) return code;
      entries = Core::Dump(entryBytes);
      for (size_t i = 0; i < count; ++i) entries.add(indexes[i], data + i * entryBytes);
    }
    *dump = new velmar_dump{std::move(*of), std::move(entries)};
    return VELMAR_OK;
  });
}
void velmar_dump_free(velmar_dump* dump) { delete dump; }
velmar_code velmar_dump_count(const velmar_dump* dump, size_t* count) {
  if (const auto code = checkPointers({{dump, "the dump"}, {count, "the count"}})) return code;
  *count = dump->entries.count();
  return VELMAR_OK;
}
velmar_code velmar_dump_index(const velmar_dump* dump, size_t position, uint32_t* indexes,
                              size_t count) {
  if (const auto code = checkPointers({{dump, "the dump"}, {indexes, "the array"}})) return code;
  const size_t own = dump->entries.count();
  if (position > own || count > own - position) {
    return fail(Fault(Code::index, "there are no {} entries from position {} on", count, position)
                    .advise("the dump has {}", own));
  }
  for (size_t i = 0; i < count; ++i) indexes[i] = dump->entries.index(position + i);
  return VELMAR_OK;
}

velmar_code velmar_dump_bytes(const velmar_dump* dump, const uint8_t** bytes, size_t* size) {
  if (const auto code = checkPointers(
          {{dump, "the dump"}, {bytes, "the pointer to the bytes"}, {size, "the size"}}))
    return code;
  *bytes = dump->entries.data();
  *size = dump->entries.size();
  return VELMAR_OK;
}

velmar_code velmar_dump_note(const velmar_dump* dump, size_t nth, const char** note) {
  if (const auto code = checkPointers({{dump, "the dump"}, {note, "the note"}})) return code;
  const std::vector<std::string>& notes = dump->entries.notes;
  *note = nth < notes.size() ? notes[nth].c_str() : nullptr;
  return VELMAR_OK;
}

velmar_code velmar_select(const velmar_dump* dump, const char* const* conditions,
                          size_t condition_count, const char* indexes, uint32_t nonzero,
                          uint32_t* positions, size_t room, size_t* count) {
  if (const auto code =
          checkPointers({{dump, "the dump"}, {positions, "the array"}, {count, "the count"}}))
    return code;
  if (condition_count != 0) {
    if (const auto code = checkPointer(conditions, "the conditions")) return code;
  }
  if (room < dump->entries.count()) {
    return checkSize("the array", room, dump->entries.count(), "positions");
  }
  return allocating([&] {
    std::vector<std::string> texts;
    for (size_t i = 0; i < condition_count; ++i) {
      if (const auto code = checkPointer(conditions[i], "a condition")) return code;
      texts.emplace_back(conditions[i]);
    }
    std::vector<size_t> found;
    if (const auto code = selectIn(*dump, texts, indexes, nonzero != 0, found)) return code;
    std::transform(found.begin(), found.end(), positions,
                   [](size_t position) { return static_cast<U32>(position); });
    *count = found.size();
    return VELMAR_OK;
  });
}
