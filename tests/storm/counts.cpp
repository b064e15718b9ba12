#include "tests/storm/counts.h"

#include <algorithm>
#include <array>
#include <filesystem>

#include "tests/support/window_count.h"

namespace tavix::storm {
namespace {

void AddFiles(const wchar_t* variable, std::vector<std::string>& files) {
  std::array<wchar_t, MAX_PATH> folder{};
  if (::GetEnvironmentVariableW(variable, folder.data(), MAX_PATH) == 0) return;
  for (const auto& entry : std::filesystem::directory_iterator(folder.data())) {
    files.push_back(entry.path().filename().string());
  }
}

std::string Names(const std::vector<std::string>& files) {
  std::string names;
  for (const std::string& file : files) names += " " + file;
  return names;
}

}  // namespace

Counts CountAll() {
  Counts counts{test::HeldByLibrary(), test::CountWindows(), {}};
  AddFiles(L"ROVCOND_DATA_FOLDER", counts.files);
  AddFiles(L"CE_DEVICE_ROOT", counts.files);
  std::sort(counts.files.begin(), counts.files.end());
  return counts;
}

std::string Difference(const Counts& before, const Counts& after) {
  std::string text;
  const auto compare = [&](const char* what, auto first, auto last, auto slack) {
    if (first == last || (first < last && last - first <= slack)) return;
    text += std::string(what) + ": " + std::to_string(first) + " before, " + std::to_string(last) +
            " after\n";
  };
  const std::size_t none = 0;
  compare("file handles", before.held.files, after.held.files, none);
  compare("blocks of memory", std::min(before.held.memory, after.held.memory), after.held.memory,
          test::kMostTemporary);
  compare("GDI objects and device contexts", before.held.drawing, after.held.drawing, none);
  compare("windows", before.windows, after.windows, 0);
  if (before.files != after.files) {
    text += "files:" + Names(before.files) + " before," + Names(after.files) + " after\n";
  }
  return text;
}

}  // namespace tavix::storm
