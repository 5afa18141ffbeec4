#pragma once

#include <map>

#include "core/Trace.h"

namespace Velmar {
namespace Core {

class TextBuffer;

/// Writes events as lines for people at the end of a text.
class TraceLines {
 public:
  TraceLines(const Catalogue::Chip& chip, U8 variant) : chip_(chip), variant_(variant) {}

  void add(std::string& to, const TraceEvent& event);

 private:
  void addOutcome(TextBuffer& to, const TraceEvent& event);
  void addChanges(TextBuffer& to, const TraceEvent& event);
  void addName(TextBuffer& to, const TraceEvent& event, size_t i);

  Catalogue::Chip chip_;
  U8 variant_;
  // Kept, so that an event needs no memory.
  std::vector<const FieldPlace*> fields_;
  std::vector<char> isDone_;
};

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
