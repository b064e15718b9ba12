#include "draw/ink/ink_mark.h"

#include "draw/dib/mark_proof.h"
#include "draw/ink/ink_sample.h"

namespace tavix {

std::optional<InkMark> InkMark::Learn(const LegendStyle& style) {
  constexpr std::int32_t kBlack = 0;
  if (!IsSmallMark(style) || !InkBlock::ValueOf(style.color)) return std::nullopt;
  const int reach = ReachOf(style);
  const ScreenPoint middle{reach, reach};
  InkSample sample(2 * reach + 1, 2 * reach + 1);
  if (!sample.IsMade()) return std::nullopt;
  LegendStyle in_ink = style;
  in_ink.color = kBlack;
  GdiCanvas plain(sample.Dc());
  plain.UsePointStyle(in_ink);
  plain.Mark(middle);
  const InkMark mark{InkShape::FromPicture(sample.Pixels(), middle), style.color == kBlack};
  const bool is_systems = IsSystemsMarkIn<InkSample, OwnInkSample>(
      style, [&](const InkBlock& block, ScreenPoint at) { mark.Draw(block, at); });
  if (!is_systems) return std::nullopt;
  return mark;
}

}  // namespace tavix
