#include <utility>

#include "input/JsonInput.h"
#include "model/EntryBuilder.h"
#include "model/Failure.h"
#include "model/Text.h"
#include "output/EntryWriter.h"
#include "output/Progress.h"
#include "verbs/Target.h"
#include "verbs/Verbs.h"

namespace Tool {
namespace {

/// Adds entries of zero, so that the whole table is written.
class WholeWriter : public EntryWriter {
 public:
  WholeWriter(std::unique_ptr<EntryWriter> writer, const Layout& layout)
      : writer_(std::move(writer)), layout_(layout), zeros_(layout.entryBytes()) {}

  void write(const Entry& entry) override {
    if (entry.index < next_) {
      fail("entry {} comes after entry {}; --whole needs the entries in ascending order",
           entry.index, next_ - 1);
    }
    fillTo(entry.index);
    writer_->write(entry);
    next_ = entry.index + 1;
  }
  void end() override {
    fillTo(layout_.indexCount());
    writer_->end();
  }

 private:
  void fillTo(U64 index) {
    for (; next_ < index; ++next_) writer_->write({next_, zeros_.data()});
  }

  std::unique_ptr<EntryWriter> writer_;
  const Layout& layout_;
  std::vector<U8> zeros_;
  U64 next_ = 0;
};

/// What the command line gives: values for the selected entries, and a document of entries.
class Values {
 public:
  Values(const Arguments& arguments, const Layout& layout)
      : layout_(layout), readsInput_(arguments.base == "-") {
    for (const std::string& text : arguments.assignments) {
      if (text[0] == '@') {
        if (text.size() == 1)
          fail("@ is given without a file; give @FILE, or @- for standard input");
        read(text.substr(1));
      } else {
        for (Assignment& assignment : parseAssignments(layout, text)) {
          common_.push_back(std::move(assignment));
        }
      }
    }
  }

  const std::vector<Assignment>& common() const { return common_; }
  bool hasEntries() const { return document_ != nullptr; }
  /// The next entry of the document; null at its end.
  const JsonInput::Object* object() const { return hasObject_ ? &object_ : nullptr; }
  void takeObject() { hasObject_ = document_->next(object_); }
  std::string place() const { return formatText("{}:{}", document_->name(), document_->line()); }

 private:
  void read(const std::string& path) {
    if (path == "-" && std::exchange(readsInput_, true)) {
      fail("standard input is given twice; name a file for one of them");
    }
    auto input =
        std::make_unique<JsonInput>(std::make_unique<ByteStream>(path, nullptr), layout_, 0);
    JsonInput::Object object;
    if (!input->next(object)) {
      fail("{}: no entry and no values; give one object of values, or the JSON of decode",
           input->name());
    }
    if (!object.index) {
      common_.insert(common_.end(), object.assignments.begin(), object.assignments.end());
      if (input->next(object)) {
        fail("{}:{}: a second object; give one object of values, or the JSON of decode",
             input->name(), input->line());
      }
      return;
    }
    if (document_ != nullptr) fail("{}: a second file of entries; give one", input->name());
    document_ = std::move(input);
    object_ = std::move(object);
    hasObject_ = true;
  }

  const Layout& layout_;
  std::vector<Assignment> common_;
  std::unique_ptr<JsonInput> document_;
  JsonInput::Object object_;
  bool hasObject_ = false;
  bool readsInput_;  ///< standard input is taken
};

class Encoder {
 public:
  Encoder(const Arguments& arguments, const Layout& layout, Output& output)
      : arguments_(arguments),
        layout_(layout),
        output_(output),
        values_(arguments, layout),
        builder_(layout),
        progress_(output) {
    if (!arguments.index.empty()) select();
    const Format format = arguments.format.empty() ? Format::hex : formatOf(arguments.format);
    const bool isBytes = format == Format::hex || format == Format::words || format == Format::raw;
    const bool withIndex =
        values_.hasEntries() || !arguments.base.empty() || !selected_.isAll() || arguments.whole;
    writer_ = isBytes ? makeBytesWriter(output, layout, format, withIndex)
                      : makeEntryWriter(output, layout, layout.fields(),
                                        {format, arguments.plain, false});
    if (arguments.whole) {
      writer_ = std::make_unique<WholeWriter>(std::move(writer_), layout);
    }
  }

  void run() {
    if (!arguments_.base.empty()) {
      changeBase();
    } else if (values_.hasEntries()) {
      makeFromDocument();
    } else {
      makeSelected();
    }
    if (!selected_.unmet().empty()) {
      fail("{}: no entry has an index in {}; check --index",
           arguments_.base.empty() ? values_.place() : arguments_.base, selected_.unmet());
    }
    writer_->end();
    output_.finish();
  }

