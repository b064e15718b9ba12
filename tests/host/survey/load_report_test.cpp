#include "host/survey/load_report.h"

#include <gtest/gtest.h>

namespace fieldhost {
namespace {

TEST(Summary, CountsWhatThereIs) {
  const struct {
    SurveyCounts counts;
    const char* text;
  } rows[] = {
      {{610, 1, 0, 0, 2, 0}, "610 points, 1 lot, 2 lines skipped"},
      {{1, 0, 0, 0, 0, 0}, "1 point"},
      {{0, 0, 0, 0, 0, 0}, "0 points"},
      {{2, 3, 0, 0, 0, 0}, "2 points, 3 lots"},
      {{2, 0, 0, 0, 1, 0}, "2 points, 1 line skipped"},
      {{0, 0, 67, 15, 0, 0}, "67 polylines, 15 alignment elements"},
      {{0, 0, 1, 0, 0, 1}, "1 polyline, 1 element skipped"},
      {{5, 0, 0, 1, 2, 3}, "5 points, 1 alignment element, 2 lines and 3 elements skipped"},
  };
  for (const auto& row : rows) EXPECT_EQ(row.text, Summary(row.counts));
}

TEST(SurveyCounts, AddUpOverSeveralLoads) {
  LoadedSurvey loaded;
  loaded.survey.points.resize(2);
  loaded.survey.lots.resize(1);
  loaded.skipped_lines = 3;
  loaded.skipped_elements = 4;
  loaded.survey.lines = {{"a", LineKind::kAlignment, {{}, {}}},
                         {"b", LineKind::kBreakline, {{}}},
                         {"c", LineKind::kLot, {{}, {}, {}}}};
  SurveyCounts counts{10, 20, 30, 40, 50, 60};
  counts += CountsOf(loaded);
  EXPECT_EQ(12U, counts.points);
  EXPECT_EQ(22U, counts.lots);
  EXPECT_EQ(31U, counts.polylines);
  EXPECT_EQ(42U, counts.alignment_elements);
  EXPECT_EQ(53U, counts.skipped_lines);
  EXPECT_EQ(64U, counts.skipped_elements);
}

TEST(SurveyCounts, CountRefusedLinesAsSkipped) {
  SurveyCounts counts{10, 20, 30, 40, 50, 60};
  counts.TakeOut({1, 2, 3, 4, 0, 0});
  EXPECT_EQ(9U, counts.points);
  EXPECT_EQ(18U, counts.lots);
  EXPECT_EQ(27U, counts.polylines);
  EXPECT_EQ(36U, counts.alignment_elements);
  EXPECT_EQ(50U, counts.skipped_lines);
  EXPECT_EQ(69U, counts.skipped_elements);
}

TEST(Sentence, NamesFileAndLine) {
  EXPECT_EQ("site.csv, line 12: the northing 'abc' is not a number.",
            Sentence({"site.csv", 12, "the northing 'abc' is not a number"}));
}

TEST(Complaints, TellRefusalsAndThenTheFirstLines) {
  LoadedSurvey loaded;
  EXPECT_EQ("", Complaints(loaded, 8));
  loaded.refusals = {"a.csv is empty; export it again."};
  loaded.diagnostics = {{"b.csv", 1, "bad"}, {"b.csv", 2, "worse"}, {"b.csv", 3, "worst"}};
  loaded.skipped_lines = 7;
  EXPECT_EQ(
      "a.csv is empty; export it again.\n"
      "b.csv, line 1: bad.\nb.csv, line 2: worse.\nb.csv, line 3: worst.\n",
      Complaints(loaded, 3));
  EXPECT_EQ(
      "a.csv is empty; export it again.\n"
      "b.csv, line 1: bad.\n7 lines were skipped in all.\n",
      Complaints(loaded, 1));
  loaded.skipped_elements = 1;
  EXPECT_EQ("a.csv is empty; export it again.\n7 lines and 1 element were skipped in all.\n",
            Complaints(loaded, 0));
}

}  // namespace
}  // namespace fieldhost
