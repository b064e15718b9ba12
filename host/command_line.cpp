#include "host/command_line.h"

#include <charconv>
#include <cstddef>
#include <system_error>

namespace fieldhost {
namespace {

std::optional<int> Side(std::string_view text) {
  int side = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), side);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  if (side < PictureSize::kSmallest || side > PictureSize::kLargest) return std::nullopt;
  return side;
}

std::optional<PictureSize> SizeOf(std::string_view text) {
  const std::size_t x = text.find('x');
  if (x == std::string_view::npos) return std::nullopt;
  const std::optional<int> width = Side(text.substr(0, x));
  const std::optional<int> height = Side(text.substr(x + 1));
  if (!width || !height) return std::nullopt;
  return PictureSize{*width, *height};
}

CommandLine Refused(std::string problem) {
  CommandLine refused;
  refused.problem = std::move(problem);
  return refused;
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
    if (argument != "--picture" && argument != "--size") {
      return Refused("There is no option " + argument + '.');
    }
    if (++i == arguments.size() || arguments[i].empty()) {
      return Refused("The option " + argument + " lacks its value.");
    }
    if (argument == "--picture") {
      line.picture = arguments[i];
    } else if (line.size = SizeOf(arguments[i]); !line.size) {
      return Refused("The size " + arguments[i] +
                     " is not of the form 240x320 with sides from 100 to 8192 pixels.");
    }
  }
  return line;
}

}  // namespace fieldhost
