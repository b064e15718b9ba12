#include "host/load_report.h"

#include <gtest/gtest.h>

#include <cstddef>

namespace fieldhost {
namespace {

TEST(Summary, CountsWhatThereIs) {
  const struct {
    std::size_t points;
    std::size_t lots;
    std::size_t skipped;
    const char* text;
  } rows[] = {
      {610, 1, 2, "610 points, 1 lot, 2 lines skipped"},
      {1, 0, 0, "1 point"},
      {0, 0, 0, "0 points"},
      {2, 3, 0, "2 points, 3 lots"},
      {2, 0, 1, "2 points, 1 line skipped"},
  };
  for (const auto& row : rows) {
    Survey survey;
    survey.points.resize(row.points);
    survey.lots.resize(row.lots);
    EXPECT_EQ(Summary(survey, row.skipped), row.text);
  }
}

TEST(Sentence, NamesFileAndLine) {
  EXPECT_EQ(Sentence({"site.csv", 12, "the northing 'abc' is not a number"}),
            "site.csv, line 12: the northing 'abc' is not a number.");
}

}  // namespace
}  // namespace fieldhost
