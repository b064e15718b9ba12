#include "tests/runner/failed_pictures.h"

#include <windows.h>

#include <objidl.h>
// Its headers need the types of the one above.
#include <gdiplus.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <tuple>

#include "tests/runner/utf8.h"

namespace tavix::runner {
namespace {

// The system's coder of PNG files.
constexpr CLSID kPng = {0x557CF406, 0x1A04, 0x11D3, {0x9A, 0x73, 0, 0, 0xF8, 0x1E, 0xF3, 0x2E}};

std::vector<std::filesystem::path> BitmapsByAge(const std::filesystem::path& folder) {
  std::vector<std::tuple<std::filesystem::file_time_type, std::filesystem::path>> found;
  std::error_code absent;
  for (const auto& entry : std::filesystem::directory_iterator(folder, absent)) {
    if (entry.path().extension() == L".bmp") {
      found.emplace_back(entry.last_write_time(), entry.path());
    }
  }
  std::sort(found.begin(), found.end());
  std::vector<std::filesystem::path> files;
  for (const auto& [time, file] : found) files.push_back(file);
  return files;
}

std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
}

}  // namespace

FailedPictures TakeFailedPictures(const std::filesystem::path& folder, std::size_t most) {
  FailedPictures pictures;
  const auto files = BitmapsByAge(folder);
  const Gdiplus::GdiplusStartupInput input;
  ULONG_PTR token = 0;
  if (files.empty() || Gdiplus::GdiplusStartup(&token, &input, nullptr) != Gdiplus::Ok) {
    return pictures;
  }
  for (const auto& file : files) {
    std::filesystem::path png = file;
    png.replace_extension(L".png");
    if (pictures.taken.size() == most ||
        Gdiplus::Bitmap(file.c_str()).Save(png.c_str(), &kPng, nullptr) != Gdiplus::Ok) {
      ++pictures.left_out;
      continue;
    }
    pictures.taken.push_back({Utf8(png.filename().wstring()), BytesOf(png)});
  }
  Gdiplus::GdiplusShutdown(token);
  return pictures;
}

}  // namespace tavix::runner
