// The one way the library tells the user that something was refused.
#pragma once

#include <afxwin.h>

namespace tavix {

inline void BeepOnRefusal() { ::MessageBeep(0xFFFFFFFF); }

// For operations that say whether the scale had to be cut to its cap.
inline void BeepIfCut(bool cut) {
  if (cut) BeepOnRefusal();
}

}  // namespace tavix
