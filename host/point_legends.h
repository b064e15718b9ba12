// The looks of points as legends of a plot instance.
#pragma once

#include <string_view>
#include <vector>

namespace fieldhost {

class PointLegends {
 public:
  // Adds a legend for each look to the current instance, which must exist.
  void Add();

  // Selects the legend for points of this kind in the current instance, the one of Add.
  void Select(std::string_view kind) const;

 private:
  std::vector<short> numbers_;  // one for each of PointLooks()
};

}  // namespace fieldhost
