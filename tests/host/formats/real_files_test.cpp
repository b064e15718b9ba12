// Survey files that others measured and wrote. They are no part of the project: where they are not
// at hand, these tests say so and skip.

#include <gtest/gtest.h>

#include <vector>

#include "tests/host/formats/real_file.h"

namespace fieldhost {
namespace {

TEST_F(RealFile, RegistryMapOfManyControlPoints) {
  ASSERT_NO_FATAL_FAILURE(Load("moj-registry-map/12103-0400-76.sim"));
  if (IsSkipped()) return;
  ASSERT_EQ(610U, survey.points.size());
  ASSERT_EQ(1U, survey.parcels.size());
  EXPECT_EQ("020100", survey.points[0].name);
  EXPECT_EQ("194-1", survey.parcels[0].name);
  EXPECT_EQ((std::vector<std::size_t>{606, 608, 609, 607}), survey.parcels[0].vertices);
  ExpectExtent(-42737.116, -42104.611, 25739.966, 26695.870);
}

TEST_F(RealFile, RegistryMapOfManyParcels) {
  ASSERT_NO_FATAL_FAILURE(Load("moj-registry-map/46505-3411-1.sim"));
  if (IsSkipped()) return;
  ASSERT_EQ(164U, survey.points.size());
  ASSERT_EQ(8U, survey.parcels.size());
  EXPECT_EQ("2740-1", survey.parcels[0].name);
  EXPECT_EQ(109U, survey.parcels[0].vertices.size());
  EXPECT_EQ("別図-5", survey.parcels[2].name);
  EXPECT_EQ("地区外-43774", survey.parcels[3].name);
  std::size_t vertices = 0;
  for (const SurveyParcel& parcel : survey.parcels) {
    EXPECT_TRUE(parcel.closed);
    vertices += parcel.vertices.size();
  }
  EXPECT_EQ(282U, vertices);
  ExpectExtent(-297829.398, -297229.380, -34617.994, -33817.987);
}

TEST_F(RealFile, PaddedParcelEqualsThePlainOne) {
  ASSERT_NO_FATAL_FAILURE(Load("sima-minimal/lot-446-2.sim"));
  if (IsSkipped()) return;
  const Survey plain = survey;
  ASSERT_NO_FATAL_FAILURE(Load("sima-minimal/lot-446-2-padded.sim"));
  if (IsSkipped()) return;
  ASSERT_EQ(4U, plain.points.size());
  ASSERT_EQ(4U, survey.points.size());
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(plain.points[i].name, survey.points[i].name);
    EXPECT_EQ(plain.points[i].north, survey.points[i].north);
    EXPECT_EQ(plain.points[i].east, survey.points[i].east);
  }
  ASSERT_EQ(1U, survey.parcels.size());
  EXPECT_EQ((std::vector<std::size_t>{3, 2, 1, 0}), survey.parcels[0].vertices);
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
  EXPECT_EQ("基準点", survey.points[0].kind);
  EXPECT_EQ("筆界点", survey.points[163].kind);
}

TEST_F(RealFile, ListOfManyStations) {
  ASSERT_NO_FATAL_FAILURE(Load("os-trig/trig_points_pnezd.csv"));
  if (IsSkipped()) return;
  ASSERT_EQ(21479U, survey.points.size());
  EXPECT_EQ(1, survey.points[0].number);
  EXPECT_EQ("NN96/1 PILLAR", survey.points[0].name);
  EXPECT_EQ(936.345, survey.points[0].height);
  EXPECT_EQ(21479, survey.points[21478].number);
  ExpectExtent(5575.208, 1219690.420, 8710.270, 654131.330);
}

TEST_F(RealFile, TableThatIsNoListOfPointsIsRefused) {
  const std::vector<std::filesystem::path> files = {
      tavix::test::SharedData("clothoid-reference.csv")};
  if (!std::filesystem::exists(files[0])) GTEST_SKIP() << "The real table is not at hand.";
  const LoadedSurvey loaded = LoadSurveyFiles(files);
  EXPECT_FALSE(loaded.survey.HasAnythingToDraw());
  ASSERT_EQ(1U, loaded.refusals.size());
  EXPECT_TRUE(loaded.refusals[0].starts_with(
      "clothoid-reference.csv names no northing and easting in its header, line 1;"))
      << loaded.refusals[0];
}

}  // namespace
}  // namespace fieldhost
