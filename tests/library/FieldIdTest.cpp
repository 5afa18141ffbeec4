// The identifier list, and the catalogue against every accessor of every class.

#include "support/Sweep.h"

namespace VelmarTest {
namespace {

namespace Catalogue = Velmar::Catalogue;

TEST(FieldId, lookUpBothWays) {
  std::map<U32, GoldenField> named;
  for (const GoldenClass& golden : goldenClasses()) {
    for (const GoldenField& field : golden.fields) named.emplace(field.id, field);
  }
  for (U32 id = 0; id < named.rbegin()->first + 100; ++id) {
    const auto found = named.find(id);
    if (found == named.end()) {
      EXPECT_EQ(Velmar::FieldId::hardwareName(id), nullptr) << id;
      EXPECT_EQ(Velmar::FieldId::accessorName(id), nullptr) << id;
      continue;
    }
    EXPECT_EQ(Velmar::FieldId::hardwareName(id), found->second.hardwareName);
    EXPECT_EQ(Velmar::FieldId::accessorName(id), found->second.accessor);
    EXPECT_EQ(Velmar::FieldId::find(found->second.hardwareName.c_str()), id);
    EXPECT_EQ(Velmar::FieldId::find(found->second.accessor.c_str()), id);
  }
  EXPECT_EQ(Velmar::FieldId::hardwareName(0xffffffff), nullptr);
  for (const char* stranger : {"", "VALI", "VALIDS", "Valid", "SP_TREE_PORT272"}) {
    EXPECT_EQ(Velmar::FieldId::find(stranger), 0U) << stranger;
  }
}

TEST(Catalogue, chips) {
  ASSERT_EQ(Catalogue::chipCount(), chipNames().size());
  U32 index = 0;
  for (const auto& [number, name] : chipNames()) {
    EXPECT_EQ(Catalogue::chip(index).number, number);
    EXPECT_EQ(Catalogue::chip(index++).name, name);
  }
}

TEST(Catalogue, namesEveryClassAndField) {
  ASSERT_EQ(Catalogue::tableCount(), classProbes().size());
  for (U32 t = 0; t < Catalogue::tableCount(); ++t) {
    const Catalogue::Table table = Catalogue::table(t);
    const ClassProbe& probe = classProbes()[t];
    EXPECT_EQ(table.name(), probe.name);
    EXPECT_EQ(table.kind() == Catalogue::Kind::table, probe.isTable);
    EXPECT_STRNE(table.purpose(), "");
    EXPECT_EQ(table.fieldIndex(0), table.fieldCount());
    ASSERT_EQ(table.fieldCount(), probe.fields.size());
    for (U32 f = 0; f < table.fieldCount(); ++f) {
      const Catalogue::Field field = table.field(f);
      EXPECT_STREQ(field.accessor, probe.fields[f].accessor);
      EXPECT_STREQ(field.hardwareName, probe.fields[f].hardwareName);
      EXPECT_EQ(field.id, probe.fields[f].id);
      EXPECT_EQ(Catalogue::valueTypeName(field.type), probe.fields[f].value);
      EXPECT_EQ(table.fieldIndex(field.id), f);
    }
  }
}

/// The catalogue's geometry against the class's own members and addresses.
void expectGeometry(const Catalogue::Geometry& geometry, const ClassProbe& probe, U32 chip) {
  const std::map<std::string, U32> values = {{"width", geometry.width},
                                             {"entries", geometry.entries},
                                             {"arrayElements", geometry.arrayElements},
                                             {"fieldCount", geometry.fieldCount},
                                             {"addrStride", geometry.addrStride}};
  for (const GeometryProbe& member : probe.geometry) {
    const auto found = values.find(member.name);
    if (found != values.end()) EXPECT_EQ(found->second, member.ofChip(chip, 0)) << member.name;
  }
  SchanTriple first{};
  ASSERT_TRUE(probe.getSchanAddress(chip, 0, first, 0, 0, 0));
  EXPECT_EQ(geometry.base, first.address);
  EXPECT_EQ(geometry.accessType, first.accessType);
  EXPECT_EQ(geometry.block, first.block);
  EXPECT_TRUE(probe.hasIdentifier(chip, 0, geometry.identifiers - 1));
  EXPECT_FALSE(probe.hasIdentifier(chip, 0, geometry.identifiers));
  SchanTriple refused{};
  const U16 beyond = static_cast<U16>(geometry.identifiers);
  assertionOf([&] { probe.getSchanAddress(chip, 0, refused, beyond, 0, 0); });
  EXPECT_EQ(refused.address, geometry.base + beyond * geometry.identifierTerm);
}

TEST(Catalogue, agreesWithEveryAccessor) {
  for (U32 t = 0; t < Catalogue::tableCount(); ++t) {
    const Catalogue::Table table = Catalogue::table(t);
    const ClassProbe& probe = classProbes()[t];
    for (const U32 chip : chipsAndStrangers()) {
      SCOPED_TRACE(probe.name + " on chip " + std::to_string(chip));
      const auto knows = [&](U8 variant) {
        return probe.chipTypeVariantValid(static_cast<ChipType_>(chip), variant);
      };
      const Catalogue::Geometry geometry = table.geometry(chip);
      EXPECT_EQ(table.isOn(chip), knows(0));
      EXPECT_EQ(table.isOn(chip, 0), knows(0));
      EXPECT_EQ(table.isOn(chip, 1), knows(1));
      if (!table.isOn(chip)) {
        EXPECT_EQ(geometry.width, 0);
        EXPECT_FALSE(table.isFieldBit(0, chip));
        for (U32 f = 0; f < table.fieldCount(); ++f) EXPECT_EQ(table.range(f, chip).width, 0);
        continue;
      }
      EXPECT_EQ(geometry.variants == Catalogue::Variants::any, knows(1));
      expectGeometry(geometry, probe, chip);
      const auto view = probe.make(chip, nullptr, 0, 0);
      for (U32 f = 0; f < table.fieldCount(); ++f) {
        const Catalogue::BitRange range = table.range(f, chip);
        EXPECT_EQ(range.width, view->fieldWidth(table.field(f).id));
        if (range.width != 0) EXPECT_EQ(range.offset, view->fieldOffset(table.field(f).id));
      }
      const Raw8192 mask = probe.allFieldsMask(chip, 0);
      for (U32 bit = 0; bit < 8192; ++bit) ASSERT_EQ(table.isFieldBit(bit, chip), mask.bit(bit));
      EXPECT_EQ(table.allFieldsBytes(), goldenClass(probe.name).chips.at(chip).rawBytesNeeded);
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
