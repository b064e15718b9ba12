// How the ground maps to the client area of a plot window. fit.cpp holds the operations that show a
// ground box.
#pragma once

#include "view/clip.h"
#include "view/coordinates.h"
#include "view/ground_area.h"
#include "view/ground_transform.h"

namespace tavix {

// The view of one plot. Ground: metres, north and east. Screen: pixels, origin top left of the
// client area, y down. At angle 0 north is up; a positive angle rotates the picture clockwise.
//
// Every conversion between the two goes through this class. Two views are remembered: the extents
// (the last fit) and the view before the last change.
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

  // Rotates the view to a whole angle, 0..359 degrees. Returns 0, or -1 for any other angle.
  int SetAngle(int degrees);

  // Rotates the view by a step in degrees. One full turn at most is taken off or added; a sum that
  // is still out of range is refused with -1.
  int RotateBy(int degrees);

  // ---- Scale; each returns true when the scale was cut to the cap

  [[nodiscard]] bool ZoomIn(double factor);
  void ZoomOut(double factor);  // Compatibility: no lower limit

  // The scale that shows `length` metres in `pixels`, times `factor`; it becomes the scale of
  // the extents.
  [[nodiscard]] bool SetFitScale(int pixels, double length, double factor);

  // Zoom window: shows a ground box in the whole drawing area. The extents stay.
  [[nodiscard]] bool ZoomToArea(GroundSize size, GroundPoint centre);

  // Zoom extents: shows a ground box in the drawing area less a margin of 20 pixels. This view is
  // the extents from now on.
  [[nodiscard]] bool FitToArea(GroundSize size, GroundPoint centre);

  // As FitToArea, in a rectangle of the given size in pixels in place of the drawing area.
  [[nodiscard]] bool FitToRect(int width, int height, GroundSize size, GroundPoint centre);

  // Goes to the extents, or where they are shown already, back to the view before.
  void ToggleExtents();

  // ---- Transforms

  // Ground to pixel as the view is now.
  [[nodiscard]] GroundTransform Transform() const {
    return {centre_, scale_, v_scale_, {Middle(), cos_a_, sin_a_}};
  }

  // Ground to pixel, truncated toward zero.
  [[nodiscard]] ScreenPoint GroundToScreen(GroundPoint ground) const {
    return Transform().ToScreen(ground);
  }

  // The same before the truncation.
  [[nodiscard]] RealScreenPoint GroundToRealScreen(GroundPoint ground) const {
    return Transform().ToRealScreen(ground);
  }

  // Pixel to ground: the inverse of GroundToRealScreen.
  [[nodiscard]] GroundPoint ScreenToGround(ScreenPoint screen) const;

  // A length in metres at the horizontal scale, in whole pixels, and back.
  [[nodiscard]] int LengthToPixels(double length) const;
  [[nodiscard]] double PixelsToLength(int pixels) const;

  // The same along the vertical axis, where the ratio counts, or the horizontal one.
  [[nodiscard]] int LengthToPixelsAxis(bool vertical, double length) const;
  [[nodiscard]] double PixelsToLengthAxis(bool vertical, int pixels) const;

  // The extents of a box rotated by the view's angle. Both sizes are lengths in the same unit.
  [[nodiscard]] GroundSize RotatedExtent(GroundSize size) const;

  // ---- What is in view

  // The point's pixel lies in the client area, borders included.
  [[nodiscard]] bool IsPointInView(GroundPoint point) const;

  // Four points of the circle, a quarter turn apart, are all in view. A radius below 0.00001 m asks
  // for the centre alone. Compatibility: the four are rotated by the view's angle before the view
  // rotates them again.
  [[nodiscard]] bool IsCircleInView(GroundPoint centre, double radius) const;

  // True when a circle of `radius` metres can touch the client area; then `screen` is its centre.
  [[nodiscard]] bool CircleOnScreen(GroundPoint centre, double radius, ScreenPoint& screen) const;

  // The ground outside of which CircleOnScreen is false for every circle of up to `pixels` pixels.
  [[nodiscard]] GroundArea GroundAround(int pixels) const;

  // The segments for which ClipGroundSegment is false for certain.
  [[nodiscard]] SegmentSieve OutOfView() const;

  // Clips a ground segment to the client area. False when it lies outside; `clipped` then stays as
  // it was.
  [[nodiscard]] bool ClipGroundSegment(GroundPoint start, GroundPoint end,
                                       ScreenSegment& clipped) const {
    const GroundTransform transform = Transform();
    ScreenSegment segment{transform.ToScreen(start), transform.ToScreen(end)};
    if (!ClipScreenSegment(segment)) return false;
    clipped = segment;
    return true;
  }

  // The same of a segment of pixels, in place. False when it lies outside; it is then undefined.
  [[nodiscard]] bool ClipScreenSegment(ScreenSegment& segment) const {
    const bool inside =
        PointInQuad(screen_quad_, segment.start) && PointInQuad(screen_quad_, segment.end);
    return inside || ClipAcrossBorder(segment);
  }

  // As ClipGroundSegment, and the ground ends become the ground positions of the clipped pixels.
  [[nodiscard]] bool ClipGroundSegmentInPlace(GroundPoint& start, GroundPoint& end,
                                              ScreenSegment& clipped) const;

  // ---- What the view is now

  [[nodiscard]] double Scale() const { return scale_; }
  [[nodiscard]] double VScale() const { return v_scale_; }
  [[nodiscard]] double ExtentsScale() const { return extents_scale_; }
  [[nodiscard]] double Ratio() const { return ratio_; }
  [[nodiscard]] int Angle() const { return angle_; }
  [[nodiscard]] double CosA() const { return cos_a_; }
  [[nodiscard]] double SinA() const { return sin_a_; }
  [[nodiscard]] GroundPoint Centre() const { return centre_; }
  [[nodiscard]] bool NoViewYet() const { return no_view_yet_; }

 private:
  // The pixel that the view rotates about.
  [[nodiscard]] RealScreenPoint Middle() const {
    return {static_cast<double>(half_width_), static_cast<double>(half_height_)};
  }
  // ClipScreenSegment where an end lies outside.
  [[nodiscard]] bool ClipAcrossBorder(ScreenSegment& segment) const;
  [[nodiscard]] bool SetScaleCapped(double scale);
  [[nodiscard]] double ScaleToShow(GroundSize size, double width, double height,
                                   double margin) const;
  [[nodiscard]] bool FitToSize(double width, double height, GroundSize size, GroundPoint centre);

  double scale_ = 1.0;    // pixels per metre along screen x
  double v_scale_ = 1.0;  // along screen y: always scale_ * ratio_
  double extents_scale_ = 1.0;
  double prev_scale_ = 1.0;
  double ratio_ = 1.0;

  int angle_ = 0;  // degrees, with the cosines and sines of both directions
  double cos_a_ = 1.0;
  double sin_a_ = 0.0;
  double cos_inv_ = 1.0;
  double sin_inv_ = 0.0;

  GroundPoint centre_;
  GroundPoint extents_centre_;
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
