#include "input/JsonText.h"

#include "model/Failure.h"
#include "model/Text.h"

namespace Tool {

int JsonText::peek() {
  if (stream_.size() == 0 && !stream_.readMore()) return -1;
  return *stream_.data();
}

char JsonText::take() {
  const char letter = static_cast<char>(*stream_.data());
  if (letter == '\n') ++line_;
  stream_.take(1);
  return letter;
}

void JsonText::skipBlanks() {
  for (;;) {
    const int letter = peek();
    if (letter < 0 || (letter != '\n' && !isBlank(static_cast<char>(letter)))) return;
    take();
  }
}

void JsonText::fail(const char* what) const {
  Tool::fail("{}:{}: {}; give JSON such as decode --format json prints", stream_.name(), line_,
             what);
}

JsonText::Chunk JsonText::next(std::string& text) {
  for (;;) {
    skipBlanks();
    chunkLine_ = line_;
    const int letter = peek();
    if (state_ == State::tail) {
      if (letter < 0) fail("the document ends early");
      text = "{";
      const char separator = take();
      if (separator != ',' && separator != '}') fail("a comma or } is missing after the entries");
      if (separator == ',') {
        if (readMembers(text)) fail("a second array of entries");
      } else {
        text += '}';
      }
      state_ = State::outside;
      return Chunk::head;
    }
    if (letter < 0) {
      if (state_ != State::outside) fail("the array ends early");
      return Chunk::end;
    }
    if (state_ != State::outside && letter == ']') {
      take();
      state_ = state_ == State::entries ? State::tail : State::outside;
      needsComma_ = false;
      continue;
    }
    if (state_ != State::outside && needsComma_) {
      if (letter != ',') fail("a comma is missing between two entries");
      take();
      needsComma_ = false;
      continue;
    }
    if (state_ == State::outside && letter == '[') {
      take();
      state_ = State::array;
      continue;
    }
    if (letter != '{') fail("an entry must be an object in braces");
    text = take();
    if (!readMembers(text)) {
      needsComma_ = state_ != State::outside;
      return Chunk::entry;
    }
    if (state_ != State::outside) fail("entries inside an entry");
    state_ = State::entries;
    return Chunk::head;
  }
}

bool JsonText::readMembers(std::string& text) {
  constexpr U32 deepest = 16;
  U32 depth = 1;
  size_t key = 0;
  while (depth > 0) {
    const int letter = peek();
    if (letter < 0) fail("an object ends early");
    if (text.size() > longestChunk) fail("an entry has more than 1 MiB");
    if (letter == '"') {
      key = text.size();
      readString(text);
      skipBlanks();
      const bool isEntriesKey =
          depth == 1 && peek() == ':' && text.compare(key, std::string::npos, "\"entries\"") == 0;
      if (!isEntriesKey) continue;
      take();
      skipBlanks();
      if (peek() != '[') fail("\"entries\" must be an array");
      take();
      text.erase(key);
      text.erase(text.find_last_not_of(" \t\r\n,") + 1);
      text += '}';
      return true;
    }
    text += take();
    if (letter == '{' || letter == '[') ++depth;
    if (letter == '}' || letter == ']') --depth;
    if (depth > deepest) fail("objects nested too deeply");
  }
  return false;
}

void JsonText::readString(std::string& text) {
  text += take();
  for (;;) {
    if (peek() < 0) fail("a string ends early");
    if (text.size() > longestChunk) fail("an entry has more than 1 MiB");
    const char letter = take();
    text += letter;
    if (letter == '"') return;
    if (letter != '\\') continue;
    if (peek() < 0) fail("a string ends early");
    text += take();
  }
}

}  // namespace Tool
