#include "host/plot/point_memo.h"

#include <tavix/tavix.h>

namespace fieldhost {

bool CanHaveMemo(int key) { return key > 0 && key <= kTavixLargestLineKey; }

CString MemoOf(int key) {
  CString memo;
  if (CanHaveMemo(key)) Tavix_GetPntMem(key, &memo);
  return memo;
}

bool SetMemo(int key, const CString& memo) {
  if (!CanHaveMemo(key) || memo.GetLength() > kTavixLongestMemo) return false;
  // The library would keep an empty memo for a point without one.
  if (memo.IsEmpty() && MemoOf(key).IsEmpty()) return true;
  return Tavix_EntPntMem(key, memo) == 0;
}

}  // namespace fieldhost
