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
