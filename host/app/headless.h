// The host without a user: draws one picture and ends.
#pragma once

#include "host/app/command_line.h"

namespace fieldhost {

// Draws the files of the command line into its picture: of the window, or one-bit. Prints the
// summary, and to the error stream what went wrong. Returns the exit code: 0, or 1 when a file
// could not be read or written.
[[nodiscard]] int DrawPicture(const CommandLine& line);

}  // namespace fieldhost
