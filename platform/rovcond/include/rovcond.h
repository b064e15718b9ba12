// The job-conditions library: where the current job keeps its data.
#pragma once

#include <windows.h>

#if defined(ROVCOND_BUILD)
#define ROVCOND_CALL __declspec(dllexport)
#else
#define ROVCOND_CALL __declspec(dllimport)
#endif

// Writes the path of the current data folder to `folder`, a buffer of at least MAX_PATH characters.
// The path has no trailing backslash (a drive's root is "C:"). The folder is read from the
// environment variable ROVCOND_DATA_FOLDER at each call; when that is unset or empty, it is
// Tavix\Data in the user's local application data, created if missing. A path that begins with
// exactly one backslash is a path of the device: use AfxMapDevicePath before opening files in it.
// FALSE and an empty string when the path does not fit.
extern "C" ROVCOND_CALL BOOL GetDataFolder(LPWSTR folder);
