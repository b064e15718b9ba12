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
      {{"--one-bit"}, "The option --one-bit lacks its value."},
      {{"--picture", ""}, "The option --picture lacks its value."},
      {{"--size"}, "The option --size lacks its value."},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(ParseCommandLine(row.arguments).problem, row.problem);
  }
}

TEST(CommandLine, RefusesSizesThatAreNone) {
  EXPECT_EQ(ParseCommandLine(Arguments{"--size", "240x"}).problem,
            "The size 240x is not of the form 240x320 with sides from 100 to 8192 pixels.");
  EXPECT_FALSE(ParseCommandLine(Arguments{"--size", "99x320"}).problem.empty());
}

TEST(CommandLine, TakesAPictureNamedPngAlone) {
  for (const char* file : {"p.png", "dir/P.PNG"}) {
    EXPECT_EQ(ParseCommandLine(Arguments{"--picture", file}).problem, "");
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
    EXPECT_EQ(line.problem, "");
    EXPECT_EQ(line.resolution, 200);
  }
  for (const Arguments& arguments :
       {Arguments{"--dpi", "200"}, Arguments{"--dpi", "200", "--one-bit", "p.pbm"}}) {
    EXPECT_EQ(ParseCommandLine(arguments).problem,
              "Only a PNG picture has a resolution; leave out --dpi.");
  }
  for (const char* dots : {"29", "2401", "200dpi", "2e2", "-200"}) {
    EXPECT_EQ(ParseCommandLine(Arguments{"--picture", "p.png", "--dpi", dots}).problem,
              std::string("The resolution ") + dots + " is not a whole number from 30 to 2400.");
  }
}

TEST(CommandLine, TakesAOneBitPictureOfEitherFormat) {
  for (const char* file : {"p.png", "p.pbm", "P.PBM", "dir/p.PNG"}) {
    const CommandLine line = ParseCommandLine(Arguments{"a.csv", "--one-bit", file});
    EXPECT_EQ(line.problem, "");
    EXPECT_EQ(line.one_bit, file);
    EXPECT_EQ(line.files, Arguments{"a.csv"});
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
    EXPECT_EQ(line.problem, "");
    EXPECT_TRUE(line.side);
    EXPECT_EQ(line.files, Arguments{"a.csv"});
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
  for (const auto& row : rows) EXPECT_EQ(ParseCommandLine(row.arguments).problem, row.problem);
}

}  // namespace
}  // namespace fieldhost
