#include "draw/point_label.h"

#include <charconv>
#include <cstddef>

#include "view/coordinates.h"

namespace tavix {

LabelText::LabelText(const LegendStyle& style, std::int32_t number, NameView name) {
  const bool shows_number = style.prm3 != 0;
  if (!shows_number) {
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

LabelBox PlaceLabel(ScreenPoint at, int mark_size, int text_height, int length) {
  const int top = at.y + mark_size / 4;
  // Only left and top are ever looked at; right merely has to stay in range.
  const double width = 2.0 * length * text_height;
  return {at.x, top, TruncateToInt(at.x + width), top - text_height};
}

}  // namespace tavix
