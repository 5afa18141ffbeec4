#pragma once

#include <deque>
#include <string>

#include "core/Fault.h"
#include "core/TraceLine.h"

namespace Velmar {
namespace Core {

/// Takes what a log has.
class TraceSink {
 public:
  virtual ~TraceSink() = default;
  virtual Done takeTransaction(const BusLine& transaction) = 0;
  /// A line, or the lines of a transaction, that no shape takes.
  virtual void takeUnknown(U64 line, std::string_view text) = 0;
};

/// Makes transactions of the lines of a log. The first line that a shape takes decides the shape.
class TraceReader {
 public:
  /// `shapeText`: the text of --line, which outlives the reader; empty: the known shapes.
  TraceReader(TraceSink& sink, std::string_view shapeText);

  /// Takes the next line, without its end. A fault if two shapes take the first line differently.
  Done take(std::string_view line);
  /// Takes it that the last transaction has no further line.
  Done flush();
  /// Takes it that the log has ended.
  Done finish();

  /// The shape of the log; null: no line has decided it.
  const LogShape* shape() const { return shape_; }

 private:
  Done decide(std::string_view line);
  Done keep(std::string_view line);
  bool isLikeOthers(const BusLine& transaction);
  void announce();
  void forget();
  bool isConfirmation();

  struct Announced {
    U64 line;
    U32 address;
    std::string text;
  };

  TraceSink& sink_;
  const LogShape* shape_ = nullptr;
  LogStyle style_;
  U64 line_ = 0;
  BusLine pending_;  ///< the last one, which may go on
  std::string pendingText_;
  Padding addressesBefore_, wordsBefore_;  ///< before the pending transaction
  bool isPending_ = false;
  std::deque<Announced> announced_;  ///< reads whose value may still come
  std::deque<BusLine> written_;      ///< writes that may still be confirmed
};

}  // namespace Core
}  // namespace Velmar
