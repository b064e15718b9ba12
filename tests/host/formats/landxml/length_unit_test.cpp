#include "host/formats/landxml/length_unit.h"

#include <gtest/gtest.h>

namespace fieldhost {
namespace {

TEST(MetresIn, KnowsTheUnitsOfSurveyFiles) {
  const struct {
    const char* unit;
    double metres;
  } rows[] = {
      {"millimeter", 0.001}, {"centimeter", 0.01},
      {"meter", 1.0},        {"metre", 1.0},
      {" Meter ", 1.0},      {"kilometer", 1000.0},
      {"foot", 0.3048},      {"USSurveyFoot", 0.30480060960121924},
      {"inch", 0.0254},      {"yard", 0.9144},
      {"mile", 1609.344},
  };
  for (const auto& row : rows) {
    ASSERT_TRUE(MetresIn(row.unit)) << row.unit;
    EXPECT_DOUBLE_EQ(row.metres, *MetresIn(row.unit)) << row.unit;
  }
}

TEST(MetresIn, TellsTheSurveyFootFromTheOther) {
  // The northing of a state plane: a metre and a quarter between the two.
  EXPECT_NEAR(1.2192, *MetresIn("USSurveyFoot") * 2e6 - *MetresIn("foot") * 2e6, 0.0001);
}

TEST(MetresIn, KnowsNoOthers) {
  for (const char* unit : {"", "m", "cubit", "meters per second", "USSurveyFoot2"}) {
    EXPECT_FALSE(MetresIn(unit)) << unit;
  }
}

}  // namespace
}  // namespace fieldhost
