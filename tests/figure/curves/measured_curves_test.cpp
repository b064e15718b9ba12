// Curves of real road designs. They are no part of the project: where the tables are not at hand,
// these tests say so and skip.
#include <gtest/gtest.h>

#include <cmath>

#include "figure/curves/arc.h"
#include "figure/curves/clothoid.h"
#include "tests/figure/curves/same_point.h"
#include "tests/figure/curves/table_file.h"
#include "tests/figure/curves/true_curve.h"
#include "tests/support/project_folder.h"

namespace tavix {
namespace {

using test::TableRow;

constexpr double kDegree = 3.141592653589793 / 180;

class MeasuredCurves : public testing::Test {
 protected:
  void Load(const char* table) {
    rows = test::ReadTable(test::SharedData(table));
    if (rows.empty()) GTEST_SKIP() << "The table " << table << " is not at hand.";
  }

  std::vector<TableRow> rows;
};

GroundPoint Start(const TableRow& row) { return {row.Number("start_x"), row.Number("start_y")}; }
GroundPoint End(const TableRow& row) { return {row.Number("end_x"), row.Number("end_y")}; }

// The arc itself from `start`, turning by `turn` radians about a centre that lies to the right of
// the way for a positive radius.
std::vector<GroundPoint> TrueArc(GroundPoint start, GroundPoint end, double r, double turn) {
  const double chord = std::atan2(end.east - start.east, end.north - start.north);
  const double side = r < 0 ? -1.0 : 1.0;
  std::vector<GroundPoint> points;
  for (int i = 0; i <= 1000; ++i) {
    const double swept = turn * i / 1000;
    const double reach = 2 * std::fabs(r) * std::sin(swept / 2);
    const double azimuth = chord + side * (swept - turn) / 2;
    points.push_back(
        {start.north + reach * std::cos(azimuth), start.east + reach * std::sin(azimuth)});
  }
  return points;
}

TEST_F(MeasuredCurves, AnArcKeepsWithinTheHeightOfAChordOfFiveDegrees) {
  ASSERT_NO_FATAL_FAILURE(Load("curves.csv"));
  if (IsSkipped()) return;
  int arcs = 0;
  for (const TableRow& row : rows) {
    if (row.Text("type") != "Curve") continue;
    SCOPED_TRACE("row " + row.Text("id"));
    const double r = row.NumberAfter("signed_radius_hint", "r");
    const Polyline arc = BuildArc(Start(row), End(row), r);
    ASSERT_GE(arc.size(), 2U);
    EXPECT_EQ(arc.front(), r < 0 ? End(row) : Start(row));
    EXPECT_EQ(arc.back(), r < 0 ? Start(row) : End(row));
    const double turn = row.Number("turn_deg") * kDegree;
    EXPECT_NEAR(std::floor(turn / (5 * kDegree)), static_cast<double>(arc.size() - 2), 1);
    // A millimetre for the table's decimals.
    const double height = std::fabs(r) * (1 - std::cos(2.5 * kDegree)) + 0.001;
    for (const GroundPoint p : TrueArc(Start(row), End(row), r, turn)) {
      ASSERT_LE(test::DistanceTo(arc, p), height) << p.north << ' ' << p.east;
    }
    ++arcs;
  }
  EXPECT_GT(arcs, 0);
}

TEST_F(MeasuredCurves, ASpiralKeepsWithinThreeMillimetresOfTheCurve) {
  ASSERT_NO_FATAL_FAILURE(Load("curves.csv"));
  if (IsSkipped()) return;
  int spirals = 0;
  for (const TableRow& row : rows) {
    if (row.Text("type") != "Spiral") continue;
    SCOPED_TRACE("row " + row.Text("id"));
    const double r1 = row.NumberAfter("signed_radius_hint", "R1");
    const double a = row.NumberAfter("signed_radius_hint", "A");
    const double r2 = row.NumberAfter("signed_radius_hint", "R2");
    const Polyline curve = BuildClothoid(Start(row), End(row), r1, a, r2);
    ASSERT_GT(curve.size(), 2U);
    const std::vector<GroundPoint> true_curve = test::TrueClothoid(Start(row), End(row), r1, a, r2);
    for (const GroundPoint p : curve) {
      EXPECT_LE(test::DistanceTo(true_curve, p), 0.003) << p.north << ' ' << p.east;
    }
    ++spirals;
  }
  EXPECT_GT(spirals, 0);
}

TEST_F(MeasuredCurves, AClothoidsLocalPointsAreThoseOfTheTables) {
  ASSERT_NO_FATAL_FAILURE(Load("clothoid-reference.csv"));
  if (IsSkipped()) return;
  for (const TableRow& row : rows) {
    SCOPED_TRACE(row.Text("case"));
    const double a = row.Number("A");
    for (const char* end : {"1", "2"}) {
      const std::string number = end;
      const double tau = row.Number("tau" + number + "_rad");
      const GroundPoint point = ClothoidPoint(tau, a);
      EXPECT_NEAR(point.north, row.Number("X" + number + "_four_term"), 2e-6) << tau;
      EXPECT_NEAR(point.east, row.Number("Y" + number + "_four_term"), 2e-6) << tau;
      if (tau > 1) continue;
      EXPECT_NEAR(point.north, row.Number("X" + number + "_exact"), 0.001) << tau;
      EXPECT_NEAR(point.east, row.Number("Y" + number + "_exact"), 0.001) << tau;
    }
  }
}

}  // namespace
}  // namespace tavix
