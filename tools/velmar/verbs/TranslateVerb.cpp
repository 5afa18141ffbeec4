#include <algorithm>

#include "model/EntryBuilder.h"
#include "model/Failure.h"
#include "model/Text.h"
#include "verbs/Target.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

/// What the result does not hold, and in which entries.
struct Loss {
  std::string field;
  std::string reason;
  std::vector<U32> indexes;
};

/// Makes entries for another chip from those of a dump, field by field.
class Translator {
 public:
  Translator(const Layout& from, const Layout& to) : from_(from), to_(to), builder_(to) {
    for (const FieldPlace& place : from.fields()) {
      const auto same = std::find_if(
          to.fields().begin(), to.fields().end(),
          [&place](const FieldPlace& other) { return other.field.id == place.field.id; });
      const bool isThere = same != to.fields().end();
      pairs_.push_back({place, isThere ? std::optional<FieldPlace>(*same) : std::nullopt});
    }
  }

  /// The bytes of the entry on the other chip.
  const std::vector<U8>& translate(const Entry& entry) {
    builder_.startFromZero();
    const U32 index = static_cast<U32>(entry.index);
    const U32 size = from_.entryBytes();
    for (const auto& [place, other] : pairs_) {
      const Value value = Value::read(place, entry.bytes, size);
      if (value.isZero()) continue;
      if (!other) {
        lose(place.name(), formatText("{} has no such field on {}", to_.name(), to_.chip().name),
             index);
        continue;
      }
      const std::optional<Value> fitting = value.resized(other->width);
      if (!fitting) {
        lose(place.name(),
             formatText("too large for {} bit{} on {}", other->width, other->width == 1 ? "" : "s",
                        to_.chip().name),
             index);
        continue;
      }
      try {
        builder_.set({*other, *fitting});
      } catch (const Failure&) {
        lose(place.name(), formatText("it shares bits with others on {}", to_.chip().name), index);
      }
    }
    if (from_.hasReservedBits(entry.bytes)) {
      lose("outsideFields", "bits outside all fields have no name", index);
    }
    return builder_.bytes();
  }

  void lose(const std::string& field, const std::string& reason, U32 index) {
    const auto known = std::find_if(losses_.begin(), losses_.end(), [&](const Loss& loss) {
      return loss.field == field && loss.reason == reason;
    });
    if (known == losses_.end()) {
      losses_.push_back({field, reason, {index}});
    } else {
      known->indexes.push_back(index);
    }
  }

  const std::vector<Loss>& losses() const { return losses_; }

 private:
  const Layout& from_;
  const Layout& to_;
  EntryBuilder builder_;
  std::vector<std::pair<FieldPlace, std::optional<FieldPlace>>> pairs_;
  std::vector<Loss> losses_;
};

Layout layoutOn(const Arguments& arguments, const std::string& chip) {
  return Layout(findTable(arguments.table), findChip(chip), variantOf(arguments));
}

/// Fields of a family that get lost in the same entries become one loss.
std::vector<Loss> joined(const std::vector<Loss>& losses) {
  std::vector<Loss> result;
  std::vector<std::vector<U32>> numbers;
  for (const Loss& loss : losses) {
    const std::optional<NumberedName> name = numberedName(loss.field);
    const bool goesOn = name && !result.empty() && numberedName(result.back().field) &&
                        numberedName(result.back().field)->prefix == name->prefix &&
                        result.back().reason == loss.reason &&
                        result.back().indexes == loss.indexes;
    if (!goesOn) {
      result.push_back(loss);
      numbers.emplace_back();
    }
    if (name) numbers.back().push_back(name->number);
  }
  for (size_t i = 0; i < result.size(); ++i) {
    if (numbers[i].size() < 2) continue;
    result[i].field = std::string(numberedName(result[i].field)->prefix) + rangesText(numbers[i]);
  }
  return result;
}

void print(const std::vector<Loss>& losses) {
  constexpr size_t longest = 60;
  for (const Loss& loss : joined(losses)) {
    std::string indexes = rangesText(loss.indexes);
    if (indexes.size() > longest) indexes = indexes.substr(0, indexes.rfind(',', longest)) + ",...";
    std::fprintf(stderr, "velmar: lost: %s: %s; in %zu entr%s: %s\n", loss.field.c_str(),
                 loss.reason.c_str(), loss.indexes.size(), loss.indexes.size() == 1 ? "y" : "ies",
                 indexes.c_str());
  }
}

int run(const Arguments& arguments) {
  const Layout from = layoutOn(arguments, arguments.from);
  const Layout to = layoutOn(arguments, arguments.to);
  if (arguments.files.size() > 1) fail("{} dumps given; give one", arguments.files.size());
  const std::string file = arguments.files.empty() ? "" : arguments.files.front();
  const auto reader =
      openEntries(std::make_unique<ByteStream>(file, nullptr), from, inputOptionsOf(arguments));
  Output output(arguments.output, "never");
  const Format format = arguments.format.empty() ? Format::hex : formatOf(arguments.format);
  const bool isJson = format == Format::json || format == Format::jsonl;
  // Collected before the output sees any of it: it may turn out that something gets lost.
  std::vector<std::pair<U64, std::vector<U8>>> entries;
  Translator translator(from, to);
  for (Entry entry; reader->next(entry);) {
    std::vector<U8> bytes = translator.translate(entry);
    const bool isZero = std::count(bytes.begin(), bytes.end(), 0) == to.entryBytes();
    if (entry.index < to.indexCount()) {
      entries.emplace_back(entry.index, std::move(bytes));
    } else if (!isZero) {
      translator.lose("(entry)", formatText("{} has {} entries", to.chip().name, to.indexCount()),
                      static_cast<U32>(entry.index));
    }
  }
  print(translator.losses());
  const bool isLossless = translator.losses().empty();
  if (!isLossless && !arguments.lossy) {
    std::fprintf(stderr, "velmar: nothing is written; give --lossy to write the rest\n");
    return exitFinding;
  }
  const auto writer = isJson ? makeEntryWriter(output, to, to.fields(), {format, false, false})
                             : makeBytesWriter(output, to, format, true);
  for (const auto& [index, bytes] : entries) writer->write({index, bytes.data()});
  writer->end();
  output.finish();
  return isLossless ? exitSuccess : exitFinding;
}

}  // namespace

Verb translateVerb() {
  return {"translate",
          "Moves the entries of a dump to another chip: each field to its place there.",
          "What gets lost (a field that the other chip does not have or that is too narrow there, "
          "an entry too many) is listed for each field; then the exit code is 1, and nothing is "
          "written unless --lossy is given. Fields that only the other chip has are zero.",
          {Positionals::table, Positionals::dump},
          {Options::from, Options::to, Options::variant, Options::lossy, Options::input,
           Options::hexOrder, Options::byteOrder, Options::stride, Options::first,
           Options::format("hex,words,raw,json,jsonl"), Options::output},
          {"velmar translate VlanProfile --from BCM56870_A0 --to BCM56980_A0 "
           "samples/vlan-profile-bcm56870.bin",
           "velmar encode VlanMpls --chip 56980 --index 7 mplsEnable=1 | velmar translate VlanMpls "
           "--from 56980 --to 56990_B0 -f json"},
          run};
}

}  // namespace Tool
