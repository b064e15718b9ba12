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

// An open folder. While it is open, no process can rename or remove it. The system closes it when
// the process ends, even if it is killed, so that a reused process id does no harm.
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

// The files and folders that match a pattern.
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

// A folder, but not a link to one.
bool IsFolder(const WIN32_FIND_DATAW& entry) {
  constexpr DWORD kKind = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
  return (entry.dwFileAttributes & kKind) == FILE_ATTRIBUTE_DIRECTORY;
}

// Removes a folder with its contents, as far as possible. Links in it are removed, not their
// targets.
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

// Only a folder that no process holds can be renamed, and no process holds a folder with the new
// name.
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
    // A name is given up when its folder exists already, or when another process removes the folder
    // as ownerless before it is held. If several attempts fail, no folder can be created.
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

// Tavix\DeviceRoot\process-<id> in the user's local application data, without a trailing backslash;
// created at the first call and removed with its contents when the process ends. If it cannot be
// created, its path is returned all the same. Empty when the user has no local application data.
const std::wstring& ProcessRoot() {
  static const OwnFolder folder(tavix::FolderOfUser(L"DeviceRoot"));
  return folder.Path();
}

// ---- Mapping

bool LiesInDeviceRoot(LPCWSTR path) { return path && path[0] == L'\\' && path[1] != L'\\'; }

// Adds the current drive, where the system looks for a path with one leading backslash.
std::wstring WithDrive(const std::wstring& path) {
  std::wstring full(GetFullPathNameW(path.c_str(), 0, nullptr, nullptr), L'\0');
  full.resize(
      GetFullPathNameW(path.c_str(), static_cast<DWORD>(full.size()), full.data(), nullptr));
  return full;
}

// The root must not itself look like a path of the device: mapped paths may be mapped again.
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
