// What a test program printed, test by test.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tavix::runner {

enum class Verdict { kPassed, kFailed, kSkipped, kUnfinished };

struct TestResult {
  std::string name;    // Suite.Name, with /0 of a parameter
  Verdict verdict;     // unfinished: the program ended within the test
  std::string output;  // the lines that the test printed
};

struct GtestOutput {
  std::vector<TestResult> tests;
  std::string outside;    // what was printed before the first test and after the last one
  bool is_whole = false;  // whether the program came to its own end

  [[nodiscard]] int Count(Verdict verdict) const;
};

// Reads what a program of GoogleTest printed, cut off anywhere.
[[nodiscard]] GtestOutput ReadGtestOutput(std::string_view text);

}  // namespace tavix::runner
