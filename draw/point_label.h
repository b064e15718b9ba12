// The label of a point: what it says and where it stands. Drawing is one call to the system.
#pragma once

#include <array>
#include <cstdint>

#include "store/legend_table.h"
#include "store/name_pool.h"
#include "view/coordinates.h"

namespace tavix {

// Says what the label of a point is: its number, nothing for a number of 0 or less, or its name, as
// the legend entry asks. The text is valid as long as this object and the name are.
class LabelText {
 public:
  LabelText(const LegendStyle& style, std::int32_t number, NameView name);
  LabelText(const LabelText&) = delete;  // the text may lie in the object itself
  LabelText& operator=(const LabelText&) = delete;

  [[nodiscard]] NameView Text() const { return text_; }

 private:
  std::array<char16_t, 12> digits_{};
  NameView text_;
};

// The rectangle a label is drawn in, in pixels. Compatibility: it is upside down (bottom above
// top): text is drawn without clipping, so only left and top matter, and must not be made upright.
struct LabelBox {
  int left;
  int top;
  int right;
  int bottom;
};

// The label of a point whose mark of `mark_size` pixels is centred on `at`: `length` characters of
// `text_height` pixels, from the point's x on and a quarter of the mark below its centre.
[[nodiscard]] LabelBox PlaceLabel(ScreenPoint at, int mark_size, int text_height, int length);

}  // namespace tavix
