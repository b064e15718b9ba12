// SIMA, the survey exchange format of Japan in its text edition: points and lots. Routes and other
// records are skipped.
#pragma once

#include "host/readers/read_log.h"
#include "host/readers/survey.h"
#include "host/readers/text_lines.h"

namespace fieldhost {

// Reads all points and lots. Skipped and said: points without coordinates, corners without a point
// or a lot, lots without corners, and, once for each code, records of unknown codes.
[[nodiscard]] Survey ReadSima(const TextLines& lines, ReadLog& log);

}  // namespace fieldhost
