#include "bindings/sqlite/Patterns.h"

#include <dirent.h>

#include <algorithm>

#include "files/Files.h"

namespace Velmar {
namespace Sqlite {

using Core::Code;
using Core::Fault;

namespace {

bool isNameCharacter(char character) {
  return character == '_' || (character >= 'a' && character <= 'z') ||
         (character >= 'A' && character <= 'Z') || Core::isDecimalDigit(character);
}

bool isName(std::string_view name) {
  return !name.empty() && !Core::isDecimalDigit(name[0]) &&
         std::all_of(name.begin(), name.end(), isNameCharacter);
}

/// Whether a name fits a part of a path. Each placeholder takes at least one character, and as few as
/// possible.
bool fits(std::string_view part, std::string_view name, std::vector<std::string>& values) {
  if (part.empty()) return name.empty();
  if (part[0] != '{') {
    return !name.empty() && part[0] == name[0] && fits(part.substr(1), name.substr(1), values);
  }
  const std::string_view rest = part.substr(part.find('}') + 1);
  for (size_t size = 1; size <= name.size(); ++size) {
    values.emplace_back(name.substr(0, size));
    if (fits(rest, name.substr(size), values)) return true;
    values.pop_back();
  }
  return false;
}

/// The names in a folder, in order.
std::vector<std::string> namesIn(const std::string& folder) {
  std::vector<std::string> names;
  DIR* const files = opendir(folder.empty() ? "." : folder.c_str());
  if (files == nullptr) return names;
  while (const dirent* const file = readdir(files)) {
    if (file->d_name[0] != '.') names.emplace_back(file->d_name);
  }
  closedir(files);
  std::sort(names.begin(), names.end());
  return names;
}

}  // namespace

Core::Expected<PathPattern> PathPattern::of(std::string_view text) {
  PathPattern pattern;
  pattern.isAbsolute_ = !text.empty() && text[0] == '/';
  pattern.isFolder_ = !text.empty() && text.back() == '/';
  for (size_t begin = 0; begin < text.size();) {
    const size_t end = std::min(text.find('/', begin), text.size());
    if (end != begin) pattern.parts_.emplace_back(text.substr(begin, end - begin));
    begin = end + 1;
  }
  for (size_t begin = 0; (begin = text.find('{', begin)) != text.npos; ++begin) {
    const size_t end = std::min(text.find('}', begin), text.size());
    const std::string name(text.substr(begin + 1, end - begin - 1));
    if (end == text.size() || !isName(name)) {
      return failed(Fault(Code::option,
                          "{}: a placeholder is a name in braces, such as {{switch}}; correct it",
                          Core::quoted(text).view()));
    }
    std::vector<std::string>& names = pattern.placeholders_;
    if (std::count(names.begin(), names.end(), name) != 0) {
      return failed(Fault(Code::option, "placeholder {{{}}} is given twice; give each once",
                          Core::quoted(name).view()));
    }
    names.push_back(name);
  }
  return pattern;
}

std::vector<Match> PathPattern::matches() const {
  std::vector<Match> found = {{isAbsolute_ ? "/" : "", {}}};
  for (size_t i = 0; i < parts_.size(); ++i) {
    const bool isFolder = i + 1 < parts_.size() || isFolder_;
    const bool isFixed = parts_[i].find('{') == std::string::npos;
    std::vector<Match> next;
    for (const Match& match : found) {
      const std::string before =
          match.path.empty() || match.path == "/" ? match.path : match.path + '/';
      for (const std::string& name : isFixed ? std::vector{parts_[i]} : namesIn(match.path)) {
        Match longer{before + name, match.values};
        if (!isFixed && !fits(parts_[i], name, longer.values)) continue;
        // Without a placeholder, what is missing is said when it is opened.
        if (!isFixed && isFolder && !Files::isFolder(longer.path)) continue;
        next.push_back(std::move(longer));
      }
    }
    found = std::move(next);
  }
  return found;
}

}  // namespace Sqlite
}  // namespace Velmar
