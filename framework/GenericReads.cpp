#include <algorithm>
#include <cstring>

#include "Velmar/FieldId.h"
#include "Velmar/Generic.h"
#include "framework/FieldAccess.h"
#include "framework/Knowledge.h"

namespace Velmar {
namespace Framework {

/// The data behind a table of the catalogue.
class TableAccess {
 public:
  static const ClassData& data(const Catalogue::Table& table) { return *table.data_; }
};

}  // namespace Framework

namespace {

using namespace Framework;

const ClassData& dataOf(const AnyView& view) { return TableAccess::data(view.table()); }

/// The slot of a field, which the view's buffer holds.
const FieldSlot& heldSlot(const AnyView& view, U32 id, Site site) {
  const ClassData& data = dataOf(view);
  if (!data.hasId(id)) fail("false", site);
  const FieldSlot& slot = data.slot(data.fieldOfId(id), rowOf(view.view(), data));
  if (slot.width == 0 || ViewAccess::len(view.view()) < bytesUpTo(slot)) {
    checkedGet<U64>(view.view(), slot, data);
  }
  return slot;
}

Catalogue::BitRange rangeOf(const FieldSlot& slot) { return {slot.offset, slot.width}; }

U64 readNumber(const AnyView& view, const FieldSlot& slot) {
  U64 number = 0;
  Detail::copyBits(bytesOf(number), sizeof(number), ViewAccess::buf(view.view()),
                   ViewAccess::len(view.view()), slot.width, 0, slot.offset);
  return number;
}

bool isZero(const U8* entry, U32 bytes) {
  return std::all_of(entry, entry + bytes, [](U8 byte) { return byte == 0; });
}

/// An entry without the bits of its fields.
class ReservedBits {
 public:
  ReservedBits(const ClassData& data, U32 row, const U8* entry) : words_(data.facts[row].words) {
    std::memcpy(bits_, entry, 4 * words_);
    for (U32 i = 0; i < words_; ++i) bits_[i] &= ~data.masks[row * data.rawWords + i];
  }
  bool areZero() const { return isZero(bytesOf(bits_[0]), 4 * words_); }
  FieldValue value() const {
    return FieldValue::read({0, static_cast<U16>(32 * words_)}, bytesOf(bits_[0]), 4 * words_);
  }

 private:
  U32 words_;
  U32 bits_[FieldValue::mostBits / 32];
};

FieldValue reservedBits(const AnyView& view) {
  const ClassData& data = dataOf(view);
  return ReservedBits(data, rowOf(view.view(), data), bytesOf(view).data()).value();
}

constexpr const char* reservedName = "outsideFields";

/// Parts of a text such as "stg=2", where the ports of a family that have one value share a part.
class TextParts {
 public:
  void add(const Catalogue::Field& field, Catalogue::Family family, const FieldValue& value) {
    const std::string_view prefix(field.accessor, family.prefixLength);
    if (prefix != prefix_) flush();
    prefix_ = prefix;
    const std::string text = value.text(field.type);
    if (prefix.empty()) return append(field.accessor, text);
    for (Ports& ports : ports_) {
      if (ports.value == text) return ports.numbers.push_back(family.number);
    }
    ports_.push_back({text, {family.number}});
  }
  void append(std::string_view name, const std::string& value) {
    text_.append(" ").append(name).append("=").append(value);
  }
  std::string take() {
    flush();
    return std::move(text_);
  }

 private:
  struct Ports {
    std::string value;
    std::vector<U32> numbers;
  };

  void flush() {
    for (const Ports& ports : ports_) {
      append(std::string(prefix_) + rangesText(ports.numbers), ports.value);
    }
    ports_.clear();
  }

  std::string text_;
  std::string_view prefix_;
  std::vector<Ports> ports_;
};

/// An entry that is written field by field.
class TargetEntry {
 public:
  TargetEntry(U8* entry, U32 bytes) : entry_(entry), bytes_(bytes) { std::memset(entry, 0, bytes); }

  /// False, and nothing is written, if it would change a field that was written before.
  bool set(Catalogue::BitRange range, const FieldValue& value, bool mayShareBits) {
    if (mayShareBits) {
      U8 changed[FieldValue::mostBits / 8];
      std::memcpy(changed, entry_, bytes_);
      value.write(range, changed, bytes_);
      for (const Catalogue::BitRange other : written_) {
        if (FieldValue::read(other, changed, bytes_) != FieldValue::read(other, entry_, bytes_)) {
          return false;
        }
      }
      written_.push_back(range);
    }
    value.write(range, entry_, bytes_);
    return true;
  }

