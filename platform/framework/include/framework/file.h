// CFile: a file of bytes.
//
// On the device, a path that begins with exactly one backslash is in the root folder. Here it is in
// the folder that AfxMapDevicePath describes. All calls that take a path map it.
#pragma once

#include "exception.h"
#include "object.h"
#include "string.h"

// Maps a path of the device to a path of the system. A path that begins with exactly one backslash
// is placed in the folder named by the environment variable CE_DEVICE_ROOT, which is read at each
// call. When it is unset or empty, the folder is one of this process alone, which is removed when
// the process ends: Tavix\DeviceRoot\process-<id> in the user's local application data. Any other
// path, including a mapped one, is returned unchanged.
AFX_FRAMEWORK CString AfxMapDevicePath(LPCWSTR path);

// Calls that fail throw a CFileException*, except Open, which returns FALSE.
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
    modeCreate = 0x1000,      // creates the file, or truncates an existing one
    modeNoTruncate = 0x2000,  // with modeCreate: an existing file keeps its contents
    typeText = 0x4000,        // accepted and without effect
    typeBinary = 0x8000,      // accepted and without effect
  };
  enum SeekPosition { begin = 0, current = 1, end = 2 };
  static const HANDLE hFileNull;  // m_hFile of a file that is not open

  CFile();
  explicit CFile(HANDLE file);  // takes ownership of the handle
  CFile(LPCWSTR path, UINT flags);
  ~CFile() override;

  // `error` receives the cause of a failure; it may be null.
  virtual BOOL Open(LPCWSTR path, UINT flags, CFileException* error = nullptr);

  // Reads up to `count` bytes and returns their number, 0 at the end of the file.
  virtual UINT Read(void* buffer, UINT count);
  // Writes all bytes; if only some can be written, throws diskFull.
  virtual void Write(const void* buffer, UINT count);

  // Returns the new position. A negative position throws badSeek.
  virtual ULONGLONG Seek(LONGLONG offset, UINT from);
  void SeekToBegin() { Seek(0, begin); }
  ULONGLONG SeekToEnd() { return Seek(0, end); }
  virtual ULONGLONG GetPosition() const;
  virtual ULONGLONG GetLength() const;
  virtual void SetLength(ULONGLONG length);

  // Locks these bytes, which may be beyond the end, against other handles until UnlockRange or
  // Close.
  virtual void LockRange(ULONGLONG position, ULONGLONG count);
  virtual void UnlockRange(ULONGLONG position, ULONGLONG count);

  virtual void Flush();
  virtual void Close();
  virtual void Abort();  // closes and ignores errors

  // The full path of the open file.
  virtual CString GetFilePath() const { return m_strFileName; }
  virtual CString GetFileName() const;

  static void Rename(LPCWSTR oldPath, LPCWSTR newPath);
  static void Remove(LPCWSTR path);

  operator HANDLE() const { return m_hFile; }

  HANDLE m_hFile;

 protected:
  CString m_strFileName;
};
