// On what kind of Windows the tests run.
#pragma once

#include <vector>

#include "tests/runner/test_report.h"

namespace tavix::runner {

// Windows with its build, screens, text smoothing, languages, code pages, at this moment.
[[nodiscard]] std::vector<Fact> SystemFacts();

}  // namespace tavix::runner
