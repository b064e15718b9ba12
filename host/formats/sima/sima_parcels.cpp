#include "host/formats/sima/sima_parcels.h"

#include <cstddef>
#include <optional>
#include <unordered_map>
#include <utility>

#include "host/formats/field_text.h"

namespace fieldhost {
namespace {

// The places of points by number and by name; of several the first.
class PointDirectory {
 public:
  PointDirectory(const std::vector<std::string>& numbers, const std::vector<SurveyPoint>& points) {
    for (std::size_t i = 0; i < points.size(); ++i) {
      if (!numbers[i].empty()) by_number_.try_emplace(numbers[i], i);
      by_name_.try_emplace(points[i].name, i);
    }
  }

  [[nodiscard]] std::optional<std::size_t> Find(const std::string& number,
                                                const std::string& name) const {
    if (const auto found = by_number_.find(number); found != by_number_.end()) {
      return found->second;
    }
    if (const auto found = by_name_.find(name); found != by_name_.end()) return found->second;
    return std::nullopt;
  }

 private:
  std::unordered_map<std::string, std::size_t> by_number_;
  std::unordered_map<std::string, std::size_t> by_name_;
};

}  // namespace

std::string SimaNumberKey(std::string_view field) {
  if (const std::optional<int> number = WholeNumber(field)) return std::to_string(*number);
  return FieldText(field);
}

void SimaParcels::Begin(int line, const SimaRecord& record) {
  std::string name = FieldText(record.Field(2));
  if (name.empty()) name = FieldText(record.Field(1));
  parcels_.push_back({line, std::move(name), WholeNumber(record.Field(3)) == 1, {}});
  open_ = true;
}

void SimaParcels::AddVertex(int line, const SimaRecord& record, ReadLog& log) {
  if (!open_) {
    log.Skip(line, "the vertex belongs to no parcel");
    return;
  }
  parcels_.back().vertices.push_back(
      {line, SimaNumberKey(record.Field(1)), FieldText(record.Field(2))});
}

void SimaParcels::Resolve(const std::vector<std::string>& numbers, Survey& survey,
                          ReadLog& log) const {
  const PointDirectory directory(numbers, survey.points);
  for (const Parcel& parcel : parcels_) {
    SurveyParcel resolved{parcel.name, parcel.closed, {}};
    for (const Vertex& vertex : parcel.vertices) {
      if (const auto point = directory.Find(vertex.number, vertex.name)) {
        resolved.vertices.push_back(*point);
        survey.points[*point].kind = "boundary";
      } else {
        log.Skip(vertex.line, "the vertex " + Quoted(vertex.number + ' ' + vertex.name) +
                                  " is not a point of this file");
      }
    }
    if (resolved.vertices.empty()) {
      log.Skip(parcel.line, "the parcel " + Quoted(parcel.name) + " has no vertices");
    } else {
      survey.parcels.push_back(std::move(resolved));
    }
  }
}

}  // namespace fieldhost
