#include "draw/dib/gdi_probe.h"

#include <algorithm>
#include <cstdlib>
#include <random>

#include "draw/dib/reference_bitmap.h"
#include "draw/dib/verification.h"
#include "draw/gdi_canvas.h"

namespace tavix {
namespace {

Pen RedPen(int width, std::uint32_t red) { return {width, static_cast<std::int32_t>(red)}; }

// Draws the same lines by GDI and by a rule. A pen's colour has red in its low byte: shades
// of red keep the two notations apart.
class BothWays {
 public:
  BothWays(ReferenceBitmap& reference, const TieRule& rule)
      : reference_(reference), rule_(rule), gdi_(reference.Dc()), trial_(reference) {}

  void Use(int width, std::uint32_t red) {
    red_ = red;
    gdi_.UsePen(RedPen(width, red));
  }

  void Draw(const ScreenSegment& segment) {
    gdi_.Line(segment);
    StepLine(trial_.Pixels(), rule_, segment, red_ << 16);
  }

  [[nodiscard]] bool AreSame() const { return trial_.Equals(reference_); }

 private:
  ReferenceBitmap& reference_;
  const TieRule& rule_;
  GdiCanvas gdi_;
  TrialBitmap trial_;
  std::uint32_t red_ = 0;
};

// Every step of up to kReach pixels both ways, each line in a field of its own.
bool ShortLinesAreSame(const TieRule& rule) {
  constexpr int kReach = 6;
  constexpr int kField = 2 * kReach + 1;
  ReferenceBitmap reference(kField * kField, kField * kField);
  if (!reference.IsMade()) return false;
  reference.Fill(0);
  BothWays both(reference, rule);
  both.Use(1, 255);
  for (int dy = -kReach; dy <= kReach; ++dy) {
    for (int dx = -kReach; dx <= kReach; ++dx) {
      const ScreenPoint start{(dx + kReach) * kField + kReach, (dy + kReach) * kField + kReach};
      both.Draw({start, {start.x + dx, start.y + dy}});
    }
  }
  return both.AreSame();
}

bool LongLinesAreSame(const TieRule& rule) {
  constexpr int kWidth = 240;
  constexpr int kHeight = 160;
  constexpr int kOutside = 60;
  constexpr std::uint32_t kLines = 100;
  ReferenceBitmap reference(kWidth, kHeight);
  if (!reference.IsMade()) return false;
  reference.Fill(0);
  BothWays both(reference, rule);
  std::minstd_rand random;
  const auto between = [&](int low, int high) {
    return low + static_cast<int>(random() % static_cast<unsigned>(high - low));
  };
  for (std::uint32_t line = 0; line < kLines; ++line) {
    const int outside = line % 2 == 0 ? 1 : kOutside;
    const auto place = [&] {
      return ScreenPoint{between(-outside, kWidth + outside), between(-outside, kHeight + outside)};
    };
    both.Use(line % 4 < 2 ? 0 : 1, line + 1);
    const ScreenPoint start = place();
    both.Draw({start, place()});
  }
  return both.AreSame();
}

// Whether GDI steps aside at once on a step of (dx, dy), whose course runs between two pixels after
// the first one.
bool StepsAtOnce(ReferenceBitmap& reference, int dx, int dy) {
  constexpr ScreenPoint kStart{4, 4};
  reference.Fill(0);
  GdiCanvas gdi(reference.Dc());
  gdi.UsePen(RedPen(1, 255));
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

bool IsGdiTieRule(const TieRule& rule) { return ShortLinesAreSame(rule) && LongLinesAreSame(rule); }

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
