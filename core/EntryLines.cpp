#include "core/EntryLines.h"

#include "core/Families.h"
#include "core/Value.h"

namespace Velmar {
namespace Core {
namespace {

std::string valueText(const Layout& layout, const FieldPlace* place, const U8* entry) {
  if (place == nullptr) return reservedBits(layout, entry);
  return plainText(*place, Value::read(*place, entry, layout.entryBytes()));
}

std::string changeText(const Layout& layout, const EntryChange& change, const FieldPlace* place) {
  return formatText(" = {} -> {}\n", valueText(layout, place, change.before),
                    valueText(layout, place, change.after));
}

void appendChange(std::string& to, const Layout& layout, const EntryChange& change) {
  std::vector<std::string> texts;
  for (const FieldPlace* place : change.fields) {
    texts.push_back(changeText(layout, change, place));
  }
  const auto areAlike = [&](size_t a, size_t b) {
    const FieldPlace* const first = change.fields[a];
    const FieldPlace* const other = change.fields[b];
    return first != nullptr && other != nullptr && other->isOfFamilyOf(*first) &&
           texts[a] == texts[b];
  };
  for (const std::vector<size_t>& alike : joined(texts.size(), areAlike)) {
    const FieldPlace* const first = change.fields[alike.front()];
    std::string name = nameOf(first);
    if (alike.size() > 1) {
      std::vector<U32> numbers;
      for (const size_t i : alike) numbers.push_back(change.fields[i]->family.number);
      name = familyName(*first, numbers);
    }
    to += formatText("{}: {}{}", change.index, name, texts[alike.front()]);
  }
}

}  // namespace

std::string entryLines(const Layout& layout, const U8* entry) {
  std::string lines;
  for (const FieldGroup& group : grouped(layout.fields(), true)) {
    if (group.isFamily()) {
      lines += formatText("{} = {{{}}}\n", group.front().prefix(),
                          familyText(group.members, entry, layout.entryBytes()));
    } else {
      lines +=
          formatText("{} = {}\n", group.front().name(), valueText(layout, &group.front(), entry));
    }
  }
  if (layout.hasReservedBits(entry)) {
    lines += formatText("{} = {}\n", nameOf(nullptr), reservedBits(layout, entry));
  }
  return lines;
}

std::string differenceLines(const Layout& layout, const Difference& difference) {
  std::string lines;
  for (const EntryChange& change : difference.entries) {
    if (change.kind == EntryChange::Kind::changed) {
      appendChange(lines, layout, change);
    } else {
      lines += formatText("{}: {}\n", change.index, nameOf(change.kind));
    }
  }
  return lines;
}

}  // namespace Core
}  // namespace Velmar
