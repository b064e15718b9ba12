#include "draw/dib/line_proof.h"

#include <random>

#include "draw/dib/system_sample.h"
#include "draw/gdi_canvas.h"

namespace tavix {
namespace {

Pen RedPen(int width, std::uint32_t red) { return {width, static_cast<std::int32_t>(red)}; }

// Draws the same lines by the system and by a rule. A pen's colour has red in its low byte: shades
// of red keep the two notations apart.
class BothWays {
 public:
  BothWays(SystemSample& sample, const LineRule& rule)
      : sample_(sample), rule_(rule), plain_(sample.Dc()), own_(sample) {}

  void Use(int width, std::uint32_t red) {
    red_ = red;
    plain_.UsePen(RedPen(width, red));
  }

  void Draw(const ScreenSegment& segment) {
    plain_.Line(segment);
    StepLine(own_.Pixels(), rule_, segment, red_ << 16);
  }

  [[nodiscard]] bool AreSame() const { return own_.Equals(sample_); }

 private:
  SystemSample& sample_;
  const LineRule& rule_;
  GdiCanvas plain_;
  OwnSample own_;
  std::uint32_t red_ = 0;
};

// Every step of up to kReach pixels both ways, each line in a field of its own.
bool ShortLinesAreSame(const LineRule& rule) {
  constexpr int kReach = 6;
  constexpr int kField = 2 * kReach + 1;
  SystemSample sample(kField * kField, kField * kField);
  if (!sample.IsMade()) return false;
  sample.Fill(0);
  BothWays both(sample, rule);
  both.Use(1, 255);
  for (int dy = -kReach; dy <= kReach; ++dy) {
    for (int dx = -kReach; dx <= kReach; ++dx) {
      const ScreenPoint start{(dx + kReach) * kField + kReach, (dy + kReach) * kField + kReach};
      both.Draw({start, {start.x + dx, start.y + dy}});
    }
  }
  return both.AreSame();
}

bool LongLinesAreSame(const LineRule& rule) {
  constexpr int kWidth = 240;
  constexpr int kHeight = 160;
  constexpr int kOutside = 60;
  constexpr std::uint32_t kLines = 100;
  SystemSample sample(kWidth, kHeight);
  if (!sample.IsMade()) return false;
  sample.Fill(0);
  BothWays both(sample, rule);
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

// Whether the system steps aside at once on the way of (dx, dy), which runs between two pixels
// after its first one.
bool StepsAtOnce(SystemSample& sample, int dx, int dy) {
  constexpr ScreenPoint kStart{4, 4};
  sample.Fill(0);
  GdiCanvas plain(sample.Dc());
  plain.UsePen(RedPen(1, 255));
  plain.Line({kStart, {kStart.x + dx, kStart.y + dy}});
  const auto sign = [](int step) { return step < 0 ? -1 : 1; };
  return *sample.Pixels().At(kStart.x + sign(dx), kStart.y + sign(dy)) != 0;
}

}  // namespace

std::optional<LineRule> LearnLineRule() {
  SystemSample sample(9, 9);
  if (!sample.IsMade()) return std::nullopt;
  LineRule rule;
  for (const int longer : {-2, 2}) {
    for (const int shorter : {-1, 1}) {
      rule.SetStepsAtOnce(LineRule::OctantOf(longer, shorter),
                          StepsAtOnce(sample, longer, shorter));
      rule.SetStepsAtOnce(LineRule::OctantOf(shorter, longer),
                          StepsAtOnce(sample, shorter, longer));
    }
  }
  if (!IsSystemsLineRule(rule)) return std::nullopt;
  return rule;
}

bool IsSystemsLineRule(const LineRule& rule) {
  return ShortLinesAreSame(rule) && LongLinesAreSame(rule);
}

}  // namespace tavix
