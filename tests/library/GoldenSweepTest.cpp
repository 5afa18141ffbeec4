// Every number of the library, through the public accessors, against the independent golden copy:
// nothing in one that is not in the other. The other sweeps take the golden data as given and are
// not run where this one fails.

#include <gtest/gtest.h>

#include <set>
#include <sstream>

#include "support/ClassProbes.h"
#include "support/GoldenData.h"
#include "support/Records.h"

namespace VelmarTest {
namespace {

/// Collects differences; a failure shows the first few and counts the rest.
class Differences {
 public:
  ~Differences() {
    constexpr std::size_t most = 6;
    std::ostringstream text;
    for (std::size_t i = 0; i < sentences_.size() && i < most; ++i) text << sentences_[i] << '\n';
    if (sentences_.size() > most) text << "and " << sentences_.size() - most << " more\n";
    if (!sentences_.empty()) ADD_FAILURE() << text.str();
  }

  void add(const std::string& sentence) { sentences_.push_back(sentence); }

  template <class Golden, class Compiled>
  void compare(const std::string& what, const Golden& golden, const Compiled& compiled) {
    if (golden == compiled) return;
    std::ostringstream text;
    text << what << ": " << golden << " in the golden data, " << compiled << " compiled";
    add(text.str());
  }

  /// Whether both or none have `what`.
  void comparePresence(const std::string& what, const std::string& file, bool golden,
                       bool compiled) {
    if (golden && !compiled) add(what + " is in tests/golden/" + file + " and not compiled");
    if (!golden && compiled) add(what + " is compiled and not in tests/golden/" + file);
  }

 private:
  std::vector<std::string> sentences_;
};

/// Calls compare(probe, golden) for the classes that both have.
template <class Compare>
void forEachClass(const Compare& compare) {
  for (const ClassProbe& probe : classProbes()) {
    for (const GoldenClass& golden : goldenClasses()) {
      if (golden.name == probe.name) compare(probe, golden);
    }
  }
}

std::string hexadecimal(U32 number) {
  std::ostringstream text;
  text << "0x" << std::hex << number;
  return text.str();
}

std::string placeText(bool exists, U32 offset, U32 width) {
  if (!exists) return "no such field";
  return "offset " + std::to_string(offset) + " width " + std::to_string(width);
}

TEST(GoldenSweep, classes) {
  std::set<std::string> golden;
  std::set<std::string> compiled;
  for (const GoldenClass& each : goldenClasses()) golden.insert(each.name);
  for (const ClassProbe& each : classProbes()) compiled.insert(each.name);
  std::set<std::string> both = golden;
  both.insert(compiled.begin(), compiled.end());
  Differences differences;
  for (const std::string& name : both) {
    differences.comparePresence("class " + name, "tables.tsv", golden.count(name) != 0,
                                compiled.count(name) != 0);
  }
}

TEST(GoldenSweep, tables) {
  const Records quiet;
  Differences differences;
  forEachClass([&](const ClassProbe& probe, const GoldenClass& golden) {
    differences.compare(probe.name + ": is a table", golden.isTable, probe.isTable);
    for (const auto& [chip, name] : chipNames()) {
      const std::string where = probe.name + " on " + name;
      const auto found = golden.chips.find(chip);
      SchanTriple first{};
      const bool exists = probe.getSchanAddress(chip, 0, first, 0, 0, 0);
      differences.comparePresence(where, "tables.tsv", found != golden.chips.end(), exists);
      if (!exists || found == golden.chips.end()) continue;
      const GoldenChip& expected = found->second;
      const auto compare = [&](const char* what, const auto& inGolden, const auto& compiled) {
        differences.compare(where + ": " + what, inGolden, compiled);
      };
      compare("any variant", expected.anyVariant,
              probe.chipTypeVariantValid(static_cast<ChipType_>(chip), 1));
      compare("base", hexadecimal(expected.base), hexadecimal(first.address));
      compare("access type", expected.accessType, first.accessType);
      compare("block", expected.block, first.block);
      for (const GeometryProbe& member : probe.geometry) {
        const auto compareMember = [&](const char* memberName, U32 inGolden) {
          if (member.name == memberName) compare(memberName, inGolden, member.ofChip(chip, 0));
        };
        compareMember("width", expected.words);
        compareMember("arrayElements", expected.arrayElements);
        compareMember("entries", expected.entries.value_or(0));
      }
    }
  });
}

TEST(GoldenSweep, fields) {
  Differences differences;
  forEachClass([&](const ClassProbe& probe, const GoldenClass& golden) {
    for (const GoldenField& expected : golden.fields) {
      const bool isCompiled = probe.find(expected.accessor) != nullptr;
      differences.comparePresence(probe.name + "::" + expected.accessor, "fields.tsv", true,
                                  isCompiled);
    }
    for (const FieldProbe& field : probe.fields) {
      const std::string name = probe.name + "::" + field.accessor;
      const GoldenField* expected = golden.find(field.accessor);
      differences.comparePresence(name, "fields.tsv", expected != nullptr, true);
      if (expected == nullptr) continue;
      differences.compare(name + ": hardware name", expected->hardwareName, field.hardwareName);
      differences.compare(name + ": identifier", expected->id, field.id);
      differences.compare(name + ": type", expected->type, field.type);
      for (const auto& [chip, chipName] : chipNames()) {
        const auto view = probe.open(chip, nullptr, 0, 0);
        const bool exists = ((*view).*field.isValid)();
        const std::string place = placeText(exists, exists ? ((*view).*field.offset)() : 0,
                                            exists ? ((*view).*field.length)() : 0);
        const auto found = expected->places.find(chip);
        const bool isExpected = found != expected->places.end();
        const std::string where = name + " on " + chipName;
        differences.compare(where,
                            placeText(isExpected, isExpected ? found->second.offset : 0,
                                      isExpected ? found->second.width : 0),
                            place);
      }
    }
  });
}

}  // namespace
}  // namespace VelmarTest
