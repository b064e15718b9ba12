#include "window/plot_window.h"

#include "window/client_surface.h"
#include "window/refusal_beep.h"

namespace tavix {
namespace {

constexpr const wchar_t* kWindowName = L"確認図";
constexpr DWORD kStyle = WS_CHILD | WS_BORDER | WS_TABSTOP;  // hidden until the host shows it

}  // namespace

BEGIN_MESSAGE_MAP(CPlotWnd, CWnd)
ON_WM_LBUTTONUP()
ON_WM_ERASEBKGND()
ON_WM_PAINT()
ON_WM_LBUTTONDOWN()
ON_WM_MOUSEMOVE()
ON_WM_CAPTURECHANGED()
END_MESSAGE_MAP()

CPlotWnd::CPlotWnd(UINT notify_id) : notify_id_(notify_id) {}

CPlotWnd::~CPlotWnd() { CPlotWnd::DestroyWindow(); }

BOOL CPlotWnd::DestroyWindow() {
  buttons_.Destroy();
  return m_hWnd ? CWnd::DestroyWindow() : FALSE;
}

BOOL CPlotWnd::CreateInRect(CWnd* parent, const CRect& rect) {
  static const CString class_name = AfxRegisterWndClass(CS_DBLCLKS, nullptr, nullptr, nullptr);
  return CreateChild(parent, rect, class_name);
}

BOOL CPlotWnd::CreateOverControl(CWnd* parent, UINT control_id) {
  static const CString class_name = AfxRegisterWndClass(CS_DBLCLKS, nullptr, nullptr, nullptr);
  CWnd* control =
      parent && parent->m_hWnd ? parent->GetDlgItem(static_cast<int>(control_id)) : nullptr;
  if (!control) return FALSE;
  CRect rect;
  control->GetWindowRect(&rect);
  control->ShowWindow(SW_HIDE);
  parent->ScreenToClient(&rect);
  return CreateChild(parent, rect, class_name);
}

BOOL CPlotWnd::CreateChild(CWnd* parent, const CRect& rect, const CString& class_name) {
  if (!parent || !parent->m_hWnd) return FALSE;
  if (!CreateEx(WS_EX_CLIENTEDGE, class_name, kWindowName, kStyle, rect.left, rect.top,
                rect.Width(), rect.Height(), parent->m_hWnd, nullptr)) {
    return FALSE;
  }
  if (!buttons_.Create(*this)) return FALSE;
  buffer_.Create(*this);
  return TRUE;
}

void CPlotWnd::ApplyButtonFlag(bool show_buttons) {
  CRect client(0, 0, 0, 0);
  if (m_hWnd) GetClientRect(&client);
  const int column = show_buttons ? ButtonColumnLayout::kWidth : 0;
  links_.view->SetScreenSize(client.right - column, client.bottom);
  links_.view->SetRatio(1.0);
  buttons_.Show(show_buttons);
}

int CPlotWnd::FitView() {
  GroundExtent extent;
  if (const int code = links_.points->GetExtent(&extent); code != 0) return code;
  const GroundPoint centre{(extent.max.x + extent.min.x) * 0.5,
                           (extent.max.y + extent.min.y) * 0.5};
  BeepIfCut(
      links_.view->FitToArea({extent.max.y - extent.min.y, extent.max.x - extent.min.x}, centre));
  return 0;
}

int CPlotWnd::ZoomTo(GroundSize size, GroundPoint centre) {
  BeepIfCut(links_.view->ZoomToArea(size, centre));
  return ViewChanged();
}

int CPlotWnd::PanTo(GroundPoint centre) {
  links_.view->SetCentre(centre);
  return ViewChanged();
}

int CPlotWnd::Redraw() {
  if (!m_hWnd) return 0;
  buffer_.Fill();
  if (!display_3d_) DrawPlanView(buffer_.Dc(), Data());
  InvalidateRect(&buffer_.Rect(), TRUE);
  return 0;
}

int CPlotWnd::ViewChanged() { return Redraw(); }

void CPlotWnd::DrawNewPoint(const Point& point) {
  if (!m_hWnd) return;
  if (IsWindowVisible()) {
    ClientSurface screen(*this);
    DrawSinglePoint(screen.Dc(), Data(), point);
  }
  DrawSinglePoint(buffer_.Dc(), Data(), point);
}

void CPlotWnd::SetRatio(int vertical, int horizontal) {
  ratio_ = {true, vertical, horizontal};
  links_.view->SetRatio(static_cast<double>(vertical) / horizontal);
}

PlotData CPlotWnd::Data() const { return {*links_.view, links_.legend->Table(), *links_.points}; }

BOOL CPlotWnd::OnEraseBkgnd(CDC* dc) {
  CRect client;
  GetClientRect(&client);
  ::FillRect(dc->m_hDC, &client, ::GetSysColorBrush(COLOR_WINDOW));
  return TRUE;
}

void CPlotWnd::OnPaint() {
  CPaintDC dc(this);
  CRect clip;
  const int region = dc.GetClipBox(&clip);
  if (region == NULLREGION || region == ERROR) return;
  dc.BitBlt(clip.left, clip.top, clip.Width(), clip.Height(), &buffer_.Dc(), clip.left, clip.top,
            SRCCOPY);
  band_.Restore(dc);
}

}  // namespace tavix
