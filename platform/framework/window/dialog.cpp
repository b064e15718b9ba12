#include "framework/dialog.h"

#include <new>
#include <optional>
#include <utility>

#include "framework/command_handlers.h"
#include "framework/exception.h"
#include "framework/extension_module.h"
#include "framework/win_app.h"
#include "platform/framework/window/message_loop.h"
#include "platform/framework/window/wnd_binding.h"

BEGIN_MESSAGE_MAP(CDialog, CWnd)
ON_COMMAND(IDOK, &CDialog::OnOK)
ON_COMMAND(IDCANCEL, &CDialog::OnCancel)
END_MESSAGE_MAP()

namespace {

// Disables a window for as long as it lives; a window that was disabled before stays so.
class ScopedDisable {
 public:
  explicit ScopedDisable(HWND window)
      : window_(window && ::IsWindowEnabled(window) ? window : nullptr) {
    if (window_) ::EnableWindow(window_, FALSE);
  }
  ~ScopedDisable() {
    if (window_) ::EnableWindow(window_, TRUE);
  }
  ScopedDisable(const ScopedDisable&) = delete;
  ScopedDisable& operator=(const ScopedDisable&) = delete;

 private:
  HWND window_;  // null when there is nothing to enable again
};

// The top-level window that is disabled while the dialog is open.
HWND OwnerOf(const CWnd* parent) {
  CWnd* main = AfxGetMainWnd();
  HWND window = parent ? parent->m_hWnd : main ? ::GetLastActivePopup(main->m_hWnd) : nullptr;
  return window ? ::GetAncestor(window, GA_ROOT) : nullptr;
}

const DLGTEMPLATE* TemplateOf(LPCWSTR name) {
  const HINSTANCE module = AfxFindResourceHandle(name, RT_DIALOG);
  const HRSRC found = ::FindResourceW(module, name, RT_DIALOG);
  if (!found) return nullptr;
  return static_cast<const DLGTEMPLATE*>(::LockResource(::LoadResource(module, found)));
}

}  // namespace

struct CDialog::ModalState {
  int result = IDCANCEL;  // also when the window is destroyed without EndDialog
  bool ended = false;
  HWND owner = nullptr;
  std::optional<ScopedDisable> owner_waits;
};

CDialog::CDialog(LPCWSTR templateName, CWnd* parent)
    : m_lpszTemplateName(templateName), m_pParentWnd(parent) {}

CDialog::CDialog(UINT templateId, CWnd* parent) : CDialog(MAKEINTRESOURCEW(templateId), parent) {}

CDialog::~CDialog() {
  if (m_hWnd) CDialog::DestroyWindow();
}

BOOL CDialog::InitModalIndirect(const DLGTEMPLATE* dialogTemplate, CWnd* parent) {
  m_lpDialogTemplate = dialogTemplate;
  m_pParentWnd = parent;
  return TRUE;
}

BOOL CDialog::Create(LPCWSTR templateName, CWnd* parent) {
  m_lpszTemplateName = templateName;
  return CreateIndirect(TemplateOf(templateName), parent);
}

BOOL CDialog::Create(UINT templateId, CWnd* parent) {
  return Create(MAKEINTRESOURCEW(templateId), parent);
}

BOOL CDialog::CreateIndirect(const DLGTEMPLATE* dialogTemplate, CWnd* parent) {
  m_pParentWnd = parent;
  CWnd* main = AfxGetMainWnd();
  const HWND owner = parent ? parent->m_hWnd : main ? main->m_hWnd : nullptr;
  return dialogTemplate && CreateFromTemplate(dialogTemplate, owner);
}

BOOL CDialog::CreateFromTemplate(const DLGTEMPLATE* dialogTemplate, HWND owner) {
  const afx::CreationHook hook(*this);
  const HWND window =
      ::CreateDialogIndirectParamW(AfxGetResourceHandle(), dialogTemplate, owner, &DialogProc, 0);
  if (hook.IsBound()) return window != nullptr;
  if (window) ::DestroyWindow(window);  // without the hook the window is not bound to this object
  return FALSE;
}

