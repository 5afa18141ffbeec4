#include <algorithm>

#include "model/Failure.h"
#include "model/Text.h"
#include "verbs/Target.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

/// What a dump is on the chips that give it the same entries.
struct Fit {
  std::string table;
  std::vector<std::string> chips;
  U64 entries = 0;       ///< of the dump
  U64 last = 0;          ///< largest index
  U32 indexCount = 0;    ///< entries of the table
  U64 nonzero = 0;       ///< entries that are not zero
  U32 reservedBits = 0;  ///< bits of an entry outside all fields; in the dump all are zero

  bool isWhole() const { return entries == indexCount; }
  double share() const { return static_cast<double>(entries) / indexCount; }
};

/// Chips on which a table has one layout: a dump fits all of them or none, unless it names its chip.
struct Candidate {
  std::vector<Layout> layouts;
};

bool areAlike(const Layout& a, const Layout& b) {
  const auto isSame = [](const FieldPlace& x, const FieldPlace& y) {
    return x.field.id == y.field.id && x.offset == y.offset && x.width == y.width;
  };
  return a.entryBytes() == b.entryBytes() && a.indexCount() == b.indexCount() &&
         std::equal(a.fields().begin(), a.fields().end(), b.fields().begin(), b.fields().end(),
                    isSame);
}

std::vector<Candidate> candidatesOf(const Arguments& arguments) {
  std::vector<Candidate> candidates;
  for (const Catalogue::Table& table : allTables()) {
    if (!isAskedFor(arguments, table)) continue;
    const size_t first = candidates.size();
    for (const Catalogue::Chip& chip : allChips()) {
      const bool isAsked = arguments.chips.empty() || chipOf(arguments).number == chip.number;
      if (!isAsked || !table.isOn(chip.number)) continue;
      const Layout layout(table, chip, 0);
      const auto alike = std::find_if(candidates.begin() + static_cast<long>(first),
                                      candidates.end(), [&layout](const Candidate& candidate) {
                                        return areAlike(candidate.layouts.front(), layout);
                                      });
      if (alike == candidates.end()) {
        candidates.push_back({{layout}});
      } else {
        alike->layouts.push_back(layout);
      }
    }
  }
  if (candidates.empty()) {
    fail("{} does not exist on {}; leave out --table or --chip",
         findTable(arguments.tableOption).name(), chipOf(arguments).name);
  }
  return candidates;
}

/// Reads the dump as entries of a layout; nothing where it cannot be one.
std::optional<Fit> fitOf(const std::string& text, const Layout& layout,
                         const InputOptions& options) {
  Fit fit;
  fit.table = layout.name();
  fit.chips = {layout.chip().name};
  fit.indexCount = layout.indexCount();
  for (const U8 byte : layout.reservedMask()) {
    fit.reservedBits += static_cast<U32>(__builtin_popcount(byte));
  }
  const std::vector<U8> zeros(layout.entryBytes());
  try {
    const auto reader = openEntries(std::make_unique<ByteStream>(text), layout, options);
    for (Entry entry; reader->next(entry); ++fit.entries) {
      if (layout.hasReservedBits(entry.bytes)) return std::nullopt;
      fit.last = std::max(fit.last, entry.index);
      if (!std::equal(zeros.begin(), zeros.end(), entry.bytes)) ++fit.nonzero;
    }
  } catch (const Failure&) {
    return std::nullopt;
  }
  return fit;
}

/// The likelier comes first: a whole table, then where more bits could have spoken against it.
bool isLikelier(const Fit& a, const Fit& b) {
  if (a.isWhole() != b.isWhole()) return a.isWhole();
  if (a.reservedBits != b.reservedBits) return a.reservedBits > b.reservedBits;
  return a.share() > b.share();
}

std::string reasonOf(const Fit& fit) {
  const std::string size = fit.isWhole() ? "the whole table"
                                         : formatText("{} of {} entries, the last is {}",
                                                      fit.entries, fit.indexCount, fit.last);
  if (fit.nonzero == 0) return size + "; all entries are zero";
  return formatText(
      "{}; {} not zero, {}", size, fit.nonzero,
      fit.reservedBits == 0
          ? std::string("every bit is in a field")
          : formatText("none sets any of the {} bits outside all fields", fit.reservedBits));
}

int run(const Arguments& arguments) {
  if (arguments.files.size() > 1)
    fail("{} dumps given; give one, and a table with --table", arguments.files.size());
  const std::string file = arguments.files.empty() ? "" : arguments.files.front();
  ByteStream stream(file, nullptr);
  constexpr size_t most = size_t{16} << 20;
  if (stream.need(most)) {
    fail("{}: more than {} MiB, which no table fills; give the dump of one table", stream.name(),
         most >> 20);
  }
  if (stream.size() == 0) fail("{}: empty; give a dump", stream.name());
  const std::string text(stream.text());
  InputOptions options = inputOptionsOf(arguments);
  options.note = nullptr;
  const size_t first = text.find_first_not_of(" \t\r\n");
  const bool isJson = first != std::string::npos && (text[first] == '{' || text[first] == '[');
  std::vector<Fit> fits;
  for (const Candidate& candidate : candidatesOf(arguments)) {
    std::optional<Fit> fit;
    for (const Layout& layout : candidate.layouts) {
      // What fits one chip fits those like it, but a dump in JSON names its chip.
      if (fit && !isJson) {
        fit->chips.emplace_back(layout.chip().name);
        continue;
      }
      const std::optional<Fit> other = fitOf(text, layout, options);
      if (!other && !isJson) break;
      if (other && fit) fit->chips.emplace_back(layout.chip().name);
      if (other && !fit) fit = other;
    }
    if (fit) fits.push_back(*fit);
  }
  std::stable_sort(fits.begin(), fits.end(), isLikelier);
  Listing listing({"table", "chips", "entries", "tableEntries", "reason"});
  for (const Fit& fit : fits) {
    listing.add({fit.table, Cell(fit.chips).shownAs(chipsText(fit.chips)), fit.entries,
                 fit.indexCount, reasonOf(fit)});
  }
  const Format format = formatOf(arguments.format);
  Output output(arguments.output, arguments.color);
  if (!listing.isEmpty() || format != Format::table) {
    listing.print(output, format, frameOf("identification", "fits"));
  }
  output.finish();
  if (!listing.isEmpty()) return exitSuccess;
  std::fprintf(stderr,
               "velmar: no table fits: its entries, its size or its bits speak against each; "
               "check --input, --hex-order, --stride, --table and --chip\n");
  return exitFinding;
}

}  // namespace

Verb identifyVerb() {
  return {"identify",
          "Lists the tables and chips that a dump fits, the likeliest first.",
          "A table fits if the dump is a whole number of its entries, all entries are in the "
          "table, and no bit outside all fields is set. Exit code 1 says that none fits.",
          {Positionals::dump},
          {Options::tableOption, Options::chipIfAny, Options::input, Options::hexOrder,
           Options::byteOrder, Options::stride, Options::first, Options::listFormat,
           Options::output, Options::color},
          {"velmar identify samples/vlan-bcm56990.bin",
           "velmar encode VlanMpls --chip 56980 mplsEnable=1 --whole -f raw | velmar identify -"},
          run};
}

}  // namespace Tool
