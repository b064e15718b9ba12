// Folders named by environment variables, and folders of the user.
#pragma once

#include <string>

namespace tavix {

// The folder named by the environment variable `variable`, read at each call, without trailing
// slashes. Empty when the variable is unset or empty.
std::wstring FolderFromEnvironment(const wchar_t* variable);

// The folder Tavix\`name` in the user's local application data, created if missing. Empty when the
// user has no such folder.
std::wstring FolderOfUser(const wchar_t* name);

}  // namespace tavix
