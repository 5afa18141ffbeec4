#pragma once

#include <map>
#include <optional>
#include <string>
#include <vector>

#include "AsicUtils/Types.h"

namespace VelmarTest {

/// The independent copy of every number of the library, read from the golden files.
struct GoldenField {
  std::string accessor;
  std::string hardwareName;
  U32 id;
  std::string type;  ///< U8 to U64, raw128 or bitmap
  struct Place {
    U32 offset;
    U32 width;
  };
  struct Family {
    U32 prefixLength;  ///< 0: the row stands for this field alone
    U32 port;
  } family;
  std::map<U32, Place> places;  ///< by chip; a chip that lacks the field has none
};

struct GoldenChip {
  bool anyVariant;
  U32 words;
  std::optional<U32> entries;  ///< none for a register array
  U32 arrayElements;
  U32 base;
  U32 accessType;
  U32 block;
  U32 rawBytesNeeded;
};

struct GoldenClass {
  std::string name;
  bool isTable;
  std::map<U32, GoldenChip> chips;
  std::vector<GoldenField> fields;

  /// The field of an accessor; null where the class has none.
  const GoldenField* find(const std::string& accessor) const;
};

const std::vector<GoldenClass>& goldenClasses();
const GoldenClass& goldenClass(const std::string& name);

/// Whether a class accepts a variant on a chip.
bool knowsVariant(const GoldenClass& golden, U32 chip, U8 variant);

/// The chips by number, from the enumeration.
const std::map<U32, std::string>& chipNames();

}  // namespace VelmarTest
