// CColorDialog and CFileDialog: the common dialogs of the system.
#pragma once

#include "object_list.h"
#include "string.h"
#include "wnd.h"

#include <commdlg.h>

class AFX_FRAMEWORK CCommonDialog : public CObject {
 public:
  explicit CCommonDialog(CWnd* parent) : m_parent(parent) {}
  // IDOK or IDCANCEL.
  virtual INT_PTR DoModal() = 0;

 protected:
  HWND OwnerWindow() const;

 private:
  CWnd* m_parent;
};

class AFX_FRAMEWORK CColorDialog : public CCommonDialog {
 public:
  CHOOSECOLORW m_cc = {};

  // `initial` is selected first; black (0) only with CC_RGBINIT in `flags`.
  explicit CColorDialog(COLORREF initial = 0, DWORD flags = 0, CWnd* parent = nullptr);
  INT_PTR DoModal() override;

  COLORREF GetColor() const { return m_cc.rgbResult; }
  void SetCurrentColor(COLORREF colour);
  // The sixteen custom colours, shared by all colour dialogs of the process.
  static COLORREF* GetSavedCustomColors();
};

class AFX_FRAMEWORK CFileDialog : public CCommonDialog {
 public:
  OPENFILENAMEW m_ofn = {};

  // open TRUE: File Open, FALSE: Save As. defaultExtension, without a dot, is appended to a name
  // without extension. filter: pairs "text|*.a;*.b|", ended by "||". The strings are copied.
  explicit CFileDialog(BOOL open, LPCWSTR defaultExtension = nullptr, LPCWSTR fileName = nullptr,
                       DWORD flags = OFN_HIDEREADONLY | OFN_OVERWRITEPROMPT,
                       LPCWSTR filter = nullptr, CWnd* parent = nullptr);
  INT_PTR DoModal() override;

  // Valid after IDOK; of several files, the first.
  CString GetPathName() const;
  CString GetFileName() const;    // name.ext
  CString GetFileExt() const;     // ext
  CString GetFileTitleW() const;  // name
  CString GetFileTitleA() const { return GetFileTitleW(); }
  CString GetFolderPath() const;
  BOOL GetReadOnlyPref() const { return (m_ofn.Flags & OFN_READONLY) != 0; }

  // All chosen files, with OFN_ALLOWMULTISELECT; the position becomes null after the last.
  POSITION GetStartPosition() const;
  CString GetNextPathName(POSITION& position) const;

 private:
  BOOL m_open;
  CString m_extension;
  CString m_filter;     // with NULs between its parts, as the system expects
  CString m_fileNames;  // the buffer of m_ofn
};
