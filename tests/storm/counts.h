// What a storm takes from the system and has to give back.
#pragma once

#include <string>
#include <vector>

#include "tests/reliability/system_faults.h"

namespace tavix::storm {

struct Counts {
  test::Holdings held;             // by the library's modules
  int windows = 0;                 // of this thread
  std::vector<std::string> files;  // in the data folder and in the device's root folder
};

// At this moment. What the library holds is counted from the first call of this function on.
[[nodiscard]] Counts CountAll();

// What there is more, or less, than before, in a sentence; empty when there is nothing.
[[nodiscard]] std::string Difference(const Counts& before, const Counts& after);

}  // namespace tavix::storm
