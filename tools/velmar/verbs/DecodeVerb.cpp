#include "core/Documents.h"
#include "output/Entries.h"
#include "output/Listings.h"
#include "verbs/Inputs.h"
#include "verbs/Requests.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

struct DecodeRequest {
  TableRequest table;
  InputRequest input;
  OutputRequest output;
  SelectionRequest entries;
  Texts fields;
  std::optional<U64> limit;
  bool plain = false, compact = false, expand = false, check = false;
};

/// The entries that are asked for, as positions in the dump.
class Selected {
 public:
  Selected(const DecodeRequest& request, const Layout& layout)
      : selection_(request.entries.selection(layout)), limit_(request.limit) {
    if (!request.check) request.entries.index.check(layout, "--index");
  }

  std::vector<size_t> in(const Dump& dump) {
    std::vector<size_t> positions = selection_.in(dump);
    isEmpty_ = positions.empty();
    if (limit_ && positions.size() > *limit_) positions.resize(*limit_);
    return positions;
  }

  /// Fails for a document without entries: whoever reads it cannot tell why.
  void checkAny() const {
    if (lacksAll()) fail("{}", nothingSelected);
  }

  /// Notes what the result does not show.
  void report() const {
    const std::string unmet = selection_.indexes.unmet();
    if (lacksAll()) {
      std::fprintf(stderr, "velmar: note: %s\n", nothingSelected);
    } else if (!unmet.empty()) {
      std::fprintf(stderr, "velmar: note: the dump has no entry with index %s\n", unmet.c_str());
    }
  }

 private:
  static constexpr const char* nothingSelected =
      "no entry of the dump is selected; check --index and --where";

  bool lacksAll() const {
    return isEmpty_ && (!selection_.indexes.isAll() || selection_.hasConditions());
  }

  Selection selection_;
  std::optional<U64> limit_;
  bool isEmpty_ = false;
};

/// The reserved bits that are set in an entry, as ranges such as "127:96".
std::vector<std::string> setReservedBits(const Layout& layout, const U8* bytes) {
  std::vector<std::string> ranges;
  const auto isSet = [&](U32 bit) {
    return (layout.reservedMask()[bit / 8] & bytes[bit / 8] & 1U << bit % 8) != 0;
  };
  const U32 bits = 8 * layout.entryBytes();
  for (U32 bit = 0; bit < bits; ++bit) {
    if (!isSet(bit)) continue;
    const U32 first = bit;
    while (bit + 1 < bits && isSet(bit + 1)) ++bit;
    ranges.push_back(first == bit ? formatText("{}", bit) : formatText("{}:{}", bit, first));
  }
  return ranges;
}

/// What --check reports of an entry.
struct Finding {
  U32 index;
  bool isBeyondEnd;
  std::vector<std::string> bits;  ///< outside all fields
};

std::vector<Finding> findingsIn(const Layout& layout, const Dump& dump,
                                const std::vector<size_t>& positions) {
  std::vector<Finding> findings;
  for (const size_t i : positions) {
    const bool isBeyondEnd = dump.index(i) >= layout.indexCount();
    const bool hasBits = layout.hasReservedBits(dump.bytes(i));
    if (!hasBits && !isBeyondEnd) continue;
    findings.push_back({dump.index(i), isBeyondEnd, {}});
    if (hasBits) findings.back().bits = setReservedBits(layout, dump.bytes(i));
  }
  return findings;
}

/// For people: entries beyond the end that follow each other share a line.
void writeFindings(Output& output, const Layout& layout, const std::vector<Finding>& findings) {
  for (size_t i = 0, end; i < findings.size(); i = end) {
    const Finding& finding = findings[i];
    end = i + 1;
    while (finding.bits.empty() && end < findings.size() && findings[end].bits.empty() &&
           findings[end].index == findings[end - 1].index + 1) {
      ++end;
    }
    output.print("{} {}", layout.name(), finding.index);
    if (end - i > 1) output.print("-{}", findings[end - 1].index);
    output.write(":");
    if (finding.isBeyondEnd) output.write(" beyond the end of the table");
    if (finding.isBeyondEnd && !finding.bits.empty()) output.write(";");
    if (!finding.bits.empty()) {
      output.print(" bits outside all fields: {}", join(finding.bits, " "));
    }
    output.write("\n");
    output.flushIfLarge();
  }
}

