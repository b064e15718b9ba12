#include "draw/ink/ink_mark.h"

#include "draw/dib/mark_proof.h"
#include "draw/ink/ink_sample.h"

namespace tavix {

std::optional<InkMark> InkMark::Learn(const PointSymbol& symbol) {
  constexpr std::int32_t kBlack = 0;
  if (!IsSmallMark(symbol) || !InkBlock::ValueOf(symbol.pen.color)) return std::nullopt;
  const int reach = ReachOf(symbol);
  const ScreenPoint middle{reach, reach};
  InkSample sample(2 * reach + 1, 2 * reach + 1);
  if (!sample.IsMade()) return std::nullopt;
  PointSymbol in_ink = symbol;
  in_ink.pen.color = kBlack;
  GdiCanvas plain(sample.Dc());
  plain.UsePointSymbol(in_ink);
  plain.Mark(middle);
  const InkMark mark{InkShape::FromPicture(sample.Pixels(), middle), symbol.pen.color == kBlack};
  const bool is_systems = IsSystemsMarkIn<InkSample, OwnInkSample>(
      symbol, [&](const InkBlock& block, ScreenPoint at) { mark.Draw(block, at); });
  if (!is_systems) return std::nullopt;
  return mark;
}

}  // namespace tavix
