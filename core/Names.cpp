#include "core/Names.h"

#include <algorithm>
#include <limits>
#include <numeric>

namespace Velmar {
namespace Core {
namespace {

/// The fewest characters to change, insert, remove or swap with a neighbour to turn `a` into `b`.
std::size_t distance(std::string_view a, std::string_view b) {
  std::size_t rows[3][SimpleName::most + 1];
  std::size_t *beforeLast = rows[0], *last = rows[1], *row = rows[2];
  std::iota(last, last + b.size() + 1, std::size_t{0});
  for (std::size_t i = 1; i <= a.size(); ++i) {
    row[0] = i;
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const std::size_t change = last[j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
      row[j] = std::min({change, last[j] + 1, row[j - 1] + 1});
      const bool swapped = i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1];
      if (swapped) row[j] = std::min(row[j], beforeLast[j - 2] + 1);
    }
    std::size_t* const spare = beforeLast;
    beforeLast = last;
    last = row;
    row = spare;
  }
  return last[b.size()];
}

}  // namespace

SimpleName::SimpleName(std::string_view name) {
  // A name with a minus before it is another one: it leaves a field out.
  if (!name.empty() && name[0] == '-') characters_[size_++] = '-';
  for (const char character : name) {
    const char simple = simpleCharacter(character);
    if (simple != '\0' && size_ < most) characters_[size_++] = simple;
  }
}

std::string_view SimpleName::withoutSuffix() const {
  for (const std::string_view suffix : {"entry", "control"}) {
    if (size_ > suffix.size() && text().substr(size_ - suffix.size()) == suffix) {
      return text().substr(0, size_ - suffix.size());
    }
  }
  return text();
}

Suggestions::Suggestions(std::string_view name) : name_(name.substr(0, longest)) {}

void Suggestions::consider(std::string_view candidate) {
  constexpr std::size_t shortest = 3;
  const std::string_view simple = name_.text();
  if (simple.size() < shortest) return;
  const std::size_t farthest = std::max<std::size_t>(1, simple.size() / 3);
  const SimpleName name(candidate);
  const std::string_view other = name.text();
  const std::string_view start = other.substr(0, std::max(simple.size(), other.size() / 2));
  std::size_t steps = std::min(
      {distance(simple, other), distance(simple, name.withoutSuffix()), distance(simple, start)});
  if (steps > farthest && other.find(simple) != std::string_view::npos) steps = farthest;
  if (steps > farthest) return;
  std::size_t at = count_;
  for (; at > 0 && near_[at - 1].steps > steps; --at) near_[at] = near_[at - 1];
  near_[at] = {steps, candidate};
  count_ = std::min(count_ + 1, most);
}

Text Suggestions::text() const {
  Text text;
  for (std::size_t i = 0; i < count_ && near_[i].steps <= near_[0].steps + 1; ++i) {
    text.append("{}{}", i == 0 ? "did you mean " : ", ", near_[i].name);
  }
  if (!text.isEmpty()) text.append("? ");
  return text;
}

std::optional<NumberedName> numberedName(std::string_view name) {
  const std::size_t digits = name.find_last_not_of("0123456789") + 1;
  const std::optional<U64> number = parseNumber(name.substr(digits));
  if (!number || *number > std::numeric_limits<U32>::max() || digits == 0) return std::nullopt;
  return NumberedName{name.substr(0, digits), static_cast<U32>(*number)};
}

std::string simplified(std::string_view name) {
  std::string simple(!name.empty() && name[0] == '-' ? "-" : "");
  for (const char character : name) {
    const char one = simpleCharacter(character);
    if (one != '\0') simple += one;
  }
  return simple;
}

std::string didYouMean(std::string_view name, const std::vector<std::string>& candidates) {
  Suggestions suggestions(name);
  for (const std::string& candidate : candidates) suggestions.consider(candidate);
  return suggestions.text().text();
}

bool matchesPattern(std::string_view pattern, std::string_view name) {
  // After a "*" the rest is tried at each place; only the last "*" can still move.
  std::size_t at = 0, star = pattern.npos, retry = 0;
  for (std::size_t i = 0; i < name.size();) {
    if (at < pattern.size() && pattern[at] == '*') {
      star = at++;
      retry = i;
    } else if (at < pattern.size() && (pattern[at] == '?' || pattern[at] == name[i])) {
      ++at;
      ++i;
    } else if (star != pattern.npos) {
      at = star + 1;
      i = ++retry;
    } else {
      return false;
    }
  }
  return pattern.find_first_not_of('*', at) == pattern.npos;
}

}  // namespace Core
}  // namespace Velmar
