// The plot window: a child window of the host that shows one instance.
#pragma once

#include <afxwin.h>

#include <vector>

#include "draw/dib/raster_cache.h"
#include "draw/group_picture.h"
#include "draw/plan_view.h"
#include "draw/side_projection.h"
#include "figure/figure_list.h"
#include "store/hanrei.h"
#include "store/lin_db.h"
#include "store/point3_list.h"
#include "store/point_list.h"
#include "view/paper_frame.h"
#include "view/view_state.h"
#include "window/back_buffer.h"
#include "window/band_zoom.h"
#include "window/button_column.h"
#include "window/button_table.h"
#include "window/coordinate_capture.h"
#include "window/move_point.h"
#include "window/rubber_band.h"
#include "window/settings_dialog.h"
#include "window/stylus.h"
#include "window/traced_line.h"

namespace tavix {

// The objects of the instance that the window works on. They outlive the window.
struct PlotLinks {
  CViewState* view = nullptr;
  CPntList* points = nullptr;
  CPnt3List* points3 = nullptr;
  CLinDb* lines = nullptr;
  CFigList* figures = nullptr;
  CHanrei* legend = nullptr;
};

// Holds the parts that make up the plot window and passes messages to them. The size it has when it
// is made is final: the back buffer and the button column never change theirs.
class CPlotWnd : public CWnd {
 public:
  // `notify_id` is the command id under which the window reports to its parent.
  explicit CPlotWnd(UINT notify_id);
  ~CPlotWnd() override;

  // Destroys the buttons first, then the window. A settings dialog that is open ends before that,
  // as if cancelled.
  BOOL DestroyWindow() override;

  // Make the window hidden, as a child of `parent`: in a rectangle of its client area, or in the
  // place of one of its controls, which is hidden. False when the window or a button cannot be
  // made.
  virtual BOOL CreateInRect(CWnd* parent, const CRect& rect);
  virtual BOOL CreateOverControl(CWnd* parent, UINT control_id);

  void Link(const PlotLinks& links) { links_ = links; }

  // Shows or hides the button column, gives the view the drawing area that is left, and resets its
  // vertical ratio to 1. Works on a window that could not be made too.
  void ApplyButtonFlag(bool show_buttons);

  // Fits the view to the data shown. 0, or the code of the point store when there is nothing to
  // fit.
  int FitView();

  // Zoom to the box with these south-west and north-east corners, or to the square around a circle,
  // or move the centre, and redraw. Always 0.
  int ZoomToBox(GroundPoint south_west, GroundPoint north_east);
  int ZoomToCircle(GroundPoint centre, double radius);
  int PanTo(GroundPoint centre);

  // Draws everything into the back buffer and has the window repainted. Always 0.
  int Redraw();

  // To be called after every pan and zoom and for every redraw request. Always 0.
  int ViewChanged();

  // Draws one new point of the plan on the screen, where the window is visible, and into the back
  // buffer; nothing while the side view is on.
  void DrawNewPoint(const Point& point);

  // The same for a line, while lines are drawn at all.
  void DrawNewLine(const Line& line);

  // Stores the ratio and hands it to the view.
  void SetRatio(int vertical, int horizontal);
  [[nodiscard]] const RatioSetting& Ratio() const { return ratio_; }

  // To be called before the view changes with it: a moved point is taken off the plan.
  void SetDisplay3D(bool on);

  [[nodiscard]] CoordinateCapture& Capture() { return capture_; }

  // The paper frame. Its scale and origin move the view; they are refused while the frame is off,
  // the scale also for an n below 1.
  [[nodiscard]] PaperFrame& Frame() { return frame_; }
  void TurnFrameOn(int height_per_inch, int height_units, int width_per_inch, int width_units);
  bool SetFrameScale(int n);
  bool SetFrameOrigin(GroundPoint origin);
  void ShowScaleBar(bool shown) { scale_bar_shown_ = shown; }

  // The move-point band. Start takes the symbol of a point legend.
  void StartMovePoint(const PointSymbol& symbol) { move_point_.Start(*this, *links_.view, symbol); }
  void SetMoveAnchor(GroundPoint anchor) { move_point_.SetAnchor(anchor); }
  void MovePointTo(GroundPoint at) { move_point_.MoveTo(*this, *links_.view, at, !display_3d_); }
  void EndMovePoint() { move_point_.End(*this, *links_.view); }

