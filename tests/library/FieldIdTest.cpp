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
  for (const char* unknown : {"", "VALI", "VALIDS", "Valid", "SP_TREE_PORT272"}) {
    EXPECT_EQ(Velmar::FieldId::find(unknown), 0U) << unknown;
  }
}

TEST(Catalogue, chips) {
  ASSERT_EQ(Catalogue::chipCount(), chipNames().size());
  ASSERT_EQ(Catalogue::tableCount(), classProbes().size());
  U32 index = 0;
  for (const auto& [number, name] : chipNames()) {
    EXPECT_EQ(Catalogue::chip(index).number, number);
    EXPECT_EQ(Catalogue::chip(index++).name, name);
  }
}

/// The catalogue's geometry against the golden data.
void expectGeometry(const Catalogue::Geometry& geometry, const GoldenClass& golden, U32 chip) {
  const GoldenChip& facts = golden.chips.at(chip);
  EXPECT_EQ(geometry.variants == Catalogue::Variants::any, facts.anyVariant);
  EXPECT_EQ(geometry.words, facts.words);
  EXPECT_EQ(geometry.entries, facts.entries.value_or(1));
  EXPECT_EQ(geometry.arrayElements, facts.arrayElements);
  EXPECT_EQ(geometry.addrStride, golden.isTable ? 0U : isLate(chip) ? 1024U : 256U);
  EXPECT_EQ(geometry.identifiers, golden.isTable || isLate(chip) ? 1U : 2U);
  EXPECT_EQ(geometry.identifierTerm, golden.isTable && isLate(chip) ? 16384U : 0U);
  EXPECT_EQ(geometry.base, facts.base);
  EXPECT_EQ(geometry.accessType, facts.accessType);
  EXPECT_EQ(geometry.block, facts.block);
}

TEST(Catalogue, agreesWithTheClasses) {
  everywhere([](const ClassProbe& probe, const GoldenClass& golden, U32 chip, U8 variant, auto) {
    const std::size_t index = static_cast<std::size_t>(&probe - classProbes().data());
    const Catalogue::Table table = Catalogue::table(static_cast<U32>(index));
    const Catalogue::Geometry geometry = table.geometry(chip);
    const bool isOn = golden.chips.count(chip) != 0;
    ASSERT_EQ(table.name(), probe.name);
    ASSERT_EQ(table.fieldCount(), probe.fields.size());
    EXPECT_EQ(table.fieldIndex(0), table.fieldCount());
    EXPECT_EQ(table.isOn(chip), isOn);
    EXPECT_EQ(table.isOn(chip, variant), knowsVariant(golden, chip, variant));
    const Raw8192 mask = isOn ? probe.allFieldsMask(chip, 0) : Raw8192{};
    for (U32 bit = 0; bit < 8192; ++bit) ASSERT_EQ(table.isFieldBit(bit, chip), mask.bit(bit));
    U32 fieldCount = 0;
    for (U32 f = 0; f < table.fieldCount(); ++f) {
      const Catalogue::Field field = table.field(f);
      EXPECT_EQ(field.id, probe.fields[f].id);
      EXPECT_EQ(table.fieldIndex(field.id), f);
      const auto& places = golden.find(field.accessor)->places;
      const auto place = places.find(chip);
      const Catalogue::BitRange range = table.range(f, chip);
      EXPECT_EQ(range.width, place == places.end() ? 0 : place->second.width);
      if (range.width != 0) EXPECT_EQ(range.offset, place->second.offset);
      fieldCount += range.width != 0;
    }
    EXPECT_EQ(geometry.fieldCount, fieldCount);
    if (!isOn) {
      EXPECT_EQ(geometry.words, 0);
      return;
    }
    expectGeometry(geometry, golden, chip);
    EXPECT_EQ(table.allFieldsBytes(), golden.chips.at(chip).rawBytesNeeded);
    std::vector<U8> buffer(table.allFieldsBytes(), 0);
    const auto view = probe.make(chip, buffer.data(), static_cast<U16>(buffer.size()), 0);
    EXPECT_EQ(4 * probe.getAllFields(*view).size(), table.rawBytes());
  });
}

}  // namespace
}  // namespace VelmarTest
