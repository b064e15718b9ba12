// Folders that environment variables name, and those of the user's own.
#pragma once

#include <string>

namespace tavix {

// The folder that the environment variable `variable` names at this moment, without closing
// slashes. Empty when it is unset or names nothing.
std::wstring FolderFromEnvironment(const wchar_t* variable);

// The folder Tavix\`name` of the user's local application data, made when missing. Empty when the
// user has no such data.
std::wstring FolderOfUser(const wchar_t* name);

}  // namespace tavix
