#include "framework/message_map.h"

namespace {

bool Answers(const AFX_MSGMAP_ENTRY& entry, UINT message, UINT code, UINT id) {
  const UINT own = entry.registered ? *entry.registered : entry.nMessage;
  return own == message && entry.nCode == code && entry.nID <= id && id <= entry.nLastID;
}

}  // namespace

const AFX_MSGMAP_ENTRY* AfxFindMessageEntry(const AFX_MSGMAP* messages, UINT message, UINT code,
                                            UINT id) {
  for (; messages; messages = messages->pfnGetBaseMap ? messages->pfnGetBaseMap() : nullptr) {
    for (const AFX_MSGMAP_ENTRY* entry = messages->lpEntries; entry->invoke; ++entry) {
      if (Answers(*entry, message, code, id)) return entry;
    }
  }
  return nullptr;
}

// ---- CCmdTarget

const AFX_MSGMAP* CCmdTarget::GetThisMessageMap() {
  static const AFX_MSGMAP_ENTRY entries[] = {AFX_MSGMAP_ENTRY{}};
  static const AFX_MSGMAP messageMap = {nullptr, entries};
  return &messageMap;
}

const AFX_MSGMAP* CCmdTarget::GetMessageMap() const { return GetThisMessageMap(); }

BOOL CCmdTarget::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
  const auto packed = static_cast<DWORD>(nCode);
  AFX_MESSAGE message{.message = packed, .wParam = nID};
  UINT kind = WM_COMMAND;
  if (HIWORD(packed) == WM_NOTIFY && pExtra) {
    const auto& notify = *static_cast<AFX_NOTIFY*>(pExtra);
    kind = WM_NOTIFY;
    message = {.message = notify.pNMHDR->code,
               .wParam = nID,
               .lParam = reinterpret_cast<LPARAM>(notify.pNMHDR),
               .notifyResult = notify.pResult};
  }
  const AFX_MSGMAP_ENTRY* entry = AfxFindMessageEntry(GetMessageMap(), kind, message.message, nID);
  if (!entry) return FALSE;
  if (pHandlerInfo) {
    *pHandlerInfo = {this, entry};
    return TRUE;
  }
  return static_cast<BOOL>(entry->invoke(*this, *entry, message));
}
