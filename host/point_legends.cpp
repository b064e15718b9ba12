#include "host/point_legends.h"

#include <tavix/tavix.h>

#include "host/point_look.h"

namespace fieldhost {

void PointLegends::Add() {
  constexpr int kLabelIsName = 0;
  numbers_.clear();
  for (const PointLook& look : PointLooks()) {
    short number = 0;
    Tavix_AddPntHan(look.mark, look.pen_width, static_cast<int>(look.color), look.mark_size,
                    look.label_height, kLabelIsName, &number);
    numbers_.push_back(number);
  }
}

void PointLegends::Select(std::string_view kind) const { Tavix_SelPntHan(numbers_[LookOf(kind)]); }

}  // namespace fieldhost
