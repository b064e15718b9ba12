#include "rovcond.h"

#include <string>

#include "platform/user_folder.h"

BOOL GetDataFolder(LPWSTR folder) {
  std::wstring path = tavix::FolderFromEnvironment(L"ROVCOND_DATA_FOLDER");
  if (path.empty()) path = tavix::FolderOfUser(L"Data");
  const bool fits = !path.empty() && path.size() < MAX_PATH;
  if (!fits) path.clear();
  folder[path.copy(folder, MAX_PATH - 1)] = L'\0';
  return fits ? TRUE : FALSE;
}