  // The traced polyline.
  void AddTraced(GroundPoint at) { traced_.Add(Surfaces(), *links_.view, at, !display_3d_); }
  bool RemoveTraced() { return traced_.RemoveLast(Surfaces()); }
  void EndTraced() { traced_.End(Surfaces()); }
  [[nodiscard]] std::span<const GroundPoint> Traced() const { return traced_.Vertices(); }

  // The one-bit picture. Build frees the one held before, and refuses with -1 what is too large.
  int BuildGroup(int height, int width);
  [[nodiscard]] bool IsGroupInk(int row, int column) const {
    return group_.IsInk(frame_, row, column);
  }
  void ReleaseGroup() { group_.Release(); }

  // The client pixel of the last stylus release.
  [[nodiscard]] ScreenPoint LastTap() const { return stylus_.LastUp(); }

 protected:
  // The commands of the buttons; any other goes to the default handling.
  BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

  // Takes the arrow keys.
  BOOL PreTranslateMessage(MSG* message) override;

  afx_msg void OnLButtonUp(UINT flags, CPoint point);
  afx_msg BOOL OnEraseBkgnd(CDC* dc);
  afx_msg void OnPaint();
  afx_msg void OnLButtonDown(UINT flags, CPoint point);
  afx_msg void OnMouseMove(UINT flags, CPoint point);
  afx_msg void OnCaptureChanged(CWnd* taker);
  DECLARE_MESSAGE_MAP()

 private:
  int ZoomTo(GroundSize size, GroundPoint centre);

  // ---- Stylus (plot_stylus.cpp)

  // The ground under a client pixel.
  [[nodiscard]] GroundPoint GroundUnder(ScreenPoint at) const;
  [[nodiscard]] SideProjection Projection() const { return SideProjection(buffer_.Rect().bottom); }
  [[nodiscard]] std::array<ScreenPoint, 3> BandCorners(ScreenPoint first,
                                                       ScreenPoint opposite) const;
  void FinishBand(const StylusGesture& gesture);
  void FinishPan(const StylusGesture& gesture);
  void Pick(ScreenPoint at);
  void CaptureCoordinate(GroundPoint tapped, const std::int32_t* key);
  void PostCommand(UINT command, LPARAM value);

  // ---- Buttons (plot_commands.cpp) and keys (plot_keys.cpp)

#define TAVIX_BUTTON_HANDLER(id, name, pressed_in) void On##name();
  TAVIX_BUTTONS(TAVIX_BUTTON_HANDLER)
#undef TAVIX_BUTTON_HANDLER
  void EndBandZoom();
  void EndPan();
  void ZoomedByButton();
  void RotateBy(int degrees);
  [[nodiscard]] int RotationStep() const;
  void PanByKey(WPARAM key);
  void TurnByKey(WPARAM key);
  void AbandonSettings();

  // The refit flags of the stores that are shown: set, or read and cleared.
  void MarkStale();
  bool TakeStale();
  bool TakePlanStale();

  BOOL CreateChild(CWnd* parent, const CRect& rect, const CString& class_name);
  [[nodiscard]] PlotData Data() const;
  [[nodiscard]] TracedLine::Surfaces Surfaces() { return {*this, buffer_.Dc()}; }
  int FitSideView();
  void DrawEntities(PlanCanvas& canvas);
  void DrawOverlays(CDC& paint);
  void FlipOverlays();

  // Has `draw` draw something of the plan at once, on the screen and into the back buffer.
  template <class Draw>
  void DrawAtOnce(Draw draw);

  UINT notify_id_;
  PlotLinks links_;
  BackBuffer buffer_;
  RasterCache raster_cache_;
  ButtonColumn buttons_;
  std::vector<SettingsDialog*> open_settings_;  // the innermost last; they stand on the stack
  Stylus stylus_;
  RubberBand band_;
  BandZoom band_zoom_;
  bool pan_mode_ = false;
  CoordinateCapture capture_;
  RatioSetting ratio_;
  bool display_3d_ = false;
  bool draws_lines_ = true;
  double height_base_ = 0.0;  // metres, of the side view
  PaperFrame frame_;
  bool scale_bar_shown_ = false;
  MovePoint move_point_;
  TracedLine traced_;
  GroupPicture group_;
  CFont label_font_;
};

}  // namespace tavix
