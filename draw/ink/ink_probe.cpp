#include "draw/ink/ink_probe.h"

#include "draw/dib/gdi_probe.h"
#include "draw/dib/line_verification.h"

namespace tavix {

std::optional<TieRule> ProbeInkTieRule() {
  const auto color_of = [](int number) { return number % 3 == 0 ? 0x00FFFFFF : 0; };
  std::optional<TieRule> rule = ProbeTieRule();
  const bool holds = rule && ShortLinesAreSame<OneBitReference, OneBitTrial>(*rule, color_of) &&
                     LongLinesAreSame<OneBitReference, OneBitTrial>(*rule, color_of);
  if (!holds) rule.reset();
  return rule;
}

std::optional<InkMark> InkMark::Probe(const PointSymbol& symbol) {
  constexpr std::int32_t kBlack = 0;
  if (!IsSmallMark(symbol) || !InkBlock::ValueOf(symbol.pen.color)) return std::nullopt;
  const int reach = ReachOf(symbol);
  const ScreenPoint middle{reach, reach};
  OneBitReference reference(2 * reach + 1, 2 * reach + 1);
  if (!reference.IsMade()) return std::nullopt;
  PointSymbol in_ink = symbol;
  in_ink.pen.color = kBlack;
  GdiCanvas gdi(reference.Dc());
  gdi.UsePointSymbol(in_ink);
  gdi.Mark(middle);
  const InkMark mark{InkMask::FromPicture(reference.Pixels(), middle), symbol.pen.color == kBlack};
  const bool is_gdi_mark = DrawsGdiShape<OneBitReference, OneBitTrial>(
      MarkOf(symbol), [&](const InkBlock& block, ScreenPoint at) { mark.Draw(block, at); });
  if (!is_gdi_mark) return std::nullopt;
  return mark;
}

}  // namespace tavix
