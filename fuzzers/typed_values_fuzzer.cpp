// Any text as what users type and hosts are started with: numbers, scales, sizes, command lines.
// What is taken lies within its limits, and means the same when it is written out.

#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "fuzzers/fuzz_input.h"
#include "host/app/command_line.h"
#include "host/formats/field_text.h"
#include "host/formats/landxml/length_unit.h"
#include "host/formats/text_encoding.h"
#include "host/survey/memo_text.h"
#include "host/tools/sheet.h"
#include "platform/tdialog/integer_text.h"

namespace {

using namespace fieldhost;
using tavix::fuzz::FuzzInput;
using tavix::fuzz::Require;

std::string WrittenOut(double number) {
  std::array<char, 32> text{};
  std::snprintf(text.data(), text.size(), "%.17g", number);
  return text.data();
}

void CheckNumbers(std::string_view text) {
  for (const DecimalMark mark : {DecimalMark::kPoint, DecimalMark::kComma}) {
    const std::optional<double> number = RealNumber(text, mark);
    if (!number) continue;
    Require(std::isfinite(*number), "a number is finite");
    Require(RealNumber(WrittenOut(*number)) == number, "a number is read back");
    const std::optional<double> ground = GroundNumber(text, mark);
    Require(ground.has_value() == IsOnGround(*number), "a coordinate is on the ground");
    Require(!ground || *ground == *number, "a coordinate is its number");
  }
  const std::optional<int> whole = WholeNumber(text);
  Require(!whole || WholeNumber(std::to_string(*whole)) == whole, "a whole number is read back");
  Require(!whole || RealNumber(text) == static_cast<double>(*whole), "a whole number is a number");
}

void CheckFields(std::string_view line, FuzzInput& input) {
  const char separators[] = {',', ';', '\t', ' '};
  const char separator = separators[input.Below(4)];
  const std::size_t most = 1 + input.Below(8);
  std::vector<std::string_view> fields;
  SplitFields(line, separator, most, fields);
  Require(fields.size() <= most, "no more fields than asked for");
  const char* end = line.data();
  for (const std::string_view field : fields) {
    Require(field == Trim(field), "fields are trimmed");
    if (field.empty()) continue;
    Require(end <= field.data() && field.data() + field.size() <= line.data() + line.size(),
            "fields are parts of the line, in order");
    end = field.data() + field.size();
    Require(FieldText(field).size() <= field.size(), "quotes only go");
  }
}

void CheckSheet(std::string_view text) {
  const std::optional<int> scale = ParseScale(text);
  if (scale) {
    Require(*scale >= 1 && *scale <= kLargestScale, "a scale is 1:1 to 1:1,000,000");
    Require(ParseScale("1:" + std::to_string(*scale)) == scale, "a scale is read back");
  } else if (IsUtf8(text)) {
    Require(IsUtf8(NoScale(text)), "a refusal is text");
  }
  const std::optional<PictureSize> size = PictureSizeOf(text);
  if (size) {
    Require(size->IsAllowed(), "a size is within its limits");
    const std::string written = std::to_string(size->width) + "x" + std::to_string(size->height);
    const std::optional<PictureSize> again = PictureSizeOf(written);
    Require(again && again->width == size->width && again->height == size->height,
            "a size is read back");
  }
  const std::optional<int> resolution = ResolutionOf(text);
  Require(!resolution || IsAllowedResolution(*resolution), "a resolution is within its limits");
  const std::optional<double> metres = MetresIn(text);
  Require(!metres || *metres > 0, "a unit is longer than nothing");
}

void CheckMemo(std::string_view text, FuzzInput& input) {
  if (!IsUtf8(text)) return;
  const std::string beginning = MemoBeginning(text, 1 + input.Below(40));
  Require(IsUtf8(beginning), "a memo is not cut within a character");
  Require(beginning.find('\n') == std::string::npos, "its beginning is one line");
  Require(IsUtf8(Quoted(text)), "neither is a quoted field");
}

void CheckEdit(std::string_view text, FuzzInput& input) {
  const std::wstring wide(text.begin(), text.end());
  const int one = input.Whole();
  const int other = input.Whole();
  const tdialog::IntegerLimits limits{std::min(one, other), std::max(one, other),
                                      1 + static_cast<int>(input.Below(12))};
  const std::optional<int> value = tdialog::ValueWithin(wide, limits);
  Require(!value || (*value >= limits.smallest && *value <= limits.largest),
          "a value is within its limits");
  if (tdialog::MayStand(wide, limits)) {
    const bool no_digits = wide.empty() || wide == L"-";
    Require(value.has_value() != no_digits, "what may stand has a value once it has a digit");
  }
}

void CheckCommandLine(std::string_view text) {
  std::vector<std::string> arguments;
  std::vector<std::string_view> words;
  SplitFields(text, ' ', text.size() + 1, words);
  arguments.assign(words.begin(), words.end());
  const CommandLine line = ParseCommandLine(arguments);
  if (!line.problem.empty()) return;
  Require(line.files.size() <= arguments.size(), "files are arguments");
  Require(!line.size || line.size->IsAllowed(), "a size is within its limits");
  Require(!line.resolution || IsAllowedResolution(*line.resolution), "so is a resolution");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  // The choices stand behind the text, so that a short input is a text.
  constexpr std::size_t kChoices = 16;
  const std::size_t length = size > kChoices ? size - kChoices : size;
  const std::string_view text(reinterpret_cast<const char*>(data), length);
  FuzzInput input(data + length, size - length);
  CheckNumbers(text);
  CheckFields(text, input);
  CheckSheet(text);
  CheckMemo(text, input);
  CheckEdit(text, input);
  CheckCommandLine(text);
  return 0;
}
