// The root folder of the device's file system, where a path with one leading backslash lies.
#include "framework/file.h"
#include "platform/user_folder.h"

namespace {

bool LiesInDeviceRoot(LPCWSTR path) { return path && path[0] == L'\\' && path[1] != L'\\'; }

}  // namespace

CString AfxMapDevicePath(LPCWSTR path) {
  if (!LiesInDeviceRoot(path)) return CString(path);
  return tavix::FolderFromEnvironment(L"CE_DEVICE_ROOT", L"DeviceRoot").c_str() + CString(path);
}
