// The root folder of the device's file system, where a path with one leading backslash lies.
#include <initializer_list>

#include "framework/file.h"
// The shell's header wants the system's before it.
#include <shlobj.h>

namespace {

constexpr LPCWSTR kVariable = L"CE_DEVICE_ROOT";

bool LiesInDeviceRoot(LPCWSTR path) { return path && path[0] == L'\\' && path[1] != L'\\'; }

CString FromEnvironment() {
  CString root;
  const DWORD needed = GetEnvironmentVariableW(kVariable, nullptr, 0);
  if (needed > 1) {
    GetEnvironmentVariableW(kVariable, root.GetBuffer(static_cast<int>(needed)), needed);
    root.ReleaseBuffer();
    root.TrimRight(L"\\/");
  }
  return root;
}

// Made when missing, its parent too.
CString InLocalApplicationData() {
  WCHAR folder[MAX_PATH];
  if (SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA | CSIDL_FLAG_CREATE, nullptr, 0, folder) !=
      S_OK) {
    return CString();
  }
  CString root(folder);
  for (LPCWSTR step : {L"\\Tavix", L"\\DeviceRoot"}) {
    root += step;
    CreateDirectoryW(root, nullptr);
  }
  return root;
}

}  // namespace

CString AfxMapDevicePath(LPCWSTR path) {
  if (!LiesInDeviceRoot(path)) return CString(path);
  CString root = FromEnvironment();
  if (root.IsEmpty()) root = InLocalApplicationData();
  return root + path;
}
