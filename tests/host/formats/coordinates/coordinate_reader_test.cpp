#include "host/formats/coordinates/coordinate_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "host/formats/survey_formats.h"

namespace fieldhost {
namespace {

struct Read {
  Survey survey;
  ReadLog log{"list.csv"};
};

Read ReadList(std::string_view bytes) {
  Read read;
  read.survey = ReadSurvey("list.csv", bytes, read.log);
  return read;
}

// Expects exactly one point and nothing skipped.
SurveyPoint OnlyPoint(std::string_view bytes) {
  const Read read = ReadList(bytes);
  EXPECT_EQ(0U, read.log.SkippedLines()) << bytes;
  EXPECT_EQ(1U, read.survey.points.size()) << bytes;
  return read.survey.points.empty() ? SurveyPoint() : read.survey.points[0];
}

TEST(CoordinateReader, TakesEverySeparator) {
  for (const std::string_view bytes : {
           "12,-42247.011,25917.765,31.5,old tree",
           "12\t-42247.011\t25917.765\t31.5\told tree\r\n",
           "12;-42247.011;25917.765;31.5;old tree\n",
           "12 -42247.011 25917.765 31.5 old tree",
           "  12   -42247.011\t25917.765   31.5   old tree\n",
           "\"12\",\"-42247.011\",\"25917.765\",\"31.5\",\"old tree\"\n",
           "\xEF\xBB\xBF"
           "12, -42247.011, 25917.765, 31.5, old tree",
       }) {
    const SurveyPoint point = OnlyPoint(bytes);
    EXPECT_EQ(12, point.number) << bytes;
    EXPECT_EQ(-42247.011, point.north) << bytes;
    EXPECT_EQ(25917.765, point.east) << bytes;
    EXPECT_EQ(31.5, point.height) << bytes;
    EXPECT_EQ("old tree", point.name) << bytes;
    EXPECT_EQ("old tree", point.kind) << bytes;
  }
}

TEST(CoordinateReader, DescriptionMayHoldSeparators) {
  EXPECT_EQ("tree, big; very\ttall", OnlyPoint("1,10,20,3,tree, big; very\ttall").name);
  EXPECT_EQ("tree, big, tall", OnlyPoint("1 10 20 3 tree, big, tall").name);
  EXPECT_EQ("tree, big", OnlyPoint("1\t10\t20\t3\ttree, big").name);
  EXPECT_EQ("tree, \"big\"", OnlyPoint("1,10,20,3,\"tree, \"\"big\"\"\"").name);
}

TEST(CoordinateReader, ElevationMayBeMissing) {
  const struct {
    std::string_view line;
    std::string_view name;
  } rows[] = {
      {"1,10,20", "1"},
      {"1,10,20,", "1"},
      {"1,10,20,,tree", "tree"},
      {"1,10,20,,", "1"},
      {"1,10,20,tree", "tree"},
      {"1 10 20", "1"},
      {"1 10 20 old tree", "old tree"},
      {"1\t10\t20\t\ttree", "tree"},
  };
  for (const auto& row : rows) {
    const SurveyPoint point = OnlyPoint(row.line);
    EXPECT_FALSE(point.height) << row.line;
    EXPECT_EQ(row.name, point.name) << row.line;
  }
}

TEST(CoordinateReader, NameComesFromTheBestText) {
  const struct {
    std::string_view line;
    int number;
    std::string_view name;
    std::string_view kind;
  } rows[] = {
      {"7,1,2,3,IRON", 7, "IRON", "IRON"},         {"007,1,2,3,", 7, "007", ""},
      {"T-5,1,2,3,基準点", 0, "T-5", "基準点"},    {"T-5,1,2,3", 0, "T-5", ""},
      {"99999999999,1,2,3", 0, "99999999999", ""}, {"0,1,2,3", 0, "0", ""},
  };
  for (const auto& row : rows) {
    const SurveyPoint point = OnlyPoint(row.line);
    EXPECT_EQ(row.number, point.number) << row.line;
    EXPECT_EQ(row.name, point.name) << row.line;
    EXPECT_EQ(row.kind, point.kind) << row.line;
  }
}

TEST(CoordinateReader, HeaderGivesTheOrder) {
  for (const std::string_view bytes : {
           "no,kind,name,x_north,y_east\n5,control,T-5,10,20",
           "No., Code, Name, X, Y\n5,control,T-5,10,20",
           "Easting;Northing;Name;ID;Kind\n20;10;T-5;5;control",
           "点番,種別,点名,X座標,Y座標,備考\n5,control,T-5,10,20,by the gate",
           "\xEF\xBB\xBF"
           "\"no\",\"kind\",\"name\",\"N\",\"E\"\n5,control,T-5,10,20",
           "no kind name n e\n5 control T-5 10 20",
           "no,survey,kind,name,n,e\n5,2024,control,T-5,10,20,",
       }) {
    const SurveyPoint point = OnlyPoint(bytes);
    EXPECT_EQ(5, point.number) << bytes;
    EXPECT_EQ("T-5", point.name) << bytes;
    EXPECT_EQ("control", point.kind) << bytes;
    EXPECT_EQ(10, point.north) << bytes;
    EXPECT_EQ(20, point.east) << bytes;
  }
}

TEST(CoordinateReader, HeaderMayNameMetres) {
  for (const std::string_view bytes : {
           "Point,Easting (m),Northing (m)\n5,20,10",
           "Point;East [m];North [m]\n5;20;10",
           "点番,Y座標(m),X座標(m)\n5,20,10",
       }) {
    const SurveyPoint point = OnlyPoint(bytes);
    EXPECT_EQ(10, point.north) << bytes;
    EXPECT_EQ(20, point.east) << bytes;
  }
}

TEST(CoordinateReader, TitlesAboveThePointsArePassedOver) {
  EXPECT_EQ(10, OnlyPoint("Survey of the market\n5,10,20").north);
  EXPECT_EQ(10, OnlyPoint("Long Lane, late survey\n5,10,20").north);
  EXPECT_EQ(10, OnlyPoint("Survey of the market\n5 10 20").north);
  EXPECT_EQ(10, OnlyPoint("Survey\nby Smith\nno,e,n\n5,20,10").north);
  EXPECT_EQ("tree, big", OnlyPoint("P,N,E,Z,D\n5,10,20,3,tree, big").name);
}

constexpr std::string_view kGeographic = "; convert the points to northing and easting in metres";
constexpr std::string_view kForeign =
    "; name these columns N and E there, or delete the line if the columns are number, northing, "
    "easting, elevation and description";

// Degrees, or other values of such columns, would be plotted as metres.
TEST(CoordinateReader, RefusesAHeaderOfOtherColumns) {
  const struct {
    std::string_view bytes;
    std::string refusal;
  } rows[] = {
      {"Point,Latitude,Longitude,Height\n1,48.1,11.5,520\n",
       "names latitude and longitude in line 1"},
      {"id;lat;lon\n1;48,1;11,5\n", "names latitude and longitude in line 1"},
      {"id lat. lng.\n1 48.1 11.5\n", "names latitude and longitude in line 1"},
      {"title\n\n点番,緯度,経度\n1,36.1,140.1\n", "names latitude and longitude in line 3"},
      {"Point,Lat (dms),Long (dms)\n1,48 07 12.5,11 30 00\n",
       "names latitude and longitude in line 1"},
      {"alpha,beta,gamma\n5,10,20", "names no northing and easting in its header, line 1"},
      {"case,R1,R2,A\nin1,0,250,125\n", "names no northing and easting in its header, line 1"},
      {"No;Northing (ft);Easting (ft)\n5;10;20",
       "names no northing and easting in its header, line 1"},
      {"no width height\n5 10 20", "names no northing and easting in its header, line 1"},
  };
  for (const auto& row : rows) {
    const Read read = ReadList(row.bytes);
    const bool geographic = row.refusal.find("latitude") != std::string::npos;
    EXPECT_EQ(read.log.Refusal(), row.refusal + std::string(geographic ? kGeographic : kForeign))
        << row.bytes;
    EXPECT_TRUE(read.survey.points.empty()) << row.bytes;
  }
  // Beside northing and easting they are columns like others.
  EXPECT_EQ(10, OnlyPoint("no,lat,lon,n,e\n5,48.1,11.5,10,20").north);
}

TEST(CoordinateReader, TakesDecimalCommasWhereTheySeparateNothing) {
  for (const std::string_view bytes : {
           "1;500100,25;4600200,50;12,5;tree",
           "1\t500100,25\t4600200,50\t12,5\ttree",
           "1 500100,25 4600200,50 12,5 tree",
           "1,\"500100,25\",\"4600200,50\",\"12,5\",tree",
           "No;E;N;Z;Code\r\n1;4600200,50;500100,25;12,5;tree\r\n",
       }) {
    const SurveyPoint point = OnlyPoint(bytes);
    EXPECT_EQ(1, point.number) << bytes;
    EXPECT_EQ(500100.25, point.north) << bytes;
    EXPECT_EQ(4600200.5, point.east) << bytes;
    EXPECT_EQ(12.5, point.height) << bytes;
    EXPECT_EQ("tree", point.kind) << bytes;
  }
  EXPECT_EQ(25, OnlyPoint("1,500100,25").east);
}

// A point in such a list may set thousands apart, and nothing is guessed.
TEST(CoordinateReader, SaysWhichNumberOfAListWithDecimalCommasIsNone) {
  const struct {
    std::string_view line;
    std::string_view sentence;
  } rows[] = {
      {"2;4.500,25;20", "the northing '4.500,25' is not a number"},
      {"2;10;20,5,5", "the easting '20,5,5' is not a number"},
      {"2;10;20;1.5;x", "the elevation '1.5' is not a number"},
      {"2;1000000000,5;20", "the northing '1000000000,5' lies beyond any ground"},
  };
  for (const auto& row : rows) {
    const Read read =
        ReadList("no;n;e;z;d\n1;10,5;20,5\n" + std::string(row.line) + "\n3;10,5;20\n");
    EXPECT_EQ(2U, read.survey.points.size()) << row.line;
    ASSERT_EQ(1U, read.log.Diagnostics().size()) << row.line;
    EXPECT_EQ(3, read.log.Diagnostics()[0].line) << row.line;
    EXPECT_EQ(row.sentence, read.log.Diagnostics()[0].sentence) << row.line;
  }
}

TEST(CoordinateReader, BelowAHeaderTheFirstBadLineIsSaid) {
  const Read read = ReadList("No;N;E\n1;abc;2\n2;abc;2\n");
  EXPECT_TRUE(read.survey.points.empty());
  ASSERT_EQ(2U, read.log.Diagnostics().size());
  EXPECT_EQ(2, read.log.Diagnostics()[0].line);
  EXPECT_EQ("the northing 'abc' is not a number", read.log.Diagnostics()[0].sentence);
}

TEST(CoordinateReader, ReadsShiftJis) {
  const SurveyPoint point = OnlyPoint("1,10,20,3,\x8A\xEE\x8F\x80\x93\x5F\r\n");
  EXPECT_EQ("基準点", point.name);
}

TEST(CoordinateReader, BadLinesAreSkippedAndSaid) {
  const struct {
    std::string_view line;
    std::string_view sentence;
  } rows[] = {
      {"2,abc,20,3", "the northing 'abc' is not a number"},
      {"2,10,abc,3", "the easting 'abc' is not a number"},
      {"2,10,20,abc,tree", "the elevation 'abc' is not a number"},
      {"2,10", "the line has no northing and easting"},
      {"2,,20", "the line has no northing and easting"},
      {"2,nan,20", "the northing 'nan' is not a number"},
      {"2,10,inf", "the easting 'inf' is not a number"},
      {"2,1e300,20", "the northing '1e300' lies beyond any ground"},
      {"2,10,20,1e300", "the elevation '1e300' lies beyond any ground"},
      {",10,20,3", "the point has neither a number nor a name"},
      {"end of list", "the line has no northing and easting"},
  };
  for (const auto& row : rows) {
    const Read read =
        ReadList("1,1,2,3,a\n\n" + std::string(row.line) + "\n3,1,2,3,c\n4,1,2,3,d\n");
    EXPECT_EQ(3U, read.survey.points.size()) << row.line;
    EXPECT_EQ(1U, read.log.SkippedLines()) << row.line;
    ASSERT_EQ(1U, read.log.Diagnostics().size()) << row.line;
    EXPECT_EQ(3, read.log.Diagnostics()[0].line) << row.line;
    EXPECT_EQ(row.sentence, read.log.Diagnostics()[0].sentence) << row.line;
  }
}

TEST(CoordinateReader, OneBadLineDoesNotChangeTheSeparator) {
  const Read read = ReadList("1,10,20,3,a b c\nfor 9 3 points\n2,10,20,3,d e f\n");
  EXPECT_EQ(2U, read.survey.points.size());
  EXPECT_EQ(1U, read.log.SkippedLines());
}

TEST(CoordinateReader, FindsNothingInOtherText) {
  const std::string every_byte = [] {
    std::string bytes;
    for (int i = 0; i < 256; ++i) bytes += static_cast<char>(i);
    return bytes;
  }();
  for (const std::string& bytes :
       {std::string("Dear surveyor,\nplease find enclosed\n"), std::string("\n\n\n"),
        std::string("<html><body>1 2</body></html>"), every_byte, std::string(100000, '\0'),
        std::string(200000, ','), std::string(200000, '"')}) {
    EXPECT_TRUE(ReadList(bytes).survey.points.empty());
  }
}

}  // namespace
}  // namespace fieldhost
