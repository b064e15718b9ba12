#include "host/formats/landxml/landxml_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "host/formats/survey_formats.h"

namespace fieldhost {
namespace {

struct Read {
  Survey survey;
  ReadLog log{"site.xml"};
};

Read ReadFile(std::string_view bytes, std::string_view name = "site.xml") {
  Read read;
  read.survey = ReadSurvey(name, bytes, read.log);
  return read;
}

// In metres, on line 1.
Read ReadInside(std::string_view elements) {
  return ReadFile("<LandXML><Units><Metric linearUnit=\"meter\"/></Units>" + std::string(elements) +
                  "</LandXML>");
}

Read ReadGeometry(std::string_view elements) {
  return ReadInside("<Alignments><Alignment name=\"A\"><CoordGeom>" + std::string(elements) +
                    "</CoordGeom></Alignment></Alignments>");
}

const PlanPiece& OnlyPiece(const Read& read) {
  static const PlanPiece none = PlanPolyline();
  EXPECT_EQ(0U, read.log.SkippedElements());
  for (const Diagnostic& one : read.log.Diagnostics()) ADD_FAILURE() << one.sentence;
  if (read.survey.lines.size() != 1 || read.survey.lines[0].elements.size() != 1 ||
      read.survey.lines[0].elements[0].size() != 1) {
    ADD_FAILURE() << "not one piece";
    return none;
  }
  return read.survey.lines[0].elements[0][0];
}

TEST(LandXmlReader, ReadsPoints) {
  const Read read = ReadInside(
      "<CgPoints desc=\"group\"><CgPoints code=\"D2\">"
      "<CgPoint name=\"3036\" code=\"D2342\">6783020.064 21530666.426 17.4</CgPoint>"
      "<CgPoint name=\" P 7 \" desc=\"tree\">\n 1.5\t-2.5 \n</CgPoint>"
      "<CgPoint>1 2</CgPoint></CgPoints>"
      "<CgPoint name=\"8\">3 4</CgPoint><CgPoints/></CgPoints>");
  EXPECT_EQ(0U, read.log.SkippedElements());
  const std::vector<SurveyPoint>& points = read.survey.points;
  ASSERT_EQ(4U, points.size());
  EXPECT_EQ(3036, points[0].number);
  EXPECT_EQ("3036", points[0].name);
  EXPECT_EQ("D2342", points[0].kind);
  EXPECT_EQ(6783020.064, points[0].north);
  EXPECT_EQ(21530666.426, points[0].east);
  EXPECT_EQ(17.4, points[0].height);
  EXPECT_EQ(0, points[1].number);
  EXPECT_EQ("P 7", points[1].name);
  EXPECT_EQ("tree", points[1].kind);
  EXPECT_EQ(-2.5, points[1].east);
  EXPECT_FALSE(points[1].height);
  EXPECT_EQ("-", points[2].name);
  EXPECT_EQ("D2", points[2].kind);
  EXPECT_EQ("group", points[3].kind);
}

TEST(LandXmlReader, FollowsReferencesToPoints) {
  const Read read = ReadInside(
      "<CgPoints><CgPoint name=\"a\" pntRef=\"b\"/><CgPoint name=\"b\" pntRef=\"c\"> </CgPoint>"
      "<CgPoint name=\"c\">1 2 3</CgPoint><CgPoint name=\"c\">7 7</CgPoint></CgPoints>"
      "<Alignment><CoordGeom><Line><Start pntRef=\"a\"/><End>4 5</End></Line></CoordGeom>"
      "</Alignment>");
  EXPECT_EQ(0U, read.log.SkippedElements());
  ASSERT_EQ(4U, read.survey.points.size());
  EXPECT_EQ(1.0, read.survey.points[0].north);
  EXPECT_EQ(3.0, read.survey.points[0].height);
  ASSERT_EQ(1U, read.survey.lines.size());
  const auto& line = std::get<PlanStraight>(OnlyPiece(read));
  EXPECT_EQ((GroundPosition{1.0, 2.0}), line.from);
  EXPECT_EQ((GroundPosition{4.0, 5.0}), line.to);
}

TEST(LandXmlReader, ConvertsUnits) {
  const struct {
    const char* units;
    double metres;
  } rows[] = {
      {"", 1.0},
      {"<Units/>", 1.0},
      {"<Units><Metric/></Units>", 1.0},
      {"<Units><Metric linearUnit=\"millimeter\"/></Units>", 0.001},
      {"<Units><Imperial/></Units>", 0.3048},
      {"<Units><Imperial linearUnit=\"foot\"/></Units>", 0.3048},
      {"<Units><Imperial linearUnit=\"USSurveyFoot\"/></Units>", 1200.0 / 3937.0},
      {"<x:Units xmlns:x=\"urn:x\"><x:Metric linearUnit=\"kilometer\"/></x:Units>", 1000.0},
  };
  for (const auto& row : rows) {
    // Wherever they stand.
    const Read read = ReadFile(
        "<LandXML><CgPoints><CgPoint name=\"1\">10 20 30</CgPoint></CgPoints>" +
        std::string(row.units) +
        "<Alignment><CoordGeom><Curve rot=\"cw\" radius=\"10\"><Start>0 0</Start><End>10 10</End>"
        "</Curve></CoordGeom></Alignment></LandXML>");
    ASSERT_EQ(1U, read.survey.points.size()) << row.units;
    EXPECT_DOUBLE_EQ(read.survey.points[0].north, 10 * row.metres) << row.units;
    EXPECT_DOUBLE_EQ(*read.survey.points[0].height, 30 * row.metres) << row.units;
    const auto& arc = std::get<PlanArc>(OnlyPiece(read));
    EXPECT_DOUBLE_EQ(arc.radius, 10 * row.metres) << row.units;
    EXPECT_DOUBLE_EQ(arc.to.east, 10 * row.metres) << row.units;
  }
}

TEST(LandXmlReader, ReadsLinesOfEachKind) {
  const struct {
    const char* what;
    const char* elements;
    LineKind kind;
    std::size_t vertices;
  } rows[] = {
      {"a breakline",
       "<Surfaces><Surface name=\"s\"><SourceData><Breaklines><Breakline name=\"L\">"
       "<PntList3D>1 2 3 4 5 6</PntList3D></Breakline></Breaklines></SourceData></Surface>"
       "</Surfaces>",
       LineKind::kBreakline, 2},
      {"a breakline without heights",
       "<Breakline name=\"L\"><PntList2D>1 2 3 4 5 6</PntList2D></Breakline>", LineKind::kBreakline,
       3},
      {"a plan's feature",
       "<PlanFeatures><PlanFeature name=\"L\"><CoordGeom><IrregularLine><Start>1 2</Start>"
       "<End>5 6</End><PntList2D>1 2 3 4</PntList2D></IrregularLine></CoordGeom></PlanFeature>"
       "</PlanFeatures>",
       LineKind::kFeature, 3},
      {"a feature of points with names",
       "<CgPoints><CgPoint name=\"a\">1 2</CgPoint><CgPoint name=\"b\">3 4</CgPoint></CgPoints>"
       "<PlanFeature name=\"L\"><CoordGeom><Chain>a b\n a</Chain></CoordGeom></PlanFeature>",
       LineKind::kFeature, 3},
      {"a contour", "<Contour name=\"L\" elev=\"5\"><PntList2D>1 2 3 4</PntList2D></Contour>",
       LineKind::kContour, 2},
      {"a surface's edge", "<Boundary name=\"L\"><PntList3D>1 2 3 4 5 6</PntList3D></Boundary>",
       LineKind::kBoundary, 2},
      {"a parcel",
       "<Parcel name=\"L\"><CoordGeom><IrregularLine><Start>1 2</Start><End>1 2</End>"
       "<PntList2D>3 4 5 6</PntList2D></IrregularLine></CoordGeom></Parcel>",
       LineKind::kParcel, 4},
      {"any other list", "<Thing><PntList2D>1 2 3 4</PntList2D></Thing>", LineKind::kOther, 2},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    const Read read = ReadInside(row.elements);
    const auto* line = std::get_if<PlanPolyline>(&OnlyPiece(read));
    ASSERT_TRUE(line);
    EXPECT_EQ(row.kind, read.survey.lines[0].kind);
    EXPECT_EQ(read.survey.lines[0].name, row.kind == LineKind::kOther ? "" : "L");
    ASSERT_EQ(row.vertices, line->vertices.size());
    EXPECT_EQ((GroundPosition{1.0, 2.0}), line->vertices[0]);
  }
}

TEST(LandXmlReader, ReadsTerrainPointsAsPointsAndNotAsALine) {
  const Read read =
      ReadInside("<DataPoints name=\"190\"><PntList3D>1 2 3 4 5 6</PntList3D></DataPoints>");
  EXPECT_TRUE(read.survey.lines.empty());
  ASSERT_EQ(2U, read.survey.points.size());
  EXPECT_EQ("terrain", read.survey.points[1].kind);
  EXPECT_EQ(2, read.survey.points[1].number);
  EXPECT_EQ("190", read.survey.points[1].name);
  EXPECT_EQ(6.0, read.survey.points[1].height);
}

TEST(LandXmlReader, ReadsManholesAndThePipesBetweenThem) {
  const Read read = ReadInside(
      "<PipeNetwork><Pipes><Pipe name=\"p\" refStart=\"1\" refEnd=\"2\"/></Pipes><Structs>"
      "<Struct name=\"1\" elevRim=\"12.5\"><Center>1 2</Center></Struct>"
      "<Struct name=\"2\"><Center>3 4 5</Center></Struct></Structs></PipeNetwork>");
  ASSERT_EQ(2U, read.survey.points.size());
  EXPECT_EQ("manhole", read.survey.points[0].kind);
  EXPECT_EQ(12.5, read.survey.points[0].height);
  EXPECT_EQ(5.0, read.survey.points[1].height);
  const auto& line = std::get<PlanStraight>(OnlyPiece(read));
  EXPECT_EQ(LineKind::kPipe, read.survey.lines[0].kind);
  EXPECT_EQ((GroundPosition{3.0, 4.0}), line.to);
}

TEST(LandXmlReader, LeavesOutWhatIsNoPlaceInPlan) {
  const Read read = ReadInside(
      "<Alignment><Profile><ProfSurf><PntList2D>0 5 10 6</PntList2D></ProfSurf></Profile>"
      "<CrossSects><CrossSect><PntList2D>1 2 3 4</PntList2D></CrossSect></CrossSects></Alignment>"
      "<Surface><Definition><Pnts><P id=\"1\">1 2 3</P></Pnts></Definition></Surface>"
      "<CgPoints><CgPoint name=\"1\">1 2</CgPoint></CgPoints>");
  EXPECT_EQ(1U, read.survey.points.size());
  EXPECT_TRUE(read.survey.lines.empty());
  EXPECT_EQ(0U, read.log.SkippedElements());
}

// Radii and centres of a quarter circle about (0, 0) from (10, 0), north, to (0, 10), east; and of
// the three quarters the other way.
TEST(LandXmlReader, ReadsCurvesByTheirRotation) {
  const std::string ends = "<Start>10 0</Start><End>0 10</End>";
  const struct {
    const char* what;
    std::string element;
    std::size_t pieces;
    double radius;
  } rows[] = {
      {"clockwise", "<Curve rot=\"cw\" radius=\"10\">" + ends + "<Center>0 0</Center></Curve>", 1,
       10.0},
      {"three quarters counterclockwise",
       "<Curve rot=\"ccw\" radius=\"10\">" + ends + "<Center>0 0</Center></Curve>", 2, -10.0},
      {"with its length",
       "<Curve rot=\"ccw\" radius=\"10\" length=\"47.1239\">" + ends +
           "<Center>0 0</Center></Curve>",
       2, -10.0},
      {"without a radius", "<Curve rot=\"cw\">" + ends + "<Center>0 0</Center></Curve>", 1, 10.0},
      {"without a centre, the shorter", "<Curve rot=\"ccw\" radius=\"10\">" + ends + "</Curve>", 1,
       -10.0},
      {"without a centre, the longer by its length",
       "<Curve rot=\"ccw\" radius=\"10\" length=\"47.124\">" + ends + "</Curve>", 2, -10.0},
      {"half a circle",
       "<Curve rot=\"CW\" radius=\"10\"><Start>10 0</Start><End>-10 0</End><Center>0 0</Center>"
       "</Curve>",
       2, 10.0},
      {"a full circle",
       "<Curve rot=\"cw\" radius=\"10\" length=\"62.8319\"><Start>10 0</Start><End>10 0</End>"
       "<Center>0 0</Center></Curve>",
       3, 10.0},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    const Read read = ReadGeometry(row.element);
    ASSERT_EQ(1U, read.survey.lines.size());
    ASSERT_EQ(1U, read.survey.lines[0].elements.size());
    const PlanElement& arcs = read.survey.lines[0].elements[0];
    EXPECT_EQ(row.pieces, arcs.size());
    for (const PlanPiece& piece : arcs) {
      ASSERT_TRUE(std::holds_alternative<PlanArc>(piece));
      EXPECT_NEAR(row.radius, std::get<PlanArc>(piece).radius, 1e-9);
    }
  }
}

// A clothoid of 100 m from straight to a radius of 300 m ends at (99.7226, 5.5445) in its own axes.
TEST(LandXmlReader, ReadsSpirals) {
  const struct {
    const char* what;
    const char* element;
    double start_radius;
    double end_radius;
  } rows[] = {
      {"in, to the right",
       "<Spiral spiType=\"clothoid\" rot=\"cw\" radiusStart=\"INF\" radiusEnd=\"300\" "
       "length=\"100\"><Start>0 0</Start><PI>66.7 0</PI><End>99.7226 5.5445</End></Spiral>",
       0.0, 300.0},
      {"in, to the left",
       "<Spiral spiType=\"Clothoid\" rot=\"ccw\" radiusStart=\"INF\" radiusEnd=\"300\" "
       "length=\"100\"><Start>0 0</Start><PI>66.7 0</PI><End>99.7226 -5.5445</End></Spiral>",
       0.0, -300.0},
      {"out, to the left on the way back",
       "<Spiral rot=\"ccw\" radiusStart=\"300\" radiusEnd=\"inf\" length=\"100\">"
       "<Start>99.7226 5.5445</Start><End>0 0</End></Spiral>",
       -300.0, 0.0},
      {"by its parameter",
       "<Spiral rot=\"cw\" radiusStart=\"INF\" radiusEnd=\"300\" constant=\"173.2050808\">"
       "<Start>0 0</Start><End>99.7226 5.5445</End></Spiral>",
       0.0, 300.0},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.what);
    const Read read = ReadGeometry(row.element);
    const auto* clothoid = std::get_if<PlanClothoid>(&OnlyPiece(read));
    ASSERT_TRUE(clothoid);
    EXPECT_NEAR(row.start_radius, clothoid->start_radius, 1e-9);
    EXPECT_NEAR(row.end_radius, clothoid->end_radius, 1e-9);
    EXPECT_NEAR(173.2050808, clothoid->parameter, 1e-6);
  }
}

TEST(LandXmlReader, BeginsAnElementWhereTheOneBeforeEnds) {
  const Read read = ReadGeometry(
      "<Line><Start>1 2</Start><End>3 4</End></Line><Line><End>5 6</End></Line>"
      "<Line dir=\"1\"/><Line><End>7 8</End></Line>");
  ASSERT_EQ(1U, read.survey.lines.size());
  ASSERT_EQ(2U, read.survey.lines[0].elements.size());
  EXPECT_EQ((GroundPosition{3.0, 4.0}),
            std::get<PlanStraight>(read.survey.lines[0].elements[1][0]).from);
  // Behind a line that was skipped nobody knows where the next begins.
  EXPECT_EQ(2U, read.log.SkippedElements());
}

TEST(LandXmlReader, IsChosenByNameOrByTheFirstCharacter) {
  const std::string_view file =
      "\xEF\xBB\xBF<?xml version=\"1.0\"?>\n<l:LandXML xmlns:l=\"urn:l\"><l:CgPoint name=\"1\">1 2"
      "</l:CgPoint></l:LandXML>";
  for (const char* name : {"site.xml", "SITE.XML", "site.txt", "site"}) {
    EXPECT_EQ(1U, ReadFile(file, name).survey.points.size()) << name;
  }
  EXPECT_EQ("is damaged XML at line 1; export or copy it again",
            ReadFile("1,10,20,3,a\n", "site.xml").log.Refusal());
}

TEST(LandXmlReader, ReadsNamesOfAnyEncoding) {
  const struct {
    const char* encoding;
    const char* bytes;
    const char* name;
  } rows[] = {
      {"UTF-8", "点", "点"},
      {"Shift_JIS", "\x93\x5F", "点"},
      {"ISO-8859-1", "k\xE4", "kä"},
  };
  for (const auto& row : rows) {
    const Read read =
        ReadFile("<?xml version=\"1.0\" encoding=\"" + std::string(row.encoding) +
                 "\"?><LandXML><CgPoint name=\"" + row.bytes + "\">1 2</CgPoint></LandXML>");
    ASSERT_EQ(1U, read.survey.points.size()) << row.encoding;
    EXPECT_EQ(row.name, read.survey.points[0].name);
  }
}

}  // namespace
}  // namespace fieldhost
