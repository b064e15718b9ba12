#include "host/survey/survey_loader.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <vector>

#include "host/survey/disk_file.h"

namespace fieldhost {
namespace {

using Files = std::vector<std::filesystem::path>;

// A folder of the test's own.
class SurveyLoader : public testing::Test {
 protected:
  void SetUp() override {
    const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
    folder_ = std::filesystem::temp_directory_path() / PathOf("fieldhost 測量") / test->name();
    std::filesystem::remove_all(folder_);
    std::filesystem::create_directories(folder_);
  }
  void TearDown() override { std::filesystem::remove_all(folder_); }

  std::filesystem::path Write(std::string_view name, std::string_view bytes) {
    const std::filesystem::path path = folder_ / PathOf(name);
    std::ofstream file(path, std::ios::binary);
    file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    EXPECT_TRUE(file.good());
    return path;
  }

  std::filesystem::path folder_;
};

TEST_F(SurveyLoader, JoinsSeveralFiles) {
  const Files files = {
      Write("a.sim", "A01,1,P,1,2,\nA01,2,Q,3,4,\nD00,1,parcel,1,\nB01,1,P,\nB01,2,Q,\nD99,\n"),
      Write("点.csv", "1,5,6,7,tree\n"),
      Write("c.sim", "A01,1,R,1,2,\nA01,2,S,3,4,\nD00,1,other,1,\nB01,2,S,\nB01,1,R,\nD99,\n"),
  };
  const LoadedSurvey loaded = LoadSurveyFiles(files);
  EXPECT_TRUE(loaded.refusals.empty());
  ASSERT_EQ(5U, loaded.survey.points.size());
  EXPECT_EQ("tree", loaded.survey.points[2].name);
  ASSERT_EQ(2U, loaded.survey.parcels.size());
  EXPECT_EQ((std::vector<std::size_t>{0, 1}), loaded.survey.parcels[0].vertices);
  EXPECT_EQ((std::vector<std::size_t>{4, 3}), loaded.survey.parcels[1].vertices);
}

TEST_F(SurveyLoader, SaysWhichLinesOfWhichFileItSkipped) {
  const Files files = {Write("a.csv", "1,1,2\n2,x,2\n3,1,2\n"), Write("b.csv", "1,1,2\n2,1,y\n")};
  const LoadedSurvey loaded = LoadSurveyFiles(files);
  EXPECT_EQ(3U, loaded.survey.points.size());
  EXPECT_EQ(2U, loaded.skipped_lines);
  ASSERT_EQ(2U, loaded.diagnostics.size());
  EXPECT_EQ("a.csv", loaded.diagnostics[0].file);
  EXPECT_EQ(2, loaded.diagnostics[0].line);
  EXPECT_EQ("b.csv", loaded.diagnostics[1].file);
  EXPECT_EQ(2, loaded.diagnostics[1].line);
}

TEST_F(SurveyLoader, RefusesAFileWithOneSentence) {
  const std::string choose =
      "; choose LandXML (.xml), SIMA (.sim) or a list of number, northing, easting, elevation and "
      "description.";
  const struct {
    std::filesystem::path file;
    std::string sentence;
  } rows[] = {
      {folder_ / "none.csv", "none.csv does not exist; check its name and folder."},
      {folder_, folder_.filename().string() + " is a folder; choose a file in it."},
      {Write("empty.csv", ""), "empty.csv is empty; export it again."},
      {Write("wide.txt", std::string_view("\xFF\xFE"
                                          "1\0,\0",
                                          6)),
       "wide.txt is UTF-16 text; save it as UTF-8 or Shift-JIS."},
      {Write("blank.csv", "\r\n\r\n"), "blank.csv holds nothing to draw" + choose},
      {Write("letter.txt", "Dear surveyor\nplease\n"),
       "letter.txt holds nothing to draw (line 1: the line has no northing and easting)" + choose},
      {Write("binary.sim", std::string_view("MZ\0\1\2", 5)),
       "binary.sim holds nothing to draw (line 1: the line holds a null character)" + choose},
  };
  for (const auto& row : rows) {
    const LoadedSurvey loaded = LoadSurveyFiles(Files{row.file});
    EXPECT_EQ(loaded.refusals, std::vector<std::string>{row.sentence});
    EXPECT_TRUE(loaded.survey.points.empty());
    EXPECT_TRUE(loaded.diagnostics.empty());
    EXPECT_EQ(0U, loaded.skipped_lines);
  }
}

TEST_F(SurveyLoader, ReadsTheOthersWhenOneIsRefused) {
  const LoadedSurvey loaded = LoadSurveyFiles(
      Files{Write("a.csv", "1,1,2\n"), folder_ / "none.csv", Write("b.csv", "2,1,2\n")});
  EXPECT_EQ(1U, loaded.refusals.size());
  EXPECT_EQ(2U, loaded.survey.points.size());
}

TEST_F(SurveyLoader, RefusesAFileTooLargeForASurvey) {
  const std::filesystem::path path = Write("huge.csv", "1,1,2\n");
  std::filesystem::resize_file(path, (64U << 20U) + 1);
  const LoadedSurvey loaded = LoadSurveyFiles(Files{path});
  EXPECT_EQ(std::vector<std::string>{"huge.csv is larger than 64 MB; split it."}, loaded.refusals);
}

}  // namespace
}  // namespace fieldhost
