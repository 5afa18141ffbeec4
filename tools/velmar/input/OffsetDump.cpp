#include "input/OffsetDump.h"

#include <algorithm>
#include <charconv>

#include "model/Text.h"

namespace Tool {
namespace {

/// False if the text is not a number of the base.
bool parseOffset(std::string_view text, U32 base, U64& offset) {
  const char* const end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, offset, static_cast<int>(base));
  return result.ec == std::errc{} && result.ptr == end;
}

}  // namespace

OffsetReader::OffsetReader(std::unique_ptr<ByteStream> stream, const Layout& layout,
                           const InputOptions& options)
    : TextReader(std::move(stream), layout, options), index_(options.first) {
  if (options.hexOrder == HexOrder::integer) {
    fail("--hex-order int does not apply to lines with offsets; give bytes or words");
  }
}

bool OffsetReader::read(Entry& entry) {
  if (base_ == 0) base_ = findBase();
  pending_.erase(pending_.begin(), pending_.begin() + taken_);
  taken_ = 0;
  while (pending_.size() < stride_) {
    if (repeated_ > 0) {
      fill();
    } else if (!takeLine()) {
      return atEnd();
    }
  }
  entry = {index_++, pending_.data()};
  taken_ = stride_;
  return true;
}

bool OffsetReader::atEnd() const {
  if (!started_) fail("{}: no line with an offset and digits; check the file", stream_->name());
  if (repeats_)
    failLine("ends after \"*\", which a line with an offset must follow; check the file");
  if (!pending_.empty()) failSize(offset_ - firstOffset_);
  return false;
}

/// Repeats the last line, then gives the line after the "*".
void OffsetReader::fill() {
  pending_.insert(pending_.end(), last_.begin(), last_.end());
  repeated_ -= last_.size();
  if (repeated_ == 0) {
    pending_.insert(pending_.end(), row_.bytes.begin(), row_.bytes.end());
    last_ = row_.bytes;
  }
}

bool OffsetReader::parse(std::string_view line) {
  if (line == "*" && started_ && !ended_) return repeats_ = true;
  row_.bytes.clear();
  if (!parse(line, row_)) return false;
  U64 offset = 0;
  if (ended_) failLine("a line after the one that ends the dump; give one dump");
  if (!parseOffset(row_.offset, base_, offset)) {
    failLine("offset {} is not a number of base {} as those before it; check the line",
             inQuotes(row_.offset), base_);
  }
  checkOffset(offset);
  offset_ = offset + row_.bytes.size();
  if (row_.bytes.empty()) ended_ = true;
  if (repeated_ > 0) return true;
  pending_.insert(pending_.end(), row_.bytes.begin(), row_.bytes.end());
  last_ = row_.bytes;
  return true;
}

void OffsetReader::refuse(std::string_view line) const {
  failLine("{} is not a line of {}; check the line{}", inQuotes(line),
           started_ ? "the dump" : "a dump with offsets",
           started_ ? "" : ", or give --input hex for hex text without offsets");
}

void OffsetReader::checkOffset(U64 offset) {
  if (!started_) {
    started_ = true;
    if (offset % stride_ != 0) {
      failLine("offset 0x{:x} is not the start of an entry; start at a multiple of {}", offset,
               entrySizeText(stride_, layout_));
    }
    if (offset != 0) checkFirst();
    firstOffset_ = offset_ = offset;
    index_ += offset / stride_;
    return;
  }
  if (repeats_ && offset > offset_ && (offset - offset_) % last_.size() == 0) {
    repeated_ = offset - offset_;
    offset_ = offset;
  }
  repeats_ = false;
  if (offset != offset_) {
    failLine("offset 0x{:x}, but 0x{:x} comes next; check the dump for lost or repeated lines",
             offset, offset_);
  }
}

void OffsetReader::appendGroups(Row& row, bool mayBeWords) const {
  const size_t digits = row.groups.empty() ? 2 : row.groups.front().digits.size();
  if (digits > 2 && mayBeWords && options_.hexOrder == HexOrder::byGroups) {
    failLine(
        "groups of {} digits may be bytes or words; give --hex-order bytes or words "
        "(words: xxd -e, hexdump, od -t x2 or x4)",
        digits);
  }
  for (const HexGroup& group : row.groups) {
    const size_t count = group.digits.size();
    if (count % 2 != 0) failLine("{} digits are not whole bytes; check the line", count);
    if (options_.hexOrder == HexOrder::words) {
      appendNumber(group.digits, count / 2, row.bytes);
    } else {
      appendBytes(group.digits, row.bytes);
    }
  }
}

