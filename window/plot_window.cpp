#include "window/plot_window.h"

#include <cstdint>

#include "window/buttons/button_column.h"
#include "window/buttons/button_commands.h"
#include "window/modes/plot_modes.h"
#include "window/navigation.h"
#include "window/one_bit_plot.h"
#include "window/output.h"
#include "window/plot_display.h"
#include "window/settings/settings_command.h"

namespace tavix {
namespace {

constexpr const wchar_t* kWindowName = L"確認図";
constexpr DWORD kStyle = WS_CHILD | WS_BORDER | WS_TABSTOP;  // hidden until the host shows it

// The back buffer of a larger window would take more than 512 MiB.
bool IsTooLarge(const CRect& rect) {
  constexpr std::int64_t kMostPixels = std::int64_t{1} << 27;
  const std::int64_t width = std::int64_t{rect.right} - rect.left;
  const std::int64_t height = std::int64_t{rect.bottom} - rect.top;
  return width > 0 && height > 0 && height > kMostPixels / width;
}

ScreenPoint ToScreen(CPoint point) {
  return {static_cast<int>(point.x), static_cast<int>(point.y)};
}

}  // namespace

struct CPlotWnd::Parts {
  Parts(CPlotWnd& window, UINT notify_id, const PlotLinks& plot_links)
      : links(plot_links),
        display(window, buttons, links, ratio),
        navigation(links.view, display, ratio),
        modes({window, display, links.view, links.points}, notify_id, navigation, buttons),
        settings(window, display, navigation, links.legend),
        commands(buttons, modes, display, navigation, settings),
        one_bit(display) {}

