// Survey files that others measured and wrote. They are no part of the project: where they are not
// at hand, these tests say so and skip.

#include <gtest/gtest.h>

#include <vector>

#include "tests/host/readers/real_file.h"

namespace fieldhost {
namespace {

TEST_F(RealFile, RegistryMapOfManyControlPoints) {
  ASSERT_NO_FATAL_FAILURE(Load("moj-registry-map/12103-0400-76.sim"));
  if (IsSkipped()) return;
  ASSERT_EQ(survey.points.size(), 610U);
  ASSERT_EQ(survey.lots.size(), 1U);
  EXPECT_EQ(survey.points[0].name, "020100");
  EXPECT_EQ(survey.lots[0].name, "194-1");
  EXPECT_EQ(survey.lots[0].corners, (std::vector<std::size_t>{606, 608, 609, 607}));
  ExpectExtent(-42737.116, -42104.611, 25739.966, 26695.870);
}

TEST_F(RealFile, RegistryMapOfManyLots) {
  ASSERT_NO_FATAL_FAILURE(Load("moj-registry-map/46505-3411-1.sim"));
  if (IsSkipped()) return;
  ASSERT_EQ(survey.points.size(), 164U);
  ASSERT_EQ(survey.lots.size(), 8U);
  EXPECT_EQ(survey.lots[0].name, "2740-1");
  EXPECT_EQ(survey.lots[0].corners.size(), 109U);
  EXPECT_EQ(survey.lots[2].name, "別図-5");
  EXPECT_EQ(survey.lots[3].name, "地区外-43774");
  std::size_t corners = 0;
  for (const SurveyLot& lot : survey.lots) {
    EXPECT_TRUE(lot.closed);
    corners += lot.corners.size();
  }
  EXPECT_EQ(corners, 282U);
  ExpectExtent(-297829.398, -297229.380, -34617.994, -33817.987);
}

TEST_F(RealFile, PaddedLotEqualsThePlainOne) {
  ASSERT_NO_FATAL_FAILURE(Load("sima-minimal/lot-446-2.sim"));
  if (IsSkipped()) return;
  const Survey plain = survey;
  ASSERT_NO_FATAL_FAILURE(Load("sima-minimal/lot-446-2-padded.sim"));
  if (IsSkipped()) return;
  ASSERT_EQ(plain.points.size(), 4U);
  ASSERT_EQ(survey.points.size(), 4U);
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(survey.points[i].name, plain.points[i].name);
    EXPECT_EQ(survey.points[i].north, plain.points[i].north);
    EXPECT_EQ(survey.points[i].east, plain.points[i].east);
  }
  ASSERT_EQ(survey.lots.size(), 1U);
  EXPECT_EQ(survey.lots[0].corners, (std::vector<std::size_t>{3, 2, 1, 0}));
}

TEST_F(RealFile, ListWithAHeaderEqualsTheSimaFile) {
  ASSERT_NO_FATAL_FAILURE(Load("moj-registry-map/46505-3411-1.sim"));
  if (IsSkipped()) return;
  const Survey sima = survey;
  ASSERT_NO_FATAL_FAILURE(Load("moj-registry-map/46505-3411-1.points.csv"));
  if (IsSkipped()) return;
  ASSERT_EQ(survey.points.size(), sima.points.size());
  for (std::size_t i = 0; i < survey.points.size(); ++i) {
    EXPECT_EQ(survey.points[i].number, sima.points[i].number);
    EXPECT_EQ(survey.points[i].name, sima.points[i].name);
    EXPECT_EQ(survey.points[i].north, sima.points[i].north);
    EXPECT_EQ(survey.points[i].east, sima.points[i].east);
  }
  EXPECT_EQ(survey.points[0].kind, "基準点");
  EXPECT_EQ(survey.points[163].kind, "筆界点");
}

TEST_F(RealFile, ListOfManyStations) {
  ASSERT_NO_FATAL_FAILURE(Load("os-trig/trig_points_pnezd.csv"));
  if (IsSkipped()) return;
  ASSERT_EQ(survey.points.size(), 21479U);
  EXPECT_EQ(survey.points[0].number, 1);
  EXPECT_EQ(survey.points[0].name, "NN96/1 PILLAR");
  EXPECT_EQ(survey.points[0].height, 936.345);
  EXPECT_EQ(survey.points[21478].number, 21479);
  ExpectExtent(5575.208, 1219690.420, 8710.270, 654131.330);
}

TEST_F(RealFile, TableThatIsNoListOfPointsIsRefused) {
  const std::vector<std::filesystem::path> files = {std::filesystem::path(TAVIX_SHARED_DATA) /
                                                    "clothoid-reference.csv"};
  if (!std::filesystem::exists(files[0])) GTEST_SKIP() << "The real table is not at hand.";
  const LoadedSurvey loaded = LoadSurveyFiles(files);
  EXPECT_FALSE(loaded.survey.HasAnythingToDraw());
  ASSERT_EQ(loaded.refusals.size(), 1U);
  EXPECT_TRUE(loaded.refusals[0].starts_with(
      "clothoid-reference.csv names no northing and easting in its header, line 1;"))
      << loaded.refusals[0];
}

}  // namespace
}  // namespace fieldhost