 private:
  void select() {
    selected_ = indexesOf(arguments_);
    const bool choosesChanges = !arguments_.base.empty() || values_.hasEntries();
    if (choosesChanges && values_.common().empty()) {
      fail("--index chooses the entries that FIELD=VALUE changes, and none is given; give both");
    }
    checkIndexes(layout_, selected_, "--index", join(arguments_.index, ","));
  }

  void write(U64 index) {
    writer_->write({index, builder_.bytes().data()});
    // Nothing is shown before it is known that --index selects what it names.
    if (selected_.unmet().empty()) output_.flushIfLarge();
    progress_.step();
  }

  void setCommon(U64 index) {
    if (!selected_.has(index)) return;
    builder_.forget();
    for (const Assignment& assignment : values_.common()) builder_.set(assignment);
  }

  void setObject() {
    try {
      builder_.forget();
      for (const Assignment& assignment : values_.object()->assignments) builder_.set(assignment);
    } catch (const Failure& failure) {
      fail("{}: {}", values_.place(), failure.what());
    }
    builder_.setReservedBits(values_.object()->reservedBits);
  }

  void checkIndex(U64 index) const {
    if (index < layout_.indexCount()) return;
    fail("{}: entry {} is beyond the end of {} on {}, which has {}; check table and chip",
         values_.place(), index, layout_.name(), layout_.chip().name, layout_.indexCount());
  }

  void makeSelected() {
    const std::vector<U64> indexes =
        selected_.isAll() ? std::vector<U64>{0} : selected_.below(layout_.indexCount());
    for (const U64 index : indexes) {
      builder_.startFromZero();
      setCommon(index);
      write(index);
    }
  }

  void makeFromDocument() {
    for (; values_.object() != nullptr; values_.takeObject()) {
      checkIndex(*values_.object()->index);
      builder_.startFromZero();
      setObject();
      setCommon(*values_.object()->index);
      write(*values_.object()->index);
    }
  }

  void changeBase() {
    const auto reader = openEntries(std::make_unique<ByteStream>(arguments_.base, nullptr), layout_,
                                    inputOptionsOf(arguments_));
    Entry entry;
    bool isFirst = true;
    for (bool more = reader->next(entry); more; isFirst = false) {
      const U64 index = entry.index;
      builder_.start(entry.bytes);
      more = reader->next(entry);
      const bool isOpen = isFirst && more && selected_.isAll() && !values_.common().empty();
      if (isOpen) {
        fail("{}: more than one entry; give --index to choose which to change", arguments_.base);
      }
      setObjectsOf(index);
      setCommon(index);
      write(index);
    }
    if (values_.object() != nullptr) {
      fail("{}: entry {} is not in {}; give entries of the base only, in ascending order",
           values_.place(), *values_.object()->index, arguments_.base);
    }
  }

  void setObjectsOf(U64 index) {
    while (values_.object() != nullptr && *values_.object()->index == index) {
      if (!values_.object()->isNumbered) {
        fail("{}: an entry without index; give the index of the entry to change", values_.place());
      }
      setObject();
      values_.takeObject();
    }
  }

  const Arguments& arguments_;
  const Layout& layout_;
  Output& output_;
  Values values_;
  IndexSet selected_;
  EntryBuilder builder_;
  std::unique_ptr<EntryWriter> writer_;
  Progress progress_;
};

int run(const Arguments& arguments) {
  const Layout layout = layoutOf(arguments);
  Output output(arguments.output, "never");
  Encoder(arguments, layout, output).run();
  return exitSuccess;
}

}  // namespace

Verb encodeVerb() {
  return {
      "encode",
      "Encodes field values to the bytes of an entry.",
      "A value is a number, decimal or after 0x hexadecimal; for a bitmap a list of ports such "
      "as 0-3,17, or \"none\", or a hexadecimal number after 0x; BITMAP+=PORTS and BITMAP-=PORTS "
      "change it; spTreePort0-3=3,10=2 sets fields of a family. Fields that are not given are "
      "zero, or with --base as they were. @FILE takes the JSON that decode writes, and "
      "gives the same bytes, also with --plain. A JSON entry may have up to 1 MiB.",
      {Positionals::table, Positionals::assignments},
      {Options::chip, Options::variant, Options::base, Options::changeIndex, Options::whole,
       Options::input, Options::hexOrder, Options::byteOrder, Options::stride, Options::first,
       Options::format("hex,words,raw,json,jsonl"), Options::plain, Options::output},
      {"velmar encode VlanEntry --chip BCM56960_A0 valid=1 fidId=100 portBitmap=0-3,17",
       "velmar encode EgrVlan --chip 56980 --base samples/egr-vlan-bcm56980.bin --index 1 "
       "portBitmap+=17"},
      run};
}

}  // namespace Tool
