#include "host/app/command_line.h"

#include <algorithm>
#include <cstddef>
#include <iterator>

#include "host/formats/field_text.h"
#include "host/pictures/one_bit_picture.h"

namespace fieldhost {
namespace {

constexpr std::string_view kOptionsWithValue[] = {"--picture", "--one-bit", "--size", "--dpi"};

CommandLine Refused(std::string problem) {
  CommandLine refused;
  refused.problem = std::move(problem);
  return refused;
}

// Takes the value of an option, or sets the problem of `line`.
void TakeValue(const std::string& option, const std::string& value, CommandLine& line) {
  if (option == "--picture") {
    line.picture = value;
    if (!LowerCase(value).ends_with(".png")) {
      line.problem = "The picture " + value + " must be named .png.";
    }
  } else if (option == "--one-bit") {
    line.one_bit = value;
    if (!OneBitFormatOf(value)) {
      line.problem = "The one-bit picture " + value + " must be named .pbm or .png.";
    }
  } else if (option == "--dpi") {
    line.resolution = ResolutionOf(value);
    if (!line.resolution) {
      line.problem = "The resolution " + value + " is not a whole number from 30 to 2400.";
    }
  } else if (line.size = PictureSizeOf(value); !line.size) {
    line.problem =
        "The size " + value + " is not of the form 240x320 with sides from 100 to 8192 pixels.";
  }
}

// Options that exclude one another, as a sentence; empty without such.
std::string Conflict(const CommandLine& line) {
  const bool is_png = !line.picture.empty() || OneBitFormatOf(line.one_bit) == OneBitFormat::kPng;
  if (line.resolution && !is_png) {
    return "Only a PNG picture has a resolution; leave out --dpi.";
  }
  if (line.one_bit.empty()) return "";
  if (!line.picture.empty()) return "Choose one of --picture and --one-bit.";
  if (line.side) return "The one-bit picture is of the plan; leave out --side.";
  return "";
}

}  // namespace

CommandLine ParseCommandLine(std::span<const std::string> arguments) {
  CommandLine line;
  bool only_files = false;
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    const std::string& argument = arguments[i];
    if (only_files || !argument.starts_with("--")) {
      line.files.push_back(argument);
      continue;
    }
    if (argument == "--") {
      only_files = true;
      continue;
    }
    if (argument == "--side") {
      line.side = true;
      continue;
    }
    if (std::ranges::find(kOptionsWithValue, argument) == std::end(kOptionsWithValue)) {
      return Refused("There is no option " + argument + '.');
    }
    if (++i == arguments.size() || arguments[i].empty()) {
      return Refused("The option " + argument + " lacks its value.");
    }
    TakeValue(argument, arguments[i], line);
    if (!line.problem.empty()) return line;
  }
  line.problem = Conflict(line);
  return line;
}

}  // namespace fieldhost
