// CButton and CBitmapButton.
#pragma once

#include "framework/gdi_objects.h"
#include "framework/wnd.h"

class AFX_FRAMEWORK CButton : public CWnd {
 public:
  virtual BOOL Create(LPCWSTR caption, DWORD style, const RECT& rect, CWnd* parent, UINT id) {
    return CWnd::Create(L"BUTTON", caption, style, rect, parent, id);
  }

  UINT GetState() const { return static_cast<UINT>(SendMessageW(BM_GETSTATE)); }
  void SetState(BOOL pressed) { SendMessageW(BM_SETSTATE, static_cast<WPARAM>(pressed)); }
  int GetCheck() const { return static_cast<int>(SendMessageW(BM_GETCHECK)); }
  void SetCheck(int check) { SendMessageW(BM_SETCHECK, static_cast<WPARAM>(check)); }
  UINT GetButtonStyle() const { return GetStyle() & BS_TYPEMASK; }
  void SetButtonStyle(UINT style, BOOL redraw = TRUE) {
    SendMessageW(BM_SETSTYLE, style, static_cast<LPARAM>(redraw));
  }

  // Draws an owner-drawn button (BS_OWNERDRAW); called through the parent's WM_DRAWITEM.
  virtual void DrawItem(DRAWITEMSTRUCT*) {}

 protected:
  BOOL OnChildNotify(UINT message, WPARAM wParam, LPARAM lParam, LRESULT* result) override;
};

// A button shown as a bitmap for each state. The style given to Create must hold BS_OWNERDRAW.
class AFX_FRAMEWORK CBitmapButton : public CButton {
 public:
  // By name or number from the resources (AfxFindResourceHandle); null or 0 for a state that has
  // none. FALSE when a named one is missing; those before it stay loaded.
  BOOL LoadBitmaps(LPCWSTR up, LPCWSTR selected = nullptr, LPCWSTR focused = nullptr,
                   LPCWSTR disabled = nullptr);
  BOOL LoadBitmaps(UINT up, UINT selected = 0, UINT focused = 0, UINT disabled = 0);
  // Takes the control `id` of `parent` over and loads the bitmaps named after its caption with U,
  // D, F and X appended; the first is needed. The button then takes their size.
  BOOL AutoLoad(UINT id, CWnd* parent);
  // Gives the button the size of its first bitmap.
  void SizeToContent();

  // Pressed: the selected bitmap; else with the focus: the focused; else disabled: the disabled. A
  // state that has no bitmap shows the first one.
  void DrawItem(DRAWITEMSTRUCT* item) override;

 protected:
  CBitmap m_bitmap;
  CBitmap m_bitmapSel;
  CBitmap m_bitmapFocus;
  CBitmap m_bitmapDisabled;
};
