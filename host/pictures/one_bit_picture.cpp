#include "host/pictures/one_bit_picture.h"

#include "host/formats/field_text.h"

namespace fieldhost {

std::optional<OneBitFormat> OneBitFormatOf(std::string_view file_name) {
  const std::string name = LowerCase(file_name);
  if (name.ends_with(".png")) return OneBitFormat::kPng;
  if (name.ends_with(".pbm")) return OneBitFormat::kPbm;
  return std::nullopt;
}

std::string PortableBitmap(const OneBitPicture& picture) {
  std::string bytes =
      "P4\n" + std::to_string(picture.Width()) + ' ' + std::to_string(picture.Height()) + '\n';
  bytes.append(picture.Rows().begin(), picture.Rows().end());
  return bytes;
}

}  // namespace fieldhost
