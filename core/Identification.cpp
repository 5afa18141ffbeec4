#include "core/Identification.h"

#include <algorithm>

namespace Velmar {
namespace Core {
namespace {

/// Whether entries are the same on two chips: then a dump fits both or neither, unless it names its
/// chip.
bool areAlike(const Layout& a, const Layout& b) {
  const auto isSame = [](const FieldPlace& x, const FieldPlace& y) {
    return x.field.id == y.field.id && x.offset == y.offset && x.width == y.width;
  };
  return a.entryBytes() == b.entryBytes() && a.indexCount() == b.indexCount() &&
         std::equal(a.fields().begin(), a.fields().end(), b.fields().begin(), b.fields().end(),
                    isSame);
}

/// The chips of a table, those with one layout together.
std::vector<std::vector<Layout>> candidatesOf(const Catalogue::Table& table,
                                              const std::vector<Catalogue::Chip>& chips) {
  std::vector<std::vector<Layout>> candidates;
  for (const Catalogue::Chip& chip : chips) {
    Expected<Layout> layout = Layout::of(table, chip, 0);
    if (!layout) continue;
    const auto alike = std::find_if(candidates.begin(), candidates.end(),
                                    [&layout](const std::vector<Layout>& candidate) {
                                      return areAlike(candidate.front(), *layout);
                                    });
    if (alike == candidates.end()) {
      candidates.emplace_back().push_back(std::move(*layout));
    } else {
      alike->push_back(std::move(*layout));
    }
  }
  return candidates;
}

/// Whether a document may say of which chip it is: by name, or by the addresses of entries.
bool namesChip(std::string_view input, const ReadOptions& options) {
  if (options.notation == Notation::json || options.notation == Notation::csv) return true;
  if (options.notation != Notation::automatic) return false;
  const size_t first = std::min(input.find_first_not_of(" \t\r\n\xef\xbb\xbf"), input.size());
  const std::string_view text = input.substr(first);
  const std::string_view line = text.substr(0, text.find('\n'));
  return !text.empty() && (text[0] == '{' || text[0] == '[' || line.find("index") != line.npos ||
                           line.find("address") != line.npos);
}

/// Reads the dump as entries of a layout; nothing where it cannot be one.
std::optional<Fit> fitOf(std::string_view input, const Layout& layout, const ReadOptions& options) {
  const Expected<Dump> dump = readDump(layout, options, input);
  if (!dump) return std::nullopt;
  Fit fit;
  fit.entries = dump->count();
  fit.indexCount = layout.indexCount();
  for (const U8 byte : layout.reservedMask()) {
    fit.reservedBits += static_cast<U32>(__builtin_popcount(byte));
  }
  const std::vector<U8> zeros(layout.entryBytes());
  for (size_t i = 0; i < dump->count(); ++i) {
    const U8* const bytes = dump->bytes(i);
    if (layout.hasReservedBits(bytes)) return std::nullopt;
    fit.last = std::max<U64>(fit.last, dump->index(i));
    if (!std::equal(zeros.begin(), zeros.end(), bytes)) ++fit.nonzero;
  }
  return fit;
}

/// The likelier comes first: a whole table, then where more bits could have spoken against it.
bool isLikelier(const Fit& a, const Fit& b) {
  const auto isWhole = [](const Fit& fit) { return fit.entries == fit.indexCount; };
  if (isWhole(a) != isWhole(b)) return isWhole(a);
  if (a.reservedBits != b.reservedBits) return a.reservedBits > b.reservedBits;
  return a.entries * b.indexCount > b.entries * a.indexCount;
}

std::string reasonOf(const Fit& fit) {
  const std::string size =
      fit.entries == fit.indexCount
          ? "the whole table"
          : formatText("{} of {} entries, the last is {}", fit.entries, fit.indexCount, fit.last);
  if (fit.nonzero == 0) return size + "; all entries are zero";
  if (fit.reservedBits == 0) {
    return formatText("{}; {} not zero, every bit is in a field", size, fit.nonzero);
  }
  return formatText("{}; {} not zero, none sets any of the {} bits outside all fields", size,
                    fit.nonzero, fit.reservedBits);
}

}  // namespace

Expected<std::vector<Fit>> identify(std::string_view input, const ReadOptions& options,
                                    const std::optional<Catalogue::Table>& table,
                                    const std::optional<Catalogue::Chip>& chip) {
  if (table && chip && !table->isOn(chip->number)) {
    return failed(Fault(Code::notOnChip, "{} does not exist on {}", table->name(), chip->name)
                      .advise("leave out $1 or $2")
                      .offer("table")
                      .offer("chip"));
  }
  if (input.empty()) return failed(Fault(Code::input, "empty").advise("give a dump"));
  const bool triesEach = namesChip(input, options);
  std::vector<Fit> fits;
  for (const Catalogue::Table& one : table ? std::vector{*table} : allTables()) {
    for (const std::vector<Layout>& layouts :
         candidatesOf(one, chip ? std::vector{*chip} : allChips())) {
      std::optional<Fit> fit;
      for (const Layout& layout : layouts) {
        std::optional<Fit> other;
        const bool fitsAsOther = fit && !triesEach;
        if (!fitsAsOther) other = fitOf(input, layout, options);
        if (!fit) fit = other;
        if (fitsAsOther || other) fit->layouts.push_back(layout);
        if (!fit && !triesEach) break;
      }
      if (fit) fits.push_back(std::move(*fit));
    }
  }
  std::stable_sort(fits.begin(), fits.end(), isLikelier);
  return fits;
}

Listing listingOf(const std::vector<Fit>& fits) {
  Listing listing({"table", "chips", "entries", "tableEntries", "reason"});
  for (const Fit& fit : fits) {
    std::vector<std::string> chips;
    for (const Layout& layout : fit.layouts) chips.emplace_back(layout.chip().name);
    listing.add({fit.layouts.front().name(), Cell(chips).shownAs(chipsText(chips)), fit.entries,
                 fit.indexCount, reasonOf(fit)});
  }
  return listing;
}

}  // namespace Core
}  // namespace Velmar
