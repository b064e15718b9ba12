#include "framework/file.h"

#include <utility>

IMPLEMENT_DYNAMIC(CFile, CObject)

const HANDLE CFile::hFileNull = INVALID_HANDLE_VALUE;

namespace {

DWORD AccessOf(UINT flags) {
  switch (flags & 3U) {
    case CFile::modeWrite:
      return GENERIC_WRITE;
    case CFile::modeReadWrite:
      return GENERIC_READ | GENERIC_WRITE;
    default:
      return GENERIC_READ;
  }
}

DWORD SharingOf(UINT flags) {
  switch (flags & 0x70U) {
    case CFile::shareDenyWrite:
      return FILE_SHARE_READ;
    case CFile::shareDenyRead:
      return FILE_SHARE_WRITE;
    case CFile::shareDenyNone:
      return FILE_SHARE_READ | FILE_SHARE_WRITE;
    default:  // exclusive, and the compatible mode, which is treated as exclusive
      return 0;
  }
}

DWORD DispositionOf(UINT flags) {
  if (!(flags & CFile::modeCreate)) return OPEN_EXISTING;
  return flags & CFile::modeNoTruncate ? OPEN_ALWAYS : CREATE_ALWAYS;
}

DWORD Low(ULONGLONG number) { return static_cast<DWORD>(number); }
DWORD High(ULONGLONG number) { return static_cast<DWORD>(number >> 32); }

[[noreturn]] void ThrowLastError(LPCWSTR path) {
  CFileException::ThrowOsError(static_cast<LONG>(GetLastError()), path);
}

}  // namespace

CFile::CFile() : m_hFile(hFileNull) {}

CFile::CFile(HANDLE file) : m_hFile(file) {}

CFile::CFile(LPCWSTR path, UINT flags) : m_hFile(hFileNull) {
  CFileException error;
  if (!CFile::Open(path, flags, &error)) {
    AfxThrowFileException(error.m_cause, error.m_lOsError, error.m_strFileName);
  }
}

CFile::~CFile() { CFile::Abort(); }

BOOL CFile::Open(LPCWSTR path, UINT flags, CFileException* error) {
  Abort();
  const CString mapped = AfxMapDevicePath(path);
  SECURITY_ATTRIBUTES security{sizeof(security), nullptr, (flags & modeNoInherit) == 0};
  const HANDLE file = CreateFileW(mapped, AccessOf(flags), SharingOf(flags), &security,
                                  DispositionOf(flags), FILE_ATTRIBUTE_NORMAL, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    if (error) {
      error->m_lOsError = static_cast<LONG>(GetLastError());
      error->m_cause = CFileException::OsErrorToException(error->m_lOsError);
      error->m_strFileName = path;
    }
    return FALSE;
  }
  m_hFile = file;
  WCHAR full[MAX_PATH];
  const DWORD length = GetFullPathNameW(mapped, MAX_PATH, full, nullptr);
  m_strFileName = length > 0 && length < MAX_PATH ? CString(full) : mapped;
  return TRUE;
}

UINT CFile::Read(void* buffer, UINT count) {
  DWORD read = 0;
  if (count > 0 && !ReadFile(m_hFile, buffer, count, &read, nullptr)) ThrowLastError(m_strFileName);
  return read;
}

void CFile::Write(const void* buffer, UINT count) {
  if (count == 0) return;
  DWORD written = 0;
  if (!WriteFile(m_hFile, buffer, count, &written, nullptr)) ThrowLastError(m_strFileName);
  if (written != count) {
    AfxThrowFileException(CFileException::diskFull, ERROR_DISK_FULL, m_strFileName);
  }
}

ULONGLONG CFile::Seek(LONGLONG offset, UINT from) {
  LARGE_INTEGER distance;
  LARGE_INTEGER position;
  distance.QuadPart = offset;
  if (!SetFilePointerEx(m_hFile, distance, &position, from)) ThrowLastError(m_strFileName);
  return static_cast<ULONGLONG>(position.QuadPart);
}

ULONGLONG CFile::GetPosition() const {
  LARGE_INTEGER position;
  if (!SetFilePointerEx(m_hFile, LARGE_INTEGER{}, &position, FILE_CURRENT)) {
    ThrowLastError(m_strFileName);
  }
  return static_cast<ULONGLONG>(position.QuadPart);
}

ULONGLONG CFile::GetLength() const {
  LARGE_INTEGER length;
  if (!GetFileSizeEx(m_hFile, &length)) ThrowLastError(m_strFileName);
  return static_cast<ULONGLONG>(length.QuadPart);
}

void CFile::SetLength(ULONGLONG length) {
  Seek(static_cast<LONGLONG>(length), begin);
  if (!SetEndOfFile(m_hFile)) ThrowLastError(m_strFileName);
}

void CFile::LockRange(ULONGLONG position, ULONGLONG count) {
  if (!LockFile(m_hFile, Low(position), High(position), Low(count), High(count))) {
    ThrowLastError(m_strFileName);
  }
}

void CFile::UnlockRange(ULONGLONG position, ULONGLONG count) {
  if (!UnlockFile(m_hFile, Low(position), High(position), Low(count), High(count))) {
    ThrowLastError(m_strFileName);
  }
}

void CFile::Flush() {
  if (m_hFile != hFileNull && !FlushFileBuffers(m_hFile)) ThrowLastError(m_strFileName);
}

void CFile::Close() {
  if (m_hFile == hFileNull) return;
  const BOOL closed = CloseHandle(std::exchange(m_hFile, hFileNull));
  const DWORD error = GetLastError();
  const CString path = std::exchange(m_strFileName, CString());
  if (!closed) CFileException::ThrowOsError(static_cast<LONG>(error), path);
}

void CFile::Abort() {
  if (m_hFile != hFileNull) CloseHandle(std::exchange(m_hFile, hFileNull));
  m_strFileName.Empty();
}

CString CFile::GetFileName() const {
  const int slash = m_strFileName.ReverseFind(L'\\');
  return m_strFileName.Mid(slash + 1);
}

void CFile::Rename(LPCWSTR oldPath, LPCWSTR newPath) {
  const CString from = AfxMapDevicePath(oldPath);
  const CString to = AfxMapDevicePath(newPath);
  if (!MoveFileW(from, to)) ThrowLastError(oldPath);
}

void CFile::Remove(LPCWSTR path) {
  const CString mapped = AfxMapDevicePath(path);
  if (!DeleteFileW(mapped)) ThrowLastError(path);
}
