// LandXML files of real designs and surveys. They are no part of the project: where they are not at
// hand, these tests say so and skip.

#include <cmath>
#include <sstream>
#include <string>
#include <vector>

#include "host/readers/survey_formats.h"
#include "host/survey_counts.h"
#include "tests/figure/table_file.h"
#include "tests/host/readers/real_file.h"

namespace fieldhost {
namespace {

using tavix::test::TableRow;

constexpr double kSurveyFoot = 1200.0 / 3937.0;

TEST_F(RealFile, HoldsWhatItsTagsCount) {
  const struct {
    const char* file;
    std::size_t points;
    std::size_t polylines;
    std::size_t alignment_elements;
  } rows[] = {
      {"bsi-unit-test/UT-Alignment-Aplitop-1.xml", 0, 0, 15},
      {"bsi-unit-test/TOI-M14334-0000A.XML", 0, 0, 7},
      {"bsi-unit-test/TOI-Y3-0000A.XML", 0, 0, 1},
      {"bsi-unit-test/PR_Twin_Branch_section_alignment.xml", 0, 0, 3},
      {"bsi-unit-test/DrainageSystem-1-1.xml", 7, 6, 0},
      {"inframodel-m3/Lightning_columns.xy.xml", 37, 0, 0},
      {"inframodel-m3/M3_RS-CL.tg.xml", 0, 0, 15},
      {"inframodel-m3/M3_Rockbed_survey.mm.xml", 988, 67, 0},
      {"inframodel-m3/Y10_RS-CL.tg.xml", 0, 0, 3},
      {"inframodel-m3/Y11_RS-CL.tg.xml", 0, 0, 5},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.file);
    ASSERT_NO_FATAL_FAILURE(Load(row.file));
    if (IsSkipped()) return;
    const SurveyCounts counts = CountsOf(survey);
    EXPECT_EQ(counts.points, row.points);
    EXPECT_EQ(counts.polylines, row.polylines);
    EXPECT_EQ(counts.alignment_elements, row.alignment_elements);
    EXPECT_EQ(counts.lots, 0U);
  }
}

TEST_F(RealFile, LampPostsStandWhereTheFileSays) {
  ASSERT_NO_FATAL_FAILURE(Load("inframodel-m3/Lightning_columns.xy.xml"));
  if (IsSkipped()) return;
  ASSERT_EQ(survey.points.size(), 37U);
  EXPECT_EQ(survey.points[0].name, "3036");
  EXPECT_EQ(survey.points[0].kind, "D2342");
  EXPECT_EQ(survey.points[0].height, 17.4);
  ExpectExtent(6782580.941, 6783120.054, 21530243.302, 21531270.983);
}

TEST_F(RealFile, RockSurveyHasAllVerticesOfItsBreaklines) {
  ASSERT_NO_FATAL_FAILURE(Load("inframodel-m3/M3_Rockbed_survey.mm.xml"));
  if (IsSkipped()) return;
  std::size_t vertices = 0;
  for (const SurveyLine& line : survey.lines) {
    EXPECT_EQ(line.kind, LineKind::kBreakline);
    ASSERT_EQ(line.elements.size(), 1U);
    vertices += std::get<PlanPolyline>(line.elements[0].at(0)).vertices.size();
  }
  EXPECT_EQ(vertices, 1107U);
  EXPECT_EQ(survey.lines[0].name, "1");
  EXPECT_EQ(survey.points[0].kind, "terrain");
}

TEST_F(RealFile, ManholesHaveTheirRimsAndPipes) {
  ASSERT_NO_FATAL_FAILURE(Load("bsi-unit-test/DrainageSystem-1-1.xml"));
  if (IsSkipped()) return;
  ASSERT_EQ(survey.points.size(), 7U);
  EXPECT_EQ(survey.points[0].name, "10");
  EXPECT_EQ(survey.points[0].height, 126.944735);
  EXPECT_EQ(survey.lines.at(0).kind, LineKind::kPipe);
}

TEST_F(RealFile, FeetBecomeMetres) {
  ASSERT_NO_FATAL_FAILURE(Load("bsi-unit-test/PR_Twin_Branch_section_alignment.xml"));
  if (IsSkipped()) return;
  const auto& line = std::get<PlanStraight>(survey.lines.at(0).elements.at(0).at(0));
  EXPECT_NEAR(line.from.north, 627930.523989 * kSurveyFoot, 1e-6);
  EXPECT_NEAR(line.from.east, 1320681.488589 * kSurveyFoot, 1e-6);
}

// A piece is what the table says of it, its lengths in the table's unit.
void ExpectPiece(const PlanPiece& piece, const TableRow& row) {
  const double metres = row.Text("unit") == "usft" ? kSurveyFoot : 1.0;
  const auto near = [&](double value, double expected) {
    EXPECT_NEAR(value, expected * metres, 2e-5);
  };
  const auto ends = [&](const auto& element) {
    near(element.from.north, row.Number("start_x"));
    near(element.from.east, row.Number("start_y"));
    near(element.to.north, row.Number("end_x"));
    near(element.to.east, row.Number("end_y"));
  };
  const std::string& type = row.Text("type");
  if (type == "Line") {
    ASSERT_TRUE(std::holds_alternative<PlanStraight>(piece));
    ends(std::get<PlanStraight>(piece));
  } else if (type == "Curve") {
    ASSERT_TRUE(std::holds_alternative<PlanArc>(piece));
    ends(std::get<PlanArc>(piece));
    near(std::get<PlanArc>(piece).radius, row.NumberAfter("signed_radius_hint", "r"));
  } else {
    ASSERT_EQ(type, "Spiral");
    ASSERT_TRUE(std::holds_alternative<PlanClothoid>(piece));
    const auto& clothoid = std::get<PlanClothoid>(piece);
    ends(clothoid);
    near(clothoid.start_radius, row.NumberAfter("signed_radius_hint", "R1"));
    near(clothoid.parameter, row.NumberAfter("signed_radius_hint", "A"));
    near(clothoid.end_radius, row.NumberAfter("signed_radius_hint", "R2"));
  }
}

std::vector<TableRow> RowsOf(const std::string& source) {
  std::vector<TableRow> rows;
  for (TableRow& row :
       tavix::test::ReadTable(std::filesystem::path(TAVIX_SHARED_DATA) / "curves.csv")) {
    if (row.Text("source") == source) rows.push_back(std::move(row));
  }
  return rows;
}

TEST_F(RealFile, ElementsHaveTheRadiiTheyAreDrawnWith) {
  std::size_t compared = 0;
  for (const char* file :
       {"bsi-unit-test/UT-Alignment-Aplitop-1.xml", "bsi-unit-test/TOI-M14334-0000A.XML",
        "bsi-unit-test/TOI-Y3-0000A.XML", "bsi-unit-test/PR_Twin_Branch_section_alignment.xml",
        "inframodel-m3/M3_RS-CL.tg.xml", "inframodel-m3/Y10_RS-CL.tg.xml",
        "inframodel-m3/Y11_RS-CL.tg.xml"}) {
    ASSERT_NO_FATAL_FAILURE(Load(file));
    if (IsSkipped()) return;
    const std::vector<TableRow> rows = RowsOf(file);
    ASSERT_EQ(survey.lines.size(), 1U) << file;
    ASSERT_EQ(survey.lines[0].elements.size(), rows.size()) << file;
    for (std::size_t i = 0; i < rows.size(); ++i) {
      SCOPED_TRACE("row " + rows[i].Text("id"));
      ASSERT_EQ(survey.lines[0].elements[i].size(), 1U);
      ExpectPiece(survey.lines[0].elements[i][0], rows[i]);
      ++compared;
    }
  }
  EXPECT_EQ(compared, 49U);
}

// The elements of designs that came in another format, written down as LandXML has them.
std::string ElementOf(const TableRow& row) {
  const std::string& type = row.Text("type");
  std::ostringstream xml;
  xml << "<LandXML><CoordGeom><" << type << " length=\"" << row.Text("length") << "\" rot=\""
      << row.Text("rotation") << "\" radius=\"" << row.Text("radius_start") << "\" radiusStart=\""
      << row.Text("radius_start") << "\" radiusEnd=\"" << row.Text("radius_end")
      << "\" spiType=\"clothoid\"><Start>" << row.Text("start_x") << ' ' << row.Text("start_y")
      << "</Start><End>" << row.Text("end_x") << ' ' << row.Text("end_y") << "</End></" << type
      << "></CoordGeom></LandXML>";
  return xml.str();
}

TEST_F(RealFile, ElementsOfOtherFormatsHaveTheirRadiiToo) {
  std::size_t compared = 0;
  for (const char* source :
       {"bsi-unit-test/Alignment-12d-11.ifc", "bsi-unit-test/Alignment-ACCA-2.ifc"}) {
    for (const TableRow& row : RowsOf(source)) {
      SCOPED_TRACE("row " + row.Text("id"));
      ReadLog log("one.xml");
      const Survey one = ReadSurvey("one.xml", ElementOf(row), log);
      ASSERT_EQ(one.lines.size(), 1U);
      ASSERT_EQ(one.lines[0].elements.at(0).size(), 1U);
      ExpectPiece(one.lines[0].elements[0][0], row);
      ++compared;
    }
  }
  if (compared == 0) GTEST_SKIP() << "The table of curves is not at hand.";
  EXPECT_EQ(compared, 6U);
}

}  // namespace
}  // namespace fieldhost
