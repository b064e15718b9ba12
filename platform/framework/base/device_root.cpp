// The root folder of the device's file system, where a path with one leading backslash lies.
#include "framework/file.h"
#include "platform/framework/base/process_root.h"
#include "platform/user_folder.h"

namespace {

bool LiesInDeviceRoot(LPCWSTR path) { return path && path[0] == L'\\' && path[1] != L'\\'; }

// On the present drive, where the system looks for a path with one leading backslash.
std::wstring WithDrive(const std::wstring& path) {
  std::wstring full(GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
  full.resize(
      GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
  return full;
}

// A mapped path is not to be mapped again: the root itself is no path of the device.
std::wstring DeviceRoot() {
  const std::wstring root = tavix::FolderFromEnvironment(L"CE_DEVICE_ROOT");
  if (root.empty()) return tavix::ProcessRoot();
  return LiesInDeviceRoot(root.c_str()) ? WithDrive(root) : root;
}

}  // namespace

CString AfxMapDevicePath(LPCWSTR path) {
  if (!LiesInDeviceRoot(path)) return CString(path);
  return DeviceRoot().c_str() + CString(path);
}
