// LandXML that cannot be used, in part or at all.
#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "host/formats/survey_formats.h"

namespace fieldhost {
namespace {

struct Read {
  Survey survey;
  ReadLog log{"site.xml"};
};

Read ReadFile(std::string_view bytes) {
  Read read;
  read.survey = ReadSurvey("site.xml", bytes, read.log);
  return read;
}

TEST(LandXmlFaults, SkipsAndSaysBadElementsAndKeepsTheOthers) {
  const std::string ends = "<Start>10 0</Start><End>0 10</End>";
  const std::string spiral_ends = "<Start>0 0</Start><PI>66.7 0</PI><End>99.7226 5.5445</End>";
  const struct {
    std::string element;
    const char* sentence;
  } rows[] = {
      {"<CgPoint name=\"1\">1</CgPoint>",
       "the CgPoint holds 1 numbers in place of northing, easting and height"},
      {"<CgPoint name=\"1\">1 2 3 4</CgPoint>",
       "the CgPoint holds 4 numbers in place of northing, easting and height"},
      {"<CgPoint name=\"1\">1,5 2</CgPoint>", "the CgPoint holds '1,5', which is not a number"},
      {"<CgPoint name=\"1\">nan 2</CgPoint>", "the CgPoint holds 'nan', which is not a number"},
      {"<CgPoint name=\"1\"/>", "the CgPoint has no coordinates"},
      {"<CgPoint name=\"1\" pntRef=\"2\"/>",
       "the point '2' that is referred to is not in this file"},
      {"<CgPoint name=\"1\" pntRef=\"1\"/>", "the point '1' refers to itself"},
      {"<CgPoint name=\"1\">1e99 2</CgPoint>", nullptr},
      {"<PntList3D>1 2 3 4</PntList3D>",
       "the PntList3D holds 4 numbers, which is not 3 for each point"},
      {"<PntList2D>1 2</PntList2D>", "the PntList2D holds a single point"},
      {"<PntList2D/>", "the PntList2D holds 0 numbers, which is not 2 for each point"},
      {"<Struct name=\"1\"/>", "the Struct has no Center"},
      {"<Pipe refStart=\"1\" refEnd=\"2\"/>", "the Pipe joins the Struct '1', which is not there"},
      {"<CoordGeom><Line><End>1 2</End></Line></CoordGeom>",
       "the Line does not say where it starts"},
      {"<CoordGeom><Line><Start>1 2</Start></Line></CoordGeom>",
       "the Line does not say where it ends"},
      {"<CoordGeom><Curve radius=\"10\">" + ends + "</Curve></CoordGeom>",
       "the Curve does not say by rot which way it turns"},
      {"<CoordGeom><Curve rot=\"cw\">" + ends + "</Curve></CoordGeom>",
       "the Curve has neither a radius nor a Center"},
      {"<CoordGeom><Curve rot=\"cw\" radius=\"0\">" + ends + "</Curve></CoordGeom>",
       "the Curve has no radius"},
      {"<CoordGeom><Curve rot=\"cw\" radius=\"ten\">" + ends + "</Curve></CoordGeom>",
       "the Curve has the radius 'ten', which is not a length"},
      {"<CoordGeom><Curve rot=\"cw\" radius=\"7\">" + ends + "</Curve></CoordGeom>",
       "the Curve has a radius that does not reach from its Start to its End"},
      {"<CoordGeom><Curve rot=\"cw\" radius=\"12\">" + ends +
           "<Center>0 0</Center></Curve></CoordGeom>",
       "the Curve has a Center that is not its radius away from its Start and End"},
      {"<CoordGeom><Curve rot=\"ccw\" radius=\"10\" length=\"15.708\">" + ends +
           "<Center>0 0</Center></Curve></CoordGeom>",
       "the Curve is of another length than its ends, its radius and its rot give"},
      {"<CoordGeom><Spiral spiType=\"sinusoid\" rot=\"cw\" radiusStart=\"INF\" radiusEnd=\"300\" "
       "length=\"100\">" +
           spiral_ends + "</Spiral></CoordGeom>",
       "the Spiral is of the type 'sinusoid'; only clothoids are drawn"},
      {"<CoordGeom><Spiral rot=\"cw\" radiusStart=\"INF\" length=\"100\">" + spiral_ends +
           "</Spiral></CoordGeom>",
       "the Spiral has no radiusEnd"},
      {"<CoordGeom><Spiral rot=\"cw\" radiusStart=\"INF\" radiusEnd=\"INF\" length=\"100\">" +
           spiral_ends + "</Spiral></CoordGeom>",
       "the Spiral is straight at both ends"},
      {"<CoordGeom><Spiral rot=\"cw\" radiusStart=\"INF\" radiusEnd=\"300\">" + spiral_ends +
           "</Spiral></CoordGeom>",
       "the Spiral has neither a length nor a constant"},
      {"<CoordGeom><Spiral rot=\"cw\" radiusStart=\"INF\" radiusEnd=\"300\" length=\"0\">" +
           spiral_ends + "</Spiral></CoordGeom>",
       "the Spiral has no length"},
      {"<CoordGeom><Spiral rot=\"cw\" radiusStart=\"INF\" radiusEnd=\"300\" length=\"120\">" +
           spiral_ends + "</Spiral></CoordGeom>",
       "the Spiral does not reach from its Start to its End by its radii and its length"},
      {"<CoordGeom><Spiral rot=\"ccw\" radiusStart=\"INF\" radiusEnd=\"300\" length=\"100\">" +
           spiral_ends + "</Spiral></CoordGeom>",
       "the Spiral turns another way by its PI than by its rot"},
      {"<CoordGeom><IrregularLine><Start>1 2</Start><End>3 4</End></IrregularLine></CoordGeom>",
       "the IrregularLine has no list of points"},
      {"<CoordGeom><Chain>a</Chain></CoordGeom>",
       "the point 'a' that is referred to is not in this file"},
      {"<CoordGeom><Chain/></CoordGeom>", "the Chain names no points"},
      {"<CoordGeom><Chain>good</Chain></CoordGeom>", "the Chain names a single point"},
  };
  for (const auto& row : rows) {
    const Read read =
        ReadFile("<LandXML>\n\n" + row.element + "<CgPoint name=\"good\">1 2</CgPoint></LandXML>");
    SCOPED_TRACE(row.element);
    EXPECT_EQ("", read.log.Refusal());
    ASSERT_EQ(1U, read.survey.points.size());
    EXPECT_EQ("good", read.survey.points[0].name);
    EXPECT_TRUE(read.survey.lines.empty());
    EXPECT_EQ(1U, read.log.SkippedElements());
    EXPECT_EQ(0U, read.log.SkippedLines());
    ASSERT_EQ(1U, read.log.Diagnostics().size());
    EXPECT_EQ(3, read.log.Diagnostics()[0].line);
    if (row.sentence) {
      EXPECT_EQ(row.sentence, read.log.Diagnostics()[0].sentence);
    }
  }
}

TEST(LandXmlFaults, RefusesWhatItCannotReadAtAll) {
  const struct {
    std::string bytes;
    const char* refusal;
  } rows[] = {
      {"<LandXML>\n<CgPoint name=\"1\">1 2</CgPoint>\n<CgPoints>\n</LandXML>",
       "is damaged XML at line 4; export or copy it again"},
      {"<html/>", "is XML of another kind ('html'); choose a LandXML file"},
      {"<LandXML><Units><Metric linearUnit=\"cubit\"/></Units></LandXML>",
       "measures in 'cubit', a unit that is not known here; export it in metres"},
      {"<!DOCTYPE LandXML>\n<LandXML/>",
       "has a document type at line 1, which may hide anything; export it without"},
      {"<?xml version=\"1.0\" encoding=\"x-none\"?><LandXML>\xE4</LandXML>",
       "is not text in an encoding that is known here ('x-none'); save it as UTF-8"},
  };
  for (const auto& row : rows) {
    const Read read = ReadFile(row.bytes);
    EXPECT_EQ(row.refusal, read.log.Refusal());
    EXPECT_FALSE(read.survey.HasAnythingToDraw());
  }
  std::string deep = "<LandXML>";
  for (int i = 0; i < 1000; ++i) deep += "<a>";
  EXPECT_EQ("is nested too deep at line 1; it is not a LandXML file", ReadFile(deep).log.Refusal());
}

}  // namespace
}  // namespace fieldhost
