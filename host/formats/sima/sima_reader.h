// SIMA, the survey exchange format of Japan in its text edition: points and parcels. Routes and
// other records are skipped.
#pragma once

#include "host/formats/read_log.h"
#include "host/formats/text_lines.h"
#include "host/survey/survey.h"

namespace fieldhost {

// Reads all points and parcels. Skipped and logged: points without coordinates, vertices without a
// point or a parcel, parcels without vertices, and, once for each code, records of unknown codes.
[[nodiscard]] Survey ReadSima(const TextLines& lines, ReadLog& log);

}  // namespace fieldhost