INT_PTR CDialog::DoModal() {
  const DLGTEMPLATE* dialogTemplate =
      m_lpDialogTemplate ? m_lpDialogTemplate : TemplateOf(m_lpszTemplateName);
  if (!dialogTemplate) return -1;

  // From here on, messages to windows of the host may make them end this dialog.
  ModalState state;
  state.owner = OwnerOf(m_pParentWnd);
  m_modal = &state;
  if (const HWND capture = ::GetCapture()) ::SendMessageW(capture, WM_CANCELMODE, 0, 0);
  state.owner_waits.emplace(state.owner);
  if (!state.ended) {
    if (CreateFromTemplate(dialogTemplate, state.owner)) {
      RunModal(state);
    } else {
      state.result = IDABORT;
    }
  }
  EndDialog(state.result);
  // Enables an owner that ended the dialog while it was being disabled.
  state.owner_waits.reset();
  m_modal = nullptr;
  DestroyWindow();
  return state.result;
}

void CDialog::RunModal(ModalState& state) {
  if (!state.ended && !IsWindowVisible()) ShowWindow(SW_SHOWNORMAL);
  while (!state.ended && m_hWnd) {
    if (!afx::PumpModalMessage()) return;
  }
}

void CDialog::EndDialog(int result) {
  if (!m_modal) {
    ::EndDialog(m_hWnd, result);
    return;
  }
  if (m_modal->ended) return;
  m_modal->result = result;
  m_modal->ended = true;
  MakeWay();
}

// The system's EndDialog is not used: it would enable an owner that was disabled before.
void CDialog::MakeWay() {
  // Hidden before the owner is enabled, so that the owner becomes the active window.
  if (m_hWnd) {
    SetWindowPos(nullptr, 0, 0, 0, 0,
                 SWP_HIDEWINDOW | SWP_NOSIZE | SWP_NOMOVE | SWP_NOACTIVATE | SWP_NOZORDER);
  }
  m_modal->owner_waits.reset();
  if (!m_hWnd) return;
  if (m_modal->owner && ::GetActiveWindow() == m_hWnd) ::SetActiveWindow(m_modal->owner);
  // Wakes the loop: a sent message does not.
  PostMessageW(WM_NULL);
}

void CDialog::PostNcDestroy() {
  // Wakes the loop when the window is destroyed, for example with its owner.
  if (m_modal) ::PostThreadMessageW(::GetCurrentThreadId(), WM_NULL, 0, 0);
}

INT_PTR CALLBACK CDialog::DialogProc(HWND window, UINT message, WPARAM, LPARAM) {
  if (message != WM_INITDIALOG) return FALSE;
  auto* dialog = dynamic_cast<CDialog*>(FromHandlePermanent(window));
  if (!dialog) return TRUE;
  try {
    dialog->PreInitDialog();
    return dialog->OnInitDialog();
  } catch (CException* exception) {
    afx::ReportAndDelete(exception);
    dialog->EndDialog(-1);
    return FALSE;
  } catch (const std::bad_alloc&) {
    dialog->EndDialog(-1);
    return FALSE;
  }
}

BOOL CDialog::OnInitDialog() {
  UpdateData(FALSE);
  return TRUE;
}

void CDialog::OnOK() {
  if (UpdateData(TRUE)) EndDialog(IDOK);
}

void CDialog::OnCancel() { EndDialog(IDCANCEL); }

BOOL CDialog::PreTranslateMessage(MSG* message) {
  if (CWnd::PreTranslateMessage(message)) return TRUE;
  const UINT number = message->message;
  const bool input = (WM_KEYFIRST <= number && number <= WM_KEYLAST) ||
                     (WM_MOUSEFIRST <= number && number <= WM_MOUSELAST);
  return input && IsDialogMessageW(message);
}

BOOL CDialog::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) {
  if (CWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) return TRUE;
  // Only commands are routed further, notifications of controls are not. System commands begin at
  // 0xF000.
  const bool isCommand = nCode == CN_COMMAND && (nID & 0x8000) && nID < 0xF000;
  if (!isCommand) return FALSE;
  CWnd* owner = GetOwner();
  if (owner && owner->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo)) return TRUE;
  CWinApp* app = AfxGetApp();
  return app && app->OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}
