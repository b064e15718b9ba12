// The user's local application data, asked of the system.
#pragma once

#include <gtest/gtest.h>
#include <windows.h>
// <shlobj.h> needs <windows.h> before it.
#include <shlobj.h>

#include <string>

inline std::wstring LocalAppData() {
  WCHAR folder[MAX_PATH] = {};
  EXPECT_EQ(S_OK, SHGetFolderPathW(nullptr, CSIDL_LOCAL_APPDATA, nullptr, 0, folder));
  return folder;
}
