// The host's command line: fieldhost [FILES...] [--picture FILE.png] [--size WxH]
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace fieldhost {

inline constexpr std::string_view kUsage =
    "usage: fieldhost [FILES...] [--picture FILE.png] [--size WIDTHxHEIGHT]";

// The client area of the main window in pixels.
struct PictureSize {
  static constexpr int kSmallest = 100;
  static constexpr int kLargest = 8192;

  int width = 0;
  int height = 0;
};

// Where no size is asked for and the screen is larger.
inline constexpr PictureSize kUsualSize{480, 600};

// Text is UTF-8.
struct CommandLine {
  std::vector<std::string> files;
  std::string picture;  // empty: show a window
  std::optional<PictureSize> size;
  std::string problem;  // what is wrong, one sentence; the rest is then worthless
};

// `arguments` without the program's name. Behind "--" everything is a file.
[[nodiscard]] CommandLine ParseCommandLine(std::span<const std::string> arguments);

}  // namespace fieldhost
