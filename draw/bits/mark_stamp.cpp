#include "draw/bits/mark_stamp.h"

#include <algorithm>

#include "draw/bits/system_sample.h"
#include "draw/plain_canvas.h"

namespace tavix {
namespace {

constexpr int kLargest = 64;  // pixels of size and pen; above, a mark is drawn seldom

// How far a mark may reach from its point to any side, in pixels.
int ReachOf(const LegendStyle& style) { return style.prm1 + std::max(style.width, 1) + 2; }

bool IsSmall(const LegendStyle& style) {
  return style.prm1 <= kLargest && style.width >= 0 && style.width <= kLargest &&
         ReachOf(style) <= kLargest;
}

}  // namespace

std::optional<Stamp> MakeMarkStamp(const LegendStyle& style) {
  if (!IsSmall(style)) return std::nullopt;
  const int reach = ReachOf(style);
  const ScreenPoint middle{reach, reach};
  SystemSample sample(2 * reach + 1, 2 * reach + 1);
  if (!sample.IsMade()) return std::nullopt;
  PlainCanvas plain(sample.Dc());
  plain.UsePointStyle(style);
  sample.Fill(Stamp::kWhitePaper);
  plain.Mark(middle);
  const OwnSample over_white(sample);
  sample.Fill(Stamp::kBlackPaper);
  plain.Mark(middle);
  std::optional<Stamp> stamp = Stamp::FromPictures(over_white.Pixels(), sample.Pixels(), middle);
  if (stamp && !IsSystemsMark(*stamp, style)) stamp.reset();
  return stamp;
}

bool IsSystemsMark(const Stamp& stamp, const LegendStyle& style) {
  const int reach = ReachOf(style);
  const int width = 2 * reach + 4;
  const int height = 2 * reach + 3;
  SystemSample sample(width, height);
  if (!sample.IsMade()) return false;
  PlainCanvas plain(sample.Dc());
  plain.UsePointStyle(style);
  const ScreenPoint places[] = {
      {reach + 2, reach + 1}, {0, 0}, {width, height}, {0, reach}, {reach, height - 2}};
  return std::all_of(std::begin(places), std::end(places), [&](ScreenPoint at) {
    sample.FillUnevenly();
    const OwnSample own(sample);
    stamp.Draw(own.Pixels(), at);
    plain.Mark(at);
    return own.Equals(sample);
  });
}

}  // namespace tavix
