// Writes the text of "velmar trace --chip BCM56990_B0" for a log of writes and reads of VLANs, in one known
// shape: TIME W|R 0xADDRESS WORD WORD WORD WORD. The floor of that command.
//
// usage: trace-text LOG > TEXT

#include <fcntl.h>
#include <unistd.h>

#include <charconv>
#include <cstdio>
#include <cstring>
#include <string>
#include <unordered_map>

#include "Velmar/VlanEntry.h"

namespace {

constexpr U32 base = 0x0c7c0000;
constexpr U32 entryBytes = 16;

struct Entry {
  U8 bytes[entryBytes] = {};
  bool isKnown = false;
  bool isRead = false;  ///< the state comes from a read
};

struct Field {
  const char* name;
  U32 offset, width;
};

/// All fields, in the order of their bits.
constexpr Field fields[] = {{"bcIdx", 0, 9},
                            {"enableIgmpMldSnooping", 9, 1},
                            {"fidId", 10, 13},
                            {"flexCtrAction", 23, 5},
                            {"l2EntryKeyType", 28, 2},
                            {"learnDisable", 30, 1},
                            {"portBitmapProfilePtr", 31, 11},
                            {"stg", 42, 6},
                            {"umcIdx", 48, 9},
                            {"uucIdx", 57, 9},
                            {"valid", 66, 1},
                            {"vlanClassId", 67, 12},
                            {"membershipProfilePtr", 79, 12},
                            {"vlanProfilePtr", 91, 7},
                            {"virtualPortEn", 98, 1}};

U64 valueOf(const Field& field, const U8* bytes) {
  U64 window = 0;
  const U32 first = field.offset / 8;
  std::memcpy(&window, bytes + first, first + 8 > entryBytes ? entryBytes - first : 8);
  return window >> field.offset % 8 & ((U64{1} << field.width) - 1);
}

U32 hexAt(const char* digits) {
  U32 number = 0;
  for (int i = 0; i < 8; ++i) {
    const char digit = digits[i];
    number = number << 4 | static_cast<U32>(digit <= '9' ? digit - '0' : digit - 'a' + 10);
  }
  return number;
}

void add(std::string& text, U64 number) {
  char digits[20];
  text.append(digits, std::to_chars(digits, digits + sizeof(digits), number).ptr);
}

void takeLine(const char* line, std::unordered_map<U32, Entry>& entries, std::string& text) {
  const char* const blank = static_cast<const char*>(std::strchr(line, ' '));
  const bool isRead = blank[1] == 'R';
  const U32 index = hexAt(blank + 5) - base;
  U8 bytes[entryBytes];
  for (int i = 0; i < 4; ++i) {
    const U32 word = hexAt(blank + 14 + 9 * i);
    std::memcpy(bytes + 4 * i, &word, 4);
  }
  Entry& entry = entries[index];
  text.append(line, blank);
  text += isRead ? "  read   VlanEntry " : "  write  VlanEntry ";
  add(text, index);
  text += "  ";
  const bool isSame = std::memcmp(bytes, entry.bytes, entryBytes) == 0;
  if (isSame && entry.isKnown) {
    text += !isRead ? "unchanged" : entry.isRead ? "as read" : "as written";
  } else if (isSame) {
    text += "all zero";
  }
  const char* separator = "";
  for (const Field& field : fields) {
    const U64 old = valueOf(field, entry.bytes);
    const U64 now = valueOf(field, bytes);
    if (old == now) continue;
    text += separator;
    separator = ", ";
    text += field.name;
    if (entry.isKnown) text += ' ';
    if (entry.isKnown) add(text, old);
    text += entry.isKnown ? " -> " : " = ";
    add(text, now);
  }
  if (isRead && !isSame && entry.isKnown) {
    text += entry.isRead ? "; not as read" : "; not as written";
  }
  text += '\n';
  if (!isRead || !isSame || !entry.isKnown) entry.isRead = isRead;
  std::memcpy(entry.bytes, bytes, entryBytes);
  entry.isKnown = true;
}

bool flush(std::string& text) {
  const bool done = ::write(STDOUT_FILENO, text.data(), text.size()) >= 0;
  text.clear();
  return done;
}

}  // namespace

int main(int count, char** words) {
  constexpr size_t flushSize = 1U << 16;
  std::FILE* const log = std::fopen(count > 1 ? words[1] : "", "r");
  if (log == nullptr) return 1;
  std::unordered_map<U32, Entry> entries;
  std::string text;
  char line[256];
  U64 lines = 0;
  for (; std::fgets(line, sizeof(line), log) != nullptr; ++lines) {
    takeLine(line, entries, text);
    if (text.size() >= flushSize && !flush(text)) return 1;
  }
  std::fclose(log);
  text +=
      std::to_string(lines) + " transactions shown: " + std::to_string(lines) + " of VlanEntry\n";
  return flush(text) ? 0 : 1;
}
