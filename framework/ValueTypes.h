#pragma once

#include "Oru/PerUnitBitmap.h"
#include "Velmar/Catalogue.h"

// Properties of the types of field values.

namespace Velmar {
namespace Framework {

using Catalogue::ValueType;

template <class T>
inline constexpr ValueType valueTypeOf = ValueType::bitmap;
template <>
inline constexpr ValueType valueTypeOf<U8> = ValueType::u8;
template <>
inline constexpr ValueType valueTypeOf<U16> = ValueType::u16;
template <>
inline constexpr ValueType valueTypeOf<U32> = ValueType::u32;
template <>
inline constexpr ValueType valueTypeOf<U64> = ValueType::u64;
template <>
inline constexpr ValueType valueTypeOf<Raw128> = ValueType::raw128;

constexpr bool isScalar(ValueType type) { return type <= ValueType::u64; }
/// Words of the widest bitmap field.
constexpr U32 mostBitmapWords = 9;

/// The largest width of a field of a value type.
constexpr U32 bitsOf(ValueType type) {
  switch (type) {
    case ValueType::u8:
      return 8;
    case ValueType::u16:
      return 16;
    case ValueType::u32:
      return 32;
    case ValueType::u64:
      return 64;
    case ValueType::raw128:
      return 128;
    case ValueType::bitmap:
      break;
  }
  return 32 * mostBitmapWords;
}

/// A value type as signatures spell it.
constexpr const char* valueName(ValueType type) {
  switch (type) {
    case ValueType::u8:
      return "U8";
    case ValueType::u16:
      return "U16";
    case ValueType::u32:
      return "U32";
    case ValueType::u64:
      return "U64";
    case ValueType::raw128:
      return "Raw128";
    case ValueType::bitmap:
      break;
  }
  return "Oru::PerUnitBitmap";
}

/// What a setter takes, as signatures spell it.
constexpr const char* parameterName(ValueType type) {
  switch (type) {
    case ValueType::u64:
      return "const U64&";
    case ValueType::raw128:
      return "const Raw128&";
    default:
      return valueName(type);
  }
}

}  // namespace Framework
}  // namespace Velmar

// The type words of the rows of names: what the getter returns, what the setter takes.
#define VELMAR_VALUE_U8 U8
#define VELMAR_VALUE_U16 U16
#define VELMAR_VALUE_U32 U32
#define VELMAR_VALUE_U64 U64
#define VELMAR_VALUE_Raw128 Raw128
#define VELMAR_VALUE_Bitmap Oru::PerUnitBitmap
#define VELMAR_PARAMETER_U8 U8
#define VELMAR_PARAMETER_U16 U16
#define VELMAR_PARAMETER_U32 U32
#define VELMAR_PARAMETER_U64 const U64&
#define VELMAR_PARAMETER_Raw128 const Raw128&
#define VELMAR_PARAMETER_Bitmap Oru::PerUnitBitmap
