#include "store/legend_table.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace tavix {
namespace {

constexpr LegendValues kValues{3, 11, 12, 13, 2, 0x00AABBCC};

TEST(LegendTable, StartsWithTheBuiltInEntries) {
  // number, point, kind, three parameters, width, colour; 103 stands before 102.
  const HanRec rows[] = {
      {1, true, {1, 2, 10, 1, 1, 0}},       {2, true, {2, 10, 10, 1, 1, 0}},
      {3, true, {3, 10, 10, 1, 1, 0}},      {4, true, {4, 10, 10, 1, 1, 0}},
      {5, true, {5, 10, 10, 1, 1, 255}},    {6, true, {6, 10, 10, 1, 1, 255}},
      {7, true, {7, 10, 10, 1, 1, 255}},    {8, true, {8, 10, 10, 1, 1, 0}},
      {9, true, {9, 10, 10, 1, 1, 255}},    {10, true, {10, 10, 10, 1, 1, 255}},
      {11, true, {11, 10, 10, 1, 1, 255}},  {101, false, {101, 0, 0, 0, 1, 0}},
      {103, false, {103, 0, 0, 0, 1, 255}}, {102, false, {102, 4, 2, 0, 1, 0}},
      {104, false, {104, 4, 2, 2, 1, 255}}, {105, false, {105, 4, 2, 2, 1, 255}}};
  const LegendTable table;
  EXPECT_EQ(std::vector<HanRec>(std::begin(rows), std::end(rows)), table.Entries());
  EXPECT_EQ(10, table.RotationStep());
  for (int n = 1; n <= 11; ++n) {
    std::u16string title = u"?";
    EXPECT_EQ(0, table.GetTitle(n, &title));
    EXPECT_EQ(u"", title) << n;
  }
}

TEST(LegendTable, AddedEntriesAreNumberedFrom201) {
  LegendTable table;
  std::int16_t number = 0;
  EXPECT_EQ(0, table.Add(true, kValues, &number));
  EXPECT_EQ(201, number);
  EXPECT_EQ(0, table.Add(false, kValues, &number));
  EXPECT_EQ(202, number);
  ASSERT_EQ(18U, table.Entries().size());
  EXPECT_EQ((HanRec{201, true, kValues}), table.Entries()[16]);
  EXPECT_EQ((HanRec{202, false, kValues}), table.Entries()[17]);
}

TEST(LegendTable, NumbersWrapAfterTheLargest) {
  LegendTable table;
  std::int16_t number = 0;
  for (int i = 201; i <= 32767; ++i) ASSERT_EQ(0, table.Add(true, kValues, &number));
  EXPECT_EQ(32767, number);
  ASSERT_EQ(0, table.Add(true, kValues, &number));
  EXPECT_EQ(-32768, number);
  EXPECT_TRUE(table.Find(-32768));
}

TEST(LegendTable, ChangingReplacesValuesAndCategoryOfTheFirstMatch) {
  LegendTable table;
  EXPECT_EQ(0, table.Change(5, false, kValues));
  ASSERT_TRUE(table.Find(5));
  EXPECT_EQ((HanRec{5, false, kValues}), *table.Find(5));
  ASSERT_TRUE(table.Find(6));
  EXPECT_EQ(6, table.Find(6)->values.kind);
}

TEST(LegendTable, WhereANumberRepeatsTheFirstEntryCounts) {
  LegendTable table;
  std::int16_t number = 0;
  // The run-time numbers go once around until the built-in 5 has a namesake.
  do {
    ASSERT_EQ(0, table.Add(true, kValues, &number));
  } while (number != 5);
  ASSERT_TRUE(table.Find(5));
  EXPECT_EQ(5, table.Find(5)->values.kind);
  ASSERT_EQ(0, table.Change(5, true, {}));
  EXPECT_EQ(kValues, table.Entries().back().values);
}

// Every number there is, at lengths before and after the added numbers have gone around.
TEST(LegendTable, FindsTheFirstEntryFromTheHead) {
  LegendTable table;
  for (const std::size_t length : {16U, 17U, 400U, 32583U, 65553U, 66000U, 140000U}) {
    while (table.Entries().size() < length) {
      std::int16_t number = 0;
      const auto place = static_cast<std::int32_t>(table.Entries().size());
      ASSERT_EQ(0, table.Add(true, {place, 0, 0, 0, 0, 0}, &number));
    }
    std::vector<const HanRec*> first(65536, nullptr);
    for (const HanRec& entry : table.Entries()) {
      const HanRec*& place = first[static_cast<std::uint16_t>(entry.number)];
      if (!place) place = &entry;
    }
    for (int i = -32768; i <= 32767; ++i) {
      const auto number = static_cast<std::int16_t>(i);
      ASSERT_EQ(first[static_cast<std::uint16_t>(number)], table.Find(number))
          << i << " of " << length;
    }
  }
}

TEST(LegendTable, UnknownNumbersAreRefusedAndChangeNothing) {
  for (const std::int16_t number : {std::int16_t{0}, std::int16_t{12}, std::int16_t{100},
                                    std::int16_t{106}, std::int16_t{201}, std::int16_t{-1}}) {
    LegendTable table;
    EXPECT_FALSE(table.Find(number)) << number;
    EXPECT_EQ(-1, table.Change(number, true, kValues)) << number;
    EXPECT_EQ(LegendTable().Entries(), table.Entries()) << number;
  }
}

TEST(LegendTable, CopiesEntriesInListOrder) {
  const LegendTable table;
  const struct {
    std::size_t count;
    std::size_t copied;
  } rows[] = {{0, 1}, {1, 1}, {11, 11}, {16, 16}, {20, 16}};
  for (const auto& row : rows) {
    std::array<HanRec, 20> copies;
    copies.fill({-5, false, {}});
    EXPECT_EQ(row.copied, table.CopyOut(row.count, copies.data()));
    for (std::size_t i = 0; i < copies.size(); ++i) {
      if (i < row.copied) {
        EXPECT_EQ(table.Entries()[i], copies[i]);
      } else {
        EXPECT_EQ(-5, copies[i].number);
      }
    }
  }
}

TEST(LegendTable, HasElevenTitles) {
  LegendTable table;
  for (const int n : {0, 12, -1, 101}) {
    std::u16string title = u"kept";
    EXPECT_EQ(-1, table.SetTitle(n, u"x")) << n;
    EXPECT_EQ(-1, table.GetTitle(n, &title)) << n;
    EXPECT_EQ(u"kept", title) << n;
  }
  EXPECT_EQ(0, table.SetTitle(1, u"基準点"));
  EXPECT_EQ(0, table.SetTitle(11, u"last"));
  std::u16string title;
  EXPECT_EQ(0, table.GetTitle(1, &title));
  EXPECT_EQ(u"基準点", title);
  EXPECT_EQ(0, table.GetTitle(11, &title));
  EXPECT_EQ(u"last", title);
  EXPECT_EQ(0, table.GetTitle(2, &title));
  EXPECT_EQ(u"", title);
}

TEST(LegendTable, StoredEntriesLeaveAddedOnesInPlace) {
  LegendTable table;
  std::int16_t number = 0;
  ASSERT_EQ(0, table.Add(true, kValues, &number));
  table.TakeStored({});
  ASSERT_TRUE(table.Find(number));
  EXPECT_EQ((HanRec{201, true, kValues}), *table.Find(number));
}

TEST(LegendTable, StoredEntriesAreNumberedByPlace) {
  LegendTable table;
  ASSERT_EQ(0, table.SetTitle(1, u"title"));
  std::array<LegendValues, LegendTable::kStoredLegends> stored;
  for (std::size_t i = 0; i < stored.size(); ++i) stored[i].kind = static_cast<int>(i) + 50;
  table.TakeStored(stored);
  ASSERT_EQ(16U, table.Entries().size());
  for (std::size_t i = 0; i < stored.size(); ++i) {
    const HanRec& entry = table.Entries()[i];
    EXPECT_EQ(i < 11 ? static_cast<int>(i) + 1 : static_cast<int>(i) + 90, entry.number);
    EXPECT_EQ(i < 11, entry.is_point);
    EXPECT_EQ(stored[i], entry.values);
  }
  std::u16string title;
  ASSERT_EQ(0, table.GetTitle(1, &title));
  EXPECT_EQ(u"title", title);
}

}  // namespace
}  // namespace tavix
