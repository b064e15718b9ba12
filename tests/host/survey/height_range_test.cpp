#include "host/survey/height_range.h"

#include <gtest/gtest.h>

namespace fieldhost {
namespace {

Survey SurveyOf(std::initializer_list<std::optional<double>> heights) {
  Survey survey;
  for (const std::optional<double>& height : heights) {
    survey.points.push_back({0, "p", "", 0, 0, height});
  }
  return survey;
}

TEST(HeightRange, CountsOnlyPointsWithAHeight) {
  const struct {
    Survey survey;
    std::size_t points;
    double lowest;
    double highest;
  } rows[] = {
      {SurveyOf({}), 0, 0, 0},
      {SurveyOf({std::nullopt, std::nullopt}), 0, 0, 0},
      {SurveyOf({12.5, std::nullopt, 10.25, 11}), 3, 10.25, 12.5},
      {SurveyOf({-3, -7}), 2, -7, -3},
      {SurveyOf({0.0}), 1, 0, 0},
  };
  for (const auto& row : rows) {
    HeightRange range;
    range.Include(row.survey);
    EXPECT_EQ(row.points, range.points);
    EXPECT_EQ(row.lowest, range.lowest);
    EXPECT_EQ(row.highest, range.highest);
  }
}

TEST(HeightRange, GrowsWithEachSurvey) {
  HeightRange range;
  range.Include(SurveyOf({5}));
  range.Include(SurveyOf({std::nullopt}));
  range.Include(SurveyOf({9, 4}));
  EXPECT_EQ(3U, range.points);
  EXPECT_EQ(4, range.lowest);
  EXPECT_EQ(9, range.highest);
}

}  // namespace
}  // namespace fieldhost