  const PlotLinks links;
  RatioSetting ratio;
  ButtonColumn buttons;
  PlotDisplay display;
  Navigation navigation;
  PlotModes modes;
  SettingsCommand settings;
  ButtonCommands commands;
  OneBitPlot one_bit;
  bool painting = false;  // BeginPaint is erasing the background
};

BEGIN_MESSAGE_MAP(CPlotWnd, CWnd)
ON_WM_LBUTTONUP()
ON_WM_ERASEBKGND()
ON_WM_PAINT()
ON_WM_LBUTTONDOWN()
ON_WM_MOUSEMOVE()
ON_WM_CAPTURECHANGED()
ON_WM_DESTROY()
END_MESSAGE_MAP()

CPlotWnd::CPlotWnd(UINT notify_id, const PlotLinks& links)
    : parts_(std::make_unique<Parts>(*this, notify_id, links)), one_bit_(parts_->one_bit) {}

CPlotWnd::~CPlotWnd() { CPlotWnd::DestroyWindow(); }

BOOL CPlotWnd::DestroyWindow() {
  parts_->settings.Abandon();
  parts_->buttons.Destroy();
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
  if (!parent || !parent->m_hWnd || IsTooLarge(rect)) return FALSE;
  if (!CreateEx(WS_EX_CLIENTEDGE, class_name, kWindowName, kStyle, rect.left, rect.top,
                rect.Width(), rect.Height(), parent->m_hWnd, nullptr)) {
    return FALSE;
  }
  if (!parts_->buttons.Create(*this)) return FALSE;
  parts_->display.CreateBuffer();
  return TRUE;
}

void CPlotWnd::ApplyButtonFlag(bool show_buttons) {
  CRect client(0, 0, 0, 0);
  if (m_hWnd) GetClientRect(&client);
  const int column = show_buttons ? ButtonColumnLayout::kWidth : 0;
  CViewState& view = parts_->links.view;
  parts_->display.FinishRedraw();
  view.SetScreenSize(client.right - column, client.bottom);
  view.SetRatio(1.0);
  parts_->buttons.Show(show_buttons);
}

PlotDisplay& CPlotWnd::Display() { return parts_->display; }
Navigation& CPlotWnd::Navigate() { return parts_->navigation; }
CaptureMode& CPlotWnd::Capture() { return parts_->modes.Capture(); }
PaperFrameOverlay& CPlotWnd::Frame() { return parts_->display.Plan().Frame(); }
ScaleBarOverlay& CPlotWnd::ScaleBar() { return parts_->display.Plan().ScaleBar(); }
MovedPoint& CPlotWnd::Moved() { return parts_->display.Plan().Moved(); }
TracedLine& CPlotWnd::Trace() { return parts_->display.Plan().Trace(); }
ScreenPoint CPlotWnd::LastTap() const { return parts_->modes.LastTap(); }

BOOL CPlotWnd::OnCommand(WPARAM wParam, LPARAM lParam) {
  // The command can change the picture or the mode under an unfinished band.
  parts_->modes.Cancel();
  // A host can end the window, with this object, while the settings are open.
  if (parts_->commands.Run(LOWORD(wParam))) return TRUE;
  return CWnd::OnCommand(wParam, lParam);
}

BOOL CPlotWnd::PreTranslateMessage(MSG* message) {
  const bool is_arrow =
      message->message == WM_KEYDOWN && message->wParam >= VK_LEFT && message->wParam <= VK_DOWN;
  if (!is_arrow || parts_->modes.IsZoomWindowOn() || !parts_->buttons.IsOnScreen()) {
    return CWnd::PreTranslateMessage(message);
  }
  parts_->navigation.PressArrow(message->wParam);
  return TRUE;
}

void CPlotWnd::OnLButtonDown(UINT flags, CPoint point) {
  // A disabled button lets its taps through to the window; they are no taps on the plot.
  if (parts_->buttons.Covers(point)) {
    CWnd::OnLButtonDown(flags, point);
    return;
  }
  parts_->modes.Press(ToScreen(point));
  CWnd::OnLButtonDown(flags, point);
  // So that a drag that leaves the window still ends. Comes last: a window of the host that loses
  // the capture gets a message, and may end the instance.
  SetCapture();
}

void CPlotWnd::OnMouseMove(UINT flags, CPoint point) {
  parts_->modes.Move(ToScreen(point));
  CWnd::OnMouseMove(flags, point);
}

void CPlotWnd::OnLButtonUp(UINT flags, CPoint point) {
  if (const auto gesture = parts_->modes.Lift(ToScreen(point))) {
    if (GetCapture() == this) ReleaseCapture();
    parts_->modes.Release(*gesture);
  }
  CWnd::OnLButtonUp(flags, point);
}

// Another window took the capture: the release of the stylus will not be seen here.
void CPlotWnd::OnCaptureChanged(CWnd* taker) {
  if (taker != this) parts_->modes.CancelGesture();
  CWnd::OnCaptureChanged(taker);
}

void CPlotWnd::OnDestroy() {
  parts_->display.ReleaseScreen();
  CWnd::OnDestroy();
}

BOOL CPlotWnd::OnEraseBkgnd(CDC* dc) {
  CRect client;
  GetClientRect(&client);
  if (parts_->painting && parts_->display.Covers(client)) return TRUE;
  if (parts_->painting) parts_->buttons.ExcludeFrom(*dc);
  ::FillRect(dc->m_hDC, &client, ::GetSysColorBrush(COLOR_WINDOW));
  // The system can have the background erased before the paint; that covers the buttons, too.
  if (!parts_->painting && ::WindowFromDC(dc->m_hDC) == m_hWnd) parts_->buttons.Invalidate();
  return TRUE;
}

void CPlotWnd::OnPaint() {
  // Before the background is erased: what is on the screen stays there until the picture is ready.
  parts_->display.FinishRedraw();
  bool begun = false;
  parts_->painting = true;
  DrawWhatCanBe([&] {
    CPaintDC dc(this);
    begun = true;
    parts_->painting = false;
    CRect clip;
    const int region = dc.GetClipBox(&clip);
    if (region == NULLREGION || region == ERROR) return;
    parts_->buttons.ExcludeFrom(dc);
    parts_->display.Paint(dc, clip);
  });
  parts_->painting = false;
  // Otherwise the system would ask for the paint again and again.
  if (!begun) ValidateRect(nullptr);
}

}  // namespace tavix
