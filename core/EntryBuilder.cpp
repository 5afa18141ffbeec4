#include "core/EntryBuilder.h"

namespace Velmar {
namespace Core {

void EntryBuilder::start(const U8* bytes) {
  bytes_.assign(bytes, bytes + layout_.entryBytes());
  forget();
}

void EntryBuilder::startFromZero() {
  bytes_.assign(layout_.entryBytes(), 0);
  forget();
}

Done EntryBuilder::set(const Assignment& assignment) {
  const FieldPlace& place = assignment.place;
  if (assignment.kind == Assignment::Kind::set) return set(place, assignment.value);
  if (assignment.kind == Assignment::Kind::setIfOther) {
    return had(place, assignment.value) ? Done() : set(place, assignment.value);
  }
  Value value = Value::read(place, bytes_.data(), layout_.entryBytes());
  if (assignment.kind == Assignment::Kind::add) value.add(assignment.value);
  if (assignment.kind == Assignment::Kind::remove) value.remove(assignment.value);
  // Ports may be added to what was set before.
  given_[place.index] = false;
  return set(place, value);
}

Done EntryBuilder::set(const FieldPlace& place, const Value& value) {
  if (given_[place.index]) {
    if (const Done done = checkAgainst(place, place, value); !done) return done;
  }
  if (place.field.overlaps) {
    for (const FieldPlace& earlier : overlapping_) {
      if (earlier.index == place.index || !earlier.sharesBitsWith(place)) continue;
      if (const Done done = checkAgainst(earlier, place, value); !done) return done;
    }
    overlapping_.push_back(place);
  }
  value.write(place, bytes_.data(), layout_.entryBytes());
  given_[place.index] = true;
  return succeeded();
}

Done EntryBuilder::checkAgainst(const FieldPlace& earlier, const FieldPlace& place,
                                const Value& value) const {
  std::vector<U8> changed = bytes_;
  value.write(place, changed.data(), layout_.entryBytes());
  const Value before = Value::read(earlier, bytes_.data(), layout_.entryBytes());
  if (before == Value::read(earlier, changed.data(), layout_.entryBytes())) return succeeded();
  if (earlier.index == place.index) {
    return failed(
        Fault(Code::value, "{} is given twice, with two values; give it once", earlier.name())
            .ofField(earlier.name()));
  }
  return failed(Fault(Code::value,
                      "{} and {} share bits and their values disagree; give one of them, or values "
                      "that agree",
                      earlier.name(), place.name())
                    .ofField(place.name()));
}

void EntryBuilder::setReservedBits(const std::vector<U8>& bits) {
  const std::vector<U8>& mask = layout_.reservedMask();
  for (size_t i = 0; i < bits.size(); ++i) {
    bytes_[i] = static_cast<U8>((bytes_[i] & ~mask[i]) | bits[i]);
  }
}

}  // namespace Core
}  // namespace Velmar
