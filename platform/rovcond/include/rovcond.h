// The job-conditions library: where the present job keeps its data.
#pragma once

#include <windows.h>

#if defined(ROVCOND_BUILD)
#define ROVCOND_CALL __declspec(dllexport)
#else
#define ROVCOND_CALL __declspec(dllimport)
#endif

// Writes the path of the current data folder, without a closing backslash (of a drive's root, the
// drive: "C:"), into `folder`, a buffer of at least MAX_PATH characters. The folder is the one that
// the environment variable ROVCOND_DATA_FOLDER names at this moment, or, when it is unset or empty,
// Tavix\Data in the user's local application data, made when missing. A folder that begins with one
// backslash is one of the device: whoever opens files in it maps the path, see AfxMapDevicePath.
// FALSE and an empty string when the path does not fit.
extern "C" ROVCOND_CALL BOOL GetDataFolder(LPWSTR folder);
