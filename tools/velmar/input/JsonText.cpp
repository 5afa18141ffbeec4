#include "input/JsonText.h"

#include <algorithm>

#include "model/Failure.h"
#include "model/Text.h"

namespace Tool {

int JsonText::peek() {
  if (stream_.size() == 0 && !stream_.readMore()) return -1;
  return *stream_.data();
}

char JsonText::take() {
  const char letter = static_cast<char>(*stream_.data());
  ++column_;
  if (letter == '\n') {
    ++line_;
    column_ = 1;
  }
  stream_.take(1);
  return letter;
}

void JsonText::startChunk() {
  chunkLine_ = line_;
  chunkColumn_ = column_;
  names_ = 0;
}

void JsonText::skipBlanks() {
  for (;;) {
    const int letter = peek();
    if (letter < 0 || (letter != '\n' && !isBlank(static_cast<char>(letter)))) return;
    take();
  }
}

void JsonText::fail(const char* what) const {
  Tool::fail("{}:{}:{}: {}; give JSON such as decode --format json prints", stream_.name(), line_,
             column_, what);
}

void JsonText::failAt(const std::string& text, size_t at, const std::string& what) const {
  U64 line = chunkLine_, column = chunkColumn_;
  for (size_t i = 0; i < at; ++i) {
    ++column;
    if (text[i] == '\n') {
      ++line;
      column = 1;
    }
  }
  Tool::fail("{}:{}:{}: {}{}", stream_.name(), line, column, what,
             what.find(';') == std::string::npos ? "; check the JSON" : "");
}

JsonText::Chunk JsonText::next(std::string& text) {
  for (;;) {
    skipBlanks();
    startChunk();
    const int letter = peek();
    if (state_ == State::tail) {
      if (letter < 0) fail("the document ends early");
      text = "{";
      const char separator = take();
      if (separator != ',' && separator != '}') fail("a comma or } is missing after the entries");
      if (separator == ',') {
        skipBlanks();
        startChunk();
        if (chunkColumn_ > 1) --chunkColumn_;  // the brace that was put before
        if (peek() != '"') fail("a name in quotes is expected after the comma");
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
      if (needsEntry_) fail("an entry is expected after the comma");
      take();
      state_ = state_ == State::entries ? State::tail : State::outside;
      needsComma_ = false;
      continue;
    }
    if (state_ != State::outside && needsComma_) {
      if (letter != ',') fail("a comma is missing between two entries");
      take();
      needsComma_ = false;
      needsEntry_ = true;
      continue;
    }
    if (state_ == State::outside && letter == '[') {
      take();
      state_ = State::array;
      continue;
    }
    if (letter != '{') fail("an entry must be an object in braces");
    needsEntry_ = false;
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
      text.erase(text.find_last_not_of(" \t\r\n") + 1);
      if (text.back() == ',') text.pop_back();
      text += '}';
      return true;
    }
    text += take();
    if (letter == ':') ++names_;
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
    // What is neither the end nor a backslash is taken at once.
    const std::string_view ahead = stream_.text();
    const size_t most = std::min(ahead.size(), longestChunk + 1 - text.size());
    size_t plain = 0;
    while (plain < most && ahead[plain] != '"' && ahead[plain] != '\\' && ahead[plain] != '\n') {
      ++plain;
    }
    const bool isEnd = plain < most && ahead[plain] == '"';
    if (isEnd) ++plain;
    text.append(ahead.data(), plain);
    stream_.take(plain);
    column_ += plain;
    if (isEnd) return;
    if (plain == most) continue;
    const char letter = take();
    text += letter;
    if (letter != '\\') continue;
    if (peek() < 0) fail("a string ends early");
    text += take();
  }
}

}  // namespace Tool
