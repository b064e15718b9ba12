// How much of a long test runs.
#pragma once

#include <windows.h>

#include <cwchar>

namespace tavix::test {

// Whether the program was started with --whole: everything, however long it takes.
inline bool IsWholeRun() { return std::wcsstr(::GetCommandLineW(), L" --whole") != nullptr; }

// One case in `usual` runs; in a whole run every one.
inline int Stride(int usual) { return IsWholeRun() ? 1 : usual; }

// How many rounds run.
inline int Rounds(int usual, int whole) { return IsWholeRun() ? whole : usual; }

}  // namespace tavix::test
