// Writes the public headers that are derived from the rows of tables/, or says which are stale.

#include <algorithm>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <set>
#include <stdexcept>

#include "framework/ChipChecks.h"
#include "tables/Classes.h"
#include "tools/headers/HeaderText.h"

namespace Headers {

std::vector<ClassRows>& classesRead() {
  static std::vector<ClassRows> classes;
  return classes;
}

bool add(const ClassRows& rows) {
  classesRead().push_back(rows);
  return true;
}

namespace {

namespace fs = std::filesystem;

using Files = std::map<std::string, std::string>;  ///< text by name

[[noreturn]] void fail(const std::string& text) { throw std::runtime_error(text); }

std::string readFile(const fs::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

void writeFile(const fs::path& path, const std::string& text) {
  std::ofstream file(path, std::ios::binary);
  file << text;
  file.close();
  if (!file) fail(path.string() + ": cannot be written");
}

/// The classes in the order of tables/Classes.h. List and sources must agree.
std::vector<ClassRows> allClasses() {
  std::vector<ClassRows> classes;
  std::vector<ClassRows> read = classesRead();
#define VELMAR_CLASS_NAME(CLASS) #CLASS,
  for (const std::string name : {VELMAR_CLASSES(VELMAR_CLASS_NAME)}) {
    const auto found = std::find_if(read.begin(), read.end(),
                                    [&](const ClassRows& rows) { return rows.name == name; });
    if (found == read.end()) {
      fail("tables/Classes.h lists " + name + " twice, or tables/" + name + ".cpp is missing");
    }
    classes.push_back(*found);
    read.erase(found);
  }
#undef VELMAR_CLASS_NAME
  if (!read.empty()) {
    fail("tables/Classes.h does not list " + read.front().name + "; add CLASS(" +
         read.front().name + ")");
  }
  return classes;
}

/// Refuses a chip that no class has: it would only be in the list of chips.
void checkChips(const std::vector<ClassRows>& classes) {
  for (const ChipName& chip : chipNames) {
    const bool isUsed = std::any_of(classes.begin(), classes.end(), [&](const ClassRows& rows) {
      return std::count(rows.chips.begin(), rows.chips.end(), chip.name) != 0;
    });
    if (!isUsed) fail(std::string("no table has a row with ") + chip.name);
  }
}

bool isDerived(const std::string& text) { return text.rfind("// Derived from ", 0) == 0; }

/// Whether two classes may share addresses.
bool mayShare(const std::string& a, const std::string& b) {
#define VELMAR_IS_PAIR(one, other) (a == #one && b == #other) || (a == #other && b == #one) ||
  return VELMAR_SHARED_MEMORIES(VELMAR_IS_PAIR) false;
#undef VELMAR_IS_PAIR
}

/// Refuses two tables that share an address on a chip: an address or a size is wrong.
void checkAddresses(const ClassRows& rows, const ClassRows& other) {
  if (mayShare(rows.name, other.name)) return;
  for (std::size_t i = 0; i < rows.chips.size(); ++i) {
    for (std::size_t j = 0; j < other.chips.size(); ++j) {
      const AddressRange a = rows.addresses[i];
      const AddressRange b = other.addresses[j];
      if (rows.chips[i] != other.chips[j] || a.first > b.last || b.first > a.last) continue;
      char text[80];
      std::snprintf(text, sizeof(text), "0x%08x to 0x%08x and 0x%08x to 0x%08x", a.first, a.last,
                    b.first, b.last);
      fail(rows.name + " and " + other.name + " share addresses on " + rows.chips[i] + ": " + text +
           "; correct one of them, or name the pair in tables/Classes.h");
    }
  }
}

/// Whether a header that is written by hand is part of MetaInfo.h, which needs no more than C++14.
bool isInMetaInfo(const std::string& name, const std::string& text) {
  return name != "Export.h" && name != "MetaInfo.h" && text.find(" needs C++17") == text.npos;
}

/// The expected derived headers.
Files derivedHeaders(const std::vector<ClassRows>& classes, const Files& present) {
  Files headers;
  for (const ClassRows& rows : classes) headers[rows.name + ".h"] = classHeader(rows);
  headers["FieldId.h"] = idHeader();
  std::set<std::string> names;
  for (const auto& [name, text] : headers) names.insert(name);
  for (const auto& [name, text] : present) {
    if (!isDerived(text) && isInMetaInfo(name, text)) names.insert(name);
  }
  headers["MetaInfo.h"] = includeAllHeader(names);
  return headers;
}

/// The names of the derived headers that differ from the expected ones.
std::vector<std::string> staleHeaders(const Files& headers, const Files& present) {
  std::vector<std::string> names;
  for (const auto& [name, text] : headers) {
    if (present.count(name) == 0 || present.at(name) != text) names.push_back(name);
  }
  for (const auto& [name, text] : present) {
    if (isDerived(text) && headers.count(name) == 0) names.push_back(name);
  }
  return names;
}

int run(const std::string& task, const fs::path& place) {
  const std::vector<ClassRows> classes = allClasses();
  checkChips(classes);
  for (std::size_t i = 0; i < classes.size(); ++i) {
    for (std::size_t j = 0; j < i; ++j) checkAddresses(classes[j], classes[i]);
  }
  if (task == "lists") {
    const std::string lists = fieldLists(classes);
    if (readFile(place) != lists) writeFile(place, lists);
    return 0;
  }
  Files present;
  for (const auto& file : fs::directory_iterator(place)) {
    if (!file.is_regular_file()) continue;
    present[file.path().filename().string()] = readFile(file.path());
  }
  const Files headers = derivedHeaders(classes, present);
  const std::vector<std::string> stale = staleHeaders(headers, present);
  if (task == "check" && !stale.empty()) {
    const std::string others =
        stale.size() > 1 ? " (and " + std::to_string(stale.size() - 1) + " more)" : "";
    fail("include/Velmar/" + stale.front() + " is stale" + others +
         ": it does not match tables/. To refresh: cmake --build --preset release --target "
         "refresh");
  }
  for (const std::string& name : stale) {
    std::printf("%s\n", name.c_str());
    if (headers.count(name) != 0) {
      writeFile(place / name, headers.at(name));
    } else {
      fs::remove(place / name);
    }
  }
  return 0;
}

}  // namespace
}  // namespace Headers

int main(int count, char** words) {
  const std::string task = count == 3 ? words[1] : "";
  if (task != "write" && task != "check" && task != "lists") {
    std::fputs("usage: velmar-headers write|check DIRECTORY\n       velmar-headers lists FILE\n",
               stderr);
    return 2;
  }
  try {
    return Headers::run(task, words[2]);
  } catch (const std::exception& error) {
    std::fprintf(stderr, "velmar-headers: %s\n", error.what());
    return 1;
  }
}
