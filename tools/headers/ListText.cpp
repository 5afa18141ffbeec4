#include <string>
#include <vector>

#include "tables/FieldIds.h"
#include "tools/headers/HeaderText.h"

namespace Headers {
namespace {

struct Id {
  U32 number;  ///< 0: one above that of the previous row
  const char* name;
};

constexpr Id ids[] = {
#define VELMAR_ID(number, NAME) {number, #NAME},
#define VELMAR_PORT(accessor, Accessor, NAME, TYPE, meaning) {0, #NAME},
    VELMAR_FIELD_IDS(VELMAR_ID, VELMAR_PORT)
#undef VELMAR_ID
#undef VELMAR_PORT
};

/// The type word of the rows of names.
std::string typeWord(ValueType type) {
  return type == ValueType::bitmap ? "Bitmap" : valueName(type);
}

}  // namespace

std::string derivedFrom(const std::string& sources) {
  return "// Derived from " + sources +
         "; do not edit.\n// To refresh: cmake --build --preset release --target refresh\n";
}

std::string idHeader() {
  std::string enumerators;
  U32 number = 0;
  U32 firstPort = 0;
  for (const Id& id : ids) {
    number = id.number != 0 ? id.number : number + 1;
    if (std::string(id.name) == "SP_TREE_PORT0") firstPort = number;
    enumerators += std::string("  ") + id.name + " = " + std::to_string(number) + ",\n";
  }
  return derivedFrom("tables/FieldIds.h") + R"(#pragma once

#include "AsicUtils/Types.h"
#include "Velmar/Export.h"

namespace Velmar {

/// The field identifiers: one number for each hardware name, the same in every class. The numbers
/// up to VP are fixed positions in a longer sorted list, so some numbers are unused; a new name
/// takes the next free number.
namespace FieldId {

/// Identifier of SP_TREE_PORT0; that of port n is this plus n.
constexpr U32 firstPort = )" +
         std::to_string(firstPort) + R"(;

/// The identifiers, named after the hardware names. Converts to U32.
enum Id : U32 {
)" + enumerators +
         R"(};

/// The hardware name of an identifier, such as "FID_ID"; null for a number that names no field.
VELMAR_EXPORT const char* hardwareName(U32 id);
/// The accessor name of an identifier, such as "fidId"; null for a number that names no field.
VELMAR_EXPORT const char* accessorName(U32 id);
/// The identifier of a hardware name or accessor name, compared exactly; 0 if there is none.
VELMAR_EXPORT U32 find(const char* name);

}  // namespace FieldId
}  // namespace Velmar
)";
}

std::string includeAllHeader(const std::set<std::string>& names) {
  std::string text = derivedFrom("tables/Classes.h") + "#pragma once\n\n";
  for (const std::string& name : names) text += "#include \"Velmar/" + name + "\"\n";
  return text;
}

std::string fieldLists(const std::vector<ClassRows>& classes) {
  std::string text;
  for (const ClassRows& rows : classes) {
    text += "#define VELMAR_FIELDS_" + rows.name + "(FIELD)";
    for (const FieldRows& field : rows.fields) {
      const FieldName& name = field.name;
      text += std::string(" \\\n  FIELD(") + name.accessor + ", " + name.capitalised + ", " +
              name.hardwareName + ", " + typeWord(name.type) + ")";
    }
    text += "\n#define VELMAR_SPANS_" + rows.name + "(SPAN)";
    for (const std::string& chip : rows.spans) text += " SPAN(" + chip + ")";
    text += "\n";
  }
  return text;
}

}  // namespace Headers
