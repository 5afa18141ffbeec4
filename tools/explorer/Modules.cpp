#include "Modules.h"

#include <cstring>
#include <fstream>
#include <map>
#include <set>
#include <sstream>
#include <stdexcept>

namespace Explorer {
namespace {

class Joiner {
 public:
  explicit Joiner(const std::string& directory) : directory_(directory) {}

  void add(const std::string& name) {
    if (!seen_.insert(name).second) return;
    std::istringstream lines(readFile(directory_ + "/" + name));
    std::string own;
    for (std::string line; std::getline(lines, line);) {
      if (startsWith(line, "import ")) {
        add(importedBy(line));
      } else {
        if (startsWith(line, "export ")) line.erase(0, 7);
        checkName(line, name);
        own += line + "\n";
      }
    }
    text_ += own + "\n";
  }

  const std::string& text() const { return text_; }

 private:
  static bool startsWith(const std::string& line, const char* start) {
    return line.rfind(start, 0) == 0;
  }

  /// The file of a line such as: import {refuse} from "./catalogue.js";
  static std::string importedBy(const std::string& line) {
    const size_t begin = line.find("\"./");
    const size_t end = line.rfind('"');
    if (begin == std::string::npos || end <= begin) {
      throw std::runtime_error("an import is one line, from \"./file\": " + line);
    }
    return line.substr(begin + 3, end - begin - 3);
  }

  /// The joined module has one scope, so a name at its top level may stand in one file only.
  void checkName(const std::string& line, const std::string& file) {
    for (const char* word : {"const ", "let ", "class ", "function ", "async function "}) {
      if (startsWith(line, word)) addName(line.substr(std::strlen(word)), file);
    }
  }

  void addName(const std::string& declaration, const std::string& file) {
    const std::string name = declaration.substr(0, declaration.find_first_of(" (=;"));
    const auto [at, isNew] = names_.emplace(name, file);
    if (!isNew) {
      throw std::runtime_error(file + ": " + at->first + " is also in " + at->second +
                               "; give it another name");
    }
  }

  std::string directory_;
  std::set<std::string> seen_;
  std::map<std::string, std::string> names_;
  std::string text_;
};

}  // namespace

std::string readFile(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  std::ostringstream text;
  text << file.rdbuf();
  if (!file) throw std::runtime_error(path + ": cannot be read");
  return text.str();
}

std::string joinedModules(const std::string& directory, const std::string& name) {
  Joiner joiner(directory);
  joiner.add(name);
  return joiner.text();
}

}  // namespace Explorer
