#include "framework/AllClasses.h"

#include "Velmar/MetaInfo.h"

namespace Velmar {

#define VELMAR_CLASS_DATA(CLASS) extern const Framework::ClassData classData_##CLASS;
VELMAR_FOR_EACH_CLASS(VELMAR_CLASS_DATA)
#undef VELMAR_CLASS_DATA

namespace Framework {

#define VELMAR_CLASS_POINTER(CLASS) &classData_##CLASS,
const ClassData* const classes[] = {VELMAR_FOR_EACH_CLASS(VELMAR_CLASS_POINTER)};
#undef VELMAR_CLASS_POINTER
const U32 classCount = sizeof(classes) / sizeof(classes[0]);

}  // namespace Framework
}  // namespace Velmar
