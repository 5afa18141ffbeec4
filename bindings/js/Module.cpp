#include "js/module.h"

#include "c/Calls.h"
#include "core/Comparison.h"
#include "core/Difference.h"
#include "core/Documents.h"

using namespace Velmar;
using namespace Velmar::Binding;

namespace {

velmar_code giveText(const std::string& document, char** text) {
  *text = new char[document.size() + 1];
  std::memcpy(*text, document.c_str(), document.size() + 1);
  return VELMAR_OK;
}

Core::Difference differenceOf(const velmar_dump* before, const velmar_dump* after,
                              const Core::DifferenceOptions& options) {
  return Core::difference(before->layout, before->entries, after->entries, options);
}

}  // namespace

void velmar_places(const velmar_layout* layout, uint32_t* places) {
  const Catalogue::Table table = tableOf(layout);
  const U32 count = table.fieldCount();
  for (U32 i = 0; i < count; ++i) {
    const Catalogue::BitRange own = table.range(i, chipOf(layout).number);
    U32* const place = places + 3 * i;
    place[0] = own.offset;
    place[1] = own.width;
    place[2] = 0;
    for (U32* other = places; other != place; other += 3) {
      if (other[0] >= place[0] + place[1] || place[0] >= other[0] + other[1]) continue;
      if (place[1] != 0 && other[1] != 0) place[2] = other[2] = 1;
    }
  }
}

const char* velmar_value_text(const velmar_layout* layout, uint32_t field, const void* entry,
                              size_t entry_size) {
  static std::string text;
  const Catalogue::Table table = tableOf(layout);
  const Catalogue::BitRange range = table.range(field, chipOf(layout).number);
  const Core::FieldPlace place{table.field(field), range.offset, range.width};
  const auto bytes = static_cast<const U8*>(entry);
  text = Core::plainText(place, Core::Value::read(place, bytes, static_cast<U32>(entry_size)));
  return text.c_str();
}

velmar_code velmar_entries_csv(const velmar_dump* dump, const uint32_t* positions, size_t count,
                               char** text) {
  std::string csv;
  const Core::EntryDocument::Style style{Core::RowFormat::csv, false};
  Core::EntryDocument document(csv, dump->layout, dump->layout.fields(), style);
  const Core::Dump& entries = dump->entries;
  for (size_t i = 0; i < (positions == nullptr ? entries.count() : count); ++i) {
    const size_t position = positions == nullptr ? i : positions[i];
    document.write(entries.index(position), entries.bytes(position));
  }
  document.end();
  return giveText(csv, text);
}

velmar_code velmar_differing(const velmar_dump* before, const velmar_dump* after, uint32_t* indexes,
                             size_t room, size_t* count) {
  const Core::DifferenceOptions options;
  const Core::Difference found = differenceOf(before, after, options);
  if (room < found.entries.size()) {
    return checkSize("the array", room, found.entries.size(), "indexes");
  }
  for (size_t i = 0; i < found.entries.size(); ++i) indexes[i] = found.entries[i].index;
  *count = found.entries.size();
  return VELMAR_OK;
}

velmar_code velmar_diff_where(const velmar_dump* before, const velmar_dump* after,
                              const char* const* conditions, size_t condition_count,
                              uint32_t is_csv, char** text) {
  const Core::Layout& layout = before->layout;
  Core::DifferenceOptions options;
  const std::vector<std::string> all(conditions, conditions + condition_count);
  if (const auto code = take(Core::Selection::of(layout, all), options.selection)) return code;
  const auto format = is_csv != 0 ? Core::RowFormat::csv : Core::RowFormat::json;
  const Core::Difference found = differenceOf(before, after, options);
  return giveText(Core::differenceText(layout, found, format), text);
}

velmar_code velmar_compare_rows(uint32_t before, uint32_t after, uint32_t table, char** text) {
  std::optional<Catalogue::Table> only;
  if (table != VELMAR_NONE) only = Catalogue::table(table);
  const auto changes =
      Core::compareChips(Catalogue::chip(before), Catalogue::chip(after), 0, only, true);
  if (!changes) return fail(changes.error());
  std::string rows;
  for (const Core::PartChange& each : *changes) {
    rows += rows.empty() ? "[" : ",";
    rows += Core::jsonList(
        {each.table.name(), each.part, each.before.text(), each.after.text(), each.change});
  }
  return giveText(rows.empty() ? "[]" : rows + "]", text);
}
