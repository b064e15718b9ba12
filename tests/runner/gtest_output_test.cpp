// What a test program printed, whole or cut off.
#include "tests/runner/gtest_output.h"

#include <gtest/gtest.h>

namespace tavix::runner {
namespace {

constexpr char kWhole[] =
    "Running main() from gtest_main.cc\r\n"
    "[==========] Running 4 tests from 2 test suites.\r\n"
    "[----------] 3 tests from Plan\r\n"
    "[ RUN      ] Plan.Draws\r\n"
    "[       OK ] Plan.Draws (3 ms)\r\n"
    "[ RUN      ] Plan.DrawsLines\r\n"
    "file.cpp:12: Failure\r\n"
    "Expected equality\r\n"
    "no line end[  FAILED  ] Plan.DrawsLines (4 ms)\r\n"
    "[ RUN      ] Plan.Waits\r\n"
    "no survey here\r\n"
    "[  SKIPPED ] Plan.Waits (0 ms)\r\n"
    "[ RUN      ] Sizes/Plan.Fits/1\r\n"
    "[  FAILED  ] Sizes/Plan.Fits/1, where GetParam() = 7 (0 ms)\r\n"
    "[==========] 4 tests from 2 test suites ran. (9 ms total)\r\n"
    "[  PASSED  ] 1 test.\r\n"
    "[  SKIPPED ] 1 test, listed below:\r\n"
    "[  SKIPPED ] Plan.Waits\r\n"
    "[  FAILED  ] 2 tests, listed below:\r\n"
    "[  FAILED  ] Plan.DrawsLines\r\n"
    "[  FAILED  ] Sizes/Plan.Fits/1, where GetParam() = 7\r\n";

TEST(GtestOutput, HasEachTestWithItsVerdictAndItsLines) {
  const GtestOutput output = ReadGtestOutput(kWhole);
  const struct {
    const char* name;
    Verdict verdict;
    const char* lines;
  } rows[] = {
      {"Plan.Draws", Verdict::kPassed, ""},
      {"Plan.DrawsLines", Verdict::kFailed,
       "file.cpp:12: Failure\nExpected equality\nno line end\n"},
      {"Plan.Waits", Verdict::kSkipped, "no survey here\n"},
      {"Sizes/Plan.Fits/1", Verdict::kFailed, ""},
  };
  ASSERT_EQ(std::size(rows), output.tests.size());
  for (std::size_t i = 0; i < std::size(rows); ++i) {
    EXPECT_EQ(rows[i].name, output.tests[i].name);
    EXPECT_EQ(rows[i].verdict, output.tests[i].verdict) << rows[i].name;
    EXPECT_EQ(rows[i].lines, output.tests[i].output) << rows[i].name;
  }
  EXPECT_TRUE(output.is_whole);
  EXPECT_EQ("Running main() from gtest_main.cc\n", output.outside);
  EXPECT_EQ(2, output.Count(Verdict::kFailed));
}

TEST(GtestOutput, OfAProgramThatBrokeOffEndsInAnUnfinishedTest) {
  const std::string whole = kWhole;
  const std::string cut = whole.substr(0, whole.find("Expected equality"));
  const GtestOutput output = ReadGtestOutput(cut);
  ASSERT_EQ(2U, output.tests.size());
  EXPECT_EQ(Verdict::kPassed, output.tests[0].verdict);
  EXPECT_EQ(Verdict::kUnfinished, output.tests[1].verdict);
  EXPECT_EQ("file.cpp:12: Failure\n", output.tests[1].output);
  EXPECT_FALSE(output.is_whole);
}

TEST(GtestOutput, TakesNoOtherTestsEndForItsOwn) {
  const GtestOutput output =
      ReadGtestOutput("[ RUN      ] A.B\n[       OK ] A.Bc (1 ms)\n[       OK ] A.B (1 ms)\n");
  ASSERT_EQ(1U, output.tests.size());
  EXPECT_EQ("[       OK ] A.Bc (1 ms)\n", output.tests[0].output);
}

TEST(GtestOutput, CutAnywhereIsRead) {
  const std::string whole = kWhole;
  for (std::size_t length = 0; length < whole.size(); ++length) {
    const GtestOutput output = ReadGtestOutput(whole.substr(0, length));
    EXPECT_GE(4U, output.tests.size()) << length;
    EXPECT_GE(1, output.Count(Verdict::kUnfinished)) << length;
  }
}

}  // namespace
}  // namespace tavix::runner
