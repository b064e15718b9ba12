#include "host/pictures/picture_size.h"

#include <algorithm>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <system_error>

namespace fieldhost {
namespace {

std::optional<int> Whole(std::string_view text) {
  int number = 0;
  const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
  if (error != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return number;
}

bool IsAllowedSide(int side) {
  return side >= PictureSize::kSmallest && side <= PictureSize::kLargest;
}

}  // namespace

bool PictureSize::IsAllowed() const { return IsAllowedSide(width) && IsAllowedSide(height); }

std::optional<PictureSize> PictureSizeOf(std::string_view text) {
  const std::size_t x = text.find('x');
  if (x == std::string_view::npos) return std::nullopt;
  const std::optional<int> width = Whole(text.substr(0, x));
  const std::optional<int> height = Whole(text.substr(x + 1));
  if (!width || !height || !PictureSize{*width, *height}.IsAllowed()) return std::nullopt;
  return PictureSize{*width, *height};
}

std::optional<int> ResolutionOf(std::string_view text) {
  const std::optional<int> dots = Whole(text);
  return dots && IsAllowedResolution(*dots) ? dots : std::nullopt;
}

PictureSize Within(const PictureSize& size, int longest) {
  const std::int64_t longer = std::max(size.width, size.height);
  if (longer <= longest) return size;
  const auto shortened = [&](int side) {
    return std::max(1, static_cast<int>(std::int64_t{side} * longest / longer));
  };
  return {shortened(size.width), shortened(size.height)};
}

}  // namespace fieldhost
