// The message-map macros for commands and control notifications.
//
// A handler is written as `&CMainFrame::OnOpen`, or in the older form `OnOpen`, which GCC for
// Windows accepts.
#pragma once

#include "message_map.h"

namespace afx {

template <class T>
struct CommandHandler {
  using Member = void (T::*)();
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE&) {
    (target.*handler)();
    return TRUE;
  }
};

// A handler that returns FALSE passes the command on.
template <class T>
struct CommandExHandler {
  using Member = BOOL (T::*)(UINT);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    return (target.*handler)(static_cast<UINT>(message.wParam));
  }
};

template <class T>
struct CommandRangeHandler {
  using Member = void (T::*)(UINT);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    (target.*handler)(static_cast<UINT>(message.wParam));
    return TRUE;
  }
};

template <class T>
struct NotifyHandler {
  using Member = void (T::*)(NMHDR*, LRESULT*);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    (target.*handler)(reinterpret_cast<NMHDR*>(message.lParam), message.notifyResult);
    return TRUE;
  }
};

template <class T>
struct MessageHandler {
  using Member = LRESULT (T::*)(WPARAM, LPARAM);
  static LRESULT Call(T& target, Member handler, const AFX_MESSAGE& message) {
    return (target.*handler)(message.wParam, message.lParam);
  }
};

}  // namespace afx

// Added to the message number of reflected rows, to separate them from the parent's rows.
inline constexpr UINT WM_REFLECT_BASE = 0xBC00;

#define ON_CONTROL_RANGE(code, firstId, lastId, handler)                                    \
  AfxMessageEntry<afx::CommandRangeHandler, ThisClass>(WM_COMMAND, static_cast<UINT>(code), \
                                                       firstId, lastId, handler),
#define ON_CONTROL(code, id, handler)                                                          \
  AfxMessageEntry<afx::CommandHandler, ThisClass>(WM_COMMAND, static_cast<UINT>(code), id, id, \
                                                  handler),
#define ON_COMMAND(id, handler) ON_CONTROL(CN_COMMAND, id, handler)
#define ON_COMMAND_RANGE(firstId, lastId, handler) \
  ON_CONTROL_RANGE(CN_COMMAND, firstId, lastId, handler)
#define ON_COMMAND_EX(id, handler) \
  AfxMessageEntry<afx::CommandExHandler, ThisClass>(WM_COMMAND, CN_COMMAND, id, id, handler),
#define ON_NOTIFY(code, id, handler)                                                         \
  AfxMessageEntry<afx::NotifyHandler, ThisClass>(WM_NOTIFY, static_cast<UINT>(code), id, id, \
                                                 handler),
#define ON_MESSAGE(message, handler) \
  AfxMessageEntry<afx::MessageHandler, ThisClass>(message, 0, 0, 0, handler),
// `variable` holds the number from RegisterWindowMessage; it is read at each message.
#define ON_REGISTERED_MESSAGE(variable, handler) \
  AfxMessageEntry<afx::MessageHandler, ThisClass>(0, 0, 0, 0, handler, &variable),
// In the map of a control: its own notifications, before the parent sees them.
#define ON_CONTROL_REFLECT(code, handler)                                       \
  AfxMessageEntry<afx::CommandHandler, ThisClass>(WM_REFLECT_BASE + WM_COMMAND, \
                                                  static_cast<UINT>(code), 0, 0, handler),
#define ON_NOTIFY_REFLECT(code, handler)                                      \
  AfxMessageEntry<afx::NotifyHandler, ThisClass>(WM_REFLECT_BASE + WM_NOTIFY, \
                                                 static_cast<UINT>(code), 0, 0, handler),

#define ON_BN_CLICKED(id, handler) ON_CONTROL(BN_CLICKED, id, handler)
#define ON_BN_DOUBLECLICKED(id, handler) ON_CONTROL(BN_DOUBLECLICKED, id, handler)
#define ON_BN_SETFOCUS(id, handler) ON_CONTROL(BN_SETFOCUS, id, handler)
#define ON_BN_KILLFOCUS(id, handler) ON_CONTROL(BN_KILLFOCUS, id, handler)
#define ON_CBN_SELCHANGE(id, handler) ON_CONTROL(CBN_SELCHANGE, id, handler)
#define ON_CBN_DBLCLK(id, handler) ON_CONTROL(CBN_DBLCLK, id, handler)
#define ON_CBN_SETFOCUS(id, handler) ON_CONTROL(CBN_SETFOCUS, id, handler)
#define ON_CBN_KILLFOCUS(id, handler) ON_CONTROL(CBN_KILLFOCUS, id, handler)
#define ON_CBN_EDITCHANGE(id, handler) ON_CONTROL(CBN_EDITCHANGE, id, handler)
#define ON_CBN_EDITUPDATE(id, handler) ON_CONTROL(CBN_EDITUPDATE, id, handler)
#define ON_CBN_DROPDOWN(id, handler) ON_CONTROL(CBN_DROPDOWN, id, handler)
#define ON_CBN_CLOSEUP(id, handler) ON_CONTROL(CBN_CLOSEUP, id, handler)
#define ON_CBN_SELENDOK(id, handler) ON_CONTROL(CBN_SELENDOK, id, handler)
#define ON_CBN_SELENDCANCEL(id, handler) ON_CONTROL(CBN_SELENDCANCEL, id, handler)
#define ON_EN_CHANGE(id, handler) ON_CONTROL(EN_CHANGE, id, handler)
#define ON_EN_UPDATE(id, handler) ON_CONTROL(EN_UPDATE, id, handler)
#define ON_EN_SETFOCUS(id, handler) ON_CONTROL(EN_SETFOCUS, id, handler)
#define ON_EN_KILLFOCUS(id, handler) ON_CONTROL(EN_KILLFOCUS, id, handler)
#define ON_EN_MAXTEXT(id, handler) ON_CONTROL(EN_MAXTEXT, id, handler)
#define ON_LBN_SELCHANGE(id, handler) ON_CONTROL(LBN_SELCHANGE, id, handler)
#define ON_LBN_DBLCLK(id, handler) ON_CONTROL(LBN_DBLCLK, id, handler)
#define ON_LBN_SETFOCUS(id, handler) ON_CONTROL(LBN_SETFOCUS, id, handler)
#define ON_LBN_KILLFOCUS(id, handler) ON_CONTROL(LBN_KILLFOCUS, id, handler)
#define ON_STN_CLICKED(id, handler) ON_CONTROL(STN_CLICKED, id, handler)
