#pragma once

#include "framework/FieldAccess.h"

// Fields chosen by identifier. Each operation gives the result of the corresponding field member;
// if it traces, its own line comes first, then the field member's.

namespace Velmar {
namespace Framework {

U16 offsetOfId(const EntryView& view, U32 id, const ClassData& data, Site site);
U16 widthOfId(const EntryView& view, U32 id, const ClassData& data, Site site);
bool isIdValid(const EntryView& view, U32 id, const ClassData& data, Site site);
void setById(const EntryView& view, U32 id, U64 value, const ClassData& data, Site site);

}  // namespace Framework
}  // namespace Velmar
