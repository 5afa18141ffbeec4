#include "output/Wrapping.h"

namespace Tool {

std::vector<std::string> wrap(const std::string& text, size_t width) {
  std::vector<std::string> lines;
  size_t from = 0;
  while (text.size() - from > width) {
    size_t to = text.rfind(' ', from + width);
    if (to == std::string::npos || to <= from) {
      // A list that is longer than the line.
      to = text.rfind(',', from + width - 1) + 1;
      if (to <= from) to = text.find_first_of(" ,", from + width);
      if (to == std::string::npos) break;
    }
    lines.push_back(text.substr(from, to - from));
    from = to + (text[to] == ' ' ? 1 : 0);
  }
  lines.push_back(text.substr(from));
  return lines;
}

}  // namespace Tool
