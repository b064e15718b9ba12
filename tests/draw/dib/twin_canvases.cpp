#include "tests/draw/dib/twin_canvases.h"

namespace tavix::test {
namespace {

SystemSample& Uneven(SystemSample& sample) {
  sample.FillUnevenly();
  return sample;
}

}  // namespace

TwinCanvases::TwinCanvases(int width, int height, LearntDrawing& learnt)
    : plain_sample_(width, height),
      bits_sample_(width, height),
      before_(Uneven(plain_sample_)),
      plain_(plain_sample_.Dc()),
      bits_(Uneven(bits_sample_).Dc(), bits_sample_.Pixels(), learnt) {}

void TwinCanvases::UsePen(const Pen& pen) {
  plain_.UsePen(pen);
  bits_.UsePen(pen);
}

void TwinCanvases::Line(const ScreenSegment& segment) {
  plain_.Line(segment);
  bits_.Line(segment);
}

void TwinCanvases::Circle(ScreenPoint centre, int radius) {
  plain_.Circle(centre, radius);
  bits_.Circle(centre, radius);
}

void TwinCanvases::UsePointSymbol(const PointSymbol& symbol) {
  plain_.UsePointSymbol(symbol);
  bits_.UsePointSymbol(symbol);
}

void TwinCanvases::Mark(ScreenPoint at) {
  plain_.Mark(at);
  bits_.Mark(at);
}

void TwinCanvases::UseTextColor(std::uint32_t color) {
  plain_.UseTextColor(color);
  bits_.UseTextColor(color);
}

void TwinCanvases::Label(ScreenPoint at, NameView text) {
  plain_.Label(at, text);
  bits_.Label(at, text);
}

testing::AssertionResult TwinCanvases::AreSame() const {
  const PixelBlock& plain = plain_sample_.Pixels();
  const PixelBlock& bits = bits_sample_.Pixels();
  int different = 0;
  testing::AssertionResult result = testing::AssertionFailure();
  for (int y = 0; y < plain.height; ++y) {
    for (int x = 0; x < plain.width; ++x) {
      if (*plain.At(x, y) == *bits.At(x, y)) continue;
      if (different++ == 0) {
        result << std::hex << "the system has " << *plain.At(x, y) << ", not " << *bits.At(x, y)
               << std::dec << ", at (" << x << ", " << y << "); ";
      }
    }
  }
  if (different == 0) return testing::AssertionSuccess();
  return result << different << " pixels in all";
}

}  // namespace tavix::test
