// The formats of one-bit picture files.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/pictures/one_bit_picture.h"

namespace fieldhost {

enum class OneBitFormat {
  kPng,
  kPbm,  // portable bitmap, the raw form
};

// By the ending of the file's name, in upper or lower case.
[[nodiscard]] std::optional<OneBitFormat> OneBitFormatOf(std::string_view file_name);

// The bytes of a portable bitmap file: "P4", the sides in digits, then the rows.
[[nodiscard]] std::string PortableBitmap(const OneBitPicture& picture);

}  // namespace fieldhost
