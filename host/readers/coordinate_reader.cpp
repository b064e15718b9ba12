#include "host/readers/coordinate_reader.h"

#include <algorithm>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "host/readers/column_layout.h"
#include "host/readers/coordinate_line.h"
#include "host/readers/field_text.h"

namespace fieldhost {
namespace {

using Lines = std::span<const TextLine>;

struct ListForm {
  char separator = ',';
  ColumnLayout layout = ColumnLayout::Pnezd();
  bool has_header = false;
};

// A first line without any number is a header too, only one whose names say nothing to us.
bool HasNumber(std::string_view line, char separator) {
  constexpr std::size_t kMostFields = 64;
  std::vector<std::string_view> fields;
  SplitFields(line, separator, kMostFields, fields);
  return std::any_of(fields.begin(), fields.end(),
                     [](std::string_view field) { return RealNumber(field).has_value(); });
}

ListForm FormWith(char separator, std::string_view first_line) {
  if (const auto layout = ColumnLayout::OfHeader(first_line, separator)) {
    return {separator, *layout, true};
  }
  return {separator, ColumnLayout::Pnezd(), !HasNumber(first_line, separator)};
}

Lines WithoutHeader(Lines lines, const ListForm& form) {
  return lines.subspan(form.has_header ? 1 : 0);
}

// Nothing in a list tells its separator, and a description may hold any of them: the one by which
// the most of the first lines are points is the right one.
ListForm FormOf(Lines lines) {
  constexpr char kSeparators[] = {',', '\t', ';', ' '};
  constexpr std::size_t kSample = 20;
  ListForm best;
  std::ptrdiff_t most = 0;
  for (const char separator : kSeparators) {
    const ListForm form = FormWith(separator, lines.front().text);
    const Lines sample = WithoutHeader(lines.first(std::min(lines.size(), kSample)), form);
    const auto points = std::count_if(sample.begin(), sample.end(), [&](const TextLine& line) {
      return ReadCoordinateLine(line.text, separator, form.layout).point.has_value();
    });
    if (points > most) {
      most = points;
      best = form;
    }
  }
  return best;
}

}  // namespace

Survey ReadCoordinates(const TextLines& text, ReadLog& log) {
  Survey survey;
  const Lines lines = text.All();
  if (lines.empty()) return survey;
  const ListForm form = FormOf(lines);
  const Lines points = WithoutHeader(lines, form);
  survey.points.reserve(points.size());
  for (const TextLine& line : points) {
    CoordinateLine read = ReadCoordinateLine(line.text, form.separator, form.layout);
    if (read.point) {
      survey.points.push_back(std::move(*read.point));
    } else {
      log.Skip(line.number, std::move(read.problem));
    }
  }
  return survey;
}

}  // namespace fieldhost
