// Exported calls on memos.
#include <tavix/tavix.h>

#include "frame/host_arguments.h"
#include "frame/slot_table.h"

using tavix::CMemDb;
using tavix::Slots;

int Tavix_EntPntMem(int key, CString memo) {
  CMemDb* memos = Slots().Current().memos.get();
  if (!memos) return -1;
  // An empty memo deletes the one there is, and is kept where there is none: meant so.
  if (memos->Seek(key) != 0) return memos->Add(key, memo);
  return memo.IsEmpty() ? memos->Remove(key) : memos->UpdateCur(memo);
}

int Tavix_GetPntMem(int key, CString* memo) {
  if (!tavix::CanWrite(memo)) return -1;
  CMemDb* memos = Slots().Current().memos.get();
  if (!memos || memos->Seek(key) != 0 || memos->ReadCur(memo) != 0) memo->Empty();
  return 0;
}
