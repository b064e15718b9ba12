#include "tests/draw/dib/canvas_pair.h"

namespace tavix::test {
namespace {

ReferenceBitmap& Uneven(ReferenceBitmap& reference) {
  reference.FillUnevenly();
  return reference;
}

}  // namespace

CanvasPair::CanvasPair(int width, int height, RasterCache& cache)
    : gdi_reference_(width, height),
      dib_reference_(width, height),
      before_(Uneven(gdi_reference_)),
      gdi_(gdi_reference_.Dc()),
      dib_(Uneven(dib_reference_).Dc(), dib_reference_.Pixels(), cache) {}

void CanvasPair::UsePen(const Pen& pen) {
  gdi_.UsePen(pen);
  dib_.UsePen(pen);
}

void CanvasPair::Line(const ScreenSegment& segment) {
  gdi_.Line(segment);
  dib_.Line(segment);
}

void CanvasPair::Circle(ScreenPoint centre, int radius) {
  gdi_.Circle(centre, radius);
  dib_.Circle(centre, radius);
}

void CanvasPair::UsePointSymbol(const PointSymbol& symbol) {
  gdi_.UsePointSymbol(symbol);
  dib_.UsePointSymbol(symbol);
}

void CanvasPair::Mark(ScreenPoint at) {
  gdi_.Mark(at);
  dib_.Mark(at);
}

void CanvasPair::UseTextColor(std::uint32_t color) {
  gdi_.UseTextColor(color);
  dib_.UseTextColor(color);
}

void CanvasPair::Label(ScreenPoint at, NameView text) {
  gdi_.Label(at, text);
  dib_.Label(at, text);
}

testing::AssertionResult CanvasPair::AreSame() const {
  const PixelBlock& gdi = gdi_reference_.Pixels();
  const PixelBlock& dib = dib_reference_.Pixels();
  int different = 0;
  testing::AssertionResult result = testing::AssertionFailure();
  for (int y = 0; y < gdi.height; ++y) {
    for (int x = 0; x < gdi.width; ++x) {
      if (*gdi.At(x, y) == *dib.At(x, y)) continue;
      if (different++ == 0) {
        result << std::hex << "GDI has " << *gdi.At(x, y) << ", not " << *dib.At(x, y) << std::dec
               << ", at (" << x << ", " << y << "); ";
      }
    }
  }
  if (different == 0) return testing::AssertionSuccess();
  return result << different << " pixels in all";
}

}  // namespace tavix::test
