// Colours as the library takes them.
#pragma once

#include <cstdint>

namespace fieldhost {

// 0x00BBGGRR, from parts of 0 to 255.
constexpr std::uint32_t Rgb(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
  return red | green << 8U | blue << 16U;
}

}  // namespace fieldhost
