#include "store/symbols.h"

#include <gtest/gtest.h>

#include <limits>

namespace tavix {
namespace {

using enum LabelContent;

constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

TEST(PointSymbols, AreDecodedWithTheirSizesHeldToWhatIsDrawn) {
  const struct {
    const char* what;
    LegendValues values;
    PointSymbol symbol;
  } rows[] = {{"nothing", {}, {0, 0, 0, kName, {0, 0}}},
              {"by name", {3, 11, 12, 0, 2, 0xAABBCC}, {3, 11, 12, kName, {2, 0xAABBCC}}},
              {"by number", {3, 11, 12, 1, 2, 255}, {3, 11, 12, kNumber, {2, 255}}},
              {"any value asks for the number", {1, 1, 1, -7, 1, 0}, {1, 1, 1, kNumber, {1, 0}}},
              {"the largest", {8, 100, 100, 0, 100, -1}, {8, 100, 100, kName, {100, -1}}},
              {"beyond", {8, 101, kMost, 0, 32767, kMost}, {8, 100, 100, kName, {100, kMost}}},
              {"negative", {-2, -5, -6, 0, -7, -8}, {-2, -5, -6, kName, {-7, -8}}},
              {"far below",
               {kLeast, -101, kLeast, kLeast, kLeast, kLeast},
               {kLeast, -100, -100, kNumber, {-100, kLeast}}},
              {"a line legend", {104, 4, 2, 2, 1, 255}, {104, 4, 2, kNumber, {1, 255}}}};
  for (const auto& row : rows) EXPECT_EQ(row.symbol, Decode<PointSymbol>(row.values)) << row.what;
}

// A pattern has lengths without a limit.
TEST(LineSymbols, AreDecodedWithTheirPenHeldToWhatIsDrawn) {
  const struct {
    const char* what;
    LegendValues values;
    LineSymbol symbol;
  } rows[] = {
      {"nothing", {}, {0, 0, 0, 0, {0, 0}}},
      {"a pattern", {105, 9, 8, 7, 2, 255}, {105, 9, 8, 7, {2, 255}}},
      {"beyond", {102, kMost, kLeast, 101, kMost, kMost}, {102, kMost, kLeast, 101, {100, kMost}}},
      {"far below", {kLeast, 0, 0, 0, kLeast, kLeast}, {kLeast, 0, 0, 0, {-100, kLeast}}},
      {"a point legend", {2, 10, 12, 1, 1, 0}, {2, 10, 12, 1, {1, 0}}}};
  for (const auto& row : rows) EXPECT_EQ(row.symbol, Decode<LineSymbol>(row.values)) << row.what;
}

TEST(LegendValues, TakeAnotherMarkSizeAndLabelAndKeepTheRest) {
  LegendValues values{55, 1, 2, -3, 500, kLeast};
  values.SetMarkAndLabel(20, 14, kNumber);
  EXPECT_EQ((LegendValues{55, 20, 14, 1, 500, kLeast}), values);
  values.SetMarkAndLabel(0, 6, kName);
  EXPECT_EQ((LegendValues{55, 0, 6, 0, 500, kLeast}), values);
}

}  // namespace
}  // namespace tavix
