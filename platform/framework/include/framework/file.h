// CFile: a file of bytes.
//
// A path that begins with exactly one backslash lies, on the device, in its root folder; here it
// lies in the folder that stands for it, see AfxMapDevicePath. All calls that take a path map it.
#pragma once

#include "framework/exception.h"
#include "framework/object.h"
#include "framework/string.h"

// The path as the system knows it: of a path that begins with exactly one backslash, the file in
// the folder that the environment variable CE_DEVICE_ROOT names at this moment. When it is unset or
// empty, the folder is one that this process has to itself and that goes with the process:
// Tavix\DeviceRoot\process-<id> in the user's local application data. Any other path, a mapped one
// among them, comes back unchanged.
AFX_FRAMEWORK CString AfxMapDevicePath(LPCWSTR path);

// Calls that fail throw a CFileException*, but for Open, which returns FALSE.
class AFX_FRAMEWORK CFile : public CObject {
  DECLARE_DYNAMIC(CFile)
 public:
  enum OpenFlags : UINT {
    modeRead = 0x0000,
    modeWrite = 0x0001,
    modeReadWrite = 0x0002,
    shareCompat = 0x0000,
    shareExclusive = 0x0010,
    shareDenyWrite = 0x0020,
    shareDenyRead = 0x0030,
    shareDenyNone = 0x0040,
    modeNoInherit = 0x0080,
    modeCreate = 0x1000,      // makes the file, or empties the one there is
    modeNoTruncate = 0x2000,  // with modeCreate: an existing file keeps its contents
    typeText = 0x4000,        // accepted and without effect
    typeBinary = 0x8000,      // accepted and without effect
  };
  enum SeekPosition { begin = 0, current = 1, end = 2 };
  static const HANDLE hFileNull;  // of a file that is not open

  CFile();
  explicit CFile(HANDLE file);  // takes the handle, and closes it in the end
  CFile(LPCWSTR path, UINT flags);
  ~CFile() override;

  // A null `error` is allowed; otherwise it receives the cause of a failure.
  virtual BOOL Open(LPCWSTR path, UINT flags, CFileException* error = nullptr);

  // At most `count` bytes; returns how many there were, 0 at the end of the file.
  virtual UINT Read(void* buffer, UINT count);
  // All of the bytes; fewer is a full disk.
  virtual void Write(const void* buffer, UINT count);

  // A negative place throws badSeek. Returns the new position.
  virtual ULONGLONG Seek(LONGLONG offset, UINT from);
  void SeekToBegin() { Seek(0, begin); }
  ULONGLONG SeekToEnd() { return Seek(0, end); }
  virtual ULONGLONG GetPosition() const;
  virtual ULONGLONG GetLength() const;
  virtual void SetLength(ULONGLONG length);

  // Keeps these bytes, which may lie behind the end, from every other handle until they are
  // unlocked or the file is closed.
  virtual void LockRange(ULONGLONG position, ULONGLONG count);
  virtual void UnlockRange(ULONGLONG position, ULONGLONG count);

  virtual void Flush();
  virtual void Close();
  virtual void Abort();  // closes whatever happens

  // The full path the file was opened by.
  virtual CString GetFilePath() const { return m_strFileName; }
  virtual CString GetFileName() const;

  static void Rename(LPCWSTR oldPath, LPCWSTR newPath);
  static void Remove(LPCWSTR path);

  operator HANDLE() const { return m_hFile; }

  HANDLE m_hFile;

 protected:
  CString m_strFileName;
};
