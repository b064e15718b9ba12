// The reader of case files: a line that is wrong fails, and so does one that nobody runs.
#include "tests/support/case_file.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

namespace tavix::test {
namespace {

void Sum(const Case& given) {
  const GroundPoint numbers = given.Ground("of");
  const double sum = numbers.north + numbers.east + given.Number("and", 0.0);
  given.Expect({sum}, sum < 0 ? "negative" : "");
  given.ExpectBack({sum - numbers.north}, {numbers.east});
}

void RunSums(const char* text) { RunCases("sums", text, {{"sum", Sum}}); }

TEST(CaseFile, RunsEveryLine) {
  int runs = 0;
  RunCases("text", "# a comment\n\n a | 0 || 1 | -\r\nb|0||2|-\na | 0 | | 1 | -",
           {{"a",
             [&](const Case& given) {
               ++runs;
               given.Expect({1});
             }},
            {"b", [&](const Case& given) {
               ++runs;
               given.Expect({2});
             }}});
  EXPECT_EQ(3, runs);
}

TEST(CaseFile, ReadsNumbersFractionsAndWords) {
  RunSums("sum | 0 | of=1,2 | 3 | 0");
  RunSums("sum | 0 | of=1/4,-3/4 and=1e1 | 19/2 | -");
  RunSums("sum | 0.11 | of=-1,-2 | -3.1 negative | -");
  RunSums("sum | 0 | of=inf,1 | inf | -");
}

TEST(CaseFile, AnotherResultFails) {
  EXPECT_NONFATAL_FAILURE(RunSums("sum | 0 | of=1,2 | 3.0000001 | -"), "sums:1: sum | 0 | of=1,2");
  EXPECT_NONFATAL_FAILURE(RunSums("sum | 0.09 | of=1,2 | 3.1 | -"), "exceeds");
  EXPECT_NONFATAL_FAILURE(RunSums("sum | 0 | of=-1,-2 | -3 | -"), "negative");
  EXPECT_NONFATAL_FAILURE(RunSums("sum | 0 | of=1,2 | 3 negative | -"), "negative");
  EXPECT_NONFATAL_FAILURE(RunSums("sum | 0 | of=0.1,0.2 | 0.30000000000000004 | 0"), "0.2");
}

TEST(CaseFile, ALineThatIsWrongFails) {
  const struct {
    const char* line;
    const char* message;
  } rows[] = {{"sum | 0 | of=1,2 | 3", "five columns"},
              {"sum | 0 | of=1,2 | 3 | - | -", "five columns"},
              {"sum | none | of=1,2 | 3 | -", "not a number: none"},
              {"sum | 0 | of=1,2x | 3 | -", "not a number: 2x"},
              {"sum | 0 | of=1,2/3/4 | 3 | -", "not a number: 2/3/4"},
              {"sum | 0 | of=1,2 of=1,2 | 3 | -", "twice: of"},
              {"sum | 0 | of | 3 | -", "no number for of"},
              {"sum | 0 | and=3 | 3 | -", "no input of"},
              {"sum | 0 | of=3 | 3 | -", "wrong count of of"},
              {"sum | 0 | of=1,2 or=3 | 3 | -", "or"},
              {"sum | 0 | of=1,2 | | -", "nothing is expected"},
              {"sum | 0 | of=1,2 | 3 very negative | -", "more than one word"},
              {"sum | 0 | of=1,2 | 3 | -\nproduct | 0 | of=1,2 | 2 | -", "unknown operation"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.line);
    testing::TestPartResultArray failures;
    {
      testing::ScopedFakeTestPartResultReporter reporter(
          testing::ScopedFakeTestPartResultReporter::INTERCEPT_ONLY_CURRENT_THREAD, &failures);
      RunSums(row.line);
    }
    ASSERT_GE(failures.size(), 1);
    EXPECT_NE(std::string::npos,
              std::string(failures.GetTestPartResult(0).message()).find(row.message))
        << failures.GetTestPartResult(0).message();
  }
}

TEST(CaseFile, AWayBackThatIsNotGoneFails) {
  EXPECT_NONFATAL_FAILURE(
      RunCases("text", "a | 0 | | 1 | 0", {{"a", [](const Case& given) { given.Expect({1}); }}}),
      "back");
}

TEST(CaseFile, NoLineFailsForTheOperationAndForTheText) {
  EXPECT_NONFATAL_FAILURE(RunCases("text", "# only this\n", {}), "text has no lines");
  EXPECT_NONFATAL_FAILURE(
      RunCases("text", "a | 0 | | 1 | -",
               {{"a", [](const Case& given) { given.Expect({1}); }}, {"b", [](const Case&) {}}}),
      "text has no line for b");
}

}  // namespace
}  // namespace tavix::test
