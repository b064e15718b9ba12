// CDialog: a dialog from a template, modal (DoModal) or not (Create).
#pragma once

#include "data_exchange.h"
#include "wnd.h"

class AFX_FRAMEWORK CDialog : public CWnd {
 public:
  // For a dialog that gets its template from Create or InitModalIndirect.
  CDialog() = default;
  // A template from the resources (AfxFindResourceHandle). The string must outlive the object.
  explicit CDialog(LPCWSTR templateName, CWnd* parent = nullptr);
  explicit CDialog(UINT templateId, CWnd* parent = nullptr);
  ~CDialog() override;

  // Shows the dialog, with its owner disabled, until EndDialog, and returns the result given there;
  // -1 when there is no template, IDABORT when the dialog could not be created. Without a parent
  // the main window is the owner. Afterwards the window is destroyed and the object can be used
  // again.
  virtual INT_PTR DoModal();
  // Modeless; closed with DestroyWindow, not with EndDialog.
  virtual BOOL Create(LPCWSTR templateName, CWnd* parent = nullptr);
  virtual BOOL Create(UINT templateId, CWnd* parent = nullptr);
  virtual BOOL CreateIndirect(const DLGTEMPLATE* dialogTemplate, CWnd* parent = nullptr);
  BOOL InitModalIndirect(const DLGTEMPLATE* dialogTemplate, CWnd* parent = nullptr);

  // Closes a modal dialog: hides it and enables its owner at once; DoModal returns after the
  // current message. The first result is kept; later calls do nothing.
  void EndDialog(int result);
  UINT GetDefID() const { return LOWORD(SendMessageW(DM_GETDEFID)); }
  void SetDefID(UINT id) { SendMessageW(DM_SETDEFID, id); }
  void NextDlgCtrl() const { SendMessageW(WM_NEXTDLGCTL); }
  void PrevDlgCtrl() const { SendMessageW(WM_NEXTDLGCTL, 1); }
  void GotoDlgCtrl(CWnd* item) {
    SendMessageW(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(item->m_hWnd), TRUE);
  }
  void MapDialogRect(RECT* rect) const { ::MapDialogRect(m_hWnd, rect); }

  // Handles WM_INITDIALOG, when the items exist: moves the data to them. Return FALSE after setting
  // the focus.
  virtual BOOL OnInitDialog();
  virtual void OnSetFont(CFont*) {}

  // Handles the dialog keys (Tab, arrows, Enter, Escape, shortcuts), modal or not.
  BOOL PreTranslateMessage(MSG* message) override;
  // Routes to the dialog, then to its owner, then to the application.
  BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

 protected:
  // IDOK: reads the data from the items and ends with IDOK; stays open when a value is refused.
  virtual void OnOK();
  // IDCANCEL, Escape and the close box: ends with IDCANCEL.
  virtual void OnCancel();
  virtual void PreInitDialog() {}
  void PostNcDestroy() override;

  LPCWSTR m_lpszTemplateName = nullptr;             // loaded by DoModal, unless
  const DLGTEMPLATE* m_lpDialogTemplate = nullptr;  // this is set; not owned
  CWnd* m_pParentWnd = nullptr;

  DECLARE_MESSAGE_MAP()

 private:
  struct ModalState;

  BOOL CreateFromTemplate(const DLGTEMPLATE* dialogTemplate, HWND owner);
  void RunModal(ModalState& state);
  void MakeWay();
  static INT_PTR CALLBACK DialogProc(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

  ModalState* m_modal = nullptr;  // while DoModal runs
};
