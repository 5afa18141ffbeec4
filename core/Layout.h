#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "core/Access.h"
#include "core/Lookup.h"

namespace Velmar {
namespace Core {

/// A field with its bits on one chip.
struct FieldPlace {
  Catalogue::Field field;
  U32 offset;  ///< first bit
  U32 width;   ///< bits
  Catalogue::Family family{};
  U32 index = 0;  ///< among the fields of the table

  const char* name() const { return field.accessor; }
  operator Catalogue::BitRange() const {  // NOLINT(google-explicit-constructor): its bits
    return {static_cast<U16>(offset), static_cast<U16>(width)};
  }
  bool isOfFamily() const { return family.prefixLength != 0; }
  /// Such as "spTreePort"; empty for a field alone.
  std::string_view prefix() const { return {field.accessor, family.prefixLength}; }
  bool isOfFamilyOf(const FieldPlace& other) const {
    return isOfFamily() && prefix() == other.prefix();
  }
  bool isBitmap() const { return field.type == Catalogue::ValueType::bitmap; }
  bool isScalar() const { return width <= 64 && !isBitmap(); }
  U32 lastBit() const { return offset + width - 1; }
  bool sharesBitsWith(const FieldPlace& other) const {
    return offset <= other.lastBit() && other.offset <= lastBit();
  }
  /// As data sheets write it: "47:42", or "66" for one bit.
  std::string bits() const;
};

/// The S-channel address of an entry, and what else a request needs.
struct Address {
  U32 address;
  U32 accessType;
  U32 block;
};

/// A class on one chip and variant: all that decoding and encoding need.
class Layout {
 public:
  /// A fault if the class does not exist on the chip and variant.
  static Expected<Layout> of(const Catalogue::Table& table, const Catalogue::Chip& chip,
                             U32 variant);

  const Catalogue::Table& table() const { return table_; }
  const char* name() const { return table_.name(); }
  const Catalogue::Chip& chip() const { return chip_; }
  U8 variant() const { return variant_; }
  const Catalogue::Geometry& geometry() const { return geometry_; }
  /// The fields that the chip has, in declaration order.
  const std::vector<FieldPlace>& fields() const { return fields_; }

  /// The names of the fields that share bits with a field of this layout.
  std::vector<std::string> overlapsOf(const FieldPlace& place) const;

  bool isRegisterArray() const { return table_.kind() == Catalogue::Kind::registerArray; }
  U32 entryBytes() const { return 4U * geometry_.words; }
  /// Number of entries, or of elements of a register array: indexes are below it.
  U32 indexCount() const { return Core::indexCount(geometry_); }
  /// Address of an entry or element below indexCount().
  Address addressOf(U32 index, U32 identifier = 0) const;

  /// The field of a name; a fault for a field that the class or the chip does not have.
  Expected<const FieldPlace*> find(std::string_view name) const;
  /// Where a field stands in fields().
  size_t positionOf(const FieldPlace& place) const {
    return static_cast<size_t>(&place - fields_.data());
  }

  /// The reserved bits of an entry: its set bits are those outside all fields of the chip.
  const std::vector<U8>& reservedMask() const { return reservedMask_; }
  bool hasReservedBits(const U8* entry) const;
  /// All bits of an entry, as if they were one field.
  FieldPlace wholeEntry() const;

  /// "VlanEntry on BCM56990_B0".
  std::string shown() const { return formatText("{} on {}", name(), chip_.name); }

 private:
  Layout(const Catalogue::Table& table, const Catalogue::Chip& chip, U8 variant);

  Catalogue::Table table_;
  Catalogue::Chip chip_;
  U8 variant_;
  Catalogue::Geometry geometry_;
  std::vector<FieldPlace> fields_;
  std::vector<U8> reservedMask_;
};

/// "1 (ingress)" or "2 (egress)".
std::string blockText(U32 block);
std::string addressText(U32 address);

}  // namespace Core
}  // namespace Velmar
