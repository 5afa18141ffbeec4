#include "core/Trace.h"

#include <algorithm>
#include <cstring>

namespace Velmar {
namespace Core {
namespace {

/// As a dump has them.
void setBytes(std::vector<U8>& bytes, const std::vector<U32>& words) {
  bytes.resize(4 * words.size());
  U8* to = bytes.data();
  for (const U32 word : words) {
    for (U32 shift = 0; shift < 32; shift += 8) *to++ = static_cast<U8>(word >> shift);
  }
}

U64 wordsOf(const FieldPlace& place) {
  U64 words = 0;
  for (U32 word = place.offset / 32; word <= place.lastBit() / 32; ++word) words |= U64{1} << word;
  return words;
}

bool hasBits(const FieldPlace& place, const U8* entry, U32 size) {
  if (place.isScalar()) return readScalar(place, entry, size) != 0;
  return !Value::read(place, entry, size).isZero();
}

}  // namespace

const char* nameOf(TraceFinding finding) {
  constexpr const char* names[] = {"no-table",    "too-short",     "too-long",
                                   "unchanged",   "reserved-bits", "read-differs",
                                   "access-code", "shared-address"};
  return names[static_cast<size_t>(finding)];
}

std::vector<std::string> TraceFindings::names() const {
  std::vector<std::string> names;
  for (U8 i = 0; i <= static_cast<U8>(TraceFinding::sharedAddress); ++i) {
    if (has(TraceFinding{i})) names.emplace_back(nameOf(TraceFinding{i}));
  }
  return names;
}

Trace::Trace(const Catalogue::Chip& chip, U8 variant, Options options, Show show)
    : chip_(chip),
      variant_(variant),
      options_(std::move(options)),
      show_(std::move(show)),
      addresses_(chip, variant),
      tables_(Catalogue::tableCount()) {}

TracedTable& Trace::tracedOf(U32 table) {
  if (!tables_[table]) {
    // A table of the map is on the chip.
    TracedTable traced{*Layout::of(Catalogue::table(table), chip_, variant_), {}, false};
    for (const FieldPlace& place : traced.layout.fields()) {
      traced.wordsOf.push_back(wordsOf(place));
    }
    tables_[table] = std::make_unique<TracedTable>(std::move(traced));
  }
  return *tables_[table];
}

Trace::Known& Trace::knownOf(U32 address, U32 size) {
  const auto [found, isNew] = known_.try_emplace(address, Known{bytes_.size(), Origin::unknown});
  if (isNew) bytes_.resize(bytes_.size() + size);
  return found->second;
}

void Trace::know(U32 table, const Dump& dump) {
  tracedOf(table).isTouched = true;
  const Layout& layout = layoutOf(table);
  for (size_t i = 0; i < dump.count(); ++i) {
    const U32 address = layout.addressOf(dump.index(i)).address;
    Known& known = knownOf(address, layout.entryBytes());
    known.origin = Origin::before;
    std::memcpy(&bytes_[known.at], dump.bytes(i), layout.entryBytes());
  }
}

void Trace::locate(U32 address) {
  const std::vector<U32>& named = options_.tables;
  const auto isNamed = [&named](U32 table) {
    return std::find(named.begin(), named.end(), table) != named.end();
  };
  event_.layout = nullptr;
  event_.others.clear();
  bool isForNamed = false;
  bool isFound = false;
  addresses_.find(address, [&](U32 table, U32 index) {
    const bool isBetter = isNamed(table) && !isForNamed;
    if (isFound && !isBetter) {
      if (isNamed(table) == isForNamed) event_.others.push_back(table);
      return;
    }
    event_.others.clear();
    event_.table = table;
    event_.index = index;
    isForNamed = isNamed(table);
    isFound = true;
  });
  if (isFound) event_.layout = &tracedOf(event_.table).layout;
}

void Trace::take(const BusLine& transaction) {
  if (!options_.wordsApart) return interpret(transaction);
  if (!joined_.words.empty()) {
    const bool goesOn =
        joined_.isRead == transaction.isRead && joined_.address == transaction.address;
    if (!goesOn) finish();
    if (goesOn) {
      joined_.words.insert(joined_.words.end(), transaction.words.begin(), transaction.words.end());
    }
  }
  if (joined_.words.empty()) joined_ = transaction;
  locate(joined_.address);
  const size_t needed = event_.layout == nullptr ? 0 : event_.layout->geometry().words;
  if (joined_.words.size() >= needed) finish();
}

void Trace::finish() {
  if (joined_.words.empty()) return;
  interpret(joined_);
  joined_.words.clear();
}

void Trace::interpret(const BusLine& transaction) {
  event_.bus = &transaction;
  event_.findings = {};
  event_.origin = Origin::unknown;
  event_.before = event_.after = event_.changes = nullptr;
  event_.fields.clear();
  locate(transaction.address);
  if (event_.layout == nullptr) {
    event_.findings.add(TraceFinding::noTable);
    return show_(event_);
  }
  if (!event_.others.empty()) event_.findings.add(TraceFinding::sharedAddress);
  checkAccess(transaction);
  const size_t needed = event_.layout->geometry().words;
  if (transaction.words.size() == needed) {
    follow(transaction, tracedOf(event_.table));
  } else {
    event_.findings.add(transaction.words.size() < needed ? TraceFinding::tooShort
                                                          : TraceFinding::tooLong);
    // The bytes keep their place, in case that the entry becomes known again.
    const auto known = known_.find(transaction.address);
    if (known != known_.end()) known->second.origin = Origin::unknown;
  }
  show_(event_);
}

void Trace::checkAccess(const BusLine& transaction) {
  const Catalogue::Geometry& geometry = event_.layout->geometry();
  const bool isWrong = (transaction.accessType && *transaction.accessType != geometry.accessType) ||
                       (transaction.block && *transaction.block != geometry.block);
  if (isWrong) event_.findings.add(TraceFinding::accessCode);
}

void Trace::follow(const BusLine& transaction, TracedTable& traced) {
  traced.isTouched = true;
  const U32 size = traced.layout.entryBytes();
  Known& known = knownOf(transaction.address, size);
  U8* const bytes = &bytes_[known.at];
  event_.origin = known.origin;
  if (known.origin == Origin::unknown) {
    before_.assign(size, 0);
  } else {
    before_.assign(bytes, bytes + size);
  }
  setBytes(after_, transaction.words);
  // What is read as it was written stays as written.
  const bool isNews = known.origin == Origin::unknown || after_ != before_;
  if (!transaction.isRead) known.origin = Origin::written;
  if (transaction.isRead && isNews) known.origin = Origin::read;
  std::memcpy(bytes, after_.data(), size);
  compare(traced);
}

void Trace::compare(const TracedTable& traced) {
  const Layout& layout = traced.layout;
  const U32 size = layout.entryBytes();
  changes_.resize(size);
  U64 changedWords = 0;
  for (U32 i = 0; i < size; i += 4) {
    U32 before, after;
    std::memcpy(&before, &before_[i], 4);
    std::memcpy(&after, &after_[i], 4);
    after ^= before;
    std::memcpy(&changes_[i], &after, 4);
    if (after != 0) changedWords |= U64{1} << i / 4;
  }
  event_.before = before_.data();
  event_.after = after_.data();
  event_.changes = changes_.data();
  if (layout.hasReservedBits(event_.after)) event_.findings.add(TraceFinding::reservedBits);
  const bool isKnown = event_.origin != Origin::unknown;
  const bool isRead = event_.bus->isRead;
  if (isKnown && changedWords == 0 && !isRead) event_.findings.add(TraceFinding::unchanged);
  if (isKnown && changedWords != 0 && isRead) event_.findings.add(TraceFinding::readDiffers);
  if (changedWords == 0) return;
  for (size_t i = 0; i < traced.wordsOf.size(); ++i) {
    const FieldPlace& place = layout.fields()[i];
    if ((traced.wordsOf[i] & changedWords) != 0 && hasBits(place, event_.changes, size)) {
      event_.fields.push_back(&place);
    }
  }
  if (layout.hasReservedBits(event_.changes)) event_.fields.push_back(nullptr);
}

std::vector<std::pair<const Layout*, Dump>> Trace::state() {
  std::vector<std::pair<const Layout*, Dump>> tables;
  for (U32 table = 0; table < Catalogue::tableCount(); ++table) {
    if (!tables_[table] || !tables_[table]->isTouched) continue;
    const Layout& layout = tables_[table]->layout;
    Dump dump(layout.entryBytes());
    for (U32 index = 0; index < layout.indexCount(); ++index) {
      const auto known = known_.find(layout.addressOf(index).address);
      if (known == known_.end() || known->second.origin == Origin::unknown) continue;
      dump.add(index, &bytes_[known->second.at]);
    }
    if (dump.count() != 0) tables.emplace_back(&layout, std::move(dump));
  }
  return tables;
}

}  // namespace Core
}  // namespace Velmar
