#include "draw/dib/mark_stamp.h"

#include "draw/dib/mark_proof.h"
#include "draw/dib/system_sample.h"

namespace tavix {
std::optional<Stamp> MakeMarkStamp(const PointSymbol& symbol) {
  if (!IsSmallMark(symbol)) return std::nullopt;
  const int reach = ReachOf(symbol);
  const ScreenPoint middle{reach, reach};
  SystemSample sample(2 * reach + 1, 2 * reach + 1);
  if (!sample.IsMade()) return std::nullopt;
  GdiCanvas plain(sample.Dc());
  plain.UsePointSymbol(symbol);
  sample.Fill(Stamp::kWhitePaper);
  plain.Mark(middle);
  const OwnSample over_white(sample);
  sample.Fill(Stamp::kBlackPaper);
  plain.Mark(middle);
  std::optional<Stamp> stamp = Stamp::FromPictures(over_white.Pixels(), sample.Pixels(), middle);
  if (stamp && !IsSystemsMark(*stamp, symbol)) stamp.reset();
  return stamp;
}

bool IsSystemsMark(const Stamp& stamp, const PointSymbol& symbol) {
  return IsSystemsMarkIn<SystemSample, OwnSample>(
      symbol, [&](const PixelBlock& block, ScreenPoint at) { stamp.Draw(block, at); });
}

}  // namespace tavix
