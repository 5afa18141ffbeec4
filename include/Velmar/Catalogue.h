#pragma once

#include "AsicUtils/Types.h"
#include "Velmar/Export.h"

namespace Velmar {

namespace Framework {
struct ClassData;
class TableAccess;
}  // namespace Framework

/// Everything that the library knows, as data: every chip, class and field, with layout, geometry
/// and address rule, read from the rows that the views use. Nothing here fails or allocates; every
/// text lives as long as the library.
namespace Catalogue {

struct Chip {
  const char* name;  ///< such as "BCM56990_B0"
  U32 number;        ///< the ChipType_ value
};

/// The chips, in ascending order of their numbers.
VELMAR_EXPORT U32 chipCount();
/// Chip `index`, below chipCount().
VELMAR_EXPORT Chip chip(U32 index);

/// A table is a memory of many entries, a register array one register of many elements.
enum class Kind : U8 { table, registerArray };
/// What a field's getter returns.
enum class ValueType : U8 { u8, u16, u32, u64, raw128, bitmap };
/// Which variants a class accepts on a chip: any number, or 0 only.
enum class Variants : U8 { any, zeroOnly };

/// The name of a value type as signatures spell it, such as "U16" or "Oru::PerUnitBitmap".
VELMAR_EXPORT const char* valueTypeName(ValueType type);

/// One field of a class, whatever the chip.
struct Field {
  const char* accessor;      ///< such as "fidId"
  const char* hardwareName;  ///< such as "FID_ID"
  const char* meaning;       ///< a few words
  U32 id;                    ///< identifier
  ValueType type;            ///< what its getter returns
  bool overlaps;             ///< shares bits with another field of the class on some chip
};

/// The port family of a field, such as spTreePort0, spTreePort1, ...: it is declared by a rule.
struct Family {
  U32 prefixLength;  ///< characters of the accessor before its number; 0: the field is of no family
  U32 number;        ///< its number in the family: the port
};

/// Where a field lies in an entry, in bits.
struct BitRange {
  U16 offset;
  U16 width;  ///< 0: the chip does not have the field
};

/// Shape and address of a class on one chip.
struct VELMAR_EXPORT Geometry {
  Variants variants;   ///< which variants the chip accepts
  U16 words;           ///< size of an entry in 32-bit words
  U32 entries;         ///< number of entries; 1 for a register array
  U32 arrayElements;   ///< number of array elements; 1 for a table
  U32 addrStride;      ///< address distance between array elements; 0 for a table
  U32 identifiers;     ///< number of instance identifiers accepted, from 0
  U32 identifierTerm;  ///< added to the address per identifier
  U32 fieldCount;      ///< number of fields that the chip has
  U32 base;            ///< S-channel address of entry 0, element 0, identifier 0
  U32 accessType;      ///< S-channel access code
  U32 block;           ///< pipeline block: 1 ingress, 2 egress

  /// S-channel address of an entry (of a table) and element (of a register array).
  constexpr U32 addressOf(U32 entry, U32 element, U32 identifier) const {
    return base + identifier * identifierTerm + entry + element * addrStride;
  }

  /// Number of entries of a table, or of elements of a register array: one of the two is 1.
  constexpr U32 indexCount() const { return entries * arrayElements; }
  /// S-channel address of an entry of a table, or of an element of a register array.
  constexpr U32 addressOfIndex(U32 index, U32 identifier) const {
    return addrStride == 0 ? addressOf(index, 0, identifier) : addressOf(0, index, identifier);
  }
  /// The entry or element that has an address with an identifier; indexCount() if none has.
  constexpr U32 indexAt(U32 address, U32 identifier) const {
    const U32 step = addrStride == 0 ? 1 : addrStride;
    const U32 first = addressOfIndex(0, identifier);
    if (address < first || (address - first) % step != 0) return indexCount();
    const U32 index = (address - first) / step;
    return index < indexCount() ? index : indexCount();
  }
};

/// One view class. A small value; copy it freely.
class VELMAR_EXPORT Table {
 public:
  /// The table of a view class: `Table::of<VlanEntry>()`. Other types do not link.
  template <class View>
  static Table of();

  const char* name() const;     ///< class name, such as "VlanEntry"
  const char* purpose() const;  ///< its contents, in a few words
  Kind kind() const;
  U32 rawBytes() const;        ///< size of the type that getAllFields returns
  U32 allFieldsBytes() const;  ///< buffer bytes that getAllFields needs

  U32 fieldCount() const;        ///< number of fields that the class declares
  Field field(U32 index) const;  ///< field `index`, below fieldCount(), in declaration order
  /// Index of the field of an identifier; fieldCount() where the class does not declare it.
  U32 fieldIndex(U32 id) const;
  /// The port family of field `index`; all zero where it is of none.
  Family family(U32 index) const;

  /// Whether the class exists on a chip.
  bool isOn(U32 chipType) const;
  /// Whether a chip and variant are known to the class.
  bool isOn(U32 chipType, U8 variant) const;
  /// Geometry on a chip; all zero where the class does not exist there.
  Geometry geometry(U32 chipType) const;
  /// Place of field `index` on a chip; width 0 where the chip does not have it.
  BitRange range(U32 index, U32 chipType) const;
  /// Whether bit `bit` of an entry on a chip belongs to a field.
  bool isFieldBit(U32 bit, U32 chipType) const;

 private:
  friend VELMAR_EXPORT Table table(U32 index);
  friend class Framework::TableAccess;
  explicit Table(const Framework::ClassData& data) : data_(&data) {}

  const Framework::ClassData* data_;
};

/// The view classes, in a fixed order.
VELMAR_EXPORT U32 tableCount();
/// Class `index`, below tableCount().
VELMAR_EXPORT Table table(U32 index);

}  // namespace Catalogue
}  // namespace Velmar
