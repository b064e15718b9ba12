#include "framework/common_dialogs.h"

#include <algorithm>
#include <cwchar>

#include "framework/win_app.h"

HWND CCommonDialog::OwnerWindow() const {
  const CWnd* owner = m_parent ? m_parent : AfxGetMainWnd();
  return owner ? owner->m_hWnd : nullptr;
}

// ---- CColorDialog

CColorDialog::CColorDialog(COLORREF initial, DWORD flags, CWnd* parent) : CCommonDialog(parent) {
  m_cc.lStructSize = sizeof(m_cc);
  m_cc.rgbResult = initial;
  m_cc.Flags = flags | (initial ? CC_RGBINIT : 0);
  m_cc.lpCustColors = GetSavedCustomColors();
}

INT_PTR CColorDialog::DoModal() {
  m_cc.hwndOwner = OwnerWindow();
  return ::ChooseColorW(&m_cc) ? IDOK : IDCANCEL;
}

void CColorDialog::SetCurrentColor(COLORREF colour) {
  m_cc.rgbResult = colour;
  m_cc.Flags |= CC_RGBINIT;
}

COLORREF* CColorDialog::GetSavedCustomColors() {
  static COLORREF colours[16] = {0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF,
                                 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF,
                                 0xFFFFFF, 0xFFFFFF, 0xFFFFFF, 0xFFFFFF};
  return colours;
}

// ---- CFileDialog

namespace {

constexpr int kFileNamesCapacity = 32768;  // characters, for a folder and several names

// The part of the path after the last character that is one of `marks`, or all of it.
CString After(const CString& path, LPCWSTR marks) {
  int last = -1;
  for (const wchar_t* mark = marks; *mark; ++mark) last = std::max(last, path.ReverseFind(*mark));
  return path.Mid(last + 1);
}

}  // namespace

CFileDialog::CFileDialog(BOOL open, LPCWSTR defaultExtension, LPCWSTR fileName, DWORD flags,
                         LPCWSTR filter, CWnd* parent)
    : CCommonDialog(parent), m_open(open), m_extension(defaultExtension), m_filter(filter) {
  m_filter += L'|';  // the list must end with two NULs
  m_filter.Replace(L'|', L'\0');

  LPWSTR names = m_fileNames.GetBufferSetLength(kFileNamesCapacity);
  std::fill_n(names, kFileNamesCapacity, L'\0');
  if (fileName) ::lstrcpynW(names, fileName, kFileNamesCapacity);

  m_ofn.lStructSize = sizeof(m_ofn);
  m_ofn.Flags = flags | OFN_EXPLORER;
  m_ofn.lpstrFile = names;
  m_ofn.nMaxFile = kFileNamesCapacity;
  if (filter) m_ofn.lpstrFilter = m_filter;
  if (defaultExtension) m_ofn.lpstrDefExt = m_extension;
}

INT_PTR CFileDialog::DoModal() {
  m_ofn.hwndOwner = OwnerWindow();
  const BOOL chosen = m_open ? ::GetOpenFileNameW(&m_ofn) : ::GetSaveFileNameW(&m_ofn);
  return chosen ? IDOK : IDCANCEL;
}

CString CFileDialog::GetPathName() const {
  POSITION position = GetStartPosition();
  return position ? GetNextPathName(position) : CString();
}

CString CFileDialog::GetFileName() const { return After(GetPathName(), L"\\/"); }

CString CFileDialog::GetFileExt() const {
  const CString name = GetFileName();
  return name.Find(L'.') < 0 ? CString() : After(name, L".");
}

CString CFileDialog::GetFileTitleW() const {
  const CString name = GetFileName();
  const int dot = name.ReverseFind(L'.');
  return dot < 0 ? name : name.Left(dot);
}

CString CFileDialog::GetFolderPath() const {
  const CString path = GetPathName();
  return path.Left(path.GetLength() - GetFileName().GetLength() - 1);
}

// The buffer holds one full path, or a folder and then the names of files in it. Each ends with a
// NUL, the whole with a second one. A position is an address in the buffer.

POSITION CFileDialog::GetStartPosition() const {
  return *m_ofn.lpstrFile ? reinterpret_cast<POSITION>(m_ofn.lpstrFile) : nullptr;
}

CString CFileDialog::GetNextPathName(POSITION& position) const {
  const wchar_t* place = reinterpret_cast<const wchar_t*>(position);
  const wchar_t* folder = m_ofn.lpstrFile;
  const wchar_t* name = place == folder ? folder + std::wcslen(folder) + 1 : place;
  const bool single = place == folder && !*name;
  if (single) {
    position = nullptr;
    return folder;
  }
  const wchar_t* next = name + std::wcslen(name) + 1;
  position = *next ? reinterpret_cast<POSITION>(const_cast<wchar_t*>(next)) : nullptr;
  CString path(folder);
  if (path.Right(1) != L"\\") path += L'\\';
  return path + name;
}
