// One test program, run to its end or to the end of patience.
#pragma once

#include <filesystem>

#include "tests/runner/test_report.h"

namespace tavix::runner {

// Runs a program with the current folder of this one. What it prints goes into a file in `folder`,
// and the pictures of its failures into a folder there. A program that has not ended after
// `limit` seconds is ended, with everything it started.
[[nodiscard]] ProgramRun RunProgram(const std::filesystem::path& program,
                                    const std::filesystem::path& folder, unsigned limit);

}  // namespace tavix::runner
