// The lots of a SIMA file, whose corners refer to its points.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "host/formats/read_log.h"
#include "host/formats/sima/sima_record.h"
#include "host/survey/survey.h"

namespace fieldhost {

// Collects lots record by record. Sections come in any order, so the corners find their points
// only when the whole file is read.
class SimaLots {
 public:
  void Begin(int line, const SimaRecord& record);
  void AddCorner(int line, const SimaRecord& record, ReadLog& log);
  void End() { open_ = false; }

  // Adds the lots to `survey`, whose points were entered under `numbers`, each the text of its
  // number. A corner is looked up by its number and then by its name: writers differ in which of
  // the two they mean, the number in most. A point that is a corner is a boundary point.
  void Resolve(const std::vector<std::string>& numbers, Survey& survey, ReadLog& log) const;

 private:
  struct Corner {
    int line;
    std::string number;
    std::string name;
  };
  struct Lot {
    int line;
    std::string name;
    bool closed;
    std::vector<Corner> corners;
  };

  bool open_ = false;
  std::vector<Lot> lots_;
};

// The text under which a point number is looked up: 7, 007 and " 7" are one number.
[[nodiscard]] std::string SimaNumberKey(std::string_view field);

}  // namespace fieldhost
