#include "host/formats/coordinates/coordinate_line.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "host/formats/field_text.h"

namespace fieldhost {
namespace {

// The fields of a line by their meaning.
class Fields {
 public:
  Fields(std::string_view line, char separator, const ColumnLayout& layout) : layout_(layout) {
    fields_.reserve(layout.Fields());
    SplitFields(line, separator, layout.Fields(), fields_);
  }

  // Empty where the list has no such column or the line ends before it.
  [[nodiscard]] std::string_view operator[](Column column) const {
    const std::optional<std::size_t> place = layout_.Place(column);
    return place && *place < fields_.size() ? fields_[*place] : std::string_view();
  }

 private:
  const ColumnLayout& layout_;
  std::vector<std::string_view> fields_;
};

// The line from the start of `field`, which lies in it.
std::string_view From(std::string_view line, std::string_view field) {
  return line.substr(static_cast<std::size_t>(field.data() - line.data()));
}

struct HeightAndDescription {
  std::optional<double> height;
  std::string description;
};

// A list without elevations has its descriptions in their place: in a list whose order is only
// assumed, a text there is one when nothing else follows. Between blanks an empty elevation leaves
// no trace, so there the text may go on.
std::optional<HeightAndDescription> ReadHeightAndDescription(std::string_view line,
                                                             ListNotation notation,
                                                             const ColumnLayout& layout,
                                                             const Fields& fields) {
  const std::string_view height = fields[Column::kHeight];
  const std::string_view description = fields[Column::kDescription];
  if (height.empty()) return HeightAndDescription{std::nullopt, FieldText(description)};
  if (const std::optional<double> number = GroundNumber(height, notation.decimal)) {
    return HeightAndDescription{number, FieldText(description)};
  }
  if (layout.IsAssumed() && !RealNumber(height, notation.decimal)) {
    if (notation.separator == ' ')
      return HeightAndDescription{std::nullopt, FieldText(From(line, height))};
    if (description.empty()) return HeightAndDescription{std::nullopt, FieldText(height)};
  }
  return std::nullopt;
}

// What the labels show: see the header.
void NameByNumber(std::string number_text, std::string description, SurveyPoint& point) {
  if (!number_text.empty() && !WholeNumber(number_text)) {
    point.name = std::move(number_text);
    if (point.kind.empty()) point.kind = std::move(description);
    return;
  }
  if (point.kind.empty()) point.kind = description;
  point.name = description.empty() ? std::move(number_text) : std::move(description);
}

}  // namespace

CoordinateLine ReadCoordinateLine(std::string_view line, ListNotation notation,
                                  const ColumnLayout& layout) {
  const Fields fields(line, notation.separator, layout);
  const auto ground = [&](Column column) { return GroundNumber(fields[column], notation.decimal); };
  const auto refused = [&](std::string_view what, Column column) {
    return CoordinateLine{std::nullopt, NoGroundNumber(what, fields[column], notation.decimal)};
  };
  if (fields[Column::kNorth].empty() || fields[Column::kEast].empty()) {
    return {std::nullopt, "the line has no northing and easting"};
  }
  const std::optional<double> north = ground(Column::kNorth);
  if (!north) return refused("northing", Column::kNorth);
  const std::optional<double> east = ground(Column::kEast);
  if (!east) return refused("easting", Column::kEast);
  std::optional<HeightAndDescription> rest =
      ReadHeightAndDescription(line, notation, layout, fields);
  if (!rest) return refused("elevation", Column::kHeight);

  SurveyPoint point;
  point.number = WholeNumber(fields[Column::kNumber]).value_or(0);
  point.north = *north;
  point.east = *east;
  point.height = rest->height;
  point.kind = FieldText(fields[Column::kKind]);
  point.name = FieldText(fields[Column::kName]);
  if (point.name.empty()) {
    NameByNumber(FieldText(fields[Column::kNumber]), std::move(rest->description), point);
  }
  if (point.name.empty()) return {std::nullopt, "the point has neither a number nor a name"};
  return {std::move(point), ""};
}

}  // namespace fieldhost
