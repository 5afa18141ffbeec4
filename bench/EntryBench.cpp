// Bitmaps, addresses and construction.

#include "Bench.h"

namespace {

using namespace Bench;
using Velmar::PortBitmapProfileEntry;
using Velmar::VlanEntry;

Oru::PerUnitBitmap somePorts(U32 ports) {
  Oru::PerUnitBitmap bitmap(ports);
  for (U32 port = 0; port < ports; port += 7) bitmap.set(port);
  return bitmap;
}

struct FloorBitmap : Floors::Bitmaps {
  FloorBitmap(ChipType_, U8* buf, U16, bool, U8) : Bitmaps(buf) {}
};

/// As a caller does: reads every word.
void use(const Oru::PerUnitBitmap& bitmap) {
  U32 words = 0;
  for (U32 i = 0; i < bitmap.wordCount(); ++i) words ^= bitmap.word(i);
  keep(words);
}

/// The arguments of an address look-up: chip and entry differ from call to call.
struct Question {
  U32 chipType;
  U32 tableEntry;
};

std::shared_ptr<std::vector<Question>> questions(const std::vector<ChipType_>& chips) {
  auto list = std::make_shared<std::vector<Question>>();
  std::mt19937 random(2);
  while (list->size() < itemCount) {
    list->push_back({chips[random() % chips.size()], static_cast<U32>(random() % 4096)});
  }
  return list;
}

template <class View>
void ask(Question& question, U32) {
  U32 address = 0;
  U32 accessType = 0;
  U32 block = 0;
  keep(View::getSchanAddress(question.chipType, 0, address, accessType, block, 0,
                             question.tableEntry, 0));
  keep(address);
  keep(accessType);
  keep(block);
}

template <class View>
void construct(Question& question, U32) {
  U8 entry[64];
  keep(entry);
  View view(static_cast<ChipType_>(question.chipType), entry, sizeof(entry), false, 0);
  keep(view);
}

const bool added = [] {
  const Oru::PerUnitBitmap ports136 = somePorts(136);
  const Oru::PerUnitBitmap ports272 = somePorts(272);

  const auto floors = views<FloorBitmap>(oneChip, 64);
  add("bitmap getter/floor 136", floors, [](FloorBitmap& view, U32) { use(view.bitmap136()); });
  add("bitmap getter/floor 272", floors, [](FloorBitmap& view, U32) { use(view.bitmap272()); });
  add("bitmap setter/floor 136", floors,
      [=](FloorBitmap& view, U32) { view.bitmap136Is(ports136); });
  add("bitmap setter/floor 272", floors,
      [=](FloorBitmap& view, U32) { view.bitmap272Is(ports272); });
  const auto vlans = views<VlanEntry>({BCM56960_A0}, 64);
  add("bitmap getter/136", vlans, [](VlanEntry& view, U32) { use(view.portBitmap()); });
  add("bitmap setter/136", vlans, [=](VlanEntry& view, U32) { view.portBitmapIs(ports136); });
  const auto profiles = views<PortBitmapProfileEntry>(oneChip, 64);
  add("bitmap getter/272", profiles, [](PortBitmapProfileEntry& view, U32) { use(view.bitmap()); });
  add("bitmap setter/272", profiles,
      [=](PortBitmapProfileEntry& view, U32) { view.bitmapIs(ports272); });

  add("address/floor", questions(oneChip), &ask<Floors::Vlan>);
  add("address/one chip", questions(oneChip), &ask<VlanEntry>);
  add("address/mixed chips", questions(mixedChips), &ask<VlanEntry>);

  add("construction/floor", questions(oneChip), &construct<Floors::Vlan>);
  add("construction/one chip", questions(oneChip), &construct<VlanEntry>);
  add("construction/mixed chips", questions(mixedChips), &construct<VlanEntry>);
  return true;
}();

}  // namespace
