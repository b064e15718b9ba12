// The message-map macros for window messages. Each handler has the usual name and parameters; CWnd
// has a default for each, which calls Default().
#pragma once

#include "controls.h"
#include "dc.h"
#include "menu.h"
#include "wnd.h"

namespace afx {

inline UINT LowWord(WPARAM value) { return LOWORD(static_cast<DWORD>(value)); }
inline UINT HighWord(WPARAM value) { return HIWORD(static_cast<DWORD>(value)); }
// Client coordinates may be negative (with the pointer captured), hence the conversion to short.
inline CPoint PointOf(LPARAM value) {
  return CPoint(static_cast<short>(LOWORD(static_cast<DWORD>(value))),
                static_cast<short>(HIWORD(static_cast<DWORD>(value))));
}
inline CWnd* WindowOf(WPARAM value) { return CWnd::FromHandle(reinterpret_cast<HWND>(value)); }
inline CWnd* WindowOf(LPARAM value) { return CWnd::FromHandle(reinterpret_cast<HWND>(value)); }

template <class T>
struct VoidHandler {
  using Member = void (T::*)();
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE&) {
    (target.*handler)();
    return 0;
  }
};

template <class T>
struct CreateHandler {
  using Member = int (T::*)(CREATESTRUCTW*);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    return (target.*handler)(reinterpret_cast<CREATESTRUCTW*>(message.lParam));
  }
};

template <class T>
struct EraseHandler {
  using Member = BOOL (T::*)(CDC*);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    return (target.*handler)(CDC::FromHandle(reinterpret_cast<HDC>(message.wParam)));
  }
};

// Flags or keys, and a point of the client area.
template <class T>
struct MouseHandler {
  using Member = void (T::*)(UINT, CPoint);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    (target.*handler)(static_cast<UINT>(message.wParam), PointOf(message.lParam));
    return 0;
  }
};

template <class T>
struct WheelHandler {
  using Member = BOOL (T::*)(UINT, short, CPoint);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    return (target.*handler)(LowWord(message.wParam), static_cast<short>(HighWord(message.wParam)),
                             PointOf(message.lParam));
  }
};

template <class T>
struct SizeHandler {
  using Member = void (T::*)(UINT, int, int);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    const auto size = static_cast<WPARAM>(message.lParam);
    (target.*handler)(static_cast<UINT>(message.wParam), static_cast<int>(LowWord(size)),
                      static_cast<int>(HighWord(size)));
    return 0;
  }
};

template <class T>
struct MoveHandler {
  using Member = void (T::*)(int, int);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    const CPoint place = PointOf(message.lParam);
    (target.*handler)(place.x, place.y);
    return 0;
  }
};

template <class T>
struct TimerHandler {
  using Member = void (T::*)(UINT_PTR);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    (target.*handler)(message.wParam);
    return 0;
  }
};

// Character or key, repeat count, flags.
template <class T>
struct KeyHandler {
  using Member = void (T::*)(UINT, UINT, UINT);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    const auto data = static_cast<WPARAM>(message.lParam);
    (target.*handler)(static_cast<UINT>(message.wParam), LowWord(data), HighWord(data));
    return 0;
  }
};

template <class T>
struct DrawItemHandler {
  using Member = void (T::*)(int, DRAWITEMSTRUCT*);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    (target.*handler)(static_cast<int>(message.wParam),
                      reinterpret_cast<DRAWITEMSTRUCT*>(message.lParam));
    return TRUE;
  }
};

template <class T>
struct MeasureItemHandler {
  using Member = void (T::*)(int, MEASUREITEMSTRUCT*);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    (target.*handler)(static_cast<int>(message.wParam),
                      reinterpret_cast<MEASUREITEMSTRUCT*>(message.lParam));
    return TRUE;
  }
};

template <class T>
struct CtlColorHandler {
  using Member = HBRUSH (T::*)(CDC*, CWnd*, UINT);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    return reinterpret_cast<LRESULT>(
        (target.*handler)(CDC::FromHandle(reinterpret_cast<HDC>(message.wParam)),
                          WindowOf(message.lParam), message.message - WM_CTLCOLORMSGBOX));
  }
};

// One window: in wParam (focus) or in lParam (capture).
template <class T>
struct FocusHandler {
  using Member = void (T::*)(CWnd*);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    (target.*handler)(WindowOf(message.wParam));
    return 0;
  }
};
template <class T>
struct CaptureHandler {
  using Member = void (T::*)(CWnd*);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    (target.*handler)(WindowOf(message.lParam));
    return 0;
  }
};

