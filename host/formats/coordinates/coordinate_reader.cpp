#include "host/formats/coordinates/coordinate_reader.h"

#include <algorithm>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/formats/coordinates/column_layout.h"
#include "host/formats/coordinates/coordinate_line.h"
#include "host/formats/field_text.h"

namespace fieldhost {
namespace {

using Lines = std::span<const TextLine>;

// How a list is written, what its columns are, where its points begin.
struct ListForm {
  ListNotation notation;
  ColumnLayout layout = ColumnLayout::Pnezd();
  std::size_t head_lines = 0;  // titles and a header, before the points
  std::string refusal;         // why the columns cannot be plotted, as the end of a sentence
};

std::vector<std::string_view> FieldsOf(std::string_view line, char separator) {
  constexpr std::size_t kMostFields = 64;
  std::vector<std::string_view> fields;
  SplitFields(line, separator, kMostFields, fields);
  return fields;
}

bool HasNumber(std::string_view line, ListNotation notation) {
  const std::vector<std::string_view> fields = FieldsOf(line, notation.separator);
  return std::any_of(fields.begin(), fields.end(), [&](std::string_view field) {
    return RealNumber(field, notation.decimal).has_value();
  });
}

struct AngleName {
  std::span<const std::string_view> words;       // lower case
  std::span<const std::string_view> beginnings;  // of names written without blanks
};

constexpr std::string_view kLatitudeWords[] = {"lat", "latitude"};
constexpr std::string_view kLatitudeBeginnings[] = {"緯度", "北緯"};
constexpr std::string_view kLongitudeWords[] = {"lon", "long", "lng", "longitude"};
constexpr std::string_view kLongitudeBeginnings[] = {"経度", "東経"};
constexpr AngleName kLatitude = {kLatitudeWords, kLatitudeBeginnings};
constexpr AngleName kLongitude = {kLongitudeWords, kLongitudeBeginnings};

// By the word that the name of a column begins with: "Lat.", "latitude (deg)", "lon_wgs84".
bool Names(std::string_view field, const AngleName& angle) {
  const std::string name = LowerCase(FieldText(field));
  const auto end = std::find_if(name.begin(), name.end(),
                                [](char letter) { return letter < 'a' || letter > 'z'; });
  const std::string_view word(name.begin(), end);
  return std::ranges::find(angle.words, word) != angle.words.end() ||
         std::ranges::any_of(angle.beginnings, [&](std::string_view beginning) {
           return name.starts_with(beginning);
         });
}

// Why points cannot be plotted below a line that names no north and east columns; empty for a
// title. A header has a name for each column; between blanks a title has as many words by chance
// only.
std::string Refusal(const TextLine& line, std::string_view first_point, char separator) {
  const std::vector<std::string_view> names = FieldsOf(line.text, separator);
  const std::string where = "line " + std::to_string(line.number);
  const auto has = [&](const AngleName& angle) {
    return std::ranges::any_of(names, [&](std::string_view name) { return Names(name, angle); });
  };
  if (has(kLatitude) && has(kLongitude)) {
    return "names latitude and longitude in " + where +
           "; convert the points to northing and easting in metres";
  }
  constexpr std::size_t kFewestColumns = 3;
  if (names.size() < kFewestColumns ||
      (separator == ' ' && names.size() != FieldsOf(first_point, separator).size())) {
    return "";
  }
  return "names no northing and easting in its header, " + where +
         "; name these columns N and E there, or delete the line if the columns are number, "
         "northing, easting, elevation and description";
}

// Lines without any number above the first with one are titles, or a header.
ListForm FormBy(ListNotation notation, Lines lines) {
  ListForm form;
  form.notation = notation;
  const auto first = std::find_if(lines.begin(), lines.end(), [&](const TextLine& line) {
    return HasNumber(line.text, notation);
  });
  if (first == lines.end()) return form;
  form.head_lines = static_cast<std::size_t>(first - lines.begin());
  for (const TextLine& line : lines.first(form.head_lines)) {
    if (const auto layout = ColumnLayout::OfHeader(line.text, notation.separator)) {
      form.layout = *layout;
      form.refusal.clear();
      return form;
    }
    std::string refusal = Refusal(line, first->text, notation.separator);
    if (!refusal.empty()) form.refusal = std::move(refusal);
  }
  return form;
}

std::ptrdiff_t PointsBy(const ListForm& form, Lines lines) {
  const Lines points = lines.subspan(form.head_lines);
  return std::count_if(points.begin(), points.end(), [&](const TextLine& line) {
    return ReadCoordinateLine(line.text, form.notation, form.layout).point.has_value();
  });
}

// The form of a list by its first lines, of which there is at least one.
//
// A header that names a north and an east column gives the layout. Without a header the columns are
// number, northing, easting, elevation, description. A header that names others, latitude and
// longitude above all, is refused: its columns would be plotted as metres.
//
// Nothing in a list says how it is written, and a description may hold any separator: the notation
// that makes points of the most of the first lines is taken. A decimal comma is possible only where
// the comma separates nothing. Among notations without a point, one with a header can best say what
// is wrong.
ListForm FormOf(Lines lines) {
  constexpr char kSeparators[] = {',', '\t', ';', ' '};
  constexpr std::size_t kSample = 20;
  const Lines sample = lines.first(std::min(lines.size(), kSample));
  ListForm best;
  std::pair<std::ptrdiff_t, bool> best_rank;  // points, whether there is a header
  for (const DecimalMark decimal : {DecimalMark::kPoint, DecimalMark::kComma}) {
    for (const char separator : kSeparators) {
      ListForm form = FormBy({separator, decimal}, sample);
      const bool has_header = !form.layout.IsAssumed() || !form.refusal.empty();
      const std::pair rank(PointsBy(form, sample), has_header);
      if (rank <= best_rank) continue;
      best_rank = rank;
      best = std::move(form);
    }
  }
  return best;
}

}  // namespace

Survey ReadCoordinates(const TextLines& text, ReadLog& log) {
  Survey survey;
  const std::span<const TextLine> lines = text.All();
  if (lines.empty()) return survey;
  const ListForm form = FormOf(lines);
  if (!form.refusal.empty()) {
    log.Refuse(form.refusal);
    return survey;
  }
  const std::span<const TextLine> points = lines.subspan(form.head_lines);
  survey.points.reserve(points.size());
  for (const TextLine& line : points) {
    CoordinateLine read = ReadCoordinateLine(line.text, form.notation, form.layout);
    if (read.point) {
      survey.points.push_back(std::move(*read.point));
    } else {
      log.Skip(line.number, std::move(read.problem));
    }
  }
  return survey;
}

}  // namespace fieldhost
