#include "store/line_codec.h"

namespace tavix {

using namespace line_property;

std::optional<std::int16_t> ShortOf(const CCeDBRecord& record, WORD ident) {
  const CCeDBProp* property = record.GetPropFromIdent(ident);
  if (!property) return std::nullopt;
  return property->GetShort();
}

LineRecord::LineRecord()
    : properties_{CCeDBProp(CCeDBProp::Type_Short, kId),
                  CCeDBProp(CCeDBProp::Type_Short, kSmallerKey),
                  CCeDBProp(CCeDBProp::Type_Short, kLargerKey),
                  CCeDBProp(CCeDBProp::Type_Short, kLargerFirst),
                  CCeDBProp(CCeDBProp::Type_Short, kLegend)} {
  record_.AddProps(properties_.data(), static_cast<int>(properties_.size()));
}

CCeDBRecord& LineRecord::Of(const Line& line) {
  auto& [id, smaller, larger, larger_first, legend] = properties_;
  id.SetShort(static_cast<short>(line.id));
  smaller.SetShort(line.keys.Smaller());
  larger.SetShort(line.keys.Larger());
  larger_first.SetShort(static_cast<short>(line.keys.LargerFirst() ? 1 : 0));
  legend.SetShort(line.legend);
  return record_;
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
