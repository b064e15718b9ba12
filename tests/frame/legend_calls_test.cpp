// The calls on the legend, and the entries an instance begins with.
#include <tavix/tavix.h>

#include <limits>
#include <ostream>

#include "tests/support/library_test.h"

namespace tavix::test {
namespace {

struct Entry {
  int kind = -1;
  int prm1 = -1;
  int prm2 = -1;
  int prm3 = -1;
  int width = -1;
  int color = -1;

  friend bool operator==(const Entry&, const Entry&) = default;
};

void PrintTo(const Entry& entry, std::ostream* out) {
  *out << "kind " << entry.kind << ", parameters " << entry.prm1 << ' ' << entry.prm2 << ' '
       << entry.prm3 << ", width " << entry.width << ", colour " << entry.color;
}

Entry ReadPoint(short number, int result = 0) {
  Entry entry;
  EXPECT_EQ(result, Tavix_GetPntHan(number, &entry.kind, &entry.width, &entry.color, &entry.prm1,
                                    &entry.prm2, &entry.prm3))
      << number;
  return entry;
}

Entry ReadLine(short number, int result = 0) {
  Entry entry;
  short prm1 = -1;
  short prm2 = -1;
  short prm3 = -1;
  EXPECT_EQ(result,
            Tavix_GetLinHan(number, &entry.kind, &prm1, &prm2, &prm3, &entry.width, &entry.color))
      << number;
  entry.prm1 = prm1;
  entry.prm2 = prm2;
  entry.prm3 = prm3;
  return entry;
}

using LegendCalls = InstanceTest;

TEST_F(LegendCalls, BeginWithTheBuiltInEntries) {
  const struct {
    short number;
    Entry entry;
  } rows[] = {
      {1, {1, 2, 10, 1, 1, 0}},      {2, {2, 10, 10, 1, 1, 0}},     {3, {3, 10, 10, 1, 1, 0}},
      {4, {4, 10, 10, 1, 1, 0}},     {5, {5, 10, 10, 1, 1, 255}},   {6, {6, 10, 10, 1, 1, 255}},
      {7, {7, 10, 10, 1, 1, 255}},   {8, {8, 10, 10, 1, 1, 0}},     {9, {9, 10, 10, 1, 1, 255}},
      {10, {10, 10, 10, 1, 1, 255}}, {11, {11, 10, 10, 1, 1, 255}}, {101, {101, 0, 0, 0, 1, 0}},
      {102, {102, 4, 2, 0, 1, 0}},   {103, {103, 0, 0, 0, 1, 255}}, {104, {104, 4, 2, 2, 1, 255}},
      {105, {105, 4, 2, 2, 1, 255}},
  };
  for (const auto& [number, entry] : rows) {
    EXPECT_EQ(entry, ReadPoint(number)) << number;
    EXPECT_EQ(entry, ReadLine(number)) << number;  // either call reads either kind of entry
  }
}

TEST_F(LegendCalls, RefuseUnknownNumbersAndLeaveOutputsAlone) {
  for (const short number : {short{0}, short{12}, short{100}, short{106}, short{200}, short{201},
                             short{-1}, std::numeric_limits<short>::min()}) {
    EXPECT_EQ(Entry(), ReadPoint(number, -1)) << number;
    EXPECT_EQ(Entry(), ReadLine(number, -1)) << number;
    EXPECT_EQ(-1, Tavix_ChgPntHan(number, 1, 2, 3, 4, 5, 6)) << number;
    EXPECT_EQ(-1, Tavix_ChgLinHan(number, 1, 2, 3, 4, 5, 6)) << number;
  }
}

TEST_F(LegendCalls, TheTwoFamiliesOrderTheirArgumentsDifferently) {
  EXPECT_EQ(0, Tavix_ChgPntHan(5, 1, 2, 3, 4, 5, 6));
  EXPECT_EQ((Entry{1, 4, 5, 6, 2, 3}), ReadPoint(5));
  EXPECT_EQ(0, Tavix_ChgLinHan(105, 1, 2, 3, 4, 5, 6));
  EXPECT_EQ((Entry{1, 2, 3, 4, 5, 6}), ReadLine(105));
}

TEST_F(LegendCalls, ChangeEntriesOfTheOtherFamilyToo) {
  EXPECT_EQ(0, Tavix_ChgLinHan(5, 102, 4, 2, 0, 1, 255));
  EXPECT_EQ((Entry{102, 4, 2, 0, 1, 255}), ReadPoint(5));
  EXPECT_EQ(0, Tavix_ChgPntHan(101, 2, 1, 0, 10, 12, 0));
  EXPECT_EQ((Entry{2, 10, 12, 0, 1, 0}), ReadLine(101));
}

TEST_F(LegendCalls, NumberAddedEntriesFrom201OnInOneRow) {
  short number = 0;
  EXPECT_EQ(0, Tavix_AddPntHan(1, 2, 3, 4, 5, 6, &number));
  EXPECT_EQ(201, number);
  EXPECT_EQ(0, Tavix_AddLinHan(1, 2, 3, 4, 5, 6, &number));
  EXPECT_EQ(202, number);
  EXPECT_EQ((Entry{1, 4, 5, 6, 2, 3}), ReadPoint(201));
  EXPECT_EQ((Entry{1, 2, 3, 4, 5, 6}), ReadLine(202));
  EXPECT_EQ(0, Tavix_ChgPntHan(201, 9, 9, 9, 9, 9, 9));
  EXPECT_EQ((Entry{9, 9, 9, 9, 9, 9}), ReadPoint(201));
  EXPECT_EQ((Entry{1, 2, 3, 4, 5, 6}), ReadLine(202));
}

TEST_F(LegendCalls, NumberingWrapsAtSixteenBits) {
  short number = 0;
  do {
    ASSERT_EQ(0, Tavix_AddPntHan(1, 1, 1, 1, 1, 1, &number));
  } while (number != std::numeric_limits<short>::max() && number > 0);
  ASSERT_EQ(std::numeric_limits<short>::max(), number);
  EXPECT_EQ(0, Tavix_AddPntHan(7, 1, 1, 1, 1, 1, &number));
  EXPECT_EQ(std::numeric_limits<short>::min(), number);
  EXPECT_EQ(7, ReadPoint(number).kind);
}

TEST_F(LegendCalls, KeepValuesUncheckedAndCutThemOnlyForTheLineReader) {
  constexpr int kLeast = std::numeric_limits<int>::min();
  constexpr int kMost = std::numeric_limits<int>::max();
  EXPECT_EQ(0, Tavix_ChgPntHan(1, kLeast, kMost, kLeast, 70000, -70000, kMost));
  EXPECT_EQ((Entry{kLeast, 70000, -70000, kMost, kMost, kLeast}), ReadPoint(1));
  EXPECT_EQ((Entry{kLeast, 70000 - 65536, -70000 + 65536, -1, kMost, kLeast}), ReadLine(1));
}

TEST_F(LegendCalls, AnySelectionIsTaken) {
  for (const short number : {short{1}, short{101}, short{999}, short{-1}}) {
    EXPECT_EQ(0, Tavix_SelPntHan(number));
    EXPECT_EQ(0, Tavix_SelLinHan(number));
  }
}

TEST_F(LegendCalls, HaveTitlesForTheElevenPointEntries) {
  const struct {
    short number;
    int result;
  } rows[] = {{1, 0}, {6, 0}, {11, 0}, {0, -1}, {12, -1}, {-1, -1}, {101, -1}, {201, -1}};
  for (const auto& [number, result] : rows) {
    EXPECT_EQ(result, Tavix_PntHanTtl(number, L"境界標")) << number;
    EXPECT_EQ(result, Tavix_PntHanTtl(number, L"")) << number;
  }
}

}  // namespace
}  // namespace tavix::test
