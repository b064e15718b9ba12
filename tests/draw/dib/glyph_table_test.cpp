#include "draw/dib/glyph_table.h"

#include <gtest/gtest.h>

#include <string>

namespace tavix::test {
namespace {

constexpr std::size_t kPlenty = 1 << 20;

TEST(GlyphTables, FindWhatWasSet) {
  MemoryBudget budget(kPlenty);
  GlyphTable<std::string> table(budget);
  const Letter letters[] = {{U'a'}, {U'a', true}, {U'点'}, {U'\U00020000'}, {U'\U00020000', true}};
  for (const Letter& letter : letters) {
    EXPECT_FALSE(table.Find(letter));
    table.Set(letter, std::to_string(letter.character) + (letter.is_prefixed ? "&" : ""), 8);
  }
  for (const Letter& letter : letters) {
    const auto* entry = table.Find(letter);
    ASSERT_TRUE(entry);
    EXPECT_EQ(std::to_string(letter.character) + (letter.is_prefixed ? "&" : ""), *entry);
  }
  EXPECT_FALSE(table.Find({U'b'}));
  EXPECT_FALSE(table.Find({U'\U0003FFFD'}));
}

TEST(GlyphTables, KnowLettersWithoutAGlyph) {
  MemoryBudget budget(kPlenty);
  GlyphTable<std::string> table(budget);
  table.Set({U'a'}, std::nullopt, 0);
  ASSERT_TRUE(table.Find({U'a'}));
  EXPECT_FALSE(*table.Find({U'a'}));
}

// One table after another takes from the same budget; a table that ends gives all of it back.
TEST(GlyphTables, ShareTheirBudget) {
  constexpr std::size_t kGlyph = 1000;
  MemoryBudget budget(20 * kGlyph);
  GlyphTable<std::string> first(budget);
  {
    GlyphTable<std::string> second(budget);
    char32_t character = U'点';
    while (!second.IsFull()) second.Set({character++}, "", kGlyph);
    EXPECT_GT(20u, character - U'点');
    EXPECT_LT(10u, character - U'点');
    EXPECT_TRUE(first.IsFull());
  }
  EXPECT_FALSE(first.IsFull());
  EXPECT_EQ(20 * kGlyph, budget.Take(kPlenty));
}

}  // namespace
}  // namespace tavix::test
