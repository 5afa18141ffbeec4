#include "model/Layout.h"

#include "model/Failure.h"
#include "model/Text.h"

namespace Tool {

std::string FieldPlace::bits() const {
  return width == 1 ? formatText("{}", offset) : formatText("{}:{}", lastBit(), offset);
}

Layout::Layout(const Catalogue::Table& table, const Catalogue::Chip& chip, U8 variant)
    : table_(table), chip_(chip), variant_(variant), geometry_(table.geometry(chip.number)) {
  if (!table.isOn(chip.number)) {
    fail("{} does not exist on {}; it exists on {}", table.name(), chip.name,
         join(chipsOf(table), ", "));
  }
  if (!table.isOn(chip.number, variant)) {
    fail("{} on {} has no variant {}; it has variant 0 only", table.name(), chip.name, variant);
  }
  for (U32 i = 0; i < table.fieldCount(); ++i) {
    const Catalogue::BitRange range = table.range(i, chip.number);
    if (range.width != 0) fields_.push_back({table.field(i), range.offset, range.width});
  }
  reservedMask_.resize(entryBytes());
  for (U32 bit = 0; bit < 8 * entryBytes(); ++bit) {
    if (table.isFieldBit(bit, chip.number)) continue;
    reservedMask_[bit / 8] = static_cast<U8>(reservedMask_[bit / 8] | 1U << bit % 8);
  }
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
  const U32 address = isRegisterArray() ? geometry_.addressOf(0, index, identifier)
                                        : geometry_.addressOf(index, 0, identifier);
  return {address, geometry_.accessType, geometry_.block};
}

const FieldPlace& Layout::find(std::string_view name) const {
  // Documents name fields as decode does. To compare simplified names first takes twice the time.
  for (const FieldPlace& place : fields_) {
    if (name == place.name()) return place;
  }
  const std::optional<U32> index = findField(table_, name);
  if (!index) failUnknown(name);
  const Catalogue::Field field = table_.field(*index);
  for (const FieldPlace& place : fields_) {
    if (place.field.id == field.id) return place;
  }
  const std::vector<std::string> chips = chipsOf(table_, *index);
  const std::string remedy = chips.empty() ? "no chip has it" : "it exists on " + join(chips, ", ");
  fail("{} has no field {} on {}; {}", this->name(), field.accessor, chip_.name, remedy);
}

void Layout::failUnknown(std::string_view name) const {
  std::vector<std::string> names;
  for (const FieldPlace& place : fields_) {
    names.emplace_back(place.name());
    const std::string_view digits =
        std::string_view(place.name()).substr(std::min(name.size(), names.back().size()));
    const bool isOfFamily = names.back().rfind(name, 0) == 0 && !digits.empty() &&
                            digits.find_first_not_of("0123456789") == std::string_view::npos;
    if (isOfFamily) {
      fail("{} are many fields; give numbers, such as {}, {}-{} or {}*", name, place.name(),
           place.name(), parseNumber(digits).value_or(0) + 3, name);
    }
  }
  fail("{} has no field {}; {}{}", this->name(), inQuotes(name), didYouMean(name, names),
       seeFields());
}

std::string Layout::seeFields() const {
  return formatText("\"velmar layout {} --chip {}\" lists the fields", name(), chip_.name);
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

}  // namespace Tool
