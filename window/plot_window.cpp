#include "window/plot_window.h"

#include <cmath>
#include <cstdint>

#include "draw/dib/dib_canvas.h"
#include "draw/gdi_canvas.h"
#include "draw/gdi_scopes.h"
#include "draw/side_view.h"
#include "view/scale_bar.h"
#include "window/client_surface.h"
#include "window/overlays.h"
#include "window/refusal_beep.h"

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

}  // namespace

BEGIN_MESSAGE_MAP(CPlotWnd, CWnd)
ON_WM_LBUTTONUP()
ON_WM_ERASEBKGND()
ON_WM_PAINT()
ON_WM_LBUTTONDOWN()
ON_WM_MOUSEMOVE()
ON_WM_CAPTURECHANGED()
END_MESSAGE_MAP()

CPlotWnd::CPlotWnd(UINT notify_id) : notify_id_(notify_id) {
  constexpr int kLabelHeight = 10;  // pixels
  const LOGFONTW font = LabelFont(kLabelHeight);
  label_font_.CreateFontIndirect(&font);
}

CPlotWnd::~CPlotWnd() { CPlotWnd::DestroyWindow(); }

BOOL CPlotWnd::DestroyWindow() {
  AbandonSettings();
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
  if (!parent || !parent->m_hWnd || IsTooLarge(rect)) return FALSE;
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
  if (display_3d_) return FitSideView();
  GroundExtent points;
  GroundExtent figures;
  const int points_code = links_.points->GetExtent(&points);
  const int figures_code = links_.figures->GetExtent(&figures);
  if (points_code != 0 && figures_code != 0) return points_code;

  ExtentBuilder builder;
  if (points_code == 0) builder.Include(points);
  if (figures_code == 0) builder.Include(figures);
  if (move_point_.IsDrawn()) builder.Include(move_point_.Position());
  const GroundExtent& extent = builder.Extent();
  if (frame_.IsOn()) {
    BeepIfCut(
        links_.view->FitToRect(frame_.Width(), frame_.Height(), extent.Size(), extent.Centre()));
    frame_.MarkScaleStale();
  } else {
    BeepIfCut(links_.view->FitToArea(extent.Size(), extent.Centre()));
  }
  return 0;
}

int CPlotWnd::FitSideView() {
  GroundExtent3 extent;
  if (const int code = links_.points3->GetExtent(&extent); code != 0) return code;
  BeepIfCut(links_.view->FitToArea(extent.plan.Size(), extent.plan.Centre()));
  height_base_ = std::floor(extent.min_z);
  return 0;
}

int CPlotWnd::ZoomToBox(GroundPoint south_west, GroundPoint north_east) {
  const auto [x1, y1] = south_west;
  const auto [x2, y2] = north_east;
  return ZoomTo({y2 - y1, x2 - x1}, {(x1 + x2) * 0.5, (y1 + y2) * 0.5});
}

int CPlotWnd::ZoomToCircle(GroundPoint centre, double radius) {
  return ZoomTo({radius * 2.0, radius * 2.0}, centre);
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
  if (buffer_.Pixels().pixels) {
    DibCanvas canvas(buffer_.Dc(), buffer_.Pixels(), raster_cache_);
    DrawEntities(canvas);
  } else {
    GdiCanvas canvas(buffer_.Dc());
    DrawEntities(canvas);
  }
  if (display_3d_) {
    traced_.ForgetSegments();
  } else {
    traced_.Redraw(buffer_.Dc(), *links_.view);
  }
  InvalidateRect(&buffer_.Rect(), TRUE);
  return 0;
}

void CPlotWnd::DrawEntities(PlanCanvas& canvas) {
  if (!display_3d_) {
    DrawPlanView(canvas, Data());
    return;
  }
  const CRect& buffer = buffer_.Rect();
  DrawSideView(canvas, {*links_.view, links_.legend->Table(), *links_.points3, buffer.Width(),
                        buffer.Height(), height_base_});
}

void CPlotWnd::TurnFrameOn(int height_per_inch, int height_units, int width_per_inch,
                           int width_units) {
  frame_.TurnOn(*links_.view, height_per_inch, height_units, width_per_inch, width_units);
}

bool CPlotWnd::SetFrameScale(int n) {
  if (!frame_.IsOn() || n < 1) return false;
  BeepIfCut(frame_.SetScale(*links_.view, n));
  return true;
}

bool CPlotWnd::SetFrameOrigin(GroundPoint origin) {
  if (!frame_.IsOn()) return false;
  frame_.SetOrigin(*links_.view, origin);
  return true;
}

int CPlotWnd::ViewChanged() {
  frame_.Follow(*links_.view);
  return Redraw();
}

void CPlotWnd::SetDisplay3D(bool on) {
  if (on) move_point_.Hide(*this, *links_.view);
  display_3d_ = on;
}

// What is drawn by exclusive-or makes way for what is drawn at once below it: over a picture that
// changed, taking it off would leave a trace.
void CPlotWnd::FlipOverlays() {
  move_point_.Flip(*this, *links_.view);
  traced_.Flip(Surfaces());
}

template <class Draw>
void CPlotWnd::DrawAtOnce(Draw draw) {
  if (!m_hWnd || display_3d_) return;
  FlipOverlays();
  if (IsWindowVisible()) {
    const RubberBand::Hidden hidden(band_, *this);
    ClientSurface screen(*this);
    GdiCanvas canvas(screen.Dc());
    draw(canvas);
  }
  {
    GdiCanvas canvas(buffer_.Dc());
    draw(canvas);
  }
  FlipOverlays();
}

void CPlotWnd::DrawNewPoint(const Point& point) {
  DrawAtOnce([&](PlanCanvas& canvas) { DrawSinglePoint(canvas, Data(), point); });
}

void CPlotWnd::DrawNewLine(const Line& line) {
  DrawAtOnce([&](PlanCanvas& canvas) { DrawSingleLine(canvas, Data(), line); });
}

int CPlotWnd::BuildGroup(int height, int width) {
  group_.Release();
  if (GroupPicture::IsTooLarge(height, width)) return -1;
  BeepIfCut(group_.Build(Data(), frame_, height, width));
  return 0;
}

void CPlotWnd::SetRatio(int vertical, int horizontal) {
  ratio_ = {true, vertical, horizontal};
  links_.view->SetRatio(static_cast<double>(vertical) / horizontal);
}

PlotData CPlotWnd::Data() const {
  return {*links_.view,  links_.legend->Table(), *links_.points,
          *links_.lines, *links_.figures,        draws_lines_};
}

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
  if (!display_3d_) DrawOverlays(dc);
  band_.Restore(dc);
}

// Over the copied picture, bottom to top.
void CPlotWnd::DrawOverlays(CDC& paint) {
  const CViewState& view = *links_.view;
  if (frame_.IsShown()) DrawPaperFrame(paint, frame_);
  frame_.Follow(view);
  const bool turned = ShowsNorthArrow(view);
  if (turned) DrawNorthArrow(paint, view);
  // An exaggerated view that is turned has no one scale.
  if (scale_bar_shown_ && !(ratio_.given && turned)) {
    DrawScaleBar(paint, view, ratio_.given, label_font_);
  }
  move_point_.Restore(paint, view);
}

}  // namespace tavix
