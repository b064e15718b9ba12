// A system handle, closed at the end.
#pragma once

#include <windows.h>

namespace fieldhost {

class OwnedHandle {
 public:
  explicit OwnedHandle(HANDLE handle = nullptr) : handle_(handle) {}
  ~OwnedHandle() {
    if (handle_ && handle_ != INVALID_HANDLE_VALUE) ::CloseHandle(handle_);
  }
  OwnedHandle(const OwnedHandle&) = delete;
  OwnedHandle& operator=(const OwnedHandle&) = delete;

  [[nodiscard]] HANDLE Get() const { return handle_; }

 private:
  HANDLE handle_;
};

}  // namespace fieldhost
