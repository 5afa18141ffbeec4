// The C interface and the views agree: every field of every class and chip, in random entries, and
// the addresses. The header is compiled as C++ here.

#include <random>

#include "support/Sweep.h"
#include "velmar.h"

namespace VelmarTest {
namespace {

const velmar_layout* layoutOf(const std::string& table, U32 chip) {
  const velmar_layout* layout = nullptr;
  const std::string name = chipNames().at(chip);
  EXPECT_EQ(velmar_find_layout(table.c_str(), name.c_str(), 0, &layout), VELMAR_OK)
      << velmar_message();
  return layout;
}

/// The words that a field has, of those that a view or the C interface returns.
Words cutTo(U32 width, Words words) {
  words.resize((width + 31) / 32);
  return words;
}

TEST(CInterface, readsAndWritesAsTheViewsDo) {
  std::mt19937 random(11);
  onEveryChip([&](const ClassProbe& probe, const GoldenClass& golden, U32 chip) {
    const velmar_layout* layout = layoutOf(probe.name, chip);
    const std::size_t bytes = 4 * golden.chips.at(chip).words;
    std::vector<U8> entry(bytes);
    for (const GoldenField& expected : golden.fields) {
      const auto place = expected.places.find(chip);
      if (place == expected.places.end()) continue;
      const U32 width = place->second.width;
      const FieldProbe& probed = probe.field(expected.accessor);
      for (U8& byte : entry) byte = static_cast<U8>(random());
      std::vector<U8> other = entry;
      U32 field = 0;
      ASSERT_EQ(velmar_field_of_id(layout, expected.id, &field), VELMAR_OK) << velmar_message();

      const auto view = probe.make(chip, entry.data(), static_cast<U16>(bytes), 0);
      const Words read = probed.get(*view);
      Words words((width + 31) / 32);
      ASSERT_EQ(velmar_read_words(layout, field, entry.data(), bytes, words.data(), words.size()),
                VELMAR_OK);
      ASSERT_EQ(words, cutTo(width, read)) << expected.accessor;

      for (U32& word : words) word = ~word;
      if (width % 32 != 0) words.back() &= (1U << width % 32) - 1;
      probed.set(*view, words);
      ASSERT_EQ(velmar_write_words(layout, field, other.data(), bytes, words.data(), words.size()),
                VELMAR_OK);
      ASSERT_EQ(other, entry) << expected.accessor;
    }
  });
}

TEST(CInterface, hasTheAddressesOfTheViews) {
  onEveryChip([](const ClassProbe& probe, const GoldenClass& golden, U32 chip) {
    const GoldenChip& facts = golden.chips.at(chip);
    const velmar_layout* layout = layoutOf(probe.name, chip);
    velmar_layout_facts own{};
    ASSERT_EQ(velmar_layout_info(layout, &own, sizeof(own)), VELMAR_OK);
    const U32 last = facts.entries.value_or(facts.arrayElements) - 1;
    for (const U32 index : {U32{0}, last}) {
      for (U16 identifier = 0; identifier < own.identifiers; ++identifier) {
        SchanTriple out{};
        U32 address = 0;
        ASSERT_TRUE(probe.getSchanAddress(chip, 0, out, identifier, probe.isTable ? index : 0,
                                          static_cast<U16>(probe.isTable ? 0 : index)));
        ASSERT_EQ(velmar_address(layout, index, identifier, &address), VELMAR_OK);
        EXPECT_EQ(address, out.address);
        EXPECT_EQ(own.access_type, out.accessType);
        EXPECT_EQ(own.block, out.block);
      }
    }
    EXPECT_EQ(velmar_address(layout, last + 1, 0, &own.base), VELMAR_INDEX);
  });
}

}  // namespace
}  // namespace VelmarTest
