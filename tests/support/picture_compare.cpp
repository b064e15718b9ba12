#include "tests/support/picture_compare.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <iomanip>
#include <sstream>
#include <string>

#include "tests/support/program_folder.h"

namespace tavix::test {
namespace {

std::filesystem::path FolderOfFailures() {
  const wchar_t* const folder = ::_wgetenv(L"TAVIX_FAILED_PICTURES");
  return folder ? folder : BesideProgram(L"..\\failed-pictures").lexically_normal();
}

// Several failures of one test do not overwrite each other.
std::filesystem::path NextPath() {
  static int count = 0;
  const testing::TestInfo* test = testing::UnitTest::GetInstance()->current_test_info();
  std::string name = test ? std::string(test->test_suite_name()) + "." + test->name() : "program";
  name += "." + std::to_string(++count);
  for (char& letter : name) {
    if (letter == '/') letter = '_';
  }
  const std::filesystem::path folder = FolderOfFailures();
  std::filesystem::create_directories(folder);
  return folder / name;
}

// Between pictures that are not the same, in words.
std::string Difference(const Picture& expected, const Picture& actual) {
  std::ostringstream words;
  if (expected.width != actual.width || expected.height != actual.height) {
    words << "expected " << expected.width << " x " << expected.height << " pixels, got "
          << actual.width << " x " << actual.height;
    return words.str();
  }
  const auto differ = std::mismatch(expected.pixels.begin(), expected.pixels.end(),
                                    actual.pixels.begin(), actual.pixels.end());
  const auto place = static_cast<int>(differ.first - expected.pixels.begin());
  words << "first difference at (" << place % expected.width << ", " << place / expected.width
        << "): expected " << std::hex << std::setfill('0') << std::setw(6) << *differ.first
        << ", got " << std::setw(6) << *differ.second;
  return words.str();
}

}  // namespace

testing::AssertionResult SamePicture(const Picture& expected, const Picture& actual) {
  if (expected == actual) return testing::AssertionSuccess();
  const std::filesystem::path path = NextPath();
  // Wide texts: by narrow ones no file was opened in a folder with a Japanese name.
  WriteBmp(std::filesystem::path(path) += L".expected.bmp", expected);
  WriteBmp(std::filesystem::path(path) += L".actual.bmp", actual);
  return testing::AssertionFailure() << path.string() << ": " << Difference(expected, actual);
}

}  // namespace tavix::test
