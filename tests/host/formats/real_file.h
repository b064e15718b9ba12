// Survey files that others measured and wrote. They are no part of the project: where they are not
// at hand, tests say so and skip.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

#include "host/survey/survey_loader.h"
#include "tests/support/project_folder.h"

namespace fieldhost {

class RealFile : public testing::Test {
 protected:
  // The file's survey, read without a complaint; skips the test when there is no such file.
  void Load(const char* name) {
    const std::vector<std::filesystem::path> files = {tavix::test::SharedData(name)};
    if (!std::filesystem::exists(files[0])) {
      GTEST_SKIP() << "The real survey file " << name << " is not at hand.";
    }
    const LoadedSurvey loaded = LoadSurveyFiles(files);
    EXPECT_TRUE(loaded.refusals.empty());
    EXPECT_TRUE(loaded.diagnostics.empty());
    EXPECT_EQ(0U, loaded.skipped_lines);
    survey = loaded.survey;
  }

  void ExpectExtent(double north_min, double north_max, double east_min, double east_max) const {
    const auto by_north = std::minmax_element(
        survey.points.begin(), survey.points.end(),
        [](const SurveyPoint& a, const SurveyPoint& b) { return a.north < b.north; });
    const auto by_east = std::minmax_element(
        survey.points.begin(), survey.points.end(),
        [](const SurveyPoint& a, const SurveyPoint& b) { return a.east < b.east; });
    EXPECT_EQ(by_north.first->north, north_min);
    EXPECT_EQ(by_north.second->north, north_max);
    EXPECT_EQ(by_east.first->east, east_min);
    EXPECT_EQ(by_east.second->east, east_max);
  }

  Survey survey;
};

}  // namespace fieldhost
