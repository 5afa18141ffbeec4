#include "framework/Geometry.h"

namespace Velmar {
namespace Framework {
namespace {

/// The row of a chip and variant; fails if the class lacks them, with the caller's text for the
/// variant.
U32 knownRow(const ClassData& data, U32 chipType, U8 variant, const char* variantText, Site site) {
  const U32 row = data.rowOf(chipType, variant);
  if (__builtin_expect(row == data.rows, false)) {
    fail(data.rowOfChip(chipType) == data.rows ? "0" : variantText, site);
  }
  return row;
}

}  // namespace

const RowFacts& facts(const ClassData& data, U32 chipType, U8 variant, Site site) {
  return data.facts[knownRow(data, chipType, variant, "variant == 0", site)];
}

const RowFacts& tracedFacts(const ClassData& data, U32 chipType, U8 variant, Site site) {
  traceStatic(chipType, variant, site);
  return facts(data, chipType, variant, site);
}

bool hasIdentifier(const ClassData& data, U32 chipType, U8 variant, U32 identifier, Site site) {
  traceIdentifier(chipType, variant, identifier, site);
  return identifier < facts(data, chipType, variant, site).identifiers;
}

Raw8192 allFieldsMask(const ClassData& data, U32 chipType, U8 variant, Site site) {
  const U32 row = knownRow(data, chipType, variant, "variant == 0", site);
  Raw8192 mask{};
  std::memcpy(mask.words, data.masks + row * data.rawWords, 4 * data.rawWords);
  return mask;
}

void allFields(const ClassData& data, const EntryView& view, Site site, U32* entry, int words) {
  traceMember(view, site);
  const U32 row =
      knownRow(data, ViewAccess::chipType(view), ViewAccess::variant(view), "variant_ == 0", site);
  if (ViewAccess::len(view) < data.allFieldsBytes)
    failDecimal("len_ >= ", data.allFieldsBytes, site);
  maskBuf(reinterpret_cast<const U32*>(ViewAccess::buf(view)), data.allFieldsBytes / 4, entry,
          words, data.masks + row * data.rawWords, static_cast<int>(data.rawWords));
}

void checkConstruction(const ClassData& data, U32 chipType, U8 variant, Site site) {
  if (!isKnown(data, chipType, variant)) failClassMissing(data.name, chipType, variant, site);
  traceConstruction(data, chipType, site);
}

}  // namespace Framework
}  // namespace Velmar
