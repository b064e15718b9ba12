#include "host/formats/coordinates/column_layout.h"

#include <algorithm>
#include <string>
#include <vector>

#include "host/formats/field_text.h"

namespace fieldhost {
namespace {

constexpr std::size_t kMostColumns = 64;

struct HeaderName {
  std::string_view name;  // lower case
  Column column;
};

constexpr HeaderName kHeaderNames[] = {
    {"no", Column::kNumber},
    {"no.", Column::kNumber},
    {"number", Column::kNumber},
    {"p", Column::kNumber},
    {"pt", Column::kNumber},
    {"pnt", Column::kNumber},
    {"id", Column::kNumber},
    {"point", Column::kNumber},
    {"point no", Column::kNumber},
    {"point_no", Column::kNumber},
    {"point number", Column::kNumber},
    {"点番", Column::kNumber},
    {"点番号", Column::kNumber},
    {"番号", Column::kNumber},
    {"n", Column::kNorth},
    {"north", Column::kNorth},
    {"northing", Column::kNorth},
    {"x", Column::kNorth},
    {"x_north", Column::kNorth},
    {"x座標", Column::kNorth},
    {"e", Column::kEast},
    {"east", Column::kEast},
    {"easting", Column::kEast},
    {"y", Column::kEast},
    {"y_east", Column::kEast},
    {"y座標", Column::kEast},
    {"z", Column::kHeight},
    {"h", Column::kHeight},
    {"elev", Column::kHeight},
    {"elevation", Column::kHeight},
    {"height", Column::kHeight},
    {"z座標", Column::kHeight},
    {"標高", Column::kHeight},
    {"d", Column::kDescription},
    {"desc", Column::kDescription},
    {"description", Column::kDescription},
    {"remarks", Column::kDescription},
    {"備考", Column::kDescription},
    {"name", Column::kName},
    {"point name", Column::kName},
    {"点名", Column::kName},
    {"名称", Column::kName},
    {"kind", Column::kKind},
    {"code", Column::kKind},
    {"種別", Column::kKind},
};

bool IsText(Column column) {
  return column == Column::kDescription || column == Column::kName || column == Column::kKind;
}

// "northing (m)" names the same column as "northing"; names with other units are unknown.
std::string_view WithoutMetres(std::string_view name) {
  for (const std::string_view unit : {"(m)", "[m]", " m", "_m"}) {
    if (name.ends_with(unit)) return Trim(name.substr(0, name.size() - unit.size()));
  }
  return name;
}

std::optional<Column> ColumnNamed(std::string_view field) {
  const std::string text = LowerCase(FieldText(field));
  const std::string_view name = WithoutMetres(text);
  const auto* found = std::find_if(std::begin(kHeaderNames), std::end(kHeaderNames),
                                   [&](const HeaderName& row) { return row.name == name; });
  if (found == std::end(kHeaderNames)) return std::nullopt;
  return found->column;
}

}  // namespace

ColumnLayout ColumnLayout::Pnezd() {
  ColumnLayout layout;
  constexpr Column kOrder[] = {Column::kNumber, Column::kNorth, Column::kEast, Column::kHeight,
                               Column::kDescription};
  for (const Column column : kOrder) layout.Put(column, layout.fields_++);
  layout.assumed_ = true;
  return layout;
}

std::optional<ColumnLayout> ColumnLayout::OfHeader(std::string_view line, char separator) {
  std::vector<std::string_view> names;
  SplitFields(line, separator, kMostColumns, names);

  ColumnLayout layout;
  std::optional<Column> last;
  for (std::size_t place = 0; place < names.size(); ++place) {
    last = ColumnNamed(names[place]);
    if (last && !layout.Place(*last)) layout.Put(*last, place);
  }
  if (!layout.Place(Column::kNorth) || !layout.Place(Column::kEast)) return std::nullopt;
  layout.fields_ = names.size() + (last && IsText(*last) ? 0 : 1);
  return layout;
}

}  // namespace fieldhost
