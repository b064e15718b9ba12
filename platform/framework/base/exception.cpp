#include "framework/exception.h"

#include <algorithm>
#include <cwchar>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CResourceException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CException)
IMPLEMENT_DYNAMIC(CUserException, CException)

namespace {

BOOL CopyText(LPCWSTR from, LPWSTR text, UINT maxCount) {
  if (maxCount == 0) return FALSE;
  const std::size_t count = std::min<std::size_t>(std::wcslen(from), maxCount - 1);
  std::copy_n(from, count, text);
  text[count] = L'\0';
  return TRUE;
}

}  // namespace

void CException::Delete() { delete this; }

BOOL CException::GetErrorMessage(LPWSTR text, UINT maxCount) const {
  if (maxCount > 0) *text = L'\0';
  return FALSE;
}

BOOL CResourceException::GetErrorMessage(LPWSTR text, UINT maxCount) const {
  return CopyText(L"A required resource was unavailable.", text, maxCount);
}

BOOL CMemoryException::GetErrorMessage(LPWSTR text, UINT maxCount) const {
  return CopyText(L"Out of memory.", text, maxCount);
}

void AfxThrowResourceException() { throw new CResourceException; }
void AfxThrowMemoryException() { throw new CMemoryException; }
void AfxThrowUserException() { throw new CUserException; }
