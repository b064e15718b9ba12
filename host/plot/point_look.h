// How points of each kind look in the plot.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string_view>

namespace fieldhost {

// The values of a point legend, as <tavix/tavix.h> has them. Sizes are even: the settings that the
// user reaches by the plot's button know no others.
struct PointLook {
  const char* title;    // in the settings
  int mark;             // 1 to 11
  int pen_width;        // pixels
  std::uint32_t color;  // 0x00BBGGRR
  int mark_size;        // pixels
  int label_height;     // pixels, 0 for no label
};

// All looks; the first is that of points whose kind says nothing.
[[nodiscard]] std::span<const PointLook> PointLooks();

// The index of the look for a kind of point, told by the words that field codes begin with, in
// English or Japanese.
[[nodiscard]] std::size_t LookOf(std::string_view kind);

}  // namespace fieldhost
