#include "tests/runner/gtest_output.h"

#include <algorithm>
#include <optional>

namespace tavix::runner {
namespace {

constexpr std::string_view kBegin = "[ RUN      ] ";
constexpr std::string_view kRule = "[==========] ";

struct Ending {
  std::string_view mark;
  Verdict verdict;
};

constexpr Ending kEndings[] = {{"[       OK ] ", Verdict::kPassed},
                               {"[  FAILED  ] ", Verdict::kFailed},
                               {"[  SKIPPED ] ", Verdict::kSkipped}};

// Whether the text begins with the whole name of a test: Plan.A is not the begin of Plan.Ab.
bool BeginsWithName(std::string_view text, std::string_view name) {
  if (!text.starts_with(name)) return false;
  const std::string_view rest = text.substr(name.size());
  return rest.empty() || rest.front() == ' ' || rest.front() == ',';
}

struct End {
  std::size_t at;  // of the mark in the line: a test may leave its own line unended
  Verdict verdict;
};

std::optional<End> EndOf(std::string_view test, std::string_view line) {
  for (const Ending& ending : kEndings) {
    const std::size_t at = line.find(ending.mark);
    if (at == std::string_view::npos) continue;
    if (BeginsWithName(line.substr(at + ending.mark.size()), test)) return End{at, ending.verdict};
  }
  return std::nullopt;
}

}  // namespace

int GtestOutput::Count(Verdict verdict) const {
  return static_cast<int>(
      std::count_if(tests.begin(), tests.end(),
                    [verdict](const TestResult& test) { return test.verdict == verdict; }));
}

GtestOutput ReadGtestOutput(std::string_view text) {
  GtestOutput output;
  bool runs = false;  // within the last test of the list
  while (!text.empty()) {
    const std::size_t length = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, length);
    text.remove_prefix(std::min(length + 1, text.size()));
    if (line.ends_with('\r')) line.remove_suffix(1);
    if (runs) {
      TestResult& test = output.tests.back();
      const auto end = EndOf(test.name, line);
      if (end) {
        test.verdict = end->verdict;
        line = line.substr(0, end->at);
        runs = false;
      }
      if (!end || !line.empty()) test.output.append(line).append("\n");
    } else if (line.starts_with(kBegin)) {
      output.tests.push_back(
          {std::string(line.substr(kBegin.size())), Verdict::kUnfinished, std::string()});
      runs = true;
    } else if (line.starts_with(kRule) && line.ends_with(" total)")) {
      output.is_whole = true;
    } else if (!line.starts_with('[') && !line.empty()) {
      output.outside.append(line).append("\n");
    }
  }
  return output;
}

}  // namespace tavix::runner
