#include <memory>

#include "c/Calls.h"
#include "core/Comparison.h"
#include "core/Difference.h"
#include "core/Documents.h"
#include "core/EntryLines.h"
#include "core/Identification.h"
#include "core/Translation.h"

using namespace Velmar;
using namespace Velmar::Binding;

namespace {

velmar_code giveText(const std::string& document, char** text) {
  char* const copy = new char[document.size() + 1];
  std::memcpy(copy, document.c_str(), document.size() + 1);
  *text = copy;
  return VELMAR_OK;
}

velmar_code checkAlike(const Core::Layout& a, const Core::Layout& b) {
  const bool areAlike = a.name() == std::string_view(b.name()) &&
                        a.chip().number == b.chip().number && a.variant() == b.variant();
  if (areAlike) return VELMAR_OK;
  return fail(Fault(Code::input, "the dumps are of {}, variant {}, and of {}, variant {}",
                    a.shown(), a.variant(), b.shown(), b.variant())
                  .advise("give two dumps of one table, chip and variant"));
}

/// The text that `writer` makes of what changed.
velmar_code giveDifference(const velmar_dump* before, const velmar_dump* after, char** text,
                           std::string (*writer)(const Core::Layout&, const Core::Difference&)) {
  if (const auto code =
          checkPointers({{before, "the dump"}, {after, "the other dump"}, {text, "the text"}}))
    return code;
  if (const auto code = checkAlike(before->layout, after->layout)) return code;
  return allocating([&] {
    const Core::DifferenceOptions options;
    const auto found = Core::difference(before->layout, before->entries, after->entries, options);
    return giveText(writer(before->layout, found), text);
  });
}

Core::JsonFrame translationFrame(const Core::Layout& from, const Core::Layout& to) {
  const std::string members =
      Core::formatText(R"("table": "{}", "oldChip": "{}", "newChip": "{}", "variant": {})",
                       from.name(), from.chip().name, to.chip().name, from.variant());
  return Core::frameOf("translation", "losses", members);
}

/// A table and a chip that are the only ones, or VELMAR_NONE.
velmar_code takeOnly(U32 table, std::optional<Catalogue::Table>& into) {
  if (table == VELMAR_NONE) return VELMAR_OK;
  if (const auto code = checkTable(table)) return code;
  into = Catalogue::table(table);
  return VELMAR_OK;
}

velmar_code takeOnly(U32 chip, std::optional<Catalogue::Chip>& into) {
  if (chip == VELMAR_NONE) return VELMAR_OK;
  if (const auto code = checkChip(chip)) return code;
  into = Catalogue::chip(chip);
  return VELMAR_OK;
}

velmar_code giveListing(const Core::Listing& listing, const Core::JsonFrame& frame, char** text) {
  return giveText(listing.written(Core::RowFormat::json, frame), text);
}

}  // namespace

void velmar_text_free(char* text) { delete[] text; }

velmar_code velmar_entries_json(const velmar_dump* dump, const uint32_t* positions, size_t count,
                                uint32_t plain, char** text) {
  if (const auto code = checkPointers({{dump, "the dump"}, {text, "the text"}})) return code;
  const Core::Dump& entries = dump->entries;
  if (positions == nullptr && count != 0) return checkPointer(positions, "the positions");
  for (size_t i = 0; i < count; ++i) {
    if (const auto code = checkIndex("position", positions[i], entries.count())) return code;
  }
  return allocating([&] {
    std::string json;
    const Core::EntryDocument::Style style{Core::RowFormat::json, plain != 0};
    Core::EntryDocument document(json, dump->layout, dump->layout.fields(), style);
    for (size_t i = 0; i < (positions == nullptr ? entries.count() : count); ++i) {
      const size_t position = positions == nullptr ? i : positions[i];
      document.write(entries.index(position), entries.bytes(position));
    }
    document.end();
    return giveText(json, text);
  });
}

