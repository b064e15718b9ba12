// What the user is told about a load.
#pragma once

#include <cstddef>
#include <string>

#include "host/readers/read_log.h"
#include "host/readers/survey.h"

namespace fieldhost {

// "610 points, 1 lot, 2 lines skipped"; lots and lines only where there are any.
[[nodiscard]] std::string Summary(const Survey& survey, std::size_t skipped_lines);

// "site.csv, line 12: the northing 'abc' is not a number."
[[nodiscard]] std::string Sentence(const Diagnostic& diagnostic);

}  // namespace fieldhost
