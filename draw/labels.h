// The labels of points: what they show and where they stand.
#pragma once

#include <array>
#include <cstdint>

#include "store/name_pool.h"
#include "store/symbols.h"
#include "view/coordinates.h"

namespace tavix {

// The text of a point's label: its name, or its number, which is empty for 0 or less. It is valid
// as long as this object and the name are.
class LabelText {
 public:
  LabelText(LabelContent content, std::int32_t number, NameView name);
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

// Where the label of a point at `at` stands: `length` characters from the point's x on, and a
// quarter of the mark below its centre.
[[nodiscard]] LabelBox PlaceLabel(ScreenPoint at, const PointSymbol& symbol, int length);

}  // namespace tavix
