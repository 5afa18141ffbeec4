#pragma once

#include <vector>

#include "input/HexDigits.h"
#include "input/TextDump.h"

// What the dumps with an offset on each line share.

namespace Tool {

class OffsetReader : public TextReader {
 public:
  OffsetReader(std::unique_ptr<ByteStream> stream, const Layout& layout,
               const InputOptions& options);

  bool isAscending() const override { return true; }

 protected:
  /// A line: its offset as it stands there, and its bytes; none where only the end is told.
  struct Row {
    std::string_view offset;
    std::vector<HexGroup> groups;
    std::vector<U8> bytes;
  };

  /// Appends the bytes of the groups, as --hex-order says. Two digits are a byte; where more may be
  /// words, as `mayBeWords` says, the order must be given.
  void appendGroups(Row& row, bool mayBeWords) const;
  /// Fails unless the text column repeats the bytes.
  void checkText(std::string_view text, const Row& row) const;

 private:
  /// Takes a line apart; false where it is not of the notation.
  virtual bool parse(std::string_view line, Row& row) const = 0;
  /// The bases that an offset may have.
  virtual std::vector<U32> bases(const Row& first) const = 0;

  bool read(Entry& entry) override;
  bool parse(std::string_view line) override;
  [[noreturn]] void refuse(std::string_view line) const override;
  bool hasData() const override { return started_; }

  bool atEnd() const;
  std::vector<Row> rowsOf(std::string_view head, bool isWhole) const;
  U32 findBase() const;
  bool fits(const std::vector<Row>& rows, bool isWhole, U32 base) const;
  void checkOffset(U64 offset);
  void fill();

  U64 index_;
  U32 base_ = 0;
  U64 offset_ = 0;
  U64 firstOffset_ = 0;
  bool started_ = false;
  bool ended_ = false;
  bool repeats_ = false;  ///< a "*" was read, and not yet the line after it
  U64 repeated_ = 0;      ///< bytes that a "*" still has to give
  Row row_;
  std::vector<U8> last_;     ///< bytes of the line that a "*" repeats
  std::vector<U8> pending_;  ///< bytes that were read and not given
  long taken_ = 0;
};

}  // namespace Tool
