// The text that a run of the test programs leaves to be sent back.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tests/runner/gtest_output.h"

namespace tavix::runner {

// One line of the report's head, as "Windows" and "10.0.19045".
struct Fact {
  std::string name;
  std::string value;
};

// A file of a comparison that failed.
struct ReportPicture {
  std::string name;   // of the file: Suite.Name.1.expected.png
  std::string bytes;  // PNG
};

enum class Ending { kByItself, kAfterLimit, kNotStarted };

struct ProgramRun {
  std::string name;
  Ending ending = Ending::kByItself;
  std::uint32_t code = 0;  // the exit code; of a program that was not started, the system's error
  double seconds = 0;
  GtestOutput output;
  std::string standing;  // where a program stood that was ended, in words of several lines
  std::vector<ReportPicture> pictures;
  int pictures_left_out = 0;

  // Whether it hung, crashed or was not started: it did not come to its own end.
  [[nodiscard]] bool BrokeOff() const;
  [[nodiscard]] bool Failed() const;
};

struct Tally {
  int passed = 0;
  int failed = 0;
  int skipped = 0;
  int broken_off = 0;  // programs
};

[[nodiscard]] Tally TallyOf(const std::vector<ProgramRun>& runs);

// How a program ended, in a few words: "12 passed, 1 failed, 2 skipped, 3.5 s".
[[nodiscard]] std::string Outcome(const ProgramRun& run);

// The whole report: UTF-8 with a byte order mark and Windows' line ends. `planned` is the number of
// programs of a whole run; with fewer runs the report says that it is not complete.
[[nodiscard]] std::string ReportText(const std::vector<Fact>& facts,
                                     const std::vector<ProgramRun>& runs, std::size_t planned);

// Base64 in lines of 76 characters.
[[nodiscard]] std::string InBase64(std::string_view bytes);

}  // namespace tavix::runner
