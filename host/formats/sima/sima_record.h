// One record of a SIMA file.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace fieldhost {

enum class SimaRecordKind {
  kPoint,         // A01: number, name, north, east, height
  kParcelBegin,   // D00: number, name, 1 for closed
  kParcelVertex,  // B01: number and name of a point
  kParcelEnd,     // D99
  kNoData,        // known, and nothing in it to show: titles, section ends, derived sides
  kUnknown,       // a record code, but none we know
  kNoRecord,      // no record code
};

// Valid as long as the line it was cut from. Serves one line after another.
class SimaRecord {
 public:
  void Cut(std::string_view line);

  [[nodiscard]] SimaRecordKind Kind() const { return kind_; }
  [[nodiscard]] std::string_view Code() const { return fields_.front(); }
  // The field behind the code, from 1; empty when the record is shorter.
  [[nodiscard]] std::string_view Field(std::size_t place) const {
    return place < fields_.size() ? fields_[place] : std::string_view();
  }

 private:
  std::vector<std::string_view> fields_;
  SimaRecordKind kind_ = SimaRecordKind::kNoRecord;
};

// Whether a file's first line is that of a SIMA file.
[[nodiscard]] bool BeginsSima(std::string_view first_line);

}  // namespace fieldhost
