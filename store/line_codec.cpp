#include "store/line_codec.h"

namespace tavix {

using namespace line_property;

std::optional<std::int16_t> ShortOf(const CCeDBRecord& record, WORD ident) {
  const CCeDBProp* property = record.GetPropFromIdent(ident);
  if (!property) return std::nullopt;
  return property->GetShort();
}

std::array<CCeDBProp, 5> EncodeLine(const Line& line) {
  const auto larger_first = static_cast<short>(line.keys.LargerFirst() ? 1 : 0);
  return {CCeDBProp(static_cast<short>(line.id), kId), CCeDBProp(line.keys.Smaller(), kSmallerKey),
          CCeDBProp(line.keys.Larger(), kLargerKey), CCeDBProp(larger_first, kLargerFirst),
          CCeDBProp(line.legend, kLegend)};
}

std::optional<Line> DecodeLine(const CCeDBRecord& record) {
  const auto id = ShortOf(record, kId);
  const auto smaller = ShortOf(record, kSmallerKey);
  const auto larger = ShortOf(record, kLargerKey);
  const auto larger_first = ShortOf(record, kLargerFirst);
  const auto legend = ShortOf(record, kLegend);
  if (!id || !smaller || !larger || !larger_first || !legend) return std::nullopt;
  const LineKeys keys =
      *larger_first != 0 ? LineKeys{*larger, *smaller} : LineKeys{*smaller, *larger};
  return Line{*id, keys, *legend};
}

}  // namespace tavix