void writeRows(Output& output, const Layout& layout, Format format,
               const std::vector<Finding>& findings) {
  RowWriter rows(output.text(), rowFormatOf(format), {"index", "beyondEnd", "bits"},
                 frameOf("findings", "findings", sourceJson(layout)));
  for (const Finding& finding : findings) {
    rows.write({finding.index,
                Cell(finding.isBeyondEnd).shownAs(finding.isBeyondEnd ? "true" : "false"),
                finding.bits});
    output.flushIfLarge();
  }
  rows.end();
}

int run(DecodeRequest& request) {
  findInSnapshot(request.input, request.table);
  requireChip(request.table, "--chip");
  const Layout layout = request.table.layout();
  Output output(request.output.file, request.output.color);
  Selected selected(request, layout);
  const std::vector<FieldPlace> fields =
      fieldsOf(layout, request.fields, request.output.isForPeople());
  request.input.options.beyondEnd = request.check;
  const DumpInput input(request.input, layout);
  const std::vector<size_t> positions = selected.in(input.dump);
  const Format format = request.output.format;
  std::vector<Finding> findings;
  if (request.check) {
    findings = findingsIn(layout, input.dump, positions);
    if (format == Format::table) writeFindings(output, layout, findings);
    if (format != Format::table) writeRows(output, layout, format, findings);
  } else {
    if (format == Format::json) selected.checkAny();
    writeEntries(output, layout, fields, {format, request.plain, !request.expand, request.compact},
                 input.dump, positions);
  }
  output.finish();
  selected.report();
  return findings.empty() ? exitSuccess : exitFinding;
}

}  // namespace

Verb decodeVerb() {
  const auto request = std::make_shared<DecodeRequest>();
  DecodeRequest& to = *request;
  return {"decode",
          "Decodes a dump of a table: address and fields of each entry.",
          "A dump is raw binary (little-endian, entries one after another), hex text (one entry "
          "per line), the output of xxd, or the JSON or CSV of this command; the manual page, "
          "velmar(1), lists the notations under INPUT. In hex text, groups of two digits are bytes "
          "and groups of eight are 32-bit words; for anything else give --hex-order. A dump may "
          "have up to 64 MiB, with what --stride skips.",
          {{Positionals::table, into(to.table.table)},
           {Positionals::dump, intoOnlyFile(to.input.file)}},
          {{Options::chipOfDump, into(to.table.chip)},
           {Options::variant, intoVariant(to.table.variant)},
           {Options::index, into(to.entries.index)},
           {Options::fields, into(to.fields)},
           {Options::where, into(to.entries.where)},
           {Options::nonzero, into(to.entries.nonzero)},
           {Options::limit, intoLimit(to.limit)},
           {Options::plain, into(to.plain)},
           {Options::compact, into(to.compact)},
           {Options::expand, into(to.expand)},
           {Options::check, into(to.check)},
           Options::input,
           Options::hexOrder,
           Options::byteOrder,
           Options::stride,
           Options::first,
           Options::origin,
           {Options::listFormat, into(to.output.format)},
           {Options::output, into(to.output.file)},
           {Options::color, into(to.output.color)}},
          {"velmar decode VlanEntry --chip BCM56990_B0 samples/vlan-bcm56990.bin --where 'stg=3,4'",
           "velmar encode VlanMpls --chip 56980 --index 7 mplsEnable=1 --whole -f raw | velmar "
           "decode VlanMpls --chip 56980 --nonzero --format jsonl -"},
          [request] { return run(*request); },
          {&to.input.options}};
}

}  // namespace Tool
