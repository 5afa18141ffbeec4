#include "core/Layout.h"

#include <algorithm>

#include "core/Access.h"

namespace Velmar {
namespace Core {

std::string FieldPlace::bits() const {
  return width == 1 ? formatText("{}", offset) : formatText("{}:{}", lastBit(), offset);
}

Expected<Layout> Layout::of(const Catalogue::Table& table, const Catalogue::Chip& chip,
                            U32 variant) {
  if (const Done done = checkLayout(table, chip, variant); !done) return failed(done);
  return Layout(table, chip, static_cast<U8>(variant));
}

Layout::Layout(const Catalogue::Table& table, const Catalogue::Chip& chip, U8 variant)
    : table_(table), chip_(chip), variant_(variant), geometry_(table.geometry(chip.number)) {
  fields_.reserve(geometry_.fieldCount);
  for (U32 i = 0; i < table.fieldCount(); ++i) {
    const Catalogue::BitRange range = table.range(i, chip.number);
    if (range.width == 0) continue;
    fields_.push_back({table.field(i), range.offset, range.width, table.family(i), i});
  }
  reservedMask_.resize(entryBytes());
  fieldMask(table, chip, reservedMask_.data());
  for (U8& bits : reservedMask_) bits = static_cast<U8>(~bits);
}

std::vector<std::string> Layout::overlapsOf(const FieldPlace& place) const {
  std::vector<std::string> names;
  for (const FieldPlace& other : fields_) {
    if (other.field.id != place.field.id && other.sharesBitsWith(place)) {
      names.emplace_back(other.name());
    }
  }
  return names;
}

Address Layout::addressOf(U32 index, U32 identifier) const {
  const U32 address = Core::addressOf(geometry_, index, identifier);
  return {address, geometry_.accessType, geometry_.block};
}

Expected<const FieldPlace*> Layout::find(std::string_view name) const {
  // Documents name fields as decode does. To compare simplified names first takes twice the time.
  for (const FieldPlace& place : fields_) {
    if (name == place.name()) return &place;
  }
  const Expected<U32> index = findField(table_, chip_, name);
  if (!index) return failed(index);
  const U32 id = table_.field(*index).id;
  return &*std::find_if(fields_.begin(), fields_.end(),
                        [id](const FieldPlace& place) { return place.field.id == id; });
}

bool Layout::hasReservedBits(const U8* entry) const {
  for (size_t i = 0; i < reservedMask_.size(); ++i) {
    if ((entry[i] & reservedMask_[i]) != 0) return true;
  }
  return false;
}

FieldPlace Layout::wholeEntry() const {
  FieldPlace whole{};
  whole.width = 8 * entryBytes();
  return whole;
}

std::string blockText(U32 block) { return block == 1 ? "1 (ingress)" : "2 (egress)"; }

std::string addressText(U32 address) { return formatText("0x{:08x}", address); }

}  // namespace Core
}  // namespace Velmar
