// CDialog: a dialog from a template, modal (DoModal) or not (Create).
#pragma once

#include "framework/data_exchange.h"
#include "framework/wnd.h"

class AFX_FRAMEWORK CDialog : public CWnd {
 public:
  // For a dialog that Create or InitModalIndirect gives its template.
  CDialog() = default;
  // A template of the resources (AfxFindResourceHandle). The string or data must outlive the
  // object.
  explicit CDialog(LPCWSTR templateName, CWnd* parent = nullptr);
  explicit CDialog(UINT templateId, CWnd* parent = nullptr);
  ~CDialog() override;

  // Shows the dialog with its owner disabled until EndDialog, and returns EndDialog's value; -1
  // when there is no template, IDABORT when the dialog could not be made. Without parent the main
  // window owns it. The window is gone afterwards, the object can be used again.
  virtual INT_PTR DoModal();
  // Modeless. DestroyWindow ends it (not EndDialog).
  virtual BOOL Create(LPCWSTR templateName, CWnd* parent = nullptr);
  virtual BOOL Create(UINT templateId, CWnd* parent = nullptr);
  virtual BOOL CreateIndirect(const DLGTEMPLATE* dialogTemplate, CWnd* parent = nullptr);
  BOOL InitModalIndirect(const DLGTEMPLATE* dialogTemplate, CWnd* parent = nullptr);

  // Closes a modal dialog: it hides and its owner takes input at once, and DoModal returns after
  // the current message. The first call's result stands; later ones do nothing.
  void EndDialog(int result);
  UINT GetDefID() const { return LOWORD(SendMessageW(DM_GETDEFID)); }
  void SetDefID(UINT id) { SendMessageW(DM_SETDEFID, id); }
  void NextDlgCtrl() const { SendMessageW(WM_NEXTDLGCTL); }
  void PrevDlgCtrl() const { SendMessageW(WM_NEXTDLGCTL, 1); }
  void GotoDlgCtrl(CWnd* item) {
    SendMessageW(WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(item->m_hWnd), TRUE);
  }
  void MapDialogRect(RECT* rect) const { ::MapDialogRect(m_hWnd, rect); }

  // WM_INITDIALOG: the items exist. FALSE when the focus was set here. Moves the data to the items.
  virtual BOOL OnInitDialog();
  virtual void OnSetFont(CFont*) {}

  // Dialog keys (Tab, arrows, Enter, Escape, shortcuts) in either kind.
  BOOL PreTranslateMessage(MSG* message) override;
  // Itself, then its owner, then the application.
  BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

 protected:
  // IDOK: takes the data and ends with IDOK; stays open when a value was refused.
  virtual void OnOK();
  // IDCANCEL, Escape and the close box: ends with IDCANCEL.
  virtual void OnCancel();
  virtual void PreInitDialog() {}
  void PostNcDestroy() override;

  LPCWSTR m_lpszTemplateName = nullptr;             // what DoModal loads, unless
  const DLGTEMPLATE* m_lpDialogTemplate = nullptr;  // this is given; neither is the object's own
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
