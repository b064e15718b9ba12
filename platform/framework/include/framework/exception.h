// Exceptions, thrown as pointers and ended with Delete() by whoever catches them.
#pragma once

#include "framework/object.h"
#include "framework/string.h"

class AFX_FRAMEWORK CException : public CObject {
  DECLARE_DYNAMIC(CException)
 public:
  // Frees an exception that was made with new.
  void Delete();

  // A sentence for the user, cut to `maxCount` characters with the closing NUL. FALSE when there is
  // none.
  virtual BOOL GetErrorMessage(LPWSTR text, UINT maxCount) const;

 protected:
  CException() = default;
  ~CException() override = default;
};

// A resource is missing or the system has no more of it.
class AFX_FRAMEWORK CResourceException : public CException {
  DECLARE_DYNAMIC(CResourceException)
 public:
  BOOL GetErrorMessage(LPWSTR text, UINT maxCount) const override;
};

// No memory.
class AFX_FRAMEWORK CMemoryException : public CException {
  DECLARE_DYNAMIC(CMemoryException)
 public:
  BOOL GetErrorMessage(LPWSTR text, UINT maxCount) const override;
};

// The user has been told already, or has changed his mind.
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

  // The cause that a system error code stands for.
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
