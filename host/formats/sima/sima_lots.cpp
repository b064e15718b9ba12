#include "host/formats/sima/sima_lots.h"

#include <cstddef>
#include <optional>
#include <unordered_map>
#include <utility>

#include "host/formats/field_text.h"

namespace fieldhost {
namespace {

// Where points stand by number and by name; of several the first.
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

void SimaLots::Begin(int line, const SimaRecord& record) {
  std::string name = FieldText(record.Field(2));
  if (name.empty()) name = FieldText(record.Field(1));
  lots_.push_back({line, std::move(name), WholeNumber(record.Field(3)) == 1, {}});
  open_ = true;
}

void SimaLots::AddCorner(int line, const SimaRecord& record, ReadLog& log) {
  if (!open_) {
    log.Skip(line, "the corner belongs to no lot");
    return;
  }
  lots_.back().corners.push_back(
      {line, SimaNumberKey(record.Field(1)), FieldText(record.Field(2))});
}

void SimaLots::Resolve(const std::vector<std::string>& numbers, Survey& survey,
                       ReadLog& log) const {
  const PointDirectory directory(numbers, survey.points);
  for (const Lot& lot : lots_) {
    SurveyLot resolved{lot.name, lot.closed, {}};
    for (const Corner& corner : lot.corners) {
      if (const auto point = directory.Find(corner.number, corner.name)) {
        resolved.corners.push_back(*point);
        survey.points[*point].kind = "boundary";
      } else {
        log.Skip(corner.line, "the corner " + Quoted(corner.number + ' ' + corner.name) +
                                  " is no point of this file");
      }
    }
    if (resolved.corners.empty()) {
      log.Skip(lot.line, "the lot " + Quoted(lot.name) + " has no corners");
    } else {
      survey.lots.push_back(std::move(resolved));
    }
  }
}

}  // namespace fieldhost