template <class T>
struct ScrollHandler {
  using Member = void (T::*)(UINT, UINT, CScrollBar*);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    (target.*handler)(LowWord(message.wParam), HighWord(message.wParam),
                      CScrollBar::FromHandle(reinterpret_cast<HWND>(message.lParam)));
    return 0;
  }
};

template <class T>
struct MenuPopupHandler {
  using Member = void (T::*)(CMenu*, UINT, BOOL);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    const auto data = static_cast<WPARAM>(message.lParam);
    (target.*handler)(CMenu::FromHandle(reinterpret_cast<HMENU>(message.wParam)), LowWord(data),
                      static_cast<BOOL>(HighWord(data)));
    return 0;
  }
};

template <class T>
struct FlagHandler {
  using Member = void (T::*)(BOOL);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    (target.*handler)(static_cast<BOOL>(message.wParam));
    return 0;
  }
};

template <class T>
struct ShowHandler {
  using Member = void (T::*)(BOOL, UINT);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    (target.*handler)(static_cast<BOOL>(message.wParam), static_cast<UINT>(message.lParam));
    return 0;
  }
};

template <class T>
struct ActivateHandler {
  using Member = void (T::*)(UINT, CWnd*, BOOL);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    (target.*handler)(LowWord(message.wParam), WindowOf(message.lParam),
                      static_cast<BOOL>(HighWord(message.wParam)));
    return 0;
  }
};

template <class T>
struct DlgCodeHandler {
  using Member = UINT (T::*)();
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE&) {
    return static_cast<LRESULT>((target.*handler)());
  }
};

template <class T>
struct SetCursorHandler {
  using Member = BOOL (T::*)(CWnd*, UINT, UINT);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    const auto data = static_cast<WPARAM>(message.lParam);
    return (target.*handler)(WindowOf(message.wParam), LowWord(data), HighWord(data));
  }
};

template <class T>
struct ContextMenuHandler {
  using Member = void (T::*)(CWnd*, CPoint);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    (target.*handler)(WindowOf(message.wParam), PointOf(message.lParam));
    return 0;
  }
};

template <class T>
struct SysCommandHandler {
  using Member = void (T::*)(UINT, LPARAM);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    (target.*handler)(static_cast<UINT>(message.wParam), message.lParam);
    return 0;
  }
};

template <class T>
struct MinMaxHandler {
  using Member = void (T::*)(MINMAXINFO*);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    (target.*handler)(reinterpret_cast<MINMAXINFO*>(message.lParam));
    return 0;
  }
};

}  // namespace afx

// All seven colour messages have one handler, in one row under the number of the older WM_CTLCOLOR.
#ifndef WM_CTLCOLOR
#define WM_CTLCOLOR 0x0019
#endif

#define AFX_WINDOW_MESSAGE(message, Unpacker, handler) \
  AfxMessageEntry<afx::Unpacker, ThisClass>(message, 0, 0, 0, &ThisClass::handler),

