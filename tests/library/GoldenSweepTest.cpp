// Every number of the library, read through the public accessors, against the independent golden
// copy: neither has anything that the other lacks. The other sweeps rely on the golden data and are
// not run if this one fails.

#include <gtest/gtest.h>

#include <map>
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

  /// Expects that both or neither have `what`; true if both have it.
  bool areBoth(const std::string& what, bool golden, bool compiled) {
    if (golden && !compiled) add(what + " is in tests/golden and not compiled");
    if (!golden && compiled) add(what + " is compiled and not in tests/golden; add it there");
    return golden && compiled;
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

TEST(GoldenSweep, classes) {
  std::map<std::string, std::pair<bool, bool>> classes;
  for (const GoldenClass& each : goldenClasses()) classes[each.name].first = true;
  for (const ClassProbe& each : classProbes()) classes[each.name].second = true;
  Differences differences;
  for (const auto& [name, has] : classes) {
    differences.areBoth("class " + name, has.first, has.second);
  }
}

TEST(GoldenSweep, tables) {
  const Records quiet;
  Differences differences;
  forEachClass([&](const ClassProbe& probe, const GoldenClass& golden) {
    const auto index = static_cast<U32>(&probe - classProbes().data());
    const Velmar::Catalogue::Table table = Velmar::Catalogue::table(index);
    differences.compare(probe.name + ": is a table", golden.isTable, probe.isTable);
    for (const auto& [chip, name] : chipNames()) {
      const std::string where = probe.name + " on " + name;
      const auto found = golden.chips.find(chip);
      SchanTriple first{};
      const bool exists = probe.getSchanAddress(chip, 0, first, 0, 0, 0);
      if (!differences.areBoth(where, found != golden.chips.end(), exists)) continue;
      const GoldenChip& expected = found->second;
      const auto compare = [&](const char* what, const auto& inGolden, const auto& compiled) {
        differences.compare(where + ": " + what, inGolden, compiled);
      };
      compare("any variant", expected.anyVariant,
              probe.chipTypeVariantValid(static_cast<ChipType_>(chip), 1));
      compare("base", hexadecimal(expected.base), hexadecimal(first.address));
      compare("access type", expected.accessType, first.accessType);
      compare("block", expected.block, first.block);
      compare("raw bytes needed", expected.rawBytesNeeded, table.allFieldsBytes());
      const std::map<std::string, U32> members = {{"width", expected.words},
                                                  {"arrayElements", expected.arrayElements},
                                                  {"entries", expected.entries.value_or(0)}};
      for (const GeometryProbe& member : probe.geometry) {
        const auto known = members.find(member.name);
        if (known == members.end()) continue;
        compare(member.name.c_str(), known->second, member.ofChip(chip, 0));
      }
    }
  });
}

TEST(GoldenSweep, fields) {
  Differences differences;
  forEachClass([&](const ClassProbe& probe, const GoldenClass& golden) {
    for (const GoldenField& expected : golden.fields) {
      const std::string name = probe.name + "::" + expected.accessor;
      if (!differences.areBoth(name, true, probe.find(expected.accessor) != nullptr)) continue;
      const FieldProbe& field = probe.field(expected.accessor);
      differences.compare(name + ": hardware name", expected.hardwareName, field.hardwareName);
      differences.compare(name + ": identifier", expected.id, field.id);
      differences.compare(name + ": type", expected.type, field.type);
      for (const auto& [chip, chipName] : chipNames()) {
        const std::string where = name + " on " + chipName;
        const bool isOn = probe.chipTypeVariantValid(static_cast<ChipType_>(chip), 0);
        if (isOn != (golden.chips.count(chip) != 0)) continue;  // one sentence is enough
        const auto view = probe.open(chip, nullptr, 0, 0);
        const auto place = expected.places.find(chip);
        const bool exists = ((*view).*field.isValid)();
        if (!differences.areBoth(where, place != expected.places.end(), exists)) continue;
        differences.compare(where + ": offset", place->second.offset, ((*view).*field.offset)());
        differences.compare(where + ": width", place->second.width, ((*view).*field.length)());
      }
    }
    for (const FieldProbe& field : probe.fields) {
      differences.areBoth(probe.name + "::" + field.accessor,
                          golden.find(field.accessor) != nullptr, true);
    }
  });
}

TEST(GoldenSweep, families) {
  Differences differences;
  forEachClass([&](const ClassProbe& probe, const GoldenClass& golden) {
    const auto index = static_cast<U32>(&probe - classProbes().data());
    const Velmar::Catalogue::Table table = Velmar::Catalogue::table(index);
    for (U32 i = 0; i < table.fieldCount(); ++i) {
      const std::string accessor = table.field(i).accessor;
      const GoldenField* expected = golden.find(accessor);
      if (!differences.areBoth(probe.name + "::" + accessor, expected != nullptr, true)) continue;
      const Velmar::Catalogue::Family family = table.family(i);
      differences.compare(probe.name + "::" + accessor + ": prefix of its family",
                          expected->family.prefixLength, family.prefixLength);
      differences.compare(probe.name + "::" + accessor + ": number in its family",
                          expected->family.port, family.number);
    }
  });
}

}  // namespace
}  // namespace VelmarTest
