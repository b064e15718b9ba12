// What every header of the framework begins with: <windows.h>, included here alone, and what
// framework.dll exports and its users import.
//
// The framework is the wide-character one whatever the host defines: every string parameter is
// LPCWSTR. <windows.h> renames calls such as DrawText to DrawTextW or DrawTextA, and so would
// rename members of the same name. Such a member is declared under its W name and again, inline,
// under its A name with the same wide parameters; `dc.DrawText(...)` then compiles and links in
// either mode.
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

// Marks a handler of the message map; it says nothing to the compiler.
#define afx_msg
