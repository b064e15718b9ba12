#include "tests/support/picture_compare.h"

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iomanip>
#include <sstream>
#include <string>

#include "tests/support/program_folder.h"

namespace tavix::test {
namespace {

void WriteBmp(const std::filesystem::path& path, const Picture& picture) {
  BITMAPINFOHEADER info{};
  info.biSize = sizeof info;
  info.biWidth = picture.width;
  info.biHeight = -picture.height;
  info.biPlanes = 1;
  info.biBitCount = 32;
  const std::size_t size = picture.pixels.size() * sizeof picture.pixels[0];
  BITMAPFILEHEADER file{};
  file.bfType = 0x4D42;  // "BM"
  file.bfOffBits = sizeof file + sizeof info;
  file.bfSize = file.bfOffBits + static_cast<DWORD>(size);
  std::ofstream out(path, std::ios::binary);
  out.write(reinterpret_cast<const char*>(&file), sizeof file);
  out.write(reinterpret_cast<const char*>(&info), sizeof info);
  out.write(reinterpret_cast<const char*>(picture.pixels.data()),
            static_cast<std::streamsize>(size));
}

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
