// The host's command line.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "host/pictures/picture_size.h"

namespace fieldhost {

inline constexpr std::string_view kUsage =
    "usage: fieldhost [FILES...] [--picture FILE.png | --one-bit FILE.pbm|FILE.png]\n"
    "                 [--side] [--size WIDTHxHEIGHT] [--dpi DOTS]";

// Text is UTF-8.
struct CommandLine {
  std::vector<std::string> files;
  std::string picture;              // of the window; empty: none
  std::string one_bit;              // picture of the plan; empty: none
  bool side = false;                // the window shows the side view
  std::optional<PictureSize> size;  // of the picture, or of the window's client area
  std::optional<int> resolution;    // of a PNG file, dots an inch
  std::string problem;              // what is wrong, one sentence; the rest is then undefined
};

// `arguments` without the program's name. Behind "--" everything is a file.
[[nodiscard]] CommandLine ParseCommandLine(std::span<const std::string> arguments);

}  // namespace fieldhost
