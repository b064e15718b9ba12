// What framework.dll exports and its users import.
#pragma once

#if defined(AFX_FRAMEWORK_BUILD)
#define AFX_FRAMEWORK __declspec(dllexport)
#else
#define AFX_FRAMEWORK __declspec(dllimport)
#endif
