// Exceptions. They are thrown as pointers; the handler that catches one calls Delete().
#pragma once

#include "object.h"
#include "string.h"

class AFX_FRAMEWORK CException : public CObject {
  DECLARE_DYNAMIC(CException)
 public:
  // Deletes an exception that was created with new.
  void Delete();

  // A message for the user, truncated to `maxCount` characters including the NUL. FALSE when the
  // exception has no message.
  virtual BOOL GetErrorMessage(LPWSTR text, UINT maxCount) const;

 protected:
  CException() = default;
  ~CException() override = default;
};

// A resource was not found or could not be created.
class AFX_FRAMEWORK CResourceException : public CException {
  DECLARE_DYNAMIC(CResourceException)
 public:
  BOOL GetErrorMessage(LPWSTR text, UINT maxCount) const override;
};

// Out of memory.
class AFX_FRAMEWORK CMemoryException : public CException {
  DECLARE_DYNAMIC(CMemoryException)
 public:
  BOOL GetErrorMessage(LPWSTR text, UINT maxCount) const override;
};

// The user was informed already, or cancelled.
class AFX_FRAMEWORK CUserException : public CException {
  DECLARE_DYNAMIC(CUserException)
};

class AFX_FRAMEWORK CFileException : public CException {
  DECLARE_DYNAMIC(CFileException)
 public:
  enum {
    none,
    genericException,
    fileNotFound,
    badPath,
    tooManyOpenFiles,
    accessDenied,
    invalidFile,
    removeCurrentDir,
    directoryFull,
    badSeek,
    hardIO,
    sharingViolation,
    lockViolation,
    diskFull,
    endOfFile
  };

  explicit CFileException(int cause = none, LONG osError = -1, LPCWSTR fileName = nullptr);

  // The cause that corresponds to a system error code.
  static int OsErrorToException(LONG osError);
  [[noreturn]] static void ThrowOsError(LONG osError, LPCWSTR fileName = nullptr);
  BOOL GetErrorMessage(LPWSTR text, UINT maxCount) const override;

  int m_cause;
  LONG m_lOsError;
  CString m_strFileName;
};

[[noreturn]] AFX_FRAMEWORK void AfxThrowResourceException();
[[noreturn]] AFX_FRAMEWORK void AfxThrowMemoryException();
[[noreturn]] AFX_FRAMEWORK void AfxThrowUserException();
[[noreturn]] AFX_FRAMEWORK void AfxThrowFileException(int cause, LONG osError = -1,
                                                      LPCWSTR fileName = nullptr);