#define ON_WM_CREATE() AFX_WINDOW_MESSAGE(WM_CREATE, CreateHandler, OnCreate)
#define ON_WM_DESTROY() AFX_WINDOW_MESSAGE(WM_DESTROY, VoidHandler, OnDestroy)
#define ON_WM_NCDESTROY() AFX_WINDOW_MESSAGE(WM_NCDESTROY, VoidHandler, OnNcDestroy)
#define ON_WM_CLOSE() AFX_WINDOW_MESSAGE(WM_CLOSE, VoidHandler, OnClose)
#define ON_WM_PAINT() AFX_WINDOW_MESSAGE(WM_PAINT, VoidHandler, OnPaint)
#define ON_WM_ERASEBKGND() AFX_WINDOW_MESSAGE(WM_ERASEBKGND, EraseHandler, OnEraseBkgnd)
#define ON_WM_SIZE() AFX_WINDOW_MESSAGE(WM_SIZE, SizeHandler, OnSize)
#define ON_WM_MOVE() AFX_WINDOW_MESSAGE(WM_MOVE, MoveHandler, OnMove)
#define ON_WM_SHOWWINDOW() AFX_WINDOW_MESSAGE(WM_SHOWWINDOW, ShowHandler, OnShowWindow)
#define ON_WM_ENABLE() AFX_WINDOW_MESSAGE(WM_ENABLE, FlagHandler, OnEnable)
#define ON_WM_ACTIVATE() AFX_WINDOW_MESSAGE(WM_ACTIVATE, ActivateHandler, OnActivate)
#define ON_WM_SETFOCUS() AFX_WINDOW_MESSAGE(WM_SETFOCUS, FocusHandler, OnSetFocus)
#define ON_WM_KILLFOCUS() AFX_WINDOW_MESSAGE(WM_KILLFOCUS, FocusHandler, OnKillFocus)
#define ON_WM_TIMER() AFX_WINDOW_MESSAGE(WM_TIMER, TimerHandler, OnTimer)
#define ON_WM_KEYDOWN() AFX_WINDOW_MESSAGE(WM_KEYDOWN, KeyHandler, OnKeyDown)
#define ON_WM_KEYUP() AFX_WINDOW_MESSAGE(WM_KEYUP, KeyHandler, OnKeyUp)
#define ON_WM_CHAR() AFX_WINDOW_MESSAGE(WM_CHAR, KeyHandler, OnChar)
#define ON_WM_GETDLGCODE() AFX_WINDOW_MESSAGE(WM_GETDLGCODE, DlgCodeHandler, OnGetDlgCode)
#define ON_WM_LBUTTONDOWN() AFX_WINDOW_MESSAGE(WM_LBUTTONDOWN, MouseHandler, OnLButtonDown)
#define ON_WM_LBUTTONUP() AFX_WINDOW_MESSAGE(WM_LBUTTONUP, MouseHandler, OnLButtonUp)
#define ON_WM_LBUTTONDBLCLK() AFX_WINDOW_MESSAGE(WM_LBUTTONDBLCLK, MouseHandler, OnLButtonDblClk)
#define ON_WM_RBUTTONDOWN() AFX_WINDOW_MESSAGE(WM_RBUTTONDOWN, MouseHandler, OnRButtonDown)
#define ON_WM_RBUTTONUP() AFX_WINDOW_MESSAGE(WM_RBUTTONUP, MouseHandler, OnRButtonUp)
#define ON_WM_RBUTTONDBLCLK() AFX_WINDOW_MESSAGE(WM_RBUTTONDBLCLK, MouseHandler, OnRButtonDblClk)
#define ON_WM_MBUTTONDOWN() AFX_WINDOW_MESSAGE(WM_MBUTTONDOWN, MouseHandler, OnMButtonDown)
#define ON_WM_MBUTTONUP() AFX_WINDOW_MESSAGE(WM_MBUTTONUP, MouseHandler, OnMButtonUp)
#define ON_WM_MOUSEMOVE() AFX_WINDOW_MESSAGE(WM_MOUSEMOVE, MouseHandler, OnMouseMove)
#define ON_WM_MOUSEWHEEL() AFX_WINDOW_MESSAGE(WM_MOUSEWHEEL, WheelHandler, OnMouseWheel)
#define ON_WM_SETCURSOR() AFX_WINDOW_MESSAGE(WM_SETCURSOR, SetCursorHandler, OnSetCursor)
#define ON_WM_CAPTURECHANGED() \
  AFX_WINDOW_MESSAGE(WM_CAPTURECHANGED, CaptureHandler, OnCaptureChanged)
#define ON_WM_CANCELMODE() AFX_WINDOW_MESSAGE(WM_CANCELMODE, VoidHandler, OnCancelMode)
#define ON_WM_CONTEXTMENU() AFX_WINDOW_MESSAGE(WM_CONTEXTMENU, ContextMenuHandler, OnContextMenu)
#define ON_WM_SYSCOMMAND() AFX_WINDOW_MESSAGE(WM_SYSCOMMAND, SysCommandHandler, OnSysCommand)
#define ON_WM_GETMINMAXINFO() AFX_WINDOW_MESSAGE(WM_GETMINMAXINFO, MinMaxHandler, OnGetMinMaxInfo)
#define ON_WM_HSCROLL() AFX_WINDOW_MESSAGE(WM_HSCROLL, ScrollHandler, OnHScroll)
#define ON_WM_VSCROLL() AFX_WINDOW_MESSAGE(WM_VSCROLL, ScrollHandler, OnVScroll)
#define ON_WM_INITMENUPOPUP() \
  AFX_WINDOW_MESSAGE(WM_INITMENUPOPUP, MenuPopupHandler, OnInitMenuPopup)
#define ON_WM_DRAWITEM() AFX_WINDOW_MESSAGE(WM_DRAWITEM, DrawItemHandler, OnDrawItem)
#define ON_WM_MEASUREITEM() AFX_WINDOW_MESSAGE(WM_MEASUREITEM, MeasureItemHandler, OnMeasureItem)
#define ON_WM_CTLCOLOR() AFX_WINDOW_MESSAGE(WM_CTLCOLOR, CtlColorHandler, OnCtlColor)
