#include "platform/framework/window/window_map.h"

#include "platform/framework/window/handle_map.h"

namespace afx {
namespace {

// The maps are never destroyed: windows of global objects still ask for them at the process's end.
auto& PermanentWindows() {
  static auto& map = *new PermanentMap<CWnd, HWND>;
  return map;
}

auto& TemporaryWindows() {
  static auto& map = *new TemporaryMap<CWnd, HWND, &CWnd::m_hWnd, &IsLiveWindow>;
  return map;
}

}  // namespace

CWnd* FindPermanentWindow(HWND window) { return PermanentWindows().Find(window); }

void SetPermanentWindow(HWND window, CWnd* object) {
  if (CWnd* before = FindPermanentWindow(window); before && before != object) {
    before->m_hWnd = nullptr;
  }
  PermanentWindows().Set(window, object);
}

void RemovePermanentWindow(HWND window, const CWnd* object) {
  PermanentWindows().Remove(window, object);
}

CWnd* TemporaryWindow(HWND window) { return TemporaryWindows().Get(window); }

}  // namespace afx
