#include "core/TraceReader.h"

#include <algorithm>

namespace Velmar {
namespace Core {
namespace {

/// The two lines of one transaction have at most as many lines between them.
constexpr U64 mostBetween = 16;

}  // namespace

TraceReader::TraceReader(TraceSink& sink, std::string_view shapeText) : sink_(sink) {
  style_.ownShape = shapeText;
  if (!shapeText.empty()) shape_ = &ownShape;
}

Done TraceReader::take(std::string_view line) {
  ++line_;
  while (!line.empty() && (line.back() == '\r' || line.back() == '\n')) line.remove_suffix(1);
  if (isPending_ && shape_->goesOn && takeMoreWords(line, style_, pending_)) return {};
  if (const Done done = flush(); !done) return done;
  if (trim(line).empty()) return {};
  if (line.size() > longestLine) {
    sink_.takeUnknown(line_, line);
    return {};
  }
  if (shape_ == nullptr) return decide(line);
  const Padding addresses = style_.addresses;
  const Padding words = style_.words;
  pending_.clear();
  const Taken taken = shape_->take(line, style_, pending_);
  if (taken == Taken::transaction) {
    addressesBefore_ = addresses;
    wordsBefore_ = words;
    return keep(line);
  }
  style_.addresses = addresses;
  style_.words = words;
  if (taken == Taken::no) sink_.takeUnknown(line_, line);
  return {};
}

Done TraceReader::decide(std::string_view line) {
  const LogStyle fresh = style_;
  Taken taken = Taken::no;
  for (const LogShape& candidate : logShapes) {
    LogStyle style = fresh;
    BusLine transaction;
    const Taken now = candidate.take(line, style, transaction);
    if (now == Taken::no) continue;
    if (taken != Taken::no && !(taken == now && transaction.isSameAs(pending_))) {
      return failed(Fault(Code::ambiguous,
                          "the line is of two shapes, {} and {}; give the shape with --line, such "
                          "as --line '{{op}} {{address}} {{words}}'",
                          shape_->name, candidate.name)
                        .onLine(line_));
    }
    if (taken != Taken::no) continue;
    taken = now;
    shape_ = &candidate;
    style_ = style;
    pending_ = std::move(transaction);
  }
  if (taken == Taken::no) sink_.takeUnknown(line_, line);
  return taken == Taken::transaction ? keep(line) : Done();
}

Done TraceReader::keep(std::string_view line) {
  pending_.line = line_;
  pendingText_ = line;
  isPending_ = true;
  return shape_->goesOn ? Done() : flush();
}

Done TraceReader::flush() {
  if (!isPending_) return {};
  isPending_ = false;
  forget();
  const bool isAnnounced = pending_.part == BusLine::Part::announced && pending_.words.empty();
  if (!isLikeOthers(pending_) || (pending_.words.empty() && !isAnnounced)) {
    style_.addresses = addressesBefore_;
    style_.words = wordsBefore_;
    sink_.takeUnknown(pending_.line, pendingText_);
    return {};
  }
  if (isAnnounced) {
    announce();
    return {};
  }
  if (isConfirmation()) return {};
  return sink_.takeTransaction(pending_);
}

bool TraceReader::isLikeOthers(const BusLine& transaction) {
  if (transaction.length && *transaction.length != transaction.words.size()) return false;
  const size_t kind = transaction.words.empty() ? 2 : transaction.isRead ? 1 : 0;
  std::string& marks = style_.marks[kind];
  if (marks.empty()) marks = transaction.marks;
  return marks == transaction.marks;
}

void TraceReader::announce() {
  announced_.push_back({pending_.line, pending_.address, pendingText_});
}

/// Forgets lines that stand too far back.
void TraceReader::forget() {
  const auto isFar = [this](const auto& one) { return one.line + mostBetween < line_; };
  for (; !announced_.empty() && isFar(announced_.front()); announced_.pop_front()) {
    sink_.takeUnknown(announced_.front().line, announced_.front().text);
  }
  while (!written_.empty() && isFar(written_.front())) written_.pop_front();
}

/// Whether another line has said what the pending one says. Otherwise later ones may confirm it.
bool TraceReader::isConfirmation() {
  if (pending_.isRead) {
    const auto read = std::find_if(announced_.begin(), announced_.end(), [this](const auto& one) {
      return one.address == pending_.address;
    });
    if (read != announced_.end()) announced_.erase(read);
    return false;
  }
  if (pending_.part == BusLine::Part::confirmed) {
    const auto write = std::find_if(written_.begin(), written_.end(), [this](const auto& one) {
      return one.address == pending_.address && one.words == pending_.words;
    });
    if (write == written_.end()) return false;
    written_.erase(write);
    return true;
  }
  if (shape_->isConfirmed) written_.push_back(pending_);
  return false;
}

Done TraceReader::finish() {
  if (const Done done = flush(); !done) return done;
  for (const Announced& read : announced_) sink_.takeUnknown(read.line, read.text);
  announced_.clear();
  return {};
}

}  // namespace Core
}  // namespace Velmar
