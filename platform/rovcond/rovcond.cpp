#include "rovcond.h"

#include <shlobj.h>

#include <algorithm>
#include <cwchar>
#include <string>

namespace {

std::wstring FromEnvironment() {
  constexpr LPCWSTR kVariable = L"ROVCOND_DATA_FOLDER";
  std::wstring folder(GetEnvironmentVariableW(kVariable, nullptr, 0), L'\0');
  if (folder.empty()) return folder;
  folder.resize(
      GetEnvironmentVariableW(kVariable, folder.data(), static_cast<DWORD>(folder.size())));
  return folder;
}

// Made when missing, its parent too.
std::wstring InLocalApplicationData() {
  WCHAR local[MAX_PATH];
  if (SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA | CSIDL_FLAG_CREATE, nullptr, 0, local) !=
      S_OK) {
    return {};
  }
  std::wstring folder(local);
  for (LPCWSTR step : {L"\\Tavix", L"\\Data"}) {
    folder += step;
    CreateDirectoryW(folder.c_str(), nullptr);
  }
  return folder;
}

}  // namespace

BOOL GetDataFolder(LPWSTR folder) {
  std::wstring path = FromEnvironment();
  if (path.empty()) path = InLocalApplicationData();
  if (!path.empty() && (path.back() == L'\\' || path.back() == L'/')) path.pop_back();
  const bool fits = !path.empty() && path.size() < MAX_PATH;
  if (!fits) path.clear();
  *std::copy(path.begin(), path.end(), folder) = L'\0';
  return fits ? TRUE : FALSE;
}
