// What went wrong with a file.
#include <algorithm>
#include <iterator>

#include "framework/exception.h"

IMPLEMENT_DYNAMIC(CFileException, CException)

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

BOOL CFileException::GetErrorMessage(LPWSTR text, UINT maxCount) const {
  if (maxCount == 0) return FALSE;
  return FormatMessageW(FORMAT_MESSAGE_FROM_SYSTEM | FORMAT_MESSAGE_IGNORE_INSERTS, nullptr,
                        static_cast<DWORD>(m_lOsError), 0, text, maxCount, nullptr) != 0;
}

void AfxThrowFileException(int cause, LONG osError, LPCWSTR fileName) {
  throw new CFileException(cause, osError, fileName);
}
