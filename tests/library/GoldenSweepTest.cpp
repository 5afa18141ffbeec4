// Every number of the library, through the public accessors, against the independent golden copy:
// nothing in one that is not in the other.

#include <gtest/gtest.h>

#include <set>

#include "support/ClassProbes.h"
#include "support/GoldenData.h"
#include "support/Records.h"

namespace VelmarTest {
namespace {

TEST(GoldenSweep, everyFieldOnEveryChip) {
  U32 places = 0;
  U32 nowhere = 0;
  std::set<std::string> fieldsMet;
  for (const ClassProbe& probe : classProbes()) {
    const GoldenClass& golden = goldenClass(probe.name);
    for (const GoldenField& expected : golden.fields) {
      const FieldProbe& field = probe.field(expected.accessor);
      EXPECT_EQ(field.hardwareName, expected.hardwareName) << probe.name;
      EXPECT_EQ(field.id, expected.id) << probe.name << " " << expected.accessor;
      EXPECT_EQ(field.type, expected.type) << probe.name << " " << expected.accessor;
    }
    ASSERT_EQ(probe.fields.size(), golden.fields.size());
    for (const FieldProbe& field : probe.fields) {
      const GoldenField* expected = nullptr;
      for (const GoldenField& each : golden.fields) {
        if (each.accessor == field.accessor) expected = &each;
      }
      ASSERT_NE(expected, nullptr) << probe.name << " " << field.accessor;
      if (expected->places.empty()) ++nowhere;
      fieldsMet.insert(probe.name + "::" + field.accessor);
      for (const auto& [chip, name] : chipNames()) {
        const auto view = probe.open(chip, nullptr, 0, 0);
        const bool isExpected = expected->places.count(chip) != 0;
        ASSERT_EQ(((*view).*field.isValid)(), isExpected)
            << probe.name << " " << field.accessor << " on " << name;
        EXPECT_EQ(view->isFieldValid(field.id), isExpected);
        if (!isExpected) continue;
        ++places;
        const GoldenField::Place place = expected->places.at(chip);
        EXPECT_EQ(((*view).*field.offset)(), place.offset)
            << probe.name << " " << field.accessor << " on " << name;
        EXPECT_EQ(((*view).*field.length)(), place.width)
            << probe.name << " " << field.accessor << " on " << name;
        EXPECT_EQ(view->fieldOffset(field.id), place.offset);
        EXPECT_EQ(view->fieldWidth(field.id), place.width);
      }
    }
  }
  EXPECT_EQ(places, goldenRows().places) << "golden rows that no accessor met, or met twice";
  EXPECT_EQ(nowhere, goldenRows().nowhere);
  EXPECT_EQ(fieldsMet.size(), 911U);
  EXPECT_EQ(classProbes().size(), 27U);
  EXPECT_EQ(goldenClasses().size(), 27U);
}

TEST(GoldenSweep, everyTableOnEveryChip) {
  const Records quiet;
  U32 rows = 0;
  for (const ClassProbe& probe : classProbes()) {
    const GoldenClass& golden = goldenClass(probe.name);
    EXPECT_EQ(probe.isTable, golden.isTable);
    for (const auto& [chip, name] : chipNames()) {
      SCOPED_TRACE(probe.name + " on " + name);
      const auto found = golden.chips.find(chip);
      const bool exists = found != golden.chips.end();
      EXPECT_EQ(probe.chipTypeVariantValid(static_cast<ChipType_>(chip), 0), exists);
      SchanTriple triple{};
      EXPECT_EQ(probe.getSchanAddress(chip, 0, triple, 0, 0, 0), exists);
      if (!exists) continue;
      ++rows;
      const GoldenChip& expected = found->second;
      EXPECT_EQ(probe.chipTypeVariantValid(static_cast<ChipType_>(chip), 1), expected.anyVariant);
      EXPECT_EQ(triple.address, expected.base);
      EXPECT_EQ(triple.accessType, expected.accessType);
      EXPECT_EQ(triple.block, expected.block);
      U32 compared = 0;
      for (const GeometryProbe& geometry : probe.geometry) {
        const U32 value = geometry.ofChip(chip, 0);
        ++compared;
        if (geometry.name == "width") {
          EXPECT_EQ(value, expected.words);
        } else if (geometry.name == "entries") {
          EXPECT_EQ(value, expected.entries);
        } else if (geometry.name == "arrayElements") {
          EXPECT_EQ(value, expected.arrayElements);
        } else {
          --compared;
        }
      }
      EXPECT_EQ(compared, probe.isTable ? 3U : 2U);
      // One byte too few for getAllFields is refused, the exact number is not.
      const std::size_t words = expected.rawBytesNeeded / 4;
      std::vector<U32> buffer(words, 0xffffffffU);
      U8* const bytes = reinterpret_cast<U8*>(buffer.data());
      const U16 len = static_cast<U16>(expected.rawBytesNeeded);
      const Words all = probe.getAllFields(*probe.open(chip, bytes, len, 0));
      const Raw8192 mask = probe.allFieldsMask(chip, 0);
      for (std::size_t i = 0; i < all.size(); ++i) EXPECT_EQ(all[i], mask.words[i]) << "word " << i;
    }
  }
  EXPECT_EQ(rows, goldenRows().tables) << "golden rows that no class met, or met twice";
}

}  // namespace
}  // namespace VelmarTest
