// In which format a file is read, and that the README names each format.
#include "host/formats/survey_formats.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "tests/support/project_folder.h"

namespace fieldhost {
namespace {

std::string_view NameOfFormat(std::string_view file_name, std::string_view bytes) {
  // The one whose own reader gives the same.
  ReadLog log("x");
  const Survey survey = ReadSurvey(file_name, bytes, log);
  if (!log.Refusal().empty()) return "LandXML";
  return survey.parcels.empty() ? "Coordinate lists" : "SIMA";
}

constexpr std::string_view kSima =
    "G00,01,x,\nA01,1,T-1,1,2,,\nA01,2,T-2,3,4,,\nD00,1,L,1,\nB01,1,T-1,\nB01,2,T-2,\nD99,\n";
constexpr std::string_view kOtherXml = "<gpx/>";  // refused, and only LandXML's reader refuses
constexpr std::string_view kList = "1,10,20,3,A\n";

TEST(SurveyFormats, AreChosenByTheEndingElseByTheBeginning) {
  const struct {
    std::string_view name;
    std::string_view bytes;
    std::string_view format;
  } rows[] = {
      {"a.xml", kOtherXml, "LandXML"},
      {"A.XML", kOtherXml, "LandXML"},
      {"a.txt", kOtherXml, "LandXML"},
      {"a", " \r\n <gpx/>", "LandXML"},
      {"a.sim", kSima, "SIMA"},
      {"a.txt", kSima, "SIMA"},
      {"a",
       "\xEF\xBB\xBF\r\n"
       "G00,01,x,\nA01,1,T-1,1,2,,\nD00,1,L,1,\nB01,1,T-1,\nD99,\n",
       "SIMA"},
      {"a.csv", kList, "Coordinate lists"},
      {"a.dat", kList, "Coordinate lists"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.format, NameOfFormat(row.name, row.bytes)) << row.name << ' ' << row.bytes;
  }
}

TEST(SurveyFormats, TheLastTakesAnything) {
  for (const std::string_view bytes : {"", "x", "\xFF\xFF"}) {
    EXPECT_TRUE(SurveyFormats().back().recognises(bytes));
  }
}

TEST(SurveyFormats, AreAllInTheReadme) {
  std::ifstream file(tavix::test::ProjectFolder() / "host/README.md");
  const std::string readme{std::istreambuf_iterator<char>(file), {}};
  ASSERT_FALSE(readme.empty());
  for (const SurveyFormat& format : SurveyFormats()) {
    EXPECT_NE(std::string::npos, readme.find("- " + std::string(format.name) + " (`"))
        << format.name;
    for (const std::string_view ending : format.endings) {
      EXPECT_NE(std::string::npos, readme.find("`" + std::string(ending) + "`")) << ending;
    }
  }
}

}  // namespace
}  // namespace fieldhost
