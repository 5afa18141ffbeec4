#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "AsicUtils/BcmAsicBase.h"
#include "Velmar/MetaInfo.h"
#include "tables/Classes.h"

// Every class and field in one form, made from the lists of classes and fields, so that a sweep is
// written once and runs over all of them through the public accessors.

namespace VelmarTest {

using Base = AsicUtils::BcmAsicBase;

/// A field's value as 32-bit words, lowest first.
using Words = std::vector<U32>;

/// A field, with pointers to its members that can be called on any view of the class. Plain data:
/// hundreds of these are made at compile time.
struct FieldProbe {
  const char* accessor;
  const char* capitalised;
  const char* hardwareName;
  U32 id;
  std::string_view type;       ///< as the golden files name it
  std::string_view value;      ///< as signatures spell what the getter returns
  std::string_view parameter;  ///< as signatures spell what the setter takes

  U16 (Base::*length)() const;
  U16 (Base::*offset)() const;
  bool (Base::*isValid)() const;
  void (Base::*getter)() const;  ///< actually of the type named by `type`
  void (Base::*setter)();        ///< likewise

  Words get(const Base& view) const;
  void set(Base& view, const Words& value) const;

  /// Bits of a scalar's type; 0 for other fields.
  U32 typeBits() const;
  bool isScalar() const { return typeBits() != 0; }
  /// Signatures of the quintet.
  std::string getterSignature(const std::string& view) const;
  std::string setterSignature(const std::string& view) const;
  std::string lengthSignature(const std::string& view) const;
  std::string offsetSignature(const std::string& view) const;
  std::string validitySignature(const std::string& view) const;
};

/// A static geometry member and its const form.
struct GeometryProbe {
  std::string name;
  std::string type;  ///< as signatures spell the result
  bool isTraced;
  std::function<U32(U32, U8)> ofChip;
  std::function<U32(const Base&)> ofView;
};

struct SchanTriple {
  U32 address;
  U32 accessType;
  U32 block;
};

struct ClassProbe {
  std::string name;
  std::string rawName;  ///< type that getAllFields returns
  bool isTable;
  std::vector<FieldProbe> fields;
  std::vector<GeometryProbe> geometry;

  /// A view as a caller makes it.
  std::function<std::unique_ptr<Base>(U32 chipType, U8* buf, U16 len, U8 variant)> make;
  /// A view in a state that construction would refuse.
  std::function<std::unique_ptr<Base>(U32 chipType, U8* buf, U16 len, U8 variant)> open;

  bool (*chipTypeVariantValid)(ChipType_, U8);
  bool (*hasIdentifier)(U32, U8, U32);
  Raw8192 (*allFieldsMask)(U32, U8);
  std::function<bool(U32, U8, SchanTriple&, U16, U32, U16)> getSchanAddress;
  std::function<Words(const Base&)> getAllFields;
  std::function<bool(const Base&)> isPrimary;

  // Tables only.
  AsicUtils::EntrySpans (*entrySpans)(U32, U8);
  U32 (*tableVariantCount)(U32);
  std::vector<const AsicUtils::EntrySpan*> spanMembers;

  /// The field of an accessor; null where the class has none.
  const FieldProbe* find(const std::string& accessor) const;
  const FieldProbe& field(const std::string& accessor) const { return *find(accessor); }
};

const std::vector<ClassProbe>& classProbes();

/// A chip on which the class exists.
U32 anyChipOf(const ClassProbe& probe);

}  // namespace VelmarTest
