#include "framework/exception.h"

#include <algorithm>
#include <cstddef>
#include <cwchar>
#include <iterator>

IMPLEMENT_DYNAMIC(CException, CObject)
IMPLEMENT_DYNAMIC(CResourceException, CException)
IMPLEMENT_DYNAMIC(CMemoryException, CException)
IMPLEMENT_DYNAMIC(CUserException, CException)
IMPLEMENT_DYNAMIC(CFileException, CException)

namespace {

// Copies a message, truncated to `maxCount` characters including the NUL. FALSE, and nothing
// written, when `maxCount` is 0.
BOOL CopyMessage(LPCWSTR message, LPWSTR text, UINT maxCount) {
  if (maxCount == 0) return FALSE;
  const std::size_t count = std::min<std::size_t>(std::wcslen(message), maxCount - 1);
  std::copy_n(message, count, text);
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
  return CopyMessage(L"A required resource was unavailable.", text, maxCount);
}

BOOL CMemoryException::GetErrorMessage(LPWSTR text, UINT maxCount) const {
  return CopyMessage(L"Out of memory.", text, maxCount);
}

// ---- CFileException

CFileException::CFileException(int cause, LONG osError, LPCWSTR fileName)
    : m_cause(cause), m_lOsError(osError), m_strFileName(fileName) {}

int CFileException::OsErrorToException(LONG osError) {
  static constexpr struct {
    LONG os_error;
    int cause;
  } kCauses[] = {
      {NO_ERROR, none},
      {ERROR_FILE_NOT_FOUND, fileNotFound},
      {ERROR_PATH_NOT_FOUND, badPath},
      {ERROR_BAD_PATHNAME, badPath},
      {ERROR_BAD_NETPATH, badPath},
      {ERROR_INVALID_DRIVE, badPath},
      {ERROR_INVALID_NAME, badPath},
      {ERROR_DIRECTORY, badPath},
      {ERROR_FILENAME_EXCED_RANGE, badPath},
      {ERROR_TOO_MANY_OPEN_FILES, tooManyOpenFiles},
      {ERROR_ACCESS_DENIED, accessDenied},
      {ERROR_WRITE_PROTECT, accessDenied},
      {ERROR_ALREADY_EXISTS, accessDenied},
      {ERROR_FILE_EXISTS, accessDenied},
      {ERROR_INVALID_HANDLE, invalidFile},
      {ERROR_CURRENT_DIRECTORY, removeCurrentDir},
      {ERROR_CANNOT_MAKE, directoryFull},
      {ERROR_NEGATIVE_SEEK, badSeek},
      {ERROR_SEEK, badSeek},
      {ERROR_CRC, hardIO},
      {ERROR_READ_FAULT, hardIO},
      {ERROR_WRITE_FAULT, hardIO},
      {ERROR_NOT_READY, hardIO},
      {ERROR_SHARING_VIOLATION, sharingViolation},
      {ERROR_LOCK_VIOLATION, lockViolation},
      {ERROR_DISK_FULL, diskFull},
      {ERROR_HANDLE_DISK_FULL, diskFull},
      {ERROR_HANDLE_EOF, endOfFile},
  };
  const auto* row = std::find_if(std::begin(kCauses), std::end(kCauses),
                                 [=](const auto& each) { return each.os_error == osError; });
  return row == std::end(kCauses) ? static_cast<int>(genericException) : row->cause;
}

void CFileException::ThrowOsError(LONG osError, LPCWSTR fileName) {
  AfxThrowFileException(OsErrorToException(osError), osError, fileName);
}

// By the cause alone, which is known even when the system gave no error code.
BOOL CFileException::GetErrorMessage(LPWSTR text, UINT maxCount) const {
  static constexpr LPCWSTR kMessages[] = {
      L"No error occurred.",
      L"An unknown error occurred while accessing a file.",
      L"The file was not found.",
      L"The path of the file is not valid.",
      L"Too many files are open.",
      L"Access to the file was denied.",
      L"The file is not open.",
      L"The current folder cannot be removed.",
      L"The folder is full.",
      L"A place before the beginning of the file was asked for.",
      L"A hardware error occurred while accessing the file.",
      L"The file is in use.",
      L"A part of the file is locked.",
      L"The disk is full.",
      L"The end of the file was reached.",
  };
  static_assert(std::size(kMessages) == endOfFile + 1);
  const bool known = m_cause >= none && m_cause <= endOfFile;
  return CopyMessage(kMessages[known ? m_cause : genericException], text, maxCount);
}

// ---- Throwing

void AfxThrowResourceException() { throw new CResourceException; }
void AfxThrowMemoryException() { throw new CMemoryException; }
void AfxThrowUserException() { throw new CUserException; }
void AfxThrowFileException(int cause, LONG osError, LPCWSTR fileName) {
  throw new CFileException(cause, osError, fileName);
}
