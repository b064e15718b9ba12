#include "host/formats/coordinates/coordinate_reader.h"

#include <span>
#include <utility>

#include "host/formats/coordinates/coordinate_line.h"
#include "host/formats/coordinates/list_form.h"

namespace fieldhost {

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