velmar_code velmar_diff(const velmar_dump* before, const velmar_dump* after, char** text) {
  return giveDifference(before, after, text,
                        [](const Core::Layout& layout, const Core::Difference& found) {
                          return Core::differenceText(layout, found, Core::RowFormat::json);
                        });
}

velmar_code velmar_diff_text(const velmar_dump* before, const velmar_dump* after, char** text) {
  return giveDifference(before, after, text, Core::differenceLines);
}

velmar_code velmar_entry_text(const velmar_layout* layout, const void* entry, size_t entry_size,
                              char** text) {
  if (const auto code =
          checkPointers({{layout, "the layout"}, {entry, "the entry"}, {text, "the text"}}))
    return code;
  if (const auto code = checkSize("the entry", entry_size, 4U * geometryOf(layout).words))
    return code;
  return allocating([&] {
    const auto own = Core::Layout::of(tableOf(layout), chipOf(layout), 0);
    if (!own) return fail(own.error());
    return giveText(Core::entryLines(*own, static_cast<const U8*>(entry)), text);
  });
}

velmar_code velmar_compare(uint32_t before, uint32_t after, uint32_t table, uint32_t variant,
                           char** text) {
  if (const auto code = checkChip(before)) return code;
  if (const auto code = checkChip(after)) return code;
  if (const auto code = checkPointer(text, "the text")) return code;
  std::optional<Catalogue::Table> only;
  if (const auto code = takeOnly(table, only)) return code;
  if (variant > 255) {
    return fail(Fault(Code::variant, "there is no variant {}", variant).advise("give 0 to 255"));
  }
  return allocating([&] {
    const Catalogue::Chip from = Catalogue::chip(before);
    const Catalogue::Chip to = Catalogue::chip(after);
    const auto changes = Core::compareChips(from, to, static_cast<U8>(variant), only, false);
    if (!changes) return fail(changes.error());
    return giveListing(Core::listingOf(*changes), Core::comparisonFrame(from, to), text);
  });
}

velmar_code velmar_identify(const void* bytes, size_t size, const velmar_read_options* options,
                            uint32_t table, uint32_t chip, char** text) {
  if (const auto code = checkPointers({{bytes, "the input"}, {text, "the text"}})) return code;
  std::optional<Catalogue::Table> ofTable;
  std::optional<Catalogue::Chip> ofChip;
  if (const auto code = takeOnly(table, ofTable)) return code;
  if (const auto code = takeOnly(chip, ofChip)) return code;
  return allocating([&] {
    Core::ReadOptions own;
    U32 variant = 0;
    if (const auto code = takeOptions(options, own, variant)) return code;
    if (variant != 0) {
      return fail(Fault(Code::option, "variant {} has no effect on identification", variant)
                      .advise("give variant 0"));
    }
    const auto fits = Core::identify({static_cast<const char*>(bytes), size}, own, ofTable, ofChip);
    if (!fits) return fail(fits.error());
    return giveListing(Core::listingOf(*fits), Core::frameOf("identification", "fits"), text);
  });
}

velmar_code velmar_translate(const velmar_dump* dump, uint32_t chip, velmar_dump** translated,
                             char** losses) {
  if (const auto code = checkPointer(dump, "the dump")) return code;
  if (const auto code = checkChip(chip)) return code;
  if (const auto code =
          checkPointers({{translated, "the translated dump"}, {losses, "the text of the losses"}}))
    return code;
  return allocating([&] {
    const Core::Layout& from = dump->layout;
    const auto to = Core::Layout::of(from.table(), Catalogue::chip(chip), from.variant());
    if (!to) return fail(to.error());
    Core::Translation result = Core::translate(from, *to, dump->entries);
    auto moved = std::make_unique<velmar_dump>(velmar_dump{*to, std::move(result.dump)});
    giveListing(Core::listingOf(result.losses), translationFrame(from, *to), losses);
    *translated = moved.release();
    return VELMAR_OK;
  });
}
