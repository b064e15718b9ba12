// A folder that an environment variable names, or one of the user's own.
#pragma once

#include <string>

namespace tavix {

// The folder that the environment variable `variable` names at this moment, without closing
// slashes; when it is unset or names nothing, the folder Tavix\`name` of the user's local
// application data, made when missing. Empty when the user has no such data.
std::wstring FolderFromEnvironment(const wchar_t* variable, const wchar_t* name);

}  // namespace tavix
