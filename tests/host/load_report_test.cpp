#include "host/load_report.h"

#include <gtest/gtest.h>

namespace fieldhost {
namespace {

TEST(Summary, CountsWhatThereIs) {
  const struct {
    SurveyCounts counts;
    const char* text;
  } rows[] = {
      {{610, 1, 2}, "610 points, 1 lot, 2 lines skipped"},
      {{1, 0, 0}, "1 point"},
      {{0, 0, 0}, "0 points"},
      {{2, 3, 0}, "2 points, 3 lots"},
      {{2, 0, 1}, "2 points, 1 line skipped"},
  };
  for (const auto& row : rows) EXPECT_EQ(Summary(row.counts), row.text);
}

TEST(SurveyCounts, AddUpOverSeveralLoads) {
  LoadedSurvey loaded;
  loaded.survey.points.resize(2);
  loaded.survey.lots.resize(1);
  loaded.skipped_lines = 3;
  SurveyCounts counts{10, 20, 30};
  counts += CountsOf(loaded);
  EXPECT_EQ(counts.points, 12U);
  EXPECT_EQ(counts.lots, 21U);
  EXPECT_EQ(counts.skipped_lines, 33U);
}

TEST(Sentence, NamesFileAndLine) {
  EXPECT_EQ(Sentence({"site.csv", 12, "the northing 'abc' is not a number"}),
            "site.csv, line 12: the northing 'abc' is not a number.");
}

TEST(Complaints, TellRefusalsAndThenTheFirstLines) {
  LoadedSurvey loaded;
  EXPECT_EQ(Complaints(loaded, 8), "");
  loaded.refusals = {"a.csv is empty; export it again."};
  loaded.diagnostics = {{"b.csv", 1, "bad"}, {"b.csv", 2, "worse"}, {"b.csv", 3, "worst"}};
  loaded.skipped_lines = 7;
  EXPECT_EQ(Complaints(loaded, 3),
            "a.csv is empty; export it again.\n"
            "b.csv, line 1: bad.\nb.csv, line 2: worse.\nb.csv, line 3: worst.\n");
  EXPECT_EQ(Complaints(loaded, 1),
            "a.csv is empty; export it again.\n"
            "b.csv, line 1: bad.\n7 lines were skipped in all.\n");
}

}  // namespace
}  // namespace fieldhost
