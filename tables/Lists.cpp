// The lists that the engine iterates over: classes and field identifiers.

#include "Velmar/FieldId.h"
#include "framework/Knowledge.h"
#include "tables/Classes.h"
#include "tables/FieldIds.h"

namespace Velmar {

#define VELMAR_CLASS_DATA(CLASS) extern const Framework::ClassData classData_##CLASS;
VELMAR_CLASSES(VELMAR_CLASS_DATA)

namespace Framework {

#define VELMAR_CLASS_POINTER(CLASS) &classData_##CLASS,
const ClassData* const classes[] = {VELMAR_CLASSES(VELMAR_CLASS_POINTER)};
const U32 classCount = sizeof(classes) / sizeof(classes[0]);

#define VELMAR_ID_ROW(number, NAME) makeIdRow(number, #NAME),
#define VELMAR_PORT_ROW(accessor, Accessor, NAME, TYPE, meaning) makeIdRow(FieldId::NAME, #NAME),
constexpr IdRow idRows[] = {VELMAR_FIELD_IDS(VELMAR_ID_ROW, VELMAR_PORT_ROW)};
const U32 idCount = sizeof(idRows) / sizeof(idRows[0]);

#define VELMAR_WITHOUT(number, NAME) -1
constexpr U32 closedIds = idCount VELMAR_NEW_FIELD_IDS(VELMAR_WITHOUT);
static_assert(sizeof(IdNumbersAscend<FieldId::Id(firstNumberOutOfOrder(idRows))>) > 0);
static_assert(sizeof(ClosedListIsSorted<FieldId::Id(firstNameOutOfOrder(idRows, closedIds))>) > 0);
static_assert(FieldId::SP_TREE_PORT271 == FieldId::firstPort + 271,
              "field identifiers: the numbers of the ports are not consecutive");

}  // namespace Framework
}  // namespace Velmar
