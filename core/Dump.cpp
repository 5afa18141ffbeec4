#include "core/Dump.h"

#include <algorithm>
#include <iterator>

namespace Velmar {
namespace Core {
namespace {

/// In the order of the enumeration.
constexpr const char* names[] = {"auto", "raw", "hex", "xxd", "hexdump", "od", "json", "csv"};

}  // namespace

const char* nameOf(Notation notation) { return names[static_cast<size_t>(notation)]; }

std::optional<Notation> notationNamed(std::string_view name) {
  const auto found = std::find(std::begin(names), std::end(names), name);
  if (found == std::end(names)) return std::nullopt;
  return static_cast<Notation>(found - std::begin(names));
}

void Dump::add(U32 index, const U8* bytes) {
  owned_.insert(owned_.end(), bytes, bytes + entryBytes_);
  if (count_ == 0) first_ = index;
  const bool follows = indexes_.empty() && index == first_ + count_;
  if (!follows && indexes_.empty()) {
    for (size_t i = 0; i < count_; ++i) indexes_.push_back(first_ + static_cast<U32>(i));
  }
  if (!follows) indexes_.push_back(index);
  ++count_;
}

}  // namespace Core
}  // namespace Velmar
