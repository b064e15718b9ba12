#include "draw/dib/mark_stamp.h"

#include "draw/dib/mark_proof.h"
#include "draw/dib/system_sample.h"

namespace tavix {
std::optional<Stamp> MakeMarkStamp(const LegendStyle& style) {
  if (!IsSmallMark(style)) return std::nullopt;
  const int reach = ReachOf(style);
  const ScreenPoint middle{reach, reach};
  SystemSample sample(2 * reach + 1, 2 * reach + 1);
  if (!sample.IsMade()) return std::nullopt;
  GdiCanvas plain(sample.Dc());
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
  return IsSystemsMarkIn<SystemSample, OwnSample>(
      style, [&](const PixelBlock& block, ScreenPoint at) { stamp.Draw(block, at); });
}

}  // namespace tavix
