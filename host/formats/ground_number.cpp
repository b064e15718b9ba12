#include "host/formats/ground_number.h"

#include <cmath>

namespace fieldhost {
namespace {

constexpr double kFarthest = 1e8;  // metres

}  // namespace

bool IsOnGround(double metres) { return std::abs(metres) <= kFarthest; }

std::optional<double> GroundNumber(std::string_view field, DecimalMark mark) {
  const std::optional<double> number = RealNumber(field, mark);
  return number && IsOnGround(*number) ? number : std::nullopt;
}

std::string NoGroundNumber(std::string_view what, std::string_view field, DecimalMark mark) {
  std::string sentence = "the ";
  sentence += what;
  if (field.empty()) return sentence + " is missing";
  sentence += ' ' + Quoted(field);
  return sentence + (RealNumber(field, mark) ? " lies beyond any ground" : " is not a number");
}

}  // namespace fieldhost
