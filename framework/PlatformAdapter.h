#pragma once

// All that the library uses of the base libraries beyond the interfaces of its own views. To build
// against other base libraries, change this header and its source, and the CMake target
// Velmar::Platform.

#include "AsicUtils/ChipType.h"
#include "Detail/CopyBits.h"
#include "Detail/MaskBuf.h"
#include "Kiv/SassertHelper.h"
#include "Kiv/Trace.h"
#include "Morvo/VectorOutOfRange.h"
#include "Oru/PerUnitBitmap.h"

namespace Velmar {
namespace Framework {

/// CHIP(name, number) for each of the chips that the library knows.
#define VELMAR_CHIPS(CHIP) ASICUTILS_CHIP_TYPES(CHIP)

/// The library's one trace handle, and its only state.
extern Kiv::TraceHandle traceHandle __attribute__((visibility("hidden")));

/// False only when the level is off; one load and one branch. Also true before the first use.
inline bool traceMayBeOn(U32 level) { return traceHandle.mayBeEnabled(level); }
inline bool traceIsOn(U32 level) { return traceHandle.isEnabled(level); }

inline U32 wordCountOf(const Oru::PerUnitBitmap& bitmap) { return bitmap.wordCount(); }
inline U32 wordOf(const Oru::PerUnitBitmap& bitmap, U32 index) { return bitmap.word(index); }

/// The bytes of a raw value or integer, lowest first.
template <class T>
U8* bytesOf(T& value) {
  return reinterpret_cast<U8*>(&value);
}
template <class T>
const U8* bytesOf(const T& value) {
  return reinterpret_cast<const U8*>(&value);
}

}  // namespace Framework
}  // namespace Velmar
