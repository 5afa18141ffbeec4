// The bit copy behind an opaque call, beside an empty call, a loop over bits and a loop over bytes.

#include "Bench.h"

namespace {

using namespace Bench;

/// The start of one copy: odd offsets, so that nothing is aligned.
struct Offsets {
  int dst;
  int src;
};

std::shared_ptr<std::vector<Offsets>> someOffsets() {
  auto list = std::make_shared<std::vector<Offsets>>();
  std::mt19937 random(4);
  while (list->size() < itemCount) {
    list->push_back(
        {static_cast<int>(random() % 64 * 2 + 1), static_cast<int>(random() % 64 * 2 + 1)});
  }
  return list;
}

constexpr int bufferBytes = 64;
U8 destinations[itemCount][bufferBytes];
U8 source[bufferBytes];

void addCopy(const std::string& name, Floors::Copy copy, int bits) {
  add("copy/" + name + " " + std::to_string(bits), someOffsets(),
      [copy, bits](const Offsets& offsets, U32 i) {
        copy(destinations[i], bufferBytes, source, bufferBytes, bits, offsets.dst, offsets.src);
      });
}

const bool added = [] {
  for (const int bits : {1, 3, 8, 12, 16, 24, 32, 33, 48, 57, 58, 64, 84, 128, 136, 200, 272}) {
    addCopy("nothing", &Floors::copyNothing, bits);
    addCopy("routine", &Floors::copyRoutine, bits);
    addCopy("byte loop", &Floors::copyByteLoop, bits);
    addCopy("bit loop", &Floors::copyBitLoop, bits);
  }
  return true;
}();

}  // namespace
