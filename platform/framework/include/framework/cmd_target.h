// CCmdTarget: an object that has a message map and can receive commands.
#pragma once

#include "framework/export.h"
#include "framework/message_map.h"
#include "framework/object.h"

inline constexpr int CN_COMMAND = 0;  // a menu command, an accelerator or a button's click

// Which object and row would handle a command; OnCmdMsg fills it in and calls nothing.
struct AFX_CMDHANDLERINFO {
  CCmdTarget* pTarget = nullptr;
  const AFX_MSGMAP_ENTRY* pEntry = nullptr;
};

class AFX_FRAMEWORK CCmdTarget : public CObject {
 public:
  CCmdTarget() = default;
  ~CCmdTarget() override = default;

  // Routes a command with id nID and notification code nCode to the handler in the message map, and
  // tells whether there was one. For WM_NOTIFY the high word of nCode is WM_NOTIFY and pExtra is an
  // AFX_NOTIFY. Derived classes pass on to further objects what they do not handle.
  virtual BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

 protected:
  static const AFX_MSGMAP* GetThisMessageMap();
  virtual const AFX_MSGMAP* GetMessageMap() const;
};

// A notification on its way through OnCmdMsg.
struct AFX_NOTIFY {
  LRESULT* pResult = nullptr;
  NMHDR* pNMHDR = nullptr;
};
