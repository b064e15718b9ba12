// SIMA, the survey exchange format of Japan in its text edition: points and lots. Routes and other
// records are skipped.
#pragma once

#include "host/formats/read_log.h"
#include "host/formats/text_lines.h"
#include "host/survey/survey.h"

namespace fieldhost {

// Reads all points and lots. Skipped and said: points without coordinates, corners without a point
// or a lot, lots without corners, and, once for each code, records of unknown codes.
[[nodiscard]] Survey ReadSima(const TextLines& lines, ReadLog& log);

}  // namespace fieldhost
