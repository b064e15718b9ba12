#include "tests/support/private_folder.h"

#include <windows.h>

namespace tavix::test {
namespace {

std::wstring ValueOf(const std::wstring& variable) {
  std::wstring value(::GetEnvironmentVariableW(variable.c_str(), nullptr, 0), L'\0');
  value.resize(
      ::GetEnvironmentVariableW(variable.c_str(), value.data(), static_cast<DWORD>(value.size())));
  return value;
}

// A name no other folder has: two test programs may run side by side.
std::filesystem::path FreshFolder() {
  static int count = 0;
  std::filesystem::path folder;
  do {
    folder =
        std::filesystem::temp_directory_path() /
        (L"tavix-" + std::to_wstring(::GetCurrentProcessId()) + L"-" + std::to_wstring(++count));
  } while (!std::filesystem::create_directory(folder));
  return folder;
}

}  // namespace

PrivateFolder::PrivateFolder(const wchar_t* variable)
    : variable_(variable), old_value_(ValueOf(variable_)), path_(FreshFolder()) {
  ::SetEnvironmentVariableW(variable_.c_str(), path_.c_str());
}

PrivateFolder::~PrivateFolder() {
  ::SetEnvironmentVariableW(variable_.c_str(), old_value_.empty() ? nullptr : old_value_.c_str());
  std::error_code ignored;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(path_, ignored)) {
    ::SetFileAttributesW(entry.path().c_str(), FILE_ATTRIBUTE_NORMAL);
  }
  std::filesystem::remove_all(path_, ignored);
}

}  // namespace tavix::test
