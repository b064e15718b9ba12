#include "host/app/command_line.h"

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
    EXPECT_EQ((Arguments{"a.csv", "b.sim"}), line.files);
    EXPECT_EQ("p.png", line.picture);
    ASSERT_TRUE(line.size);
    EXPECT_EQ(240, line.size->width);
    EXPECT_EQ(320, line.size->height);
  }
}

TEST(CommandLine, TakesFilesNamedLikeOptionsBehindTwoDashes) {
  const CommandLine line = ParseCommandLine(Arguments{"--", "--picture", "-x"});
  EXPECT_EQ((Arguments{"--picture", "-x"}), line.files);
  EXPECT_TRUE(line.picture.empty());
}

TEST(CommandLine, RefusesWhatItDoesNotKnow) {
  const struct {
    Arguments arguments;
    const char* problem;
  } rows[] = {
      {{"--help"}, "There is no option --help."},
      {{"a.csv", "--picture"}, "The option --picture lacks its value."},
      {{"--one-bit"}, "The option --one-bit lacks its value."},
      {{"--picture", ""}, "The option --picture lacks its value."},
      {{"--size"}, "The option --size lacks its value."},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.problem, ParseCommandLine(row.arguments).problem);
  }
}

TEST(CommandLine, RefusesSizesThatAreNone) {
  EXPECT_EQ("The size 240x is not of the form 240x320 with sides from 100 to 8192 pixels.",
            ParseCommandLine(Arguments{"--size", "240x"}).problem);
  EXPECT_FALSE(ParseCommandLine(Arguments{"--size", "99x320"}).problem.empty());
}

TEST(CommandLine, TakesAPictureNamedPngAlone) {
  for (const char* file : {"p.png", "dir/P.PNG"}) {
    EXPECT_EQ("", ParseCommandLine(Arguments{"--picture", file}).problem);
  }
  for (const char* file : {"p", "p.jpg", "png", "p.png.bmp", "p.pbm"}) {
    EXPECT_EQ(ParseCommandLine(Arguments{"--picture", file}).problem,
              std::string("The picture ") + file + " must be named .png.");
  }
}

TEST(CommandLine, TakesAResolutionForPngFilesAlone) {
  EXPECT_FALSE(ParseCommandLine(Arguments{"--picture", "p.png"}).resolution);
  for (const char* option : {"--picture", "--one-bit"}) {
    const CommandLine line = ParseCommandLine(Arguments{option, "p.png", "--dpi", "200"});
    EXPECT_EQ("", line.problem);
    EXPECT_EQ(200, line.resolution);
  }
  for (const Arguments& arguments :
       {Arguments{"--dpi", "200"}, Arguments{"--dpi", "200", "--one-bit", "p.pbm"}}) {
    EXPECT_EQ("Only a PNG picture has a resolution; leave out --dpi.",
              ParseCommandLine(arguments).problem);
  }
  for (const char* dots : {"29", "2401", "200dpi", "2e2", "-200"}) {
    EXPECT_EQ(ParseCommandLine(Arguments{"--picture", "p.png", "--dpi", dots}).problem,
              std::string("The resolution ") + dots + " is not a whole number from 30 to 2400.");
  }
}

TEST(CommandLine, TakesAOneBitPictureOfEitherFormat) {
  for (const char* file : {"p.png", "p.pbm", "P.PBM", "dir/p.PNG"}) {
    const CommandLine line = ParseCommandLine(Arguments{"a.csv", "--one-bit", file});
    EXPECT_EQ("", line.problem);
    EXPECT_EQ(line.one_bit, file);
    EXPECT_EQ(Arguments{"a.csv"}, line.files);
  }
  for (const char* file : {"p", "p.bmp", "png", "p.pbm.gz"}) {
    EXPECT_EQ(ParseCommandLine(Arguments{"--one-bit", file}).problem,
              std::string("The one-bit picture ") + file + " must be named .pbm or .png.");
  }
}

TEST(CommandLine, TakesTheSideViewWithAPictureOrAWindow) {
  EXPECT_FALSE(ParseCommandLine(Arguments{"a.csv"}).side);
  for (const Arguments& arguments :
       {Arguments{"a.csv", "--side"}, Arguments{"--side", "a.csv", "--picture", "p.png"}}) {
    const CommandLine line = ParseCommandLine(arguments);
    EXPECT_EQ("", line.problem);
    EXPECT_TRUE(line.side);
    EXPECT_EQ(Arguments{"a.csv"}, line.files);
  }
}

TEST(CommandLine, RefusesWhatCannotBeHadTogether) {
  const struct {
    Arguments arguments;
    const char* problem;
  } rows[] = {
      {{"--one-bit", "p.pbm", "--picture", "p.png"}, "Choose one of --picture and --one-bit."},
      {{"--side", "--one-bit", "p.pbm"}, "The one-bit picture is of the plan; leave out --side."},
  };
  for (const auto& row : rows) EXPECT_EQ(row.problem, ParseCommandLine(row.arguments).problem);
}

}  // namespace
}  // namespace fieldhost
