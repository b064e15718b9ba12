#include "host/survey/disk_file.h"

#include <cstdint>
#include <fstream>
#include <ios>
#include <system_error>

namespace fieldhost {
namespace {

constexpr std::uintmax_t kLargest = 64U << 20U;  // bytes; more than a million points

}  // namespace

FileBytes ReadWholeFile(const std::filesystem::path& path) {
  const auto refuse = [](const char* problem) { return FileBytes{"", problem}; };
  constexpr const char* kUnreadable =
      "cannot be read; check that you may open it and that no other program holds it";

  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(path, error);
  if (!std::filesystem::exists(status)) return refuse("does not exist; check its name and folder");
  if (std::filesystem::is_directory(status)) return refuse("is a folder; choose a file in it");
  if (!std::filesystem::is_regular_file(status))
    return refuse("is not a file; choose a survey file");

  const std::uintmax_t size = std::filesystem::file_size(path, error);
  if (error) return refuse(kUnreadable);
  if (size == 0) return refuse("is empty; export it again");
  if (size > kLargest) return refuse("is larger than 64 MB; split it");

  std::ifstream file(path, std::ios::binary);
  std::string bytes(static_cast<std::size_t>(size), '\0');
  if (!file || !file.read(bytes.data(), static_cast<std::streamsize>(bytes.size()))) {
    return refuse(kUnreadable);
  }
  return {std::move(bytes), ""};
}

}  // namespace fieldhost
