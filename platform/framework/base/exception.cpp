#include "framework/exception.h"

#include "platform/framework/base/message_text.h"

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CResourceException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CException)
IMPLEMENT_DYNAMIC(CUserException, CException)

void CException::Delete() { delete this; }

BOOL CException::GetErrorMessage(LPWSTR text, UINT maxCount) const {
  if (maxCount > 0) *text = L'\0';
  return FALSE;
}

BOOL CResourceException::GetErrorMessage(LPWSTR text, UINT maxCount) const {
  return CopyMessage(L"A required resource was unavailable.", text, maxCount);
}

BOOL CMemoryException::GetErrorMessage(LPWSTR text, UINT maxCount) const {
  return CopyMessage(L"Out of memory.", text, maxCount);
}

void AfxThrowResourceException() { throw new CResourceException; }
void AfxThrowMemoryException() { throw new CMemoryException; }
void AfxThrowUserException() { throw new CUserException; }
