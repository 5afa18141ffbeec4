#include "verbs/Requests.h"

#include <algorithm>
#include <limits>

#include "output/Listings.h"

namespace Tool {

void IndexRequest::check(const Layout& layout, const char* option) const {
  const U64 largest = set.isAll() ? 0 : set.largestNamed();
  if (largest < layout.indexCount()) return;
  fail("{} {}: {} has the {} {} to {}; give one of them", option, numberLike(typed, largest),
       layout.shown(), layout.isRegisterArray() ? "elements" : "entries", numberLike(typed, 0),
       numberLike(typed, layout.indexCount() - 1));
}

Selection SelectionRequest::selection(const Layout& layout) const {
  Selection selection = taken(Selection::of(layout, where), "--where");
  selection.indexes = index.set;
  selection.nonzero = nonzero;
  return selection;
}

Taker into(std::string& to) {
  return [&to](const Texts& texts) { to = texts.front(); };
}

Taker into(Texts& to) {
  return [&to](const Texts& texts) { to = texts; };
}

Taker into(bool& to) {
  return [&to](const Texts&) { to = true; };
}

Taker into(Format& to) {
  return [&to](const Texts& texts) { to = formatOf(texts.front()); };
}

Taker into(IndexRequest& to) {
  return [&to](const Texts& texts) {
    to.typed = join(texts, ",");
    to.set = taken(IndexSet::of(to.typed));
  };
}

Taker into(std::optional<Catalogue::Table>& to) {
  return [&to](const Texts& texts) { to = taken(findTable(texts.front())); };
}

Taker into(std::optional<Catalogue::Chip>& to) {
  return [&to](const Texts& texts) {
    if (texts.size() != 1) fail("--chip is given {} times; give it once", texts.size());
    to = taken(findChip(texts.front()));
  };
}

Taker intoVariant(U8& to) {
  return [&to](const Texts& texts) {
    to = static_cast<U8>(numberOf("--variant", texts.front(), std::numeric_limits<U8>::max()));
  };
}

Taker intoOnlyFile(std::string& to, const char* what) {
  return [&to, what](const Texts& texts) {
    if (texts.size() > 1) fail("more than one {}: {} and {}; give one", what, texts[0], texts[1]);
    to = texts.front();
  };
}

Taker intoLimit(std::optional<U64>& to) {
  return [&to](const Texts& texts) {
    to = numberOf("--limit", texts.front(), std::numeric_limits<U32>::max());
    if (to == 0U) fail("--limit 0 shows nothing; give 1 or more");
  };
}

std::vector<FieldPlace> inOrderOfBits(std::vector<FieldPlace> places) {
  std::stable_sort(places.begin(), places.end(),
                   [](const FieldPlace& a, const FieldPlace& b) { return a.offset < b.offset; });
  return places;
}

std::vector<FieldPlace> fieldsOf(const Layout& layout, const Texts& lists, bool isForPeople) {
  std::vector<FieldPlace> places;
  if (startFromAll(lists)) places = isForPeople ? inOrderOfBits(layout.fields()) : layout.fields();
  if (lists.empty()) return places;
  for (const std::string& item : split(join(lists, ","), ',')) {
    const bool leavesOut = !item.empty() && item[0] == '-';
    const size_t before = places.size();
    for (const FieldPlace& place : taken(findMembers(layout, item.substr(leavesOut ? 1 : 0)))) {
      const auto isSame = [&place](const FieldPlace& other) { return other.index == place.index; };
      const auto found = std::find_if(places.begin(), places.end(), isSame);
      if (!leavesOut && found == places.end()) places.push_back(place);
      if (leavesOut && found != places.end()) places.erase(found);
    }
    if (leavesOut && places.size() == before) {
      fail(
          "--fields: {} leaves nothing out, because the names before it do not choose it; remove "
          "it",
          item);
    }
  }
  if (places.empty()) fail("--fields leaves out all fields; name fields to show");
  return places;
}

void print(const OutputRequest& request, const Listing& listing, const JsonFrame& frame) {
  Output output(request.file, request.color);
  write(output, listing, request.format, frame);
  output.finish();
}

void printIfAny(const OutputRequest& request, const Listing& listing, const JsonFrame& frame) {
  if (!listing.isEmpty() || !request.isForPeople()) return print(request, listing, frame);
  Output(request.file, request.color).finish();
}

}  // namespace Tool
