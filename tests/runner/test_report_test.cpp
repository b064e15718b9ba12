// The report that is sent back: what it says of programs that passed, failed, hung and crashed.
#include "tests/runner/test_report.h"

#include <gtest/gtest.h>

namespace tavix::runner {
namespace {

ProgramRun Good() {
  ProgramRun run;
  run.name = "good_tests";
  run.seconds = 1.25;
  run.output.is_whole = true;
  run.output.tests = {{"A.Passes", Verdict::kPassed, "chatter\n"},
                      {"A.Skips", Verdict::kSkipped, "no data\n"}};
  return run;
}

ProgramRun Failing() {
  ProgramRun run = Good();
  run.name = "failing_tests";
  run.code = 1;
  run.output.tests.push_back({"A.Fails", Verdict::kFailed, "expected 4\n"});
  run.pictures = {{"A.Fails.1.actual.png", "png"}};
  run.pictures_left_out = 2;
  return run;
}

ProgramRun Hanging() {
  ProgramRun run;
  run.name = "hanging_tests";
  run.ending = Ending::kAfterLimit;
  run.seconds = 20;
  run.standing = "thread 7 in user32\n";
  run.output.tests = {{"A.Hangs", Verdict::kUnfinished, "waits\n"}};
  return run;
}

ProgramRun Crashing() {
  ProgramRun run;
  run.name = "crashing_tests";
  run.code = 0xC0000005;
  run.output.outside = "before all\n";
  return run;
}

bool Holds(const std::string& report, const std::string& words) {
  return report.find(words) != std::string::npos;
}

TEST(TestReport, OutcomeSaysHowAProgramEnded) {
  ProgramRun absent;
  absent.ending = Ending::kNotStarted;
  absent.code = 2;
  ProgramRun late = Good();  // its tests were over
  late.code = 0xC0000374;
  late.output.is_whole = false;
  const struct {
    ProgramRun run;
    const char* words;
    bool failed;
  } rows[] = {
      {Good(), "1 passed, 0 failed, 1 skipped, 1.2 s", false},
      {Failing(), "1 passed, 1 failed, 1 skipped, 1.2 s", true},
      {Hanging(), "0 passed, 0 failed, 0 skipped, 20.0 s, HUNG, ended after 20.0 s, in A.Hangs",
       true},
      {Crashing(),
       "0 passed, 0 failed, 0 skipped, 0.0 s, CRASHED, exit code 0xC0000005, before its first test",
       true},
      {late, "1 passed, 0 failed, 1 skipped, 1.2 s, CRASHED, exit code 0xC0000374, after A.Skips",
       true},
      {absent, "0 passed, 0 failed, 0 skipped, 0.0 s, NOT STARTED, system error 2", true},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(row.words, Outcome(row.run));
    EXPECT_EQ(row.failed, row.run.Failed()) << row.words;
  }
}

TEST(TestReport, CountsTestsAndPrograms) {
  const Tally tally = TallyOf({Good(), Failing(), Hanging(), Crashing()});
  EXPECT_EQ(2, tally.passed);
  EXPECT_EQ(2, tally.failed) << "the one that hung too";
  EXPECT_EQ(2, tally.skipped);
  EXPECT_EQ(2, tally.broken_off);
}

TEST(TestReport, HasWhatFailedAndWhatWasSkippedInFull) {
  const std::string report =
      ReportText({{"Windows", "10.0"}}, {Good(), Failing(), Hanging(), Crashing()}, 4);
  EXPECT_TRUE(Holds(report, "Windows           10.0\r\n"));
  EXPECT_TRUE(Holds(report, "4 of 4 have run\r\n"));
  EXPECT_TRUE(Holds(report, "ok      good_tests: 1 passed"));
  EXPECT_TRUE(Holds(report, "FAILED  hanging_tests: 0 passed"));
  EXPECT_TRUE(Holds(report, "failing_tests: A.Fails failed\r\nexpected 4\r\n"));
  EXPECT_TRUE(Holds(report, "hanging_tests: A.Hangs did not end\r\nwaits\r\n"));
  EXPECT_TRUE(Holds(report, "thread 7 in user32\r\n"));
  EXPECT_TRUE(Holds(report, "before all\r\n"));
  EXPECT_TRUE(Holds(report, "good_tests: A.Skips\r\nno data\r\n"));
  EXPECT_FALSE(Holds(report, "chatter")) << "of a test that passed";
  EXPECT_TRUE(Holds(report,
                    "-----BEGIN PICTURE failing_tests/A.Fails.1.actual.png-----\r\n"
                    "cG5n\r\n-----END PICTURE-----\r\n"));
  EXPECT_TRUE(Holds(report, "failing_tests: 2 further pictures are left out."));
  EXPECT_TRUE(report.ends_with("---- End of the report ----\r\n"));
}

TEST(TestReport, SaysThatProgramsAreMissing) {
  EXPECT_TRUE(Holds(ReportText({}, {Good()}, 3), "1 of 3 have run: THE REPORT IS NOT COMPLETE"));
}

TEST(TestReport, Base64IsCutIntoLines) {
  const struct {
    std::string bytes;
    const char* lines;
  } rows[] = {{"", ""},
              {"f", "Zg==\n"},
              {"fo", "Zm8=\n"},
              {"foo", "Zm9v\n"},
              {"\xFF\xFE\xFD\xFC", "//79/A==\n"},
              {std::string(58, 'a'),
               "YWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFhYWFh\n"
               "YQ==\n"}};
  for (const auto& row : rows) EXPECT_EQ(row.lines, InBase64(row.bytes));
}

}  // namespace
}  // namespace tavix::runner
