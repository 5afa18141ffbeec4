#include "model/Failure.h"
#include "model/Families.h"
#include "output/Listing.h"
#include "verbs/Target.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

using Geometry = Catalogue::Geometry;

class ChipComparison {
 public:
  ChipComparison(const Catalogue::Chip& before, const Catalogue::Chip& after, U8 variant,
                 bool isForPeople, bool asFamilies)
      : before_(before),
        after_(after),
        variant_(variant),
        isForPeople_(isForPeople),
        asFamilies_(asFamilies),
        // For people old and new stand beside each other also where the line is short.
        listing_(isForPeople ? std::vector<std::string>{"table", "part", "old", "new", "change"}
                             : std::vector<std::string>{"table", "part", "change", "old", "new"}) {}

  void compare(const Catalogue::Table& table) {
    const bool wasThere = table.isOn(before_.number, variant_);
    const bool isThere = table.isOn(after_.number, variant_);
    if (!wasThere && !isThere) return;
    if (!wasThere || !isThere) {
      add(table, "(table)", isThere ? "added" : "gone",
          wasThere ? sizeText(table, before_) : nullptr,
          isThere ? sizeText(table, after_) : nullptr);
      return;
    }
    compareGeometry(table);
    compareFields(table);
  }

  const Listing& listing() const { return listing_; }

 private:
  void add(const Catalogue::Table& table, const std::string& part, const char* change,
           const Cell& before, const Cell& after) {
    if (isForPeople_) return listing_.add({table.name(), part, before, after, change});
    listing_.add({table.name(), part, change, before, after});
  }

  static Cell sizeText(const Catalogue::Table& table, const Catalogue::Chip& chip) {
    const Layout layout(table, chip, 0);
    return formatText("{} x {} bytes at {}", layout.indexCount(), layout.entryBytes(),
                      addressText(layout.geometry().base));
  }

  void compareGeometry(const Catalogue::Table& table) {
    const Geometry before = table.geometry(before_.number);
    const Geometry after = table.geometry(after_.number);
    const auto compareCell = [&](const char* part, const Cell& old, const Cell& now) {
      if (old.json() != now.json()) add(table, part, "changed", old, now);
    };
    compareCell("(entry bytes)", U32{4} * before.words, U32{4} * after.words);
    compareCell("(entries)", before.entries, after.entries);
    compareCell("(elements)", before.arrayElements, after.arrayElements);
    compareCell("(address)", addressText(before.base), addressText(after.base));
    compareCell("(element stride)", before.addrStride, after.addrStride);
    compareCell("(identifiers)", before.identifiers, after.identifiers);
    compareCell("(identifier term)", before.identifierTerm, after.identifierTerm);
    compareCell("(access)", before.accessType, after.accessType);
    compareCell("(block)", before.block, after.block);
    compareCell("(variants)", variantsText(before), variantsText(after));
  }

  static const char* variantsText(const Geometry& geometry) {
    return geometry.variants == Catalogue::Variants::any ? "any" : "0 only";
  }

  /// A field that differs, or members of a family that differ alike.
  struct Difference {
    FieldGroup before, after;
    const char* change;
  };

  void compareFields(const Catalogue::Table& table) {
    std::vector<Difference> differences;
    for (U32 i = 0; i < table.fieldCount(); ++i) {
      const FieldPlace before = placeOn(table, i, before_);
      const FieldPlace after = placeOn(table, i, after_);
      if (before.offset == after.offset && before.width == after.width) continue;
      const char* const change = changeOf(before, after);
      if (asFamilies_ && !differences.empty() &&
          goesOn(differences.back(), before, after, change)) {
        differences.back().before.members.push_back(before);
        differences.back().after.members.push_back(after);
      } else {
        differences.push_back({{{before}}, {{after}}, change});
      }
    }
    for (const Difference& difference : differences) {
      add(table, difference.before.name(), difference.change, bitsCell(difference.before),
          bitsCell(difference.after));
    }
  }

  /// Whether the next field of the table is of the same family and differs in the same way.
  static bool goesOn(const Difference& difference, const FieldPlace& before,
                     const FieldPlace& after, const char* change) {
    const FieldPlace& lastBefore = difference.before.back();
    const FieldPlace& lastAfter = difference.after.back();
    const bool isOnBoth = before.width != 0 && after.width != 0;
    return areOfOneFamily(lastBefore.field, before.field) &&
           std::string_view(difference.change) == change && lastBefore.width == before.width &&
           lastAfter.width == after.width &&
           (!isOnBoth || lastAfter.offset - lastBefore.offset == after.offset - before.offset);
  }

  static FieldPlace placeOn(const Catalogue::Table& table, U32 index, const Catalogue::Chip& chip) {
    const Catalogue::BitRange range = table.range(index, chip.number);
    return {table.field(index), range.offset, range.width};
  }

  static const char* changeOf(const FieldPlace& before, const FieldPlace& after) {
    if (before.width == 0) return "added";
    if (after.width == 0) return "gone";
    if (before.width == after.width) return "moved";
    return before.offset == after.offset ? "resized" : "moved and resized";
  }

  static Cell bitsCell(const FieldGroup& group) {
    const FieldPlace& first = group.front();
    if (first.width == 0) return nullptr;
    return Cell::ofJson(formatText(R"({{"offset":{},"width":{}}})", first.offset, first.width))
        .shownAs(group.bits());
  }

  Catalogue::Chip before_;
  Catalogue::Chip after_;
  U8 variant_;
  bool isForPeople_;
  bool asFamilies_;
  Listing listing_;
};

int run(const Arguments& arguments) {
  if (arguments.chips.size() != 2) {
    fail("--chip is given {} time{}; give it twice, the old chip first", arguments.chips.size(),
         arguments.chips.size() == 1 ? "" : "s");
  }
  const Catalogue::Chip before = findChip(arguments.chips[0]);
  const Catalogue::Chip after = findChip(arguments.chips[1]);
  const Format format = formatOf(arguments.format);
  const bool isForPeople = format == Format::table;
  ChipComparison comparison(before, after, variantOf(arguments), isForPeople,
                            isForPeople && !arguments.expand);
  if (arguments.table.empty()) {
    for (const Catalogue::Table& table : allTables()) comparison.compare(table);
  } else {
    const Catalogue::Table table = findTable(arguments.table);
    // If neither chip has the table, an empty result would mean that nothing changed.
    if (!table.isOn(after.number, variantOf(arguments))) {
      Layout(table, before, variantOf(arguments));
    }
    comparison.compare(table);
  }
  const Listing& listing = comparison.listing();
  if (!arguments.quiet) {
    Output output(arguments.output, arguments.color);
    if (!listing.isEmpty() || format != Format::table) {
      const std::string chips =
          formatText(R"("oldChip": "{}", "newChip": "{}")", before.name, after.name);
      listing.print(output, format, frameOf("comparison", "differences", chips));
    }
    output.finish();
  }
  return listing.isEmpty() ? exitSuccess : exitFinding;
}

}  // namespace

Verb compareVerb() {
  return {"compare",
          "Prints what changes from one chip to another: fields, geometry, addresses.",
          "Without TABLE all tables are compared. What is the same is not printed. Exit code 1 "
          "says that there are differences.",
          {Positionals::tableIfAny},
          {Options::chips, Options::variant, Options::expand, Options::quiet, Options::listFormat,
           Options::output, Options::color},
          {"velmar compare VlanEntry --chip BCM56980_A0 --chip BCM56990_B0",
           "velmar compare --chip BCM56275_A0 --chip BCM56175_A0 --format csv"},
          run};
}

}  // namespace Tool
