// The identifier list, and the catalogue against every accessor of every class.

#include <gtest/gtest.h>

#include "support/AssertionFailed.h"
#include "support/ClassProbes.h"
#include "support/GoldenData.h"

namespace VelmarTest {
namespace {

namespace Catalogue = Velmar::Catalogue;

TEST(FieldId, lookUpBothWays) {
  U32 count = 0;
  for (U32 id = 0; id < 700; ++id) {
    const char* name = Velmar::FieldId::hardwareName(id);
    if (name == nullptr) {
      EXPECT_EQ(Velmar::FieldId::accessorName(id), nullptr);
      continue;
    }
    ++count;
    EXPECT_EQ(Velmar::FieldId::find(name), id);
    EXPECT_EQ(Velmar::FieldId::find(Velmar::FieldId::accessorName(id)), id);
  }
  EXPECT_EQ(count, 372U);
  for (const U32 gap : {0U, 7U, 9U, 13U, 18U, 20U, 516U, 582U, 624U, 0xffffffffU}) {
    EXPECT_EQ(Velmar::FieldId::hardwareName(gap), nullptr);
  }
  for (const char* stranger : {"", "VALI", "VALIDS", "Valid", "SP_TREE_PORT272"}) {
    EXPECT_EQ(Velmar::FieldId::find(stranger), 0U) << stranger;
  }
  EXPECT_EQ(Velmar::FieldId::SP_TREE_PORT9 + 1, Velmar::FieldId::SP_TREE_PORT10 + 0U);
  EXPECT_STREQ(Velmar::FieldId::accessorName(133), "l2MissTocpu");
}

TEST(Catalogue, chips) {
  ASSERT_EQ(Catalogue::chipCount(), chipNames().size());
  U32 index = 0;
  for (const auto& [number, name] : chipNames()) {
    EXPECT_EQ(Catalogue::chip(index).number, number);
    EXPECT_EQ(Catalogue::chip(index++).name, name);
  }
}

TEST(Catalogue, agreesWithEveryAccessor) {
  ASSERT_EQ(Catalogue::tableCount(), classProbes().size());
  for (U32 t = 0; t < Catalogue::tableCount(); ++t) {
    const Catalogue::Table table = Catalogue::table(t);
    const ClassProbe& probe = classProbes()[t];
    SCOPED_TRACE(probe.name);
    EXPECT_EQ(table.name(), probe.name);
    EXPECT_EQ(table.kind() == Catalogue::Kind::table, probe.isTable);
    EXPECT_STRNE(table.purpose(), "");
    ASSERT_EQ(table.fieldCount(), probe.fields.size());
    for (U32 f = 0; f < table.fieldCount(); ++f) {
      const Catalogue::Field field = table.field(f);
      EXPECT_STREQ(field.accessor, probe.fields[f].accessor);
      EXPECT_STREQ(field.hardwareName, probe.fields[f].hardwareName);
      EXPECT_EQ(field.id, probe.fields[f].id);
      EXPECT_EQ(Catalogue::valueTypeName(field.type), probe.fields[f].value);
      EXPECT_EQ(table.fieldIndex(field.id), f);
    }
    EXPECT_EQ(table.fieldIndex(0), table.fieldCount());
    std::vector<U32> chips = {0, 5, 38, 255, 256 + 33, 0xffffffff};
    for (const auto& [chip, name] : chipNames()) chips.push_back(chip);
    for (const U32 chip : chips) {
      const ChipType_ chipType = static_cast<ChipType_>(chip);
      EXPECT_EQ(table.isOn(chip, 0), probe.chipTypeVariantValid(chipType, 0));
      EXPECT_EQ(table.isOn(chip, 1), probe.chipTypeVariantValid(chipType, 1));
      const Catalogue::Geometry geometry = table.geometry(chip);
      if (!table.isOn(chip)) {
        EXPECT_EQ(geometry.words, 0);
        EXPECT_FALSE(table.isFieldBit(0, chip));
        for (U32 f = 0; f < table.fieldCount(); ++f) EXPECT_EQ(table.range(f, chip).width, 0);
        continue;
      }
      SchanTriple first{};
      ASSERT_TRUE(probe.getSchanAddress(chip, 0, first, 0, 0, 0));
      EXPECT_EQ(geometry.base, first.address);
      EXPECT_EQ(geometry.accessType, first.accessType);
      EXPECT_EQ(geometry.block, first.block);
      EXPECT_EQ(geometry.variants == Catalogue::Variants::any, table.isOn(chip, 1));
      for (const GeometryProbe& member : probe.geometry) {
        const U32 value = member.ofChip(chip, 0);
        if (member.name == "width") EXPECT_EQ(geometry.words, value);
        if (member.name == "entries") EXPECT_EQ(geometry.entries, value);
        if (member.name == "arrayElements") EXPECT_EQ(geometry.arrayElements, value);
        if (member.name == "fieldCount") EXPECT_EQ(geometry.fieldCount, value);
        if (member.name == "addrStride") EXPECT_EQ(geometry.addrStride, value);
      }
      EXPECT_TRUE(probe.hasIdentifier(chip, 0, geometry.identifiers - 1));
      EXPECT_FALSE(probe.hasIdentifier(chip, 0, geometry.identifiers));
      SchanTriple refused{};
      const U16 beyond = static_cast<U16>(geometry.identifiers);
      assertionOf([&] { probe.getSchanAddress(chip, 0, refused, beyond, 0, 0); });
      EXPECT_EQ(refused.address, geometry.base + beyond * geometry.identifierTerm);
      const auto view = probe.make(chip, nullptr, 0, 0);
      for (U32 f = 0; f < table.fieldCount(); ++f) {
        const Catalogue::BitRange range = table.range(f, chip);
        EXPECT_EQ(range.width, view->fieldWidth(table.field(f).id));
        if (range.width != 0) EXPECT_EQ(range.offset, view->fieldOffset(table.field(f).id));
      }
      const Raw8192 mask = probe.allFieldsMask(chip, 0);
      for (U32 bit = 0; bit < 8192; ++bit) ASSERT_EQ(table.isFieldBit(bit, chip), mask.bit(bit));
      std::vector<U8> buffer(table.allFieldsBytes(), 0);
      const U16 len = static_cast<U16>(buffer.size());
      EXPECT_EQ(4 * probe.getAllFields(*probe.make(chip, buffer.data(), len, 0)).size(),
                table.rawBytes());
    }
  }
}

TEST(Catalogue, overlapsAreThoseThatShareBits) {
  for (U32 t = 0; t < Catalogue::tableCount(); ++t) {
    const Catalogue::Table table = Catalogue::table(t);
    for (U32 f = 0; f < table.fieldCount(); ++f) {
      bool shares = false;
      for (U32 other = 0; other < table.fieldCount(); ++other) {
        for (U32 c = 0; c < Catalogue::chipCount() && other != f; ++c) {
          const Catalogue::BitRange a = table.range(f, Catalogue::chip(c).number);
          const Catalogue::BitRange b = table.range(other, Catalogue::chip(c).number);
          shares |= a.width != 0 && b.width != 0 && a.offset < b.offset + b.width &&
                    b.offset < a.offset + a.width;
        }
      }
      if (table.field(f).overlaps) EXPECT_TRUE(shares) << table.name() << table.field(f).accessor;
    }
  }
}

}  // namespace
}  // namespace VelmarTest
