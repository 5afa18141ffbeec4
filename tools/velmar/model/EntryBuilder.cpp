#include "model/EntryBuilder.h"

#include "model/Failure.h"
#include "model/Text.h"

namespace Tool {

void EntryBuilder::start(const U8* bytes) {
  bytes_.assign(bytes, bytes + layout_.entryBytes());
  forget();
}

void EntryBuilder::startFromZero() {
  bytes_.assign(layout_.entryBytes(), 0);
  forget();
}

void EntryBuilder::set(const Assignment& assignment) {
  const FieldPlace& place = assignment.place;
  for (const FieldPlace& earlier : set_) {
    if (earlier.sharesBitsWith(place)) checkAgainst(earlier, assignment);
  }
  assignment.value.write(place, bytes_.data(), layout_.entryBytes());
  set_.push_back(place);
}

void EntryBuilder::checkAgainst(const FieldPlace& earlier, const Assignment& assignment) const {
  std::vector<U8> changed = bytes_;
  assignment.value.write(assignment.place, changed.data(), layout_.entryBytes());
  const Value before = Value::read(earlier, bytes_.data(), layout_.entryBytes());
  if (before == Value::read(earlier, changed.data(), layout_.entryBytes())) return;
  if (earlier.field.id == assignment.place.field.id) {
    fail("{} is given twice, with two values; give it once", earlier.name());
  }
  fail("{} and {} share bits and their values disagree; give one of them, or values that agree",
       earlier.name(), assignment.place.name());
}

void EntryBuilder::setReservedBits(const std::vector<U8>& bits) {
  const std::vector<U8>& mask = layout_.reservedMask();
  for (size_t i = 0; i < bits.size(); ++i) {
    bytes_[i] = static_cast<U8>((bytes_[i] & ~mask[i]) | bits[i]);
  }
}

Assignment parseAssignment(const Layout& layout, const std::string& text) {
  const size_t sign = text.find('=');
  if (sign == std::string::npos || sign == 0) {
    fail("{} sets no field; give FIELD=VALUE, or @FILE", inQuotes(text));
  }
  const FieldPlace& place = layout.find(trim(std::string_view(text).substr(0, sign)));
  return {place, parseValue(place, trim(std::string_view(text).substr(sign + 1)))};
}

}  // namespace Tool