void OffsetReader::checkText(std::string_view text, const Row& row) const {
  std::string expected;
  for (const U8 byte : row.bytes) {
    expected += byte >= ' ' && byte <= '~' ? static_cast<char>(byte) : '.';
  }
  if (trim(text) == trim(expected)) return;
  failLine("digits and text column disagree; {}",
           options_.hexOrder != HexOrder::byGroups || haveDigits(row.groups, 2)
               ? "check the line, and --hex-order"
               : "check the line or, if it is of xxd -e, give --hex-order words");
}

/// The lines at the beginning, as far as they are there and in order.
std::vector<OffsetReader::Row> OffsetReader::rowsOf(std::string_view head, bool isWhole) const {
  std::vector<Row> rows;
  std::string_view rest = head;
  while (!rest.empty()) {
    const size_t end = rest.find('\n');
    if (end == std::string_view::npos && !isWhole) break;
    const std::string_view line = trim(rest.substr(0, end));
    rest.remove_prefix(std::min(end, rest.size() - 1) + 1);
    Row row;
    if (line == "*" && !rows.empty()) {
      rows.push_back(row);
      continue;
    }
    try {
      if (parse(line, row)) rows.push_back(row);
    } catch (const Failure&) {
      break;  // it is found again where it is read
    }
  }
  return rows;
}

/// Whether the lines follow each other with offsets of a base. A row without an offset is a "*".
bool OffsetReader::fits(const std::vector<Row>& rows, bool isWhole, U32 base) const {
  U64 next = 0, last = 0, first = 0;
  bool repeats = false;
  for (size_t i = 0; i < rows.size(); ++i) {
    if (rows[i].offset.empty()) {
      repeats = true;
      continue;
    }
    U64 offset = 0;
    if (!parseOffset(rows[i].offset, base, offset)) return false;
    if (i == 0) {
      if (offset % stride_ != 0) return false;
      first = next = offset;
    }
    const bool follows =
        repeats ? offset > next && last > 0 && (offset - next) % last == 0 : offset == next;
    if (!follows) return false;
    repeats = false;
    last = rows[i].bytes.size();
    next = offset + last;
  }
  return !isWhole || (next - first) % stride_ == 0;
}

/// The base of the offsets, by the lines at the beginning.
U32 OffsetReader::findBase() const {
  constexpr size_t headBytes = 4096;
  const bool isWhole = !stream_->need(headBytes);
  const std::string head = cleaned(stream_->text().substr(0, headBytes));
  const std::vector<Row> rows = rowsOf(head, isWhole);
  if (rows.empty()) return 16;
  const std::vector<U32> all = bases(rows.front());
  std::vector<U32> fitting;
  std::copy_if(all.begin(), all.end(), std::back_inserter(fitting),
               [&](U32 base) { return fits(rows, isWhole, base); });
  if (fitting.empty()) return all.front();
  std::string_view offset;
  for (const Row& row : rows) {
    if (!row.offset.empty()) offset = row.offset;
  }
  const auto valueOf = [offset](U32 base) {
    U64 value = 0;
    parseOffset(offset, base, value);
    return value;
  };
  // One that goes beyond the end of the table is not meant.
  const auto inTable = std::stable_partition(fitting.begin(), fitting.end(), [&](U32 base) {
    return valueOf(base) / stride_ <= layout_.indexCount();
  });
  if (inTable != fitting.begin()) fitting.erase(inTable, fitting.end());
  for (const U32 base : fitting) {
    if (valueOf(base) == valueOf(fitting.front())) continue;
    fail(
        "{}: offset {} may be of base {} or {}; print the dump again with xxd, or with od -A x -v "
        "-t x1",
        stream_->name(), inQuotes(offset), fitting.front(), base);
  }
  return fitting.front();
}

}  // namespace Tool
