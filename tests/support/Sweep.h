#pragma once

#include <gtest/gtest.h>

#include <set>

#include "support/AssertionFailed.h"
#include "support/ClassProbes.h"
#include "support/GoldenData.h"
#include "support/Records.h"

// Loops of the sweeps: over classes, chips and variants.

namespace VelmarTest {

/// The chips whose memories take the identifier into the address.
inline bool isLate(U32 chip) { return chip >= BCM56990_B0; }

/// The first number after those of the chips.
inline U32 unknownChip() { return chipNames().rbegin()->first + 1; }

/// All chips, and unknown numbers: next to those of chips, and such as become a chip in 8 bits.
inline std::set<U32> knownAndUnknownChips() {
  std::set<U32> numbers = {0, 255, 256 + BCM56990_B0, 0x10000 + BCM56960_A0, 0xffffffff};
  for (const auto& [chip, name] : chipNames()) numbers.insert({chip, chip + 1});
  return numbers;
}

/// Whether a sweep ends here: after a failure, except with clang, which spells some signatures
/// differently; there the sweep continues for the sanitizers.
inline bool isOver() {
#ifdef __clang__
  return false;
#else
  return testing::Test::HasFailure();
#endif
}

/// Calls check(probe, golden, chip) for every class on each of its chips.
template <class Check>
void onEveryChip(const Check& check) {
  for (const ClassProbe& probe : classProbes()) {
    const GoldenClass& golden = goldenClass(probe.name);
    for (const auto& [chip, facts] : golden.chips) {
      SCOPED_TRACE(probe.name + " on " + chipNames().at(chip));
      check(probe, golden, chip);
      if (isOver()) return;
    }
  }
}

/// Calls check(probe, golden, chip, variant, entryLines) for every class with known and unknown
/// chips and variants, and with the lines on entry off and on.
template <class Check>
void everywhere(const Check& check) {
  for (const ClassProbe& probe : classProbes()) {
    for (const U32 chip : knownAndUnknownChips()) {
      for (const U8 variant : {U8{0}, U8{1}, U8{255}}) {
        for (const auto entryLines : {Records::EntryLines::off, Records::EntryLines::on}) {
          SCOPED_TRACE(probe.name + " on chip " + std::to_string(chip) + " variant " +
                       std::to_string(variant));
          check(probe, goldenClass(probe.name), chip, variant, entryLines);
          if (isOver()) return;
        }
      }
    }
  }
}

/// The text with which a static member fails; empty if it does not.
inline std::string staticFailure(const GoldenClass& golden, U32 chip, U8 variant) {
  if (golden.chips.count(chip) == 0) return "0";
  return knowsVariant(golden, chip, variant) ? "" : "variant == 0";
}

/// Chip and variant as reports print them.
inline std::string textOf(U32 chip, U32 variant) {
  return " chipType: " + std::to_string(chip) + " variant: " + std::to_string(variant);
}

/// A suite with one test for each class.
#define VELMAR_SWEEP_CLASSES(Suite)                                                              \
  INSTANTIATE_TEST_SUITE_P(Classes, Suite, testing::Range(std::size_t{0}, classProbes().size()), \
                           [](const auto& each) { return classProbes()[each.param].name; })

}  // namespace VelmarTest
