// How the ground maps to the client area of a plot window.
#pragma once

#include "view/clip.h"
#include "view/coordinates.h"

namespace tavix {

// The view of one plot. Ground: metres, x north, y east. Screen: pixels, origin top left of the
// client area, y down. The unturned view has north up; a positive angle turns the picture
// clockwise.
//
// Everything that converts between the two goes through this class. Two views are remembered: the
// home view (the last fit) and the view before the last change.
class CViewState {
 public:
  // The largest scale, in pixels per metre. An operation that would exceed it cuts the scale to
  // exactly this value, carries on, and returns true so that the caller can sound the beep.
  static constexpr double kScaleCap = 100000.0;

  // ---- Size, centre, ratio, angle

  // The size of the drawing area in pixels.
  void SetScreenSize(int width, int height);
  void GetScreenSize(int* width, int* height) const;

  // Vertical exaggeration. Not checked: the host may give a value that is not finite.
  void SetRatio(double ratio);

  // Moves the view; the old centre becomes the previous one.
  void SetCentre(GroundPoint centre);

  // Turns the view to a whole angle, 0..359 degrees. Returns 0, or -1 for any other angle.
  int SetAngle(int degrees);

  // Turns the view by a step. Only one full turn is taken off or added, so a sum that is still out
  // of range then is refused with -1.
  int RotateBy(int degrees);

  // ---- Scale; each returns true when the scale was cut to the cap

  [[nodiscard]] bool ZoomIn(double factor);
  void ZoomOut(double factor);  // Compatibility: no lower limit

  // The scale that shows `length` metres in `pixels`, times `factor`; it becomes the home scale.
  [[nodiscard]] bool SetFitScale(int pixels, double length, double factor);

  // Shows a ground box in the whole drawing area. The home view stays.
  [[nodiscard]] bool ZoomToArea(GroundSize size, GroundPoint centre);

  // Shows a ground box in the drawing area less a margin of 20 pixels; this becomes the home view.
  [[nodiscard]] bool FitToArea(GroundSize size, GroundPoint centre);

  // As FitToArea, in a rectangle of the given size in pixels in place of the drawing area.
  [[nodiscard]] bool FitToRect(int width, int height, GroundSize size, GroundPoint centre);

  // Goes to the home view, or back to the view before it when the home view is on.
  void ToggleHome();

  // ---- Transforms

  // Ground to pixel, truncated toward zero.
  [[nodiscard]] ScreenPoint GroundToScreen(GroundPoint ground) const;

  // The same before the truncation.
  [[nodiscard]] RealScreenPoint GroundToRealScreen(GroundPoint ground) const;

  // Pixel to ground: the exact inverse but for the truncation.
  [[nodiscard]] GroundPoint ScreenToGround(ScreenPoint screen) const;

  // A length in metres at the horizontal scale, in whole pixels, and back.
  [[nodiscard]] int LengthToPixels(double length) const;
  [[nodiscard]] double PixelsToLength(int pixels) const;

  // The same along the vertical axis, where the ratio counts, or the horizontal one.
  [[nodiscard]] int LengthToPixelsAxis(bool vertical, double length) const;
  [[nodiscard]] double PixelsToLengthAxis(bool vertical, int pixels) const;

  // The size of the box that holds a box turned by the view's angle. Both sizes are lengths in the
  // same unit.
  [[nodiscard]] GroundSize RotatedExtent(GroundSize size) const;

  // ---- What is in view

  // True when a circle of `radius` metres can touch the client area; then `screen` is its centre.
  [[nodiscard]] bool CircleOnScreen(GroundPoint centre, double radius, ScreenPoint& screen) const;

  // Clips a ground segment to the client area. False when nothing of it is inside.
  [[nodiscard]] bool ClipGroundSegment(GroundPoint start, GroundPoint end,
                                       ScreenSegment& clipped) const;

  // The same, and the ground ends become the ground positions of the clipped pixels.
  [[nodiscard]] bool ClipGroundSegmentInPlace(GroundPoint& start, GroundPoint& end,
                                              ScreenSegment& clipped) const;

  // ---- What the view is now

  [[nodiscard]] double Scale() const { return scale_; }
  [[nodiscard]] double VScale() const { return v_scale_; }
  [[nodiscard]] double HomeScale() const { return home_scale_; }
  [[nodiscard]] double Ratio() const { return ratio_; }
  [[nodiscard]] int Angle() const { return angle_; }
  [[nodiscard]] double CosA() const { return cos_a_; }
  [[nodiscard]] double SinA() const { return sin_a_; }
  [[nodiscard]] GroundPoint Centre() const { return centre_; }
  [[nodiscard]] bool NoViewYet() const { return no_view_yet_; }

 private:
  [[nodiscard]] bool SetScaleCapped(double scale);
  [[nodiscard]] double ScaleToShow(GroundSize size, double width, double height,
                                   double margin) const;
  [[nodiscard]] bool FitToSize(double width, double height, GroundSize size, GroundPoint centre);

  double scale_ = 1.0;    // pixels per metre along screen x
  double v_scale_ = 1.0;  // along screen y: always scale_ * ratio_
  double home_scale_ = 1.0;
  double prev_scale_ = 1.0;
  double ratio_ = 1.0;

  int angle_ = 0;  // degrees, and its cosines and sines there and back
  double cos_a_ = 1.0;
  double sin_a_ = 0.0;
  double cos_inv_ = 1.0;
  double sin_inv_ = 0.0;

  GroundPoint centre_;
  GroundPoint home_centre_;
  GroundPoint prev_centre_;

  // Compatibility: the half sizes start at 10 and not at 5. Until the first SetScreenSize the
  // ground point (0, 0) lies at pixel (10, 10).
  double width_ = 10.0;
  double height_ = 10.0;
  int half_width_ = 10;
  int half_height_ = 10;
  ScreenQuad screen_quad_{};

  bool no_view_yet_ = true;  // until the first fit
};

}  // namespace tavix
