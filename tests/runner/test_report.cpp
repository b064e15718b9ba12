#include "tests/runner/test_report.h"

#include <algorithm>
#include <iomanip>
#include <sstream>

namespace tavix::runner {
namespace {

constexpr char kDigits[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";
constexpr std::size_t kLineLength = 76;

std::string InHex(std::uint32_t code) {
  std::ostringstream text;
  text << "0x" << std::hex << std::uppercase << std::setw(8) << std::setfill('0') << code;
  return text.str();
}

std::string Seconds(double seconds) {
  std::ostringstream text;
  text << std::fixed << std::setprecision(1) << seconds << " s";
  return text.str();
}

// Of a program that did not come to its own end.
std::string HowItBrokeOff(const ProgramRun& run) {
  if (run.ending == Ending::kNotStarted) {
    return "NOT STARTED, system error " + std::to_string(run.code);
  }
  std::string words = run.ending == Ending::kAfterLimit
                          ? "HUNG, ended after " + Seconds(run.seconds)
                          : "CRASHED, exit code " + InHex(run.code);
  const auto& tests = run.output.tests;
  if (tests.empty()) return words + ", before its first test";
  return words + (tests.back().verdict == Verdict::kUnfinished ? ", in " : ", after ") +
         tests.back().name;
}

void AddHeading(std::ostringstream& text, const char* heading) {
  text << "\n---- " << heading << " ----\n\n";
}

void AddSummary(std::ostringstream& text, const std::vector<ProgramRun>& runs) {
  for (const ProgramRun& run : runs) {
    text << (run.Failed() ? "FAILED  " : "ok      ") << run.name << ": " << Outcome(run) << "\n";
  }
}

void AddFailures(std::ostringstream& text, const ProgramRun& run) {
  for (const TestResult& test : run.output.tests) {
    if (test.verdict == Verdict::kPassed || test.verdict == Verdict::kSkipped) continue;
    text << "==== " << run.name << ": " << test.name
         << (test.verdict == Verdict::kFailed ? " failed\n" : " did not end\n") << test.output
         << "\n";
  }
  if (!run.BrokeOff()) return;
  text << "==== " << run.name << ": " << HowItBrokeOff(run) << "\n" << run.standing;
  text << run.output.outside << "\n";
}

void AddSkipped(std::ostringstream& text, const ProgramRun& run) {
  for (const TestResult& test : run.output.tests) {
    if (test.verdict != Verdict::kSkipped) continue;
    text << "==== " << run.name << ": " << test.name << "\n" << test.output << "\n";
  }
}

void AddPictures(std::ostringstream& text, const ProgramRun& run) {
  for (const ReportPicture& picture : run.pictures) {
    text << "-----BEGIN PICTURE " << run.name << "/" << picture.name << "-----\n"
         << InBase64(picture.bytes) << "-----END PICTURE-----\n";
  }
  if (run.pictures_left_out == 0) return;
  text << run.name << ": " << run.pictures_left_out << " further pictures are left out.\n";
}

std::string WithWindowsLineEnds(const std::string& text) {
  std::string lines = "\xEF\xBB\xBF";
  for (const char letter : text) {
    if (letter == '\n') lines += '\r';
    lines += letter;
  }
  return lines;
}

}  // namespace

// A program of GoogleTest ends with 0 or 1.
bool ProgramRun::BrokeOff() const {
  return ending != Ending::kByItself || !output.is_whole || code > 1;
}

bool ProgramRun::Failed() const { return BrokeOff() || code != 0; }

Tally TallyOf(const std::vector<ProgramRun>& runs) {
  Tally tally;
  for (const ProgramRun& run : runs) {
    tally.passed += run.output.Count(Verdict::kPassed);
    tally.failed += run.output.Count(Verdict::kFailed) + run.output.Count(Verdict::kUnfinished);
    tally.skipped += run.output.Count(Verdict::kSkipped);
    tally.broken_off += run.BrokeOff() ? 1 : 0;
  }
  return tally;
}

std::string Outcome(const ProgramRun& run) {
  std::ostringstream text;
  text << run.output.Count(Verdict::kPassed) << " passed, " << run.output.Count(Verdict::kFailed)
       << " failed, " << run.output.Count(Verdict::kSkipped) << " skipped, "
       << Seconds(run.seconds);
  if (run.BrokeOff()) text << ", " << HowItBrokeOff(run);
  return text.str();
}

std::string ReportText(const std::vector<Fact>& facts, const std::vector<ProgramRun>& runs,
                       std::size_t planned) {
  constexpr int kNames = 18;  // characters of the first column
  const Tally tally = TallyOf(runs);
  std::ostringstream text;
  text << "Tavix test report\n\n" << std::left;
  for (const Fact& fact : facts) text << std::setw(kNames) << fact.name << fact.value << "\n";
  text << std::setw(kNames) << "Programs" << runs.size() << " of " << planned << " have run"
       << (runs.size() < planned ? ": THE REPORT IS NOT COMPLETE" : "") << "\n"
       << std::setw(kNames) << "Tests" << tally.passed << " passed, " << tally.failed << " failed, "
       << tally.skipped << " skipped; " << tally.broken_off << " programs hung or crashed\n";
  AddHeading(text, "Programs");
  AddSummary(text, runs);
  AddHeading(text, "Failures");
  for (const ProgramRun& run : runs) AddFailures(text, run);
  AddHeading(text, "Skipped");
  for (const ProgramRun& run : runs) AddSkipped(text, run);
  AddHeading(text, "Pictures of failures (scripts/report_pictures.py takes them out)");
  for (const ProgramRun& run : runs) AddPictures(text, run);
  text << "\n---- End of the report ----\n";
  return WithWindowsLineEnds(text.str());
}

std::string InBase64(std::string_view bytes) {
  std::string digits;
  for (std::size_t i = 0; i < bytes.size(); i += 3) {
    const std::size_t given = std::min<std::size_t>(3, bytes.size() - i);
    std::uint32_t three = 0;
    for (std::size_t k = 0; k < 3; ++k) {
      three = three << 8U | (k < given ? static_cast<std::uint8_t>(bytes[i + k]) : 0U);
    }
    for (std::size_t k = 0; k < 4; ++k) {
      digits += k <= given ? kDigits[three >> (18U - 6U * k) & 63U] : '=';
    }
  }
  std::string lines;
  for (std::size_t i = 0; i < digits.size(); i += kLineLength) {
    lines += digits.substr(i, kLineLength) + "\n";
  }
  return lines;
}

}  // namespace tavix::runner
