// Verifies that the committed reference documents are what the rows give now, that a search for an
// accessor finds its page, that the pages are right about some hand-picked fields and chips, and
// that the other documents name files that exist.

#include <gtest/gtest.h>

#include <cctype>
#include <set>
#include <sstream>
#include <vector>

#include "support/Files.h"
#include "support/GoldenData.h"

namespace {

using namespace VelmarTest;

const std::map<std::string, std::string>& pages() {
  static const auto pages = filesIn(ROOT_DIR "/docs/reference");
  return pages;
}

TEST(Reference, IsFresh) {
  const ScratchDirectory scratch;
  ASSERT_EQ(0, run(quoted(REFERENCE_PAGES) + " " + quoted(scratch.path())));
  const auto made = filesIn(scratch.path());
  for (const auto& [name, text] : made) {
    EXPECT_TRUE(pages().count(name) == 1 && pages().at(name) == text)
        << "docs/reference/" << name
        << " is stale; to refresh: cmake --build --preset release --target refresh";
  }
  for (const auto& [name, text] : pages()) {
    EXPECT_TRUE(made.count(name) == 1) << "docs/reference/" << name << " has no class; delete it";
  }
}

TEST(Reference, FailsWithoutItsDirectory) {
  EXPECT_EQ(2, run(quoted(REFERENCE_PAGES)));
  EXPECT_EQ(2, run(quoted(REFERENCE_PAGES) + " /no/such/place"));
}

/// The texts between backquotes in a Markdown text.
std::vector<std::string> quotedCode(const std::string& text) {
  std::vector<std::string> pieces;
  std::istringstream stream(text);
  std::string piece;
  for (bool isCode = false; std::getline(stream, piece, '`'); isCode = !isCode) {
    if (isCode) pieces.push_back(piece);
  }
  return pieces;
}

TEST(Documents, NameFilesThatExist) {
  using std::filesystem::exists;
  std::size_t found = 0;
  for (const auto& entry : std::filesystem::directory_iterator(ROOT_DIR "/docs")) {
    if (entry.is_directory()) continue;
    for (const std::string& code : quotedCode(readFile(entry.path().string()))) {
      const std::string directory = code.substr(0, code.find('/'));
      const bool isPath = directory != code && code.find_first_of("< ") == std::string::npos;
      if (!isPath || directory.empty() || !exists(ROOT_DIR "/" + directory)) continue;
      EXPECT_TRUE(exists(ROOT_DIR "/" + code)) << entry.path().filename() << " names " << code;
      ++found;
    }
  }
  EXPECT_NE(0U, found);
}

std::set<std::string> wordsOf(const std::string& text) {
  std::set<std::string> words;
  std::istringstream stream(text);
  for (std::string word; stream >> word;) words.insert(word);
  return words;
}

TEST(Reference, HasEveryAccessorOnThePageOfItsClass) {
  EXPECT_EQ(goldenClasses().size() + 1, pages().size());
  for (const GoldenClass& golden : goldenClasses()) {
    ASSERT_EQ(1U, pages().count(golden.name + ".md")) << golden.name;
    const std::set<std::string> words = wordsOf(pages().at(golden.name + ".md"));
    for (const GoldenField& field : golden.fields) {
      const std::string& name = field.accessor;
      std::string capitalised = name;
      capitalised[0] = static_cast<char>(std::toupper(name[0]));
      for (const std::string& accessor :
           {name, name + "Is", name + "Len", name + "Offset", "is" + capitalised + "Valid"}) {
        EXPECT_EQ(1U, words.count(accessor)) << golden.name << " lacks " << accessor;
      }
    }
  }
}

/// A text with each run of blanks as a single one, so that the width of a column does not matter.
std::string withSingleBlanks(const std::string& text) {
  std::string single;
  for (const char c : text) {
    if (c != ' ' || single.empty() || single.back() != ' ') single += c;
  }
  return single;
}

struct Statement {
  const char* page;
  const char* text;
};

// clang-format off
constexpr Statement statements[] = {
    {"README.md", "| [EgrVlan2Entry](EgrVlan2Entry.md) | table | egress | "},
    {"README.md", "| BCM56990_B0 | 33 |"},
    {"VlanEntry.md", "| BCM56992_B0 | BCM56990_B0 | 0 only | 4 | 16 | 8192 | 15 |"},
    {"VlanEntry.md", "| BCM56990_B0 | 0x0c7c0000 | 17 | 1 | 1 | 16384 |"},
    {"VlanEntry.md", "| STG | stg | 585 | U16 | 272/9 | - | 141/9 | 141/9 | 141/9 | 141/8 | 141/8 | - | 42/6 |"},
    {"VlanStgEntry.md", "| BCM56870_A0 | 0 to 131 | 2 | 2 * n |"},
    {"VlanStgBEntry.md", "| BCM56990_B0 | 136 to 271 | 2 | 2 * (n - 136) |"},
    {"VlanStgBEntry.md", "identifier 244 + n"},
    {"VlanStgBEntry.md", "| BCM56990_B0 | BCM56990_B0 | any | 10 | 40 | 64 | 136 |"},
    {"IngVpVlanMembershipEntry.md", "- `DATA`: `TABLE_FIELDS`, `SP_TREE`\n"},
    {"IngVpVlanMembershipEccEntry.md", "returns 16 bytes and needs a buffer of 12"},
    {"IgmpMldPktControl.md", "address = base + stride * element"},
    {"IgmpMldPktControl.md", "| BCM56980_A0 | 0x12000400 | 9 | 1 | 2 | 256 |"}};
// clang-format on

TEST(Reference, SaysOnItsPage) {
  for (const Statement& statement : statements) {
    EXPECT_NE(std::string::npos, withSingleBlanks(pages().at(statement.page)).find(statement.text))
        << statement.page << " lacks " << statement.text;
  }
}

}  // namespace
