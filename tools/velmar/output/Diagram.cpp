#include "output/Diagram.h"

#include <algorithm>

namespace Tool {
namespace {

constexpr U32 rowBits = 32;
constexpr U32 bitColumns = 2;
constexpr size_t marginColumns = 9;

/// The part of a field that lies in one row, or of neighbours of a family.
struct Piece {
  FieldGroup group;
  U32 low;   ///< lowest bit, counted from the row's lowest
  U32 high;  ///< highest bit
};

/// The fields, each in the first lane where it is free; those that share bits come last.
std::vector<std::vector<const FieldPlace*>> lanesOf(const Layout& layout) {
  std::vector<const FieldPlace*> places;
  for (const FieldPlace& place : layout.fields()) places.push_back(&place);
  std::stable_sort(places.begin(), places.end(), [](const FieldPlace* a, const FieldPlace* b) {
    return a->field.overlaps < b->field.overlaps;
  });
  std::vector<std::vector<const FieldPlace*>> lanes(1);
  for (const FieldPlace* place : places) {
    const auto collides = [place](const FieldPlace* other) {
      return other->sharesBitsWith(*place);
    };
    const auto isFree = [&collides](const std::vector<const FieldPlace*>& lane) {
      return std::none_of(lane.begin(), lane.end(), collides);
    };
    const auto lane = std::find_if(lanes.begin(), lanes.end(), isFree);
    if (lane == lanes.end()) {
      lanes.push_back({place});
    } else {
      lane->push_back(place);
    }
  }
  return lanes;
}

bool areNeighbours(const FieldPlace& high, const FieldPlace& low) {
  return low.offset + low.width == high.offset && low.width == high.width && high.isOfFamilyOf(low);
}

std::vector<Piece> piecesIn(const std::vector<const FieldPlace*>& lane, U32 row, bool asFamilies) {
  std::vector<Piece> pieces;
  const U32 first = row * rowBits;
  const U32 last = first + rowBits - 1;
  for (const FieldPlace* place : lane) {
    if (place->offset > last || place->lastBit() < first) continue;
    pieces.push_back({{{*place}},
                      std::max(place->offset, first) - first,
                      std::min(place->lastBit(), last) - first});
  }
  std::sort(pieces.begin(), pieces.end(),
            [](const Piece& a, const Piece& b) { return a.high > b.high; });
  if (!asFamilies) return pieces;
  std::vector<Piece> joined;
  for (const Piece& piece : pieces) {
    const bool goesOn =
        !joined.empty() && areNeighbours(joined.back().group.back(), piece.group.front());
    if (!goesOn) {
      joined.push_back(piece);
      continue;
    }
    joined.back().group.members.push_back(piece.group.front());
    joined.back().low = piece.low;
  }
  return joined;
}

/// Draws one row, lane by lane, and collects the meanings of the letters.
class Row {
 public:
  Row(Output& output, U32 row) : output_(output), row_(row) {}

  void draw(const std::vector<Piece>& pieces, bool isFirstLane) {
    std::string line(rowBits * bitColumns + 1, ' ');
    if (isFirstLane) {
      for (U32 bit = 0; bit < rowBits; ++bit) line[columnOf(bit) + 1] = '.';
      line.front() = line.back() = '|';
    }
    for (const Piece& piece : pieces) put(line, piece);
    const std::string margin =
        isFirstLane ? formatText("{:>4} {:>3}", (row_ + 1) * rowBits - 1, "") : std::string();
    line.erase(line.find_last_not_of(' ') + 1);
    output_.print("{:<{}}{}", margin, marginColumns, line);
    if (isFirstLane) output_.print(" {}", row_ * rowBits);
    output_.write("\n");
  }

  void explain() {
    for (const std::string& line : legend_) {
      output_.print("{:<{}}{}\n", "", marginColumns, line);
    }
  }

 private:
  static size_t columnOf(U32 bit) { return (rowBits - 1 - bit) * bitColumns; }

  void put(std::string& line, const Piece& piece) {
    const size_t left = columnOf(piece.high);
    const size_t right = columnOf(piece.low) + bitColumns;
    const size_t room = right - left - 1;
    std::string label = piece.group.name();
    if (label.size() > room) label = letterFor(piece.group);
    line[left] = line[right] = '|';
    std::fill(line.begin() + static_cast<long>(left) + 1, line.begin() + static_cast<long>(right),
              ' ');
    line.replace(left + 1 + (room - label.size()) / 2, label.size(), label);
  }

  /// A letter for a name that does not fit; explain() says what it means.
  std::string letterFor(const FieldGroup& group) {
    static const std::string letters =
        "abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789";
    const char letter = letters[legend_.size() % letters.size()];
    legend_.push_back(formatText("{} = {} [{}]", letter, group.name(), group.bits()));
    return std::string(1, letter);
  }

  Output& output_;
  U32 row_;
  std::vector<std::string> legend_;
};

}  // namespace

void drawDiagram(Output& output, const Layout& layout, bool asFamilies) {
  const auto lanes = lanesOf(layout);
  for (U32 word = 0; word < layout.geometry().words; ++word) {
    Row row(output, word);
    for (const auto& lane : lanes) {
      const bool isFirstLane = &lane == &lanes.front();
      const std::vector<Piece> pieces = piecesIn(lane, word, asFamilies);
      if (isFirstLane || !pieces.empty()) row.draw(pieces, isFirstLane);
    }
    row.explain();
  }
}

}  // namespace Tool
