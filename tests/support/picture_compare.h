// Exact comparison of pictures.
#pragma once

#include <gtest/gtest.h>

#include "tests/support/window_picture.h"

namespace tavix::test {

// Succeeds when every pixel is the same. Else it names the first that differs, and leaves both
// pictures as BMP files under the name of the running test, in the folder
// that TAVIX_FAILED_PICTURES names, else in failed-pictures beside the folder of the program.
[[nodiscard]] testing::AssertionResult SamePicture(const Picture& expected, const Picture& actual);

}  // namespace tavix::test
