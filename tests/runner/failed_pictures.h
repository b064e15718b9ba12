// The pictures of comparisons that failed, on their way into the report.
#pragma once

#include <filesystem>
#include <vector>

#include "tests/runner/test_report.h"

namespace tavix::runner {

struct FailedPictures {
  std::vector<ReportPicture> taken;  // as PNG
  int left_out = 0;
};

// Of the bitmap files in a folder the oldest `most`; none where there is no such folder.
[[nodiscard]] FailedPictures TakeFailedPictures(const std::filesystem::path& folder,
                                                std::size_t most);

}  // namespace tavix::runner
