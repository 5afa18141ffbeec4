// Verifies that the committed samples are what the example programs write now, that their README
// describes them rightly, and that the programs write whole files or none.

#include <gtest/gtest.h>

#include <sstream>
#include <vector>

#include "Velmar/Catalogue.h"
#include "support/Files.h"

namespace {

using namespace VelmarTest;

/// The committed samples, by name.
std::map<std::string, std::string> samples() {
  auto files = filesIn(SAMPLES_DIR);
  files.erase("README.md");
  return files;
}

TEST(SampleFiles, AreWhatTheProgramsWrite) {
  const ScratchDirectory scratch;
  ASSERT_EQ(0, run(quoted(PROGRAM_VLANS) + " " + quoted(scratch.file("vlan-bcm56990.bin"))));
  ASSERT_EQ(0, run(quoted(PROGRAM_TABLES) + " " + quoted(scratch.path())));
  const auto written = filesIn(scratch.path());
  const auto committed = samples();
  const char* refresh = "; to refresh: cmake --build --preset release --target samples";
  for (const auto& [name, bytes] : written) {
    ASSERT_TRUE(committed.count(name) == 1) << name << " is missing in samples/" << refresh;
    EXPECT_TRUE(committed.at(name) == bytes) << "samples/" << name << " is stale" << refresh;
  }
  for (const auto& [name, bytes] : committed) {
    EXPECT_TRUE(written.count(name) == 1) << "no program writes samples/" << name;
  }
}

/// The cells of a Markdown table row, without blanks and backquotes.
std::vector<std::string> cellsOf(const std::string& line) {
  std::vector<std::string> cells;
  std::istringstream row(line.substr(1));
  for (std::string cell; std::getline(row, cell, '|');) {
    std::string text;
    for (const char c : cell) {
      if (c != ' ' && c != '`') text += c;
    }
    cells.push_back(text);
  }
  return cells;
}

/// Bytes of an entry as the catalogue has it; 0 for a table or chip that it does not know.
U32 entryBytesOf(const std::string& tableName, const std::string& chipName) {
  using namespace Velmar::Catalogue;
  for (U32 t = 0; t < tableCount(); ++t) {
    for (U32 c = 0; c < chipCount(); ++c) {
      if (table(t).name() == tableName && chip(c).name == chipName) {
        return 4U * table(t).geometry(chip(c).number).words;
      }
    }
  }
  return 0;
}

TEST(SampleFiles, AreAsTheirReadmeSays) {
  std::ifstream readme(SAMPLES_DIR "/README.md");
  std::size_t described = 0;
  for (std::string line; std::getline(readme, line);) {
    if (line.rfind("| `", 0) != 0) continue;
    const std::vector<std::string> cells = cellsOf(line);
    ASSERT_EQ(6U, cells.size()) << line;
    const U32 entryBytes = entryBytesOf(cells[1], cells[2]);
    EXPECT_EQ(std::to_string(entryBytes), cells[3]) << line;
    EXPECT_EQ(readFile(SAMPLES_DIR "/" + cells[0]).size(), entryBytes * std::stoul(cells[4]))
        << line;
    ++described;
  }
  EXPECT_EQ(samples().size(), described);
}

class BadUsage : public testing::TestWithParam<const char*> {};

TEST_P(BadUsage, EndsWithExitCode2) {
  for (const char* program : {PROGRAM_VLANS, PROGRAM_TABLES}) {
    EXPECT_EQ(2, run(quoted(program) + " " + GetParam())) << program;
  }
}
INSTANTIATE_TEST_SUITE_P(SampleFiles, BadUsage,
                         testing::Values("", "''", "-x", "a b", "/dev/null", "/no/such/place"));

TEST(SampleFiles, HelpIsNoError) {
  EXPECT_EQ(0, run(quoted(PROGRAM_VLANS) + " --help"));
  EXPECT_EQ(0, run(quoted(PROGRAM_TABLES) + " --help"));
}

TEST(SampleFiles, AFailedWriteLeavesTheOldFile) {
  const ScratchDirectory scratch;
  const std::string path = scratch.file("dump.bin");
  std::ofstream(path) << "old";
  const std::string limited = "trap '' XFSZ; ulimit -f 8; ";
  EXPECT_EQ(2, run(limited + quoted(PROGRAM_VLANS) + " " + quoted(path)));
  EXPECT_EQ("old", readFile(path));
  EXPECT_EQ(1U, filesIn(scratch.path()).size()) << "a part of the new file was left";
}

}  // namespace
