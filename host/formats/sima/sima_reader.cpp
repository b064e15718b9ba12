#include "host/formats/sima/sima_reader.h"

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "host/formats/field_text.h"
#include "host/formats/sima/sima_parcels.h"
#include "host/formats/sima/sima_record.h"

namespace fieldhost {
namespace {

// Records of unknown codes. A route file has thousands: one sentence for each code.
class UnknownRecords {
 public:
  void Add(int line, std::string_view code) {
    ++counts_.try_emplace(FieldText(code), Count{line, 0}).first->second.records;
  }

  void Report(ReadLog& log) const {
    for (const auto& [code, count] : counts_) {
      log.Skip(count.first_line,
               "records " + code + " are not known here, " + std::to_string(count.records) +
                   " of them were skipped",
               count.records);
    }
  }

 private:
  struct Count {
    int first_line;
    std::size_t records;
  };
  std::map<std::string, Count> counts_;
};

class Reader {
 public:
  explicit Reader(ReadLog& log) : log_(log) {}

  void Take(const TextLine& line) {
    record_.Cut(line.text);
    switch (record_.Kind()) {
      case SimaRecordKind::kPoint:
        TakePoint(line.number);
        break;
      case SimaRecordKind::kParcelBegin:
        parcels_.Begin(line.number, record_);
        break;
      case SimaRecordKind::kParcelVertex:
        parcels_.AddVertex(line.number, record_, log_);
        break;
      case SimaRecordKind::kParcelEnd:
        parcels_.End();
        break;
      case SimaRecordKind::kNoData:
        break;
      case SimaRecordKind::kUnknown:
        unknown_.Add(line.number, record_.Code());
        break;
      case SimaRecordKind::kNoRecord:
        log_.Skip(line.number, "the line does not begin with a record code");
        break;
    }
  }

  Survey Finish() {
    parcels_.Resolve(numbers_, survey_, log_);
    unknown_.Report(log_);
    return std::move(survey_);
  }

 private:
  void TakePoint(int line) {
    const std::optional<double> north = GroundNumber(record_.Field(3));
    if (!north) return log_.Skip(line, NoGroundNumber("X coordinate", record_.Field(3)));
    const std::optional<double> east = GroundNumber(record_.Field(4));
    if (!east) return log_.Skip(line, NoGroundNumber("Y coordinate", record_.Field(4)));
    const std::string_view height_field = record_.Field(5);
    const std::optional<double> height = GroundNumber(height_field);
    if (!height && !FieldText(height_field).empty()) {
      return log_.Skip(line, NoGroundNumber("height", height_field));
    }

    std::string key = SimaNumberKey(record_.Field(1));
    SurveyPoint point;
    point.number = WholeNumber(record_.Field(1)).value_or(0);
    point.name = FieldText(record_.Field(2));
    if (point.name.empty()) point.name = key;
    if (point.name.empty()) return log_.Skip(line, "the point has neither a number nor a name");
    point.north = *north;
    point.east = *east;
    point.height = height;
    survey_.points.push_back(std::move(point));
    numbers_.push_back(std::move(key));
  }

  ReadLog& log_;
  SimaRecord record_;
  Survey survey_;
  std::vector<std::string> numbers_;  // of the points, as parcels refer to them
  SimaParcels parcels_;
  UnknownRecords unknown_;
};

}  // namespace

Survey ReadSima(const TextLines& lines, ReadLog& log) {
  Reader reader(log);
  for (const TextLine& line : lines.All()) reader.Take(line);
  return reader.Finish();
}

}  // namespace fieldhost
