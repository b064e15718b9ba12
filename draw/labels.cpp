#include "draw/labels.h"

#include <charconv>
#include <cstddef>

#include "view/coordinates.h"

namespace tavix {

LabelText::LabelText(LabelContent content, std::int32_t number, NameView name) {
  if (content == LabelContent::kName) {
    text_ = name;
    return;
  }
  if (number <= 0) return;
  std::array<char, 12> digits{};
  const char* end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
  const auto count = static_cast<std::size_t>(end - digits.data());
  for (std::size_t i = 0; i < count; ++i) digits_[i] = static_cast<char16_t>(digits[i]);
  text_ = NameView(digits_.data(), count);
}

LabelBox PlaceLabel(ScreenPoint at, const PointSymbol& symbol, int length) {
  const int top = at.y + symbol.size / 4;
  // Only left and top count; right merely has to stay in range.
  const double width = 2.0 * length * symbol.label_height;
  return {at.x, top, TruncateToInt(at.x + width), top - symbol.label_height};
}

}  // namespace tavix
