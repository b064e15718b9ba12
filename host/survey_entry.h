// Enters surveys into the current plot instance.
#pragma once

#include <cstddef>

#include "host/readers/survey.h"

namespace fieldhost {

// Keys are given in the order of entry, from 1.
class SurveyEntry {
 public:
  // Gives the current instance, which must exist, the host's legends.
  void AddLegends();

  // Enters all points, and the lots as lines between them. Returns how many points the library
  // refused.
  std::size_t Enter(const Survey& survey);

  // The next key is 1 again; for an instance that was emptied.
  void StartOver() { next_key_ = 1; }

 private:
  void EnterLot(const SurveyLot& lot, int first_key);

  short lot_legend_ = 0;
  int next_key_ = 1;
};

}  // namespace fieldhost
