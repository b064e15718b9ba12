#include "host/command_line.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace fieldhost {
namespace {

using Arguments = std::vector<std::string>;

TEST(CommandLine, IsEmptyWithoutArguments) {
  const CommandLine line = ParseCommandLine(Arguments{});
  EXPECT_TRUE(line.problem.empty());
  EXPECT_TRUE(line.files.empty());
  EXPECT_TRUE(line.picture.empty());
  EXPECT_FALSE(line.size);
}

TEST(CommandLine, TakesFilesAndOptionsInAnyOrder) {
  for (const Arguments& arguments : {
           Arguments{"a.csv", "b.sim", "--picture", "p.png", "--size", "240x320"},
           Arguments{"--size", "240x320", "a.csv", "--picture", "p.png", "b.sim"},
           Arguments{"--picture", "p.png", "--size", "240x320", "--", "a.csv", "b.sim"},
       }) {
    const CommandLine line = ParseCommandLine(arguments);
    EXPECT_TRUE(line.problem.empty()) << line.problem;
    EXPECT_EQ(line.files, (Arguments{"a.csv", "b.sim"}));
    EXPECT_EQ(line.picture, "p.png");
    ASSERT_TRUE(line.size);
    EXPECT_EQ(line.size->width, 240);
    EXPECT_EQ(line.size->height, 320);
  }
}

TEST(CommandLine, TakesFilesNamedLikeOptionsBehindTwoDashes) {
  const CommandLine line = ParseCommandLine(Arguments{"--", "--picture", "-x"});
  EXPECT_EQ(line.files, (Arguments{"--picture", "-x"}));
  EXPECT_TRUE(line.picture.empty());
}

TEST(CommandLine, RefusesWhatItDoesNotKnow) {
  const struct {
    Arguments arguments;
    const char* problem;
  } rows[] = {
      {{"--help"}, "There is no option --help."},
      {{"a.csv", "--picture"}, "The option --picture lacks its value."},
      {{"--picture", ""}, "The option --picture lacks its value."},
      {{"--size"}, "The option --size lacks its value."},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ParseCommandLine(row.arguments).problem, row.problem);
  }
}

TEST(CommandLine, RefusesSizesThatAreNone) {
  for (const char* size : {"240", "x", "240x", "x320", "240x320x1", "240*320", "-240x320", "99x320",
                           "240x99", "8193x320", "240x99999999999", "2 40x320", "24ax320"}) {
    const CommandLine line = ParseCommandLine(Arguments{"--size", size});
    EXPECT_FALSE(line.problem.empty()) << size;
  }
  for (const char* size : {"100x100", "8192x8192"}) {
    EXPECT_TRUE(ParseCommandLine(Arguments{"--size", size}).problem.empty()) << size;
  }
}

}  // namespace
}  // namespace fieldhost
