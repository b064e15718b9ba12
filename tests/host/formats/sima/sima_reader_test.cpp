#include "host/formats/sima/sima_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "host/formats/survey_formats.h"

namespace fieldhost {
namespace {

using Vertices = std::vector<std::size_t>;

struct Read {
  Survey survey;
  ReadLog log{"site.sim"};
};

Read ReadFile(std::string_view bytes, std::string_view name = "site.sim") {
  Read read;
  read.survey = ReadSurvey(name, bytes, read.log);
  return read;
}

constexpr std::string_view kPoints =
    "G00,02,-,\r\n"
    "A00,\r\n"
    "A01,1,T-1,-24010.239,-32836.454,12.5,\r\n"
    "A01,2,T-2,-24008.155,-32840.524,,\r\n"
    "A01,3,T-3,-24007.639,-32838.362,\r\n"
    "A99,\r\n";

TEST(SimaReader, ReadsPoints) {
  const Read read = ReadFile(kPoints);
  EXPECT_EQ(0U, read.log.SkippedLines());
  ASSERT_EQ(3U, read.survey.points.size());
  const SurveyPoint& first = read.survey.points[0];
  EXPECT_EQ(1, first.number);
  EXPECT_EQ("T-1", first.name);
  EXPECT_EQ(-24010.239, first.north);
  EXPECT_EQ(-32836.454, first.east);
  EXPECT_EQ(12.5, first.height);
  EXPECT_FALSE(read.survey.points[1].height);
  EXPECT_FALSE(read.survey.points[2].height);
}

TEST(SimaReader, ReadsPaddedAndQuotedFields) {
  const Read read = ReadFile(
      "A01,     1,T-1            , -24010.239, -32836.454,     0.000,\n"
      "\"A01\",\"2\",\"T-2\",\"10\",\"20\",\"\",\n"
      "A01,3,               T-3,10,20\n"
      "A01,4,,10,20,,,,,,\n");
  EXPECT_EQ(0U, read.log.SkippedLines());
  ASSERT_EQ(4U, read.survey.points.size());
  EXPECT_EQ("T-1", read.survey.points[0].name);
  EXPECT_EQ(-24010.239, read.survey.points[0].north);
  EXPECT_EQ("T-2", read.survey.points[1].name);
  EXPECT_EQ("T-3", read.survey.points[2].name);
  EXPECT_EQ("4", read.survey.points[3].name);
}

TEST(SimaReader, ReadsParcels) {
  const Read read = ReadFile(std::string(kPoints) +
                             "D00,1,446-2,1,\n"
                             "B01,3,T-3,\nC03,9.485,340.5218,\nB01,1,T-1,\nB01,2,T-2,\nD99,\n"
                             "D00,2,\x95\xCA\x90\x7D-5,0,\nB01,1,T-1,\nB01,2,T-2,\nD99,\n"
                             "D00,3,,,\nB01,2,T-2,\nG99,\n");
  EXPECT_EQ(0U, read.log.SkippedLines());
  const std::vector<SurveyParcel>& parcels = read.survey.parcels;
  ASSERT_EQ(3U, parcels.size());
  EXPECT_EQ("446-2", parcels[0].name);
  EXPECT_TRUE(parcels[0].closed);
  EXPECT_EQ((Vertices{2, 0, 1}), parcels[0].vertices);
  EXPECT_EQ("別図-5", parcels[1].name);
  EXPECT_FALSE(parcels[1].closed);
  EXPECT_EQ((Vertices{0, 1}), parcels[1].vertices);
  EXPECT_EQ("3", parcels[2].name);
  EXPECT_FALSE(parcels[2].closed);
}

TEST(SimaReader, FindsVerticesByNumberThenByName) {
  const struct {
    std::string_view vertex;
    std::size_t point;
  } rows[] = {
      {"B01,2,T-2,", 1}, {"B01, 002 ,,", 1}, {"B01,2,T-3,", 1},
      {"B01,,T-3,", 2},  {"B01,77,T-3,", 2}, {"B01,T-3,T-3,", 2},
  };
  for (const auto& row : rows) {
    const Read read =
        ReadFile(std::string(kPoints) + "D00,1,a,1,\n" + std::string(row.vertex) + "\nD99,\n");
    EXPECT_EQ(0U, read.log.SkippedLines()) << row.vertex;
    ASSERT_EQ(1U, read.survey.parcels.size()) << row.vertex;
    EXPECT_EQ(Vertices{row.point}, read.survey.parcels[0].vertices) << row.vertex;
  }
}

TEST(SimaReader, VerticesAreBoundaryPoints) {
  const Read read = ReadFile(std::string(kPoints) + "D00,1,a,1,\nB01,2,T-2,\nB01,1,T-1,\nD99,\n");
  ASSERT_EQ(3U, read.survey.points.size());
  EXPECT_EQ("boundary", read.survey.points[0].kind);
  EXPECT_EQ("boundary", read.survey.points[1].kind);
  EXPECT_EQ("", read.survey.points[2].kind);
}

TEST(SimaReader, ParcelsMayComeBeforeThePoints) {
  const Read read = ReadFile("D00,1,a,1,\nB01,2,T-2,\nB01,1,T-1,\nD99,\n" + std::string(kPoints));
  ASSERT_EQ(1U, read.survey.parcels.size());
  EXPECT_EQ((Vertices{1, 0}), read.survey.parcels[0].vertices);
}

TEST(SimaReader, SkipsAndSaysBadRecords) {
  const struct {
    std::string_view record;
    std::string_view sentence;
  } rows[] = {
      {"A01,9,x,abc,2,", "the X coordinate 'abc' is not a number"},
      {"A01,9,x,1,,", "the Y coordinate is missing"},
      {"A01,9,x", "the X coordinate is missing"},
      {"A01,9,x,1,nan,", "the Y coordinate 'nan' is not a number"},
      {"A01,9,x,1,2,high,", "the height 'high' is not a number"},
      {"A01,9,x,1e99,2,", "the X coordinate '1e99' lies beyond any ground"},
      {"A01,,,1,2,", "the point has neither a number nor a name"},
      {"B01,1,T-1,", "the vertex belongs to no parcel"},
      {"D00,1,empty,1,", "the parcel 'empty' has no vertices"},
      {"hello", "the line does not begin with a record code"},
      {"a01,9,x,1,2", "the line does not begin with a record code"},
      {"F01,1,2,", "records F01 are not known here, 1 of them were skipped"},
  };
  for (const auto& row : rows) {
    const Read read = ReadFile(std::string(kPoints) + std::string(row.record) + "\n");
    EXPECT_EQ(3U, read.survey.points.size()) << row.record;
    EXPECT_TRUE(read.survey.parcels.empty()) << row.record;
    EXPECT_EQ(1U, read.log.SkippedLines()) << row.record;
    ASSERT_EQ(1U, read.log.Diagnostics().size()) << row.record;
    EXPECT_EQ(7, read.log.Diagnostics()[0].line) << row.record;
    EXPECT_EQ(row.sentence, read.log.Diagnostics()[0].sentence) << row.record;
  }
}

TEST(SimaReader, LeavesOutAVertexWithoutAPoint) {
  const Read read =
      ReadFile(std::string(kPoints) + "D00,1,a,1,\nB01,1,T-1,\nB01,8,T-8,\nB01,2,T-2,\nD99,\n");
  ASSERT_EQ(1U, read.survey.parcels.size());
  EXPECT_EQ((Vertices{0, 1}), read.survey.parcels[0].vertices);
  ASSERT_EQ(1U, read.log.Diagnostics().size());
  EXPECT_EQ(9, read.log.Diagnostics()[0].line);
  EXPECT_EQ("the vertex '8 T-8' is not a point of this file", read.log.Diagnostics()[0].sentence);
}

TEST(SimaReader, SaysUnknownRecordsOnceForEachCode) {
  std::string bytes(kPoints);
  for (int i = 0; i < 500; ++i) bytes += "F01,1,\nF02,1,\n";
  const Read read = ReadFile(bytes);
  EXPECT_EQ(3U, read.survey.points.size());
  EXPECT_EQ(1000U, read.log.SkippedLines());
  ASSERT_EQ(2U, read.log.Diagnostics().size());
  EXPECT_EQ(7, read.log.Diagnostics()[0].line);
  EXPECT_EQ("records F01 are not known here, 500 of them were skipped",
            read.log.Diagnostics()[0].sentence);
}

TEST(SimaReader, IsChosenByNameOrByFirstRecord) {
  EXPECT_EQ(3U, ReadFile(kPoints, "SITE.SIM").survey.points.size());
  EXPECT_EQ(3U, ReadFile(kPoints, "site.txt").survey.points.size());
  EXPECT_EQ(1U, ReadFile("A01,1,a,10,20,\n", "site.sim").survey.points.size());
  EXPECT_TRUE(ReadFile("1,10,20,3,a\n", "site.sim").survey.points.empty());
}

}  // namespace
}  // namespace fieldhost
