// The only place that includes <windows.h>, and the export macro of framework.dll.
//
// Every string parameter is LPCWSTR, with and without UNICODE. <windows.h> renames calls such as
// DrawText to DrawTextW or DrawTextA, and so it renames members of that name. Such a member is
// declared under its W name and again, inline, under its A name with the same wide parameters;
// `dc.DrawText(...)` then compiles and links in either mode.
#pragma once

#if !defined(NOMINMAX)
#define NOMINMAX
#endif
#include <windows.h>

#if defined(AFX_FRAMEWORK_BUILD)
#define AFX_FRAMEWORK __declspec(dllexport)
#else
#define AFX_FRAMEWORK __declspec(dllimport)
#endif

// Marks a message handler for the reader; expands to nothing.
#define afx_msg
