// Memos of points in the current plot instance.
#pragma once

#include <afxwin.h>

namespace fieldhost {

// A memo is kept under 16 bits of its point's key; a larger key would stand for another point.
[[nodiscard]] bool CanHaveMemo(int key);

// Empty when the point has none.
[[nodiscard]] CString MemoOf(int key);

// Keeps the memo in place of the one there is; an empty one removes it. False when it is longer
// than kTavixLongestMemo or the library refuses it: the memo before is then still there.
[[nodiscard]] bool SetMemo(int key, const CString& memo);

}  // namespace fieldhost
