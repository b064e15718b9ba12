// Files of a few or many megabytes that are made to wear a reader out. Each has a clear result; a
// reader that takes steps by the square of their size does not come back.

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "host/formats/survey_formats.h"

namespace fieldhost {
namespace {

struct Read {
  Survey survey;
  ReadLog log{"site"};
};

Read ReadFile(std::string_view name, std::string_view bytes) {
  Read read;
  read.survey = ReadSurvey(name, bytes, read.log);
  return read;
}

constexpr std::size_t kMany = 50'000;

std::string Reference(std::size_t from, std::size_t to) {
  return "<CgPoint name=\"" + std::to_string(from) + "\" pntRef=\"" + std::to_string(to) + "\"/>";
}

TEST(HeavyFiles, PointsThatReferRoundInARingAreSkipped) {
  std::string text = "<LandXML><CgPoint name=\"good\">1 2</CgPoint>";
  for (std::size_t i = 0; i < kMany; ++i) text += Reference(i, (i + 1) % kMany);
  const Read read = ReadFile("ring.xml", text + "</LandXML>");
  EXPECT_EQ(1U, read.survey.points.size());
  EXPECT_EQ(kMany, read.log.SkippedElements());
  EXPECT_TRUE(read.log.Diagnostics().front().sentence.ends_with("refers to itself"));
  EXPECT_TRUE(read.log.Diagnostics().back().sentence.ends_with("refers to itself"));
}

TEST(HeavyFiles, PointsThatReferOnInALongRowAllHaveThePlaceOfTheLast) {
  std::string text = "<LandXML>";
  for (std::size_t i = 0; i < kMany; ++i) text += Reference(i, i + 1);
  text += "<CgPoint name=\"" + std::to_string(kMany) + "\">1 2 3</CgPoint></LandXML>";
  const Read read = ReadFile("row.xml", text);
  EXPECT_EQ(0U, read.log.SkippedElements());
  ASSERT_EQ(kMany + 1, read.survey.points.size());
  for (const SurveyPoint& point : read.survey.points) ASSERT_EQ(3.0, point.height);
}

TEST(HeavyFiles, PointOfMuchTextIsReadOnceForAllThatReferToIt) {
  std::string text = "<LandXML><CgPoint name=\"0\">";
  for (std::size_t i = 0; i < kMany; ++i) text += "1 ";
  text += "</CgPoint>";
  for (std::size_t i = 1; i <= kMany; ++i) text += Reference(i, 0);
  const Read read = ReadFile("text.xml", text + "</LandXML>");
  EXPECT_TRUE(read.survey.points.empty());
  EXPECT_EQ(kMany + 1, read.log.SkippedElements());
  EXPECT_EQ("the CgPoint holds 50000 numbers in place of northing, easting and height",
            read.log.Diagnostics().back().sentence);
}

TEST(HeavyFiles, TagOfAMillionAttributesIsRefused) {
  std::string text = "<LandXML>\n<CgPoint";
  for (std::size_t i = 0; i < 20 * kMany; ++i) text += " a" + std::to_string(i) + "=\"\"";
  EXPECT_EQ("has a tag of more than 64 KB at line 2; it is not a LandXML file",
            ReadFile("tag.xml", text + "/></LandXML>").log.Refusal());
}

TEST(HeavyFiles, ElementsWithoutEndAreRefused) {
  std::string text = "<LandXML>\n";
  for (std::size_t i = 0; i < 20 * kMany; ++i) text += "<a>";
  EXPECT_EQ("is nested too deep at line 2; it is not a LandXML file",
            ReadFile("deep.xml", text).log.Refusal());
}

// Each entity is a hundred of the one before: a few hundred bytes for more text than there is room.
TEST(HeavyFiles, EntitiesThatGrowAreRefusedInAnyEncoding) {
  std::string entities = "[<!ENTITY e0 \"1 \">";
  for (int i = 1; i <= 9; ++i) {
    entities += "<!ENTITY e" + std::to_string(i) + " \"";
    for (int k = 0; k < 100; ++k) entities += "&e" + std::to_string(i - 1) + ";";
    entities += "\">";
  }
  for (const std::string encoding : {"UTF-8", "ISO-8859-1", "Shift_JIS", "UTF-16", "x-none"}) {
    const std::string text = "<?xml version=\"1.0\" encoding=\"" + encoding +
                             "\"?>\n<!DOCTYPE LandXML " + entities +
                             "]>\n<LandXML><CgPoint>&e9;</CgPoint></LandXML>";
    EXPECT_EQ("has a document type at line 2, which may hide anything; export it without",
              ReadFile("entities.xml", text).log.Refusal())
        << encoding;
  }
}

// In a file as large as files may be.
TEST(HeavyFiles, LineOfFiftyMillionCommasHoldsNothing) {
  const std::string commas(50'000'000, ',');
  const Read list = ReadFile("commas.csv", commas);
  EXPECT_TRUE(list.survey.points.empty());
  EXPECT_EQ(1U, list.log.SkippedLines());
  EXPECT_EQ("the line is too long", list.log.Diagnostics().at(0).sentence);
  EXPECT_EQ(1U, ReadFile("commas.sim", commas).log.SkippedLines());
}

TEST(HeavyFiles, PointOfManyCommasIsSkipped) {
  const Read read =
      ReadFile("commas.xml", "<LandXML><CgPoint name=\"1\">" + std::string(100 * kMany, ',') +
                                 "</CgPoint></LandXML>");
  EXPECT_EQ(1U, read.log.SkippedElements());
  EXPECT_EQ("the CgPoint holds ',,,,,,,,,,,,,,,,,,,,,,,,...', which is not a number",
            read.log.Diagnostics().at(0).sentence);
}

}  // namespace
}  // namespace fieldhost
