// LandXML files of real designs and surveys. They are no part of the project: where they are not at
// hand, these tests say so and skip.

#include <cmath>
#include <sstream>
#include <string>
#include <vector>

#include "host/formats/survey_formats.h"
#include "host/survey/load_report.h"
#include "tests/figure/curves/table_file.h"
#include "tests/host/formats/real_file.h"
#include "tests/support/project_folder.h"

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
    EXPECT_EQ(row.points, counts.points);
    EXPECT_EQ(row.polylines, counts.polylines);
    EXPECT_EQ(row.alignment_elements, counts.alignment_elements);
    EXPECT_EQ(0U, counts.parcels);
  }
}

TEST_F(RealFile, LampPostsStandWhereTheFileSays) {
  ASSERT_NO_FATAL_FAILURE(Load("inframodel-m3/Lightning_columns.xy.xml"));
  if (IsSkipped()) return;
  ASSERT_EQ(37U, survey.points.size());
  EXPECT_EQ("3036", survey.points[0].name);
  EXPECT_EQ("D2342", survey.points[0].kind);
  EXPECT_EQ(17.4, survey.points[0].height);
  ExpectExtent(6782580.941, 6783120.054, 21530243.302, 21531270.983);
}

TEST_F(RealFile, RockSurveyHasAllVerticesOfItsBreaklines) {
  ASSERT_NO_FATAL_FAILURE(Load("inframodel-m3/M3_Rockbed_survey.mm.xml"));
  if (IsSkipped()) return;
  std::size_t vertices = 0;
  for (const SurveyLine& line : survey.lines) {
    EXPECT_EQ(LineKind::kBreakline, line.kind);
    ASSERT_EQ(1U, line.elements.size());
    vertices += std::get<PlanPolyline>(line.elements[0].at(0)).vertices.size();
  }
  EXPECT_EQ(1107U, vertices);
  EXPECT_EQ("1", survey.lines[0].name);
  EXPECT_EQ("terrain", survey.points[0].kind);
}

TEST_F(RealFile, ManholesHaveTheirRimsAndPipes) {
  ASSERT_NO_FATAL_FAILURE(Load("bsi-unit-test/DrainageSystem-1-1.xml"));
  if (IsSkipped()) return;
  ASSERT_EQ(7U, survey.points.size());
  EXPECT_EQ("10", survey.points[0].name);
  EXPECT_EQ(126.944735, survey.points[0].height);
  EXPECT_EQ(LineKind::kPipe, survey.lines.at(0).kind);
}

TEST_F(RealFile, FeetBecomeMetres) {
  ASSERT_NO_FATAL_FAILURE(Load("bsi-unit-test/PR_Twin_Branch_section_alignment.xml"));
  if (IsSkipped()) return;
  const auto& line = std::get<PlanStraight>(survey.lines.at(0).elements.at(0).at(0));
  EXPECT_NEAR(627930.523989 * kSurveyFoot, line.from.north, 1e-6);
  EXPECT_NEAR(1320681.488589 * kSurveyFoot, line.from.east, 1e-6);
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
    ASSERT_EQ("Spiral", type);
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
  for (TableRow& row : tavix::test::ReadTable(tavix::test::SharedData("curves.csv"))) {
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
    ASSERT_EQ(1U, survey.lines.size()) << file;
    ASSERT_EQ(survey.lines[0].elements.size(), rows.size()) << file;
    for (std::size_t i = 0; i < rows.size(); ++i) {
      SCOPED_TRACE("row " + rows[i].Text("id"));
      ASSERT_EQ(1U, survey.lines[0].elements[i].size());
      ExpectPiece(survey.lines[0].elements[i][0], rows[i]);
      ++compared;
    }
  }
  EXPECT_EQ(49U, compared);
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
      ASSERT_EQ(1U, one.lines.size());
      ASSERT_EQ(1U, one.lines[0].elements.at(0).size());
      ExpectPiece(one.lines[0].elements[0][0], row);
      ++compared;
    }
  }
  if (compared == 0) GTEST_SKIP() << "The table of curves is not at hand.";
  EXPECT_EQ(6U, compared);
}

}  // namespace
}  // namespace fieldhost
