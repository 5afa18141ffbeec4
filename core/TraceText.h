#pragma once

#include <map>

#include "core/Trace.h"

namespace Velmar {
namespace Core {

/// Appends an event as a line for people.
void addTraceLine(std::string& to, const Catalogue::Chip& chip, U8 variant,
                  const TraceEvent& event);

/// Writes events as JSON, JSON lines or CSV at the end of a text.
class TraceDocument {
 public:
  TraceDocument(std::string& to, RowFormat format, const Catalogue::Chip& chip, U8 variant);

  void write(const TraceEvent& event);
  void end() { rows_.end(); }

 private:
  void writeObject(const TraceEvent& event);
  void writeCsv(const TraceEvent& event);

  std::string& to_;
  RowFormat format_;
  Catalogue::Chip chip_;
  U8 variant_;
  RowWriter rows_;
};

/// How often each table was written, and how often each of its fields changed by that.
class TraceCounts {
 public:
  void add(const TraceEvent& event);
  Listing listing() const;

 private:
  struct Count {
    std::string table;  ///< empty: none has the address
    std::string field;  ///< empty: all writes to the table
    U64 writes = 0;
  };

  /// By table and field, each in the order of the catalogue.
  std::map<std::pair<U32, U32>, Count> counts_;
};

}  // namespace Core
}  // namespace Velmar
