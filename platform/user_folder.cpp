#include "platform/user_folder.h"

#include <windows.h>
// <shlobj.h> needs <windows.h> before it.
#include <shlobj.h>

namespace tavix {

namespace {

std::wstring ValueOf(const wchar_t* variable) {
  std::wstring value(GetEnvironmentVariableW(variable, nullptr, 0), L'\0');
  const auto room = static_cast<DWORD>(value.size());
  value.resize(room > 0 ? GetEnvironmentVariableW(variable, value.data(), room) : 0);
  return value;
}

}  // namespace

std::wstring FolderFromEnvironment(const wchar_t* variable) {
  std::wstring folder = ValueOf(variable);
  folder.erase(folder.find_last_not_of(L"\\/") + 1);
  return folder;
}

std::wstring FolderOfUser(const wchar_t* name) {
  WCHAR local[MAX_PATH];
  if (SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA | CSIDL_FLAG_CREATE, nullptr, 0, local) !=
      S_OK) {
    return {};
  }
  std::wstring folder = std::wstring(local) + L"\\Tavix";
  CreateDirectoryW(folder.c_str(), nullptr);
  folder.append(L"\\").append(name);
  CreateDirectoryW(folder.c_str(), nullptr);
  return folder;
}

}  // namespace tavix
