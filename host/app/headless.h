// The host without a window for the user: draws one picture and ends.
#pragma once

#include "host/app/command_line.h"

namespace fieldhost {

// Draws the files of the command line into its picture: of the window, or one-bit. Prints the
// summary, and what went wrong to the error stream. Returns the exit code: 0, or 1 when a file
// could not be read or written.
[[nodiscard]] int DrawPicture(const CommandLine& line);

}  // namespace fieldhost
