#include "Velmar/Catalogue.h"

#include "Velmar/FieldId.h"
#include "framework/Knowledge.h"
#include "framework/Reports.h"

namespace Velmar {
namespace Catalogue {

U32 chipCount() { return Framework::chipCount; }
Chip chip(U32 index) {
  const Framework::ChipName& chip = Framework::chipNames[index];
  return {chip.name, chip.number};
}

const char* valueTypeName(ValueType type) { return Framework::valueName(type); }

const char* Table::name() const { return data_->name; }
const char* Table::purpose() const { return data_->purpose; }
Kind Table::kind() const { return data_->kind; }
U32 Table::rawBytes() const { return 4 * data_->rawWords; }
U32 Table::allFieldsBytes() const { return data_->allFieldsBytes; }

U32 Table::fieldCount() const { return data_->fields; }

Field Table::field(U32 index) const {
  const Framework::FieldFacts& facts = data_->fieldFacts[index];
  return {FieldId::accessorName(facts.id),
          FieldId::hardwareName(facts.id),
          facts.meaning,
          facts.id,
          facts.type,
          facts.overlaps};
}

U32 Table::fieldIndex(U32 id) const {
  U32 index = 0;
  while (index < data_->fields && data_->fieldFacts[index].id != id) ++index;
  return index;
}

Family Table::family(U32 index) const {
  const Framework::FieldFacts& facts = data_->fieldFacts[index];
  return {facts.prefixLength, facts.port};
}

bool Table::isOn(U32 chipType) const { return data_->rowOfChip(chipType) != data_->rows; }
bool Table::isOn(U32 chipType, U8 variant) const {
  return data_->rowOf(chipType, variant) != data_->rows;
}

Geometry Table::geometry(U32 chipType) const { return data_->facts[data_->rowOfChip(chipType)]; }

BitRange Table::range(U32 index, U32 chipType) const {
  const Framework::FieldSlot& slot = data_->slot(index, data_->rowOfChip(chipType));
  return {slot.offset, slot.width};
}

bool Table::isFieldBit(U32 bit, U32 chipType) const {
  if (!isOn(chipType) || bit >= 32 * data_->rawWords) return false;
  const U32* mask = data_->masks + data_->rowOfChip(chipType) * data_->rawWords;
  return (mask[bit / 32] >> bit % 32 & 1U) != 0;
}

U32 tableCount() { return Framework::classCount; }
Table table(U32 index) { return Table(*Framework::classes[index]); }

}  // namespace Catalogue
}  // namespace Velmar
