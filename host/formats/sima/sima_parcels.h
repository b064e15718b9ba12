// The parcels of a SIMA file, whose vertices refer to its points.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/formats/read_log.h"
#include "host/formats/sima/sima_record.h"
#include "host/survey/survey.h"

namespace fieldhost {

// Collects parcels record by record. Sections come in any order, so the vertices find their points
// only when the whole file is read.
class SimaParcels {
 public:
  void Begin(int line, const SimaRecord& record);
  void AddVertex(int line, const SimaRecord& record, ReadLog& log);
  void End() { open_ = false; }

  // Adds the parcels to `survey`, whose points were entered under `numbers`, each the text of its
  // number. A vertex is looked up by its number and then by its name: writers differ in which of
  // the two they mean, the number in most. A point that is a vertex is a boundary point.
  void Resolve(const std::vector<std::string>& numbers, Survey& survey, ReadLog& log) const;

 private:
  struct Vertex {
    int line;
    std::string number;
    std::string name;
  };
  struct Parcel {
    int line;
    std::string name;
    bool closed;
    std::vector<Vertex> vertices;
  };

  bool open_ = false;
  std::vector<Parcel> parcels_;
};

// The text under which a point number is looked up: 7, 007 and " 7" are one number.
[[nodiscard]] std::string SimaNumberKey(std::string_view field);

}  // namespace fieldhost
