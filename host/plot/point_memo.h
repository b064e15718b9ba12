// Memos of points in the current plot instance.
#pragma once

#include <afxwin.h>

namespace fieldhost {

// The longest memo, in UTF-16 units: what a record of the device's store holds.
inline constexpr int kLongestMemo = 32734;

// A memo is kept under 16 bits of its point's key; a larger key would stand for another point.
[[nodiscard]] bool CanHaveMemo(int key);

// Empty when the point has none.
[[nodiscard]] CString MemoOf(int key);

// Keeps the memo in place of the one there is; an empty one removes it. False when the store
// refuses it: what was there is then still there.
[[nodiscard]] bool SetMemo(int key, const CString& memo);

}  // namespace fieldhost
