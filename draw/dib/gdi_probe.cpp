#include "draw/dib/gdi_probe.h"

#include <algorithm>
#include <cstdlib>

#include "draw/dib/line_verification.h"
#include "draw/dib/reference_bitmap.h"
#include "draw/dib/verification.h"
#include "draw/gdi_canvas.h"

namespace tavix {
namespace {

// A colour has red in its low byte, and a pixel blue: shades of red keep the two apart.
std::int32_t ShadeOfRed(int number) { return number & 0xFF; }

// Whether GDI steps aside at once on a step of (dx, dy), whose course runs between two pixels after
// the first one.
bool StepsAtOnce(ReferenceBitmap& reference, int dx, int dy) {
  constexpr ScreenPoint kStart{4, 4};
  reference.Fill(0);
  GdiCanvas gdi(reference.Dc());
  gdi.UsePen({1, ShadeOfRed(255)});
  gdi.Line({kStart, {kStart.x + dx, kStart.y + dy}});
  const auto sign = [](int step) { return step < 0 ? -1 : 1; };
  return *reference.Pixels().At(kStart.x + sign(dx), kStart.y + sign(dy)) != 0;
}

bool IsGdiShape(const MarkMask& mask, const GdiShape& shape) {
  return DrawsGdiShape<ReferenceBitmap, TrialBitmap>(
      shape, [&](const PixelBlock& block, ScreenPoint at) { mask.Draw(block, at); });
}

// None where the shape is not the same everywhere.
std::optional<MarkMask> ProbeShape(const GdiShape& shape) {
  const ScreenPoint middle{shape.reach, shape.reach};
  ReferenceBitmap reference(2 * shape.reach + 1, 2 * shape.reach + 1);
  if (!reference.IsMade()) return std::nullopt;
  GdiCanvas gdi(reference.Dc());
  shape.use(gdi);
  reference.Fill(MarkMask::kWhitePaper);
  shape.draw(gdi, middle);
  const TrialBitmap over_white(reference);
  reference.Fill(MarkMask::kBlackPaper);
  shape.draw(gdi, middle);
  std::optional<MarkMask> mask =
      MarkMask::FromPictures(over_white.Pixels(), reference.Pixels(), middle);
  if (mask && !IsGdiShape(*mask, shape)) mask.reset();
  return mask;
}

}  // namespace

std::optional<TieRule> ProbeTieRule() {
  ReferenceBitmap reference(9, 9);
  if (!reference.IsMade()) return std::nullopt;
  TieRule rule;
  for (const int longer : {-2, 2}) {
    for (const int shorter : {-1, 1}) {
      rule.SetStepsAtOnce(TieRule::OctantOf(longer, shorter),
                          StepsAtOnce(reference, longer, shorter));
      rule.SetStepsAtOnce(TieRule::OctantOf(shorter, longer),
                          StepsAtOnce(reference, shorter, longer));
    }
  }
  if (!IsGdiTieRule(rule)) return std::nullopt;
  return rule;
}

bool IsGdiTieRule(const TieRule& rule) {
  return ShortLinesAreSame<ReferenceBitmap, TrialBitmap>(rule, &ShadeOfRed) &&
         LongLinesAreSame<ReferenceBitmap, TrialBitmap>(rule, &ShadeOfRed);
}

std::optional<MarkMask> ProbeMark(const PointSymbol& symbol) {
  if (!IsSmallMark(symbol)) return std::nullopt;
  return ProbeShape(MarkOf(symbol));
}

std::optional<MarkMask> ProbeLine(const Pen& pen, int dx, int dy) {
  const int reach = std::max(std::abs(dx), std::abs(dy)) + std::abs(pen.width) + 2;
  return ProbeShape({reach, [=](GdiCanvas& gdi) { gdi.UsePen(pen); },
                     [=](GdiCanvas& gdi, ScreenPoint at) {
                       gdi.Line({at, {at.x + dx, at.y + dy}});
                     }});
}

std::optional<MarkMask> ProbeCircle(const Pen& pen, int radius) {
  return ProbeShape({radius + std::abs(pen.width) + 2, [=](GdiCanvas& gdi) { gdi.UsePen(pen); },
                     [=](GdiCanvas& gdi, ScreenPoint at) { gdi.Circle(at, radius); }});
}

bool IsGdiMark(const MarkMask& mask, const PointSymbol& symbol) {
  return IsGdiShape(mask, MarkOf(symbol));
}

}  // namespace tavix
