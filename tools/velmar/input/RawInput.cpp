#include "input/EntryReader.h"
#include "model/Failure.h"

// Raw binary dumps: one entry after another, each little-endian.

namespace Tool {
namespace {

class RawReader : public EntryReader {
 public:
  RawReader(std::unique_ptr<ByteStream> stream, const Layout& layout, const InputOptions& options)
      : EntryReader(std::move(stream), layout, options), index_(options.first) {
    // A file of a wrong size is refused before any of it is shown.
    const std::optional<U64> bytes = stream_->bytesLeftInFile();
    if (!bytes) return;
    if (*bytes % stride_ != 0) failSize(*bytes);
    const U64 end = index_ + *bytes / stride_;
    if (end > layout.indexCount() && !options.beyondEnd) failBeyond(end - 1, end);
  }

  bool read(Entry& entry) override {
    stream_->take(taken_);
    taken_ = 0;
    if (stream_->size() < stride_ && !stream_->need(stride_)) return atEnd();
    entry = {index_++, stream_->data()};
    taken_ = stride_;
    bytes_ += stride_;
    return true;
  }

  bool isAscending() const override { return true; }

 private:
  bool atEnd() const {
    if (bytes_ + stream_->size() == 0) {
      fail("{}: empty; a dump has at least one entry of {} bytes", stream_->name(), stride_);
    }
    if (stream_->size() != 0) failSize(bytes_ + stream_->size());
    return false;
  }

  U64 index_;
  U64 bytes_ = 0;
  size_t taken_ = 0;
};

}  // namespace

std::unique_ptr<EntryReader> openRaw(std::unique_ptr<ByteStream> stream, const Layout& layout,
                                     const InputOptions& options) {
  return std::make_unique<RawReader>(std::move(stream), layout, options);
}

}  // namespace Tool
