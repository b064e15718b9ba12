#include "host/survey/load_report.h"

#include <gtest/gtest.h>

namespace fieldhost {
namespace {

TEST(Summary, CountsWhatThereIs) {
  const struct {
    SurveyCounts counts;
    const char* text;
  } rows[] = {
      {{610, 1, 0, 0, 2, 0}, "610 points, 1 parcel, 2 lines skipped"},
      {{1, 0, 0, 0, 0, 0}, "1 point"},
      {{0, 0, 0, 0, 0, 0}, "0 points"},
      {{2, 3, 0, 0, 0, 0}, "2 points, 3 parcels"},
      {{2, 0, 0, 0, 1, 0}, "2 points, 1 line skipped"},
      {{0, 0, 67, 15, 0, 0}, "67 polylines, 15 alignment elements"},
      {{0, 0, 1, 0, 0, 1}, "1 polyline, 1 element skipped"},
      {{5, 0, 0, 1, 2, 3}, "5 points, 1 alignment element, 2 lines and 3 elements skipped"},
  };
  for (const auto& row : rows) EXPECT_EQ(row.text, Summary(row.counts));
}

TEST(CountsOf, CountsAlignmentsByTheirElements) {
  Survey survey;
  survey.points.resize(2);
  survey.parcels.resize(1);
  survey.lines = {{"a", LineKind::kAlignment, {{}, {}}},
                  {"b", LineKind::kBreakline, {{}}},
                  {"c", LineKind::kParcel, {{}, {}, {}}}};
  const SurveyCounts counts = CountsOf(survey);
  EXPECT_EQ(2U, counts.points);
  EXPECT_EQ(2U, counts.parcels);
  EXPECT_EQ(1U, counts.polylines);
  EXPECT_EQ(2U, counts.alignment_elements);
  EXPECT_EQ(0U, counts.skipped_lines);
  EXPECT_EQ(0U, counts.skipped_elements);
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