 private:
  U8* entry_;
  U32 bytes_;
  std::vector<Catalogue::BitRange> written_;  ///< those that may share bits
};

/// The values of `ports` fields that follow each other. May write up to three values more.
void readStates(const U8* entry, const FieldSlot& slot, U32 ports, U8* values) {
  static_assert(PortStates::portsOfByte == 4, "the loop takes a byte as four values of two bits");
  const U8* from = entry + slot.offset / 8;
  for (U32 port = 0; port < ports; port += PortStates::portsOfByte, ++from) {
    U32 four = *from;
    four = (four | four << 12) & 0x000f000fU;
    four = (four | four << 6) & 0x03030303U;
    std::memcpy(values + port, &four, sizeof(four));
  }
}

}  // namespace

std::optional<EntryAddress> addressOf(const Catalogue::Table& table, U32 chipType, U8 variant,
                                      U32 index, U32 identifier) {
  if (!table.isOn(chipType, variant)) return std::nullopt;
  const Catalogue::Geometry geometry = table.geometry(chipType);
  if (index >= geometry.indexCount() || identifier >= geometry.identifiers) return std::nullopt;
  return EntryAddress{geometry.addressOfIndex(index, identifier), geometry.accessType,
                      geometry.block};
}

void failAssertion(const char* expression, U32 number, const char* function) {
  failDecimal(expression, number, {function, __LINE__});
}

std::optional<Catalogue::Chip> findChip(std::string_view name) {
  for (const ChipName& chip : chipNames) {
    if (name == chip.name) return Catalogue::Chip{chip.name, chip.number};
  }
  return std::nullopt;
}

std::optional<Catalogue::Table> findTable(std::string_view name) {
  for (U32 i = 0; i < classCount; ++i) {
    if (name == classes[i]->name) return Catalogue::table(i);
  }
  return std::nullopt;
}

Catalogue::Chip chipOf(const AnyView& view) {
  const U32 number = ViewAccess::chipType(view.view());
  return {chipName(number), number};
}

U8 variantOf(const AnyView& view) { return ViewAccess::variant(view.view()); }

Span<U8> bytesOf(const AnyView& view) {
  const ClassData& data = dataOf(view);
  const U32 bytes = 4U * data.facts[rowOf(view.view(), data)].words;
  if (ViewAccess::len(view.view()) < bytes) {
    failDecimal("len_ >= ", bytes, {__PRETTY_FUNCTION__, __LINE__});
  }
  return {ViewAccess::buf(view.view()), bytes};
}

U64 field64(const AnyView& view, U32 id) {
  const Site site{__PRETTY_FUNCTION__, __LINE__};
  const FieldSlot& slot = heldSlot(view, id, site);
  const ClassData& data = dataOf(view);
  if (!isScalar(data.fieldFacts[data.fieldOf(slot)].type)) fail("false", site);
  return readNumber(view, slot);
}

U64 field64(const AnyView& view, const char* name) { return field64(view, FieldId::find(name)); }

FieldValue bits(const AnyView& view, U32 id) {
  const FieldSlot& slot = heldSlot(view, id, {__PRETTY_FUNCTION__, __LINE__});
  return FieldValue::read(rangeOf(slot), ViewAccess::buf(view.view()),
                          ViewAccess::len(view.view()));
}

FieldValue bits(const AnyView& view, const char* name) { return bits(view, FieldId::find(name)); }

std::string toText(const AnyView& view) {
  const Catalogue::Table& table = view.table();
  TextParts parts;
  forEachField(view, [&](const Catalogue::Field& field, const FieldValue& value) {
    parts.add(field, table.family(table.fieldIndex(field.id)), value);
  });
  const FieldValue reserved = reservedBits(view);
  std::string text = std::string(table.name()) + " on " + chipOf(view).name + ":" + parts.take();
  if (!reserved.isZero()) text.append(" ").append(reservedName).append("=").append(reserved.hex());
  return text;
}

std::vector<FieldDifference> differences(const AnyView& before, const AnyView& after) {
  const Site site{__PRETTY_FUNCTION__, __LINE__};
  if (&dataOf(before) != &dataOf(after)) fail("className(before) == className(after)", site);
  if (chipOf(before).number != chipOf(after).number) fail("chipOf(before) == chipOf(after)", site);
  std::vector<FieldDifference> found;
  const auto compare = [&](const char* name, Catalogue::ValueType type, const FieldValue& old,
                           const FieldValue& now) {
    if (old != now) found.push_back({name, type, old, now});
  };
  bytesOf(after);
  forEachField(before, [&](const Catalogue::Field& field, const FieldValue& old) {
    compare(field.accessor, field.type, old, bits(after, field.id));
  });
  compare(reservedName, Catalogue::ValueType::raw128, reservedBits(before), reservedBits(after));
  return found;
}

std::vector<Loss> translateEntry(const Catalogue::Table& table, U32 chipType, const U8* entry,
                                 U32 intoChipType, U8* into) {
  const ClassData& data = TableAccess::data(table);
  const U32 row = data.rowOfChip(chipType);
  const U32 intoRow = data.rowOfChip(intoChipType);
  const U32 bytes = 4U * data.facts[row].words;
  TargetEntry target(into, 4U * data.facts[intoRow].words);
  std::vector<Loss> losses;
  if (isZero(entry, bytes)) return losses;
  for (U32 i = 0; i < data.fields; ++i) {
    const FieldSlot& from = data.slot(i, row);
    if (from.width == 0) continue;
    const FieldValue value = FieldValue::read(rangeOf(from), entry, bytes);
    if (value.isZero()) continue;
    const FieldSlot& to = data.slot(i, intoRow);
    const std::optional<FieldValue> fitting = value.resized(to.width);
    if (to.width == 0) {
      losses.push_back({i, Loss::Reason::noField});
    } else if (!fitting) {
      losses.push_back({i, Loss::Reason::tooLarge});
    } else if (!target.set(rangeOf(to), *fitting, data.fieldFacts[i].overlaps)) {
      losses.push_back({i, Loss::Reason::sharesBits});
    }
  }
  if (!ReservedBits(data, row, entry).areZero()) {
    losses.push_back({data.fields, Loss::Reason::outsideFields});
  }
  return losses;
}

std::string lossText(const Catalogue::Table& table, const Loss& loss, const Catalogue::Chip& into) {
  const std::string chip = into.name;
  switch (loss.reason) {
    case Loss::Reason::noField:
      return std::string(table.name()) + " has no such field on " + chip;
    case Loss::Reason::tooLarge: {
      const U32 width = table.range(loss.field, into.number).width;
      return "too large for " + rangesText({&width, 1}) + (width == 1 ? " bit on " : " bits on ") +
             chip;
    }
    case Loss::Reason::sharesBits:
      return "it shares bits with others on " + chip;
    case Loss::Reason::outsideFields:
      break;
  }
  return "bits outside all fields have no name";
}

U32 portCount(const AnyView& view, std::string_view family) {
  const Catalogue::Table& table = view.table();
  U32 count = 0;
  for (U32 i = 0; i < table.fieldCount(); ++i) {
    const U32 prefix = table.family(i).prefixLength;
    if (prefix == 0 || family != std::string_view(table.field(i).accessor, prefix)) continue;
    count += table.range(i, chipOf(view).number).width != 0;
  }
  return count;
}

void PortStates::add(const AnyView& view) {
  const ClassData& data = dataOf(view);
  const U32 row = rowOf(view.view(), data);
  const RowFacts& facts = data.facts[row];
  if (facts.ports == 0) return;
  const FieldFacts& first = data.fieldFacts[facts.portField];
  if (size_ == 0) first_ = first.port;
  if (first_ + size_ != first.port || size_ + facts.ports > mostPorts) {
    failDecimal("port == ", first_ + size_, {__PRETTY_FUNCTION__, __LINE__});
  }
  // The rule of a family: its ports follow each other, and none is wider than the first.
  heldSlot(view, data.fieldFacts[facts.portField + facts.ports - 1U].id,
           {__PRETTY_FUNCTION__, __LINE__});
  const FieldSlot& slot = data.slot(facts.portField, row);
  readStates(ViewAccess::buf(view.view()), slot, facts.ports, values_ + size_);
  size_ += facts.ports;
}

PortStates states(const AnyView& view) {
  PortStates states;
  states.add(view);
  return states;
}

PortStates states(const AnyView& lower, const AnyView& upper) {
  PortStates states;
  states.add(lower);
  states.add(upper);
  return states;
}

}  // namespace Velmar
