// Enters surveys into the current plot instance.
#pragma once

#include <cstddef>
#include <vector>

#include "host/readers/survey.h"

namespace fieldhost {

// Keys are given in the order of entry, from 1.
class SurveyEntry {
 public:
  // Adds the host's legends to the current instance, which must exist.
  void AddLegends();

  // Enters all points. Returns how many the library refused. Lots wait for lines.
  std::size_t Enter(const Survey& survey);

  // The next key is 1 again; for an instance that was emptied.
  void StartOver() { next_key_ = 1; }

 private:
  std::vector<short> legends_;  // one for each of PointLooks()
  int next_key_ = 1;
};

}  // namespace fieldhost
