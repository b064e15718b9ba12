#include "tests/support/picture_compare.h"

#include <filesystem>
#include <iomanip>
#include <string>

namespace tavix::test {
namespace {

// Several failures of one test do not overwrite each other.
std::filesystem::path NextPath() {
  static int count = 0;
  const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
  std::string name =
      std::string(test->test_suite_name()) + "." + test->name() + "." + std::to_string(++count);
  for (char& letter : name) {
    if (letter == '/') letter = '_';
  }
  std::filesystem::create_directories(TAVIX_FAILED_PICTURES);
  return std::filesystem::path(TAVIX_FAILED_PICTURES) / name;
}

}  // namespace

testing::AssertionResult SamePicture(const Picture& expected, const Picture& actual) {
  if (expected == actual) return testing::AssertionSuccess();
  const std::filesystem::path path = NextPath();
  WriteBmp(path.string() + ".expected.bmp", expected);
  WriteBmp(path.string() + ".actual.bmp", actual);

  testing::AssertionResult result = testing::AssertionFailure() << path.string() << ": ";
  if (expected.width != actual.width || expected.height != actual.height) {
    return result << "expected " << expected.width << " x " << expected.height << " pixels, got "
                  << actual.width << " x " << actual.height;
  }
  for (int y = 0; y < expected.height; ++y) {
    for (int x = 0; x < expected.width; ++x) {
      if (expected.At(x, y) == actual.At(x, y)) continue;
      return result << "first difference at (" << x << ", " << y << "): expected " << std::hex
                    << std::setfill('0') << std::setw(6) << expected.At(x, y) << ", got "
                    << std::setw(6) << actual.At(x, y);
    }
  }
  return result;
}

}  // namespace tavix::test
