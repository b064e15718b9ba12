// The root folder of the device's file system, where a path with one leading backslash lies: the
// folder that CE_DEVICE_ROOT names, or one that belongs to this process alone.
#include "framework/file.h"

#include <string>
#include <utility>
#include <vector>

#include "platform/user_folder.h"

// ---- The folder of this process

namespace {

constexpr wchar_t kNamePrefix[] = L"process-";

// An open folder. While it is open nobody can rename or remove it. The system closes it with the
// process, also with one that is killed, so that a process id that is used again does no harm.
class HeldFolder {
 public:
  HeldFolder() = default;
  ~HeldFolder() { LetGo(); }
  HeldFolder(const HeldFolder&) = delete;
  HeldFolder& operator=(const HeldFolder&) = delete;

  bool Hold(const std::wstring& path) {
    handle_ = CreateFileW(path.c_str(), FILE_LIST_DIRECTORY, FILE_SHARE_READ | FILE_SHARE_WRITE,
                          nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    return IsHeld();
  }
  [[nodiscard]] bool IsHeld() const { return handle_ != INVALID_HANDLE_VALUE; }
  void LetGo() {
    if (IsHeld()) CloseHandle(std::exchange(handle_, INVALID_HANDLE_VALUE));
  }

 private:
  HANDLE handle_ = INVALID_HANDLE_VALUE;
};

// What a pattern finds in a folder.
std::vector<WIN32_FIND_DATAW> Entries(const std::wstring& pattern) {
  std::vector<WIN32_FIND_DATAW> entries;
  WIN32_FIND_DATAW entry;
  const HANDLE search = FindFirstFileW(pattern.c_str(), &entry);
  if (search == INVALID_HANDLE_VALUE) return entries;
  do {
    entries.push_back(entry);
  } while (FindNextFileW(search, &entry));
  FindClose(search);
  return entries;
}

// A folder itself, and no link that leads to one.
bool IsFolder(const WIN32_FIND_DATAW& entry) {
  constexpr DWORD kKind = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
  return (entry.dwFileAttributes & kKind) == FILE_ATTRIBUTE_DIRECTORY;
}

// Removes as much of a folder as can be removed, links in it too, but nothing that they lead to.
void RemoveTree(const std::wstring& folder) {
  for (const WIN32_FIND_DATAW& entry : Entries(folder + L"\\*")) {
    const std::wstring name = entry.cFileName;
    if (name == L"." || name == L"..") continue;
    const std::wstring path = folder + L"\\" + name;
    SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    if (IsFolder(entry)) {
      RemoveTree(path);
    } else if (!DeleteFileW(path.c_str())) {
      RemoveDirectoryW(path.c_str());
    }
  }
  RemoveDirectoryW(folder.c_str());
}

// Only a folder that nobody holds can be renamed, and under its new name nobody can begin to hold
// it.
void RemoveFoldersWithoutOwner(const std::wstring& parent) {
  for (const WIN32_FIND_DATAW& entry : Entries(parent + L"\\" + kNamePrefix + L"*")) {
    if (!IsFolder(entry)) continue;
    const std::wstring path = parent + L"\\" + entry.cFileName;
    const std::wstring removed = path + L"-removed";
    if (MoveFileW(path.c_str(), removed.c_str())) RemoveTree(removed);
  }
}

class OwnFolder {
 public:
  explicit OwnFolder(const std::wstring& parent) {
    if (parent.empty()) return;
    RemoveFoldersWithoutOwner(parent);
    // A folder that is there already, or that another process takes for one without an owner before
    // it is held, is left to others. More attempts than a few mean that none can be made.
    constexpr int kAttempts = 20;
    const std::wstring name = parent + L"\\" + kNamePrefix + std::to_wstring(GetCurrentProcessId());
    for (int i = 0; i < kAttempts && !held_.IsHeld(); ++i) {
      path_ = i == 0 ? name : name + L"-" + std::to_wstring(i);
      if (CreateDirectoryW(path_.c_str(), nullptr)) held_.Hold(path_);
    }
  }
  ~OwnFolder() {
    if (!held_.IsHeld()) return;
    held_.LetGo();
    RemoveTree(path_);
  }
  OwnFolder(const OwnFolder&) = delete;
  OwnFolder& operator=(const OwnFolder&) = delete;

  [[nodiscard]] const std::wstring& Path() const { return path_; }

 private:
  std::wstring path_;
  HeldFolder held_;
};

// Tavix\DeviceRoot\process-<id> in the user's local application data, without a closing backslash;
// made at the first call and removed with its contents when the process ends. A folder that cannot
// be made is named all the same; empty when the user has no local application data.
const std::wstring& ProcessRoot() {
  static const OwnFolder folder(tavix::FolderOfUser(L"DeviceRoot"));
  return folder.Path();
}

// ---- Mapping

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
  if (root.empty()) return ProcessRoot();
  return LiesInDeviceRoot(root.c_str()) ? WithDrive(root) : root;
}

}  // namespace

CString AfxMapDevicePath(LPCWSTR path) {
  if (!LiesInDeviceRoot(path)) return CString(path);
  return DeviceRoot().c_str() + CString(path);
}
