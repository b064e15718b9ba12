// One-bit pictures as files.
#pragma once

#include <filesystem>

#include "host/pictures/one_bit_format.h"
#include "host/pictures/one_bit_picture.h"

namespace fieldhost {

// Writes the file, in place of one that is there. `resolution` in dots an inch; a portable bitmap
// holds none. False when it cannot be written.
[[nodiscard]] bool WriteOneBitPicture(const OneBitPicture& picture, OneBitFormat format,
                                      int resolution, const std::filesystem::path& file);

}  // namespace fieldhost
