// The plot window: a child window of the host that shows one instance.
#pragma once

#include <afxwin.h>

#include <memory>

#include "view/coordinates.h"

namespace tavix {

class CaptureMode;
class MovedPoint;
class Navigation;
class OneBitPlot;
class PaperFrameOverlay;
class PlotDisplay;
class ScaleBarOverlay;
class TracedLine;
struct PlotLinks;

// Makes the window, and passes its messages on to the parts that it consists of. The size it has
// when it is made is final: the back buffer and the button column never change theirs.
class CPlotWnd : public CWnd {
 public:
  // `notify_id` is the command id under which the window reports to its parent. What `links` refers
  // to outlives the window.
  CPlotWnd(UINT notify_id, const PlotLinks& links);
  ~CPlotWnd() override;

  // Destroys the buttons first, then the window. A settings dialog that is open ends before that,
  // as if cancelled.
  BOOL DestroyWindow() override;

  // Make the window hidden, as a child of `parent`: in a rectangle of its client area, or in the
  // place of one of its controls, which is hidden. False when the window or a button cannot be
  // made.
  virtual BOOL CreateInRect(CWnd* parent, const CRect& rect);
  virtual BOOL CreateOverControl(CWnd* parent, UINT control_id);

  // Shows or hides the button column, gives the view the drawing area that is left, and resets its
  // vertical ratio to 1. Works on a window that could not be made too.
  void ApplyButtonFlag(bool show_buttons);

  // ---- The parts that hosts work on; each is described in its own header

  [[nodiscard]] PlotDisplay& Display();
  [[nodiscard]] Navigation& Navigate();
  [[nodiscard]] CaptureMode& Capture();
  [[nodiscard]] PaperFrameOverlay& Frame();
  [[nodiscard]] ScaleBarOverlay& ScaleBar();
  [[nodiscard]] MovedPoint& Moved();
  [[nodiscard]] TracedLine& Trace();
  [[nodiscard]] OneBitPlot& OneBit() { return one_bit_; }  // in line: read pixel by pixel

  // The client pixel of the last stylus release.
  [[nodiscard]] ScreenPoint LastTap() const;

 protected:
  // The commands of the buttons; any other goes to the default handling.
  BOOL OnCommand(WPARAM wParam, LPARAM lParam) override;

  // Takes the arrow keys while the button column shows.
  BOOL PreTranslateMessage(MSG* message) override;

  afx_msg void OnLButtonUp(UINT flags, CPoint point);
  afx_msg BOOL OnEraseBkgnd(CDC* dc);
  afx_msg void OnPaint();
  afx_msg void OnLButtonDown(UINT flags, CPoint point);
  afx_msg void OnMouseMove(UINT flags, CPoint point);
  afx_msg void OnCaptureChanged(CWnd* taker);
  afx_msg void OnDestroy();
  DECLARE_MESSAGE_MAP()

 private:
  struct Parts;

  BOOL CreateChild(CWnd* parent, const CRect& rect, const CString& class_name);

  std::unique_ptr<Parts> parts_;
  OneBitPlot& one_bit_;  // of the parts
};

}  // namespace tavix
