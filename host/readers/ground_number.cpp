#include "host/readers/ground_number.h"

#include <cmath>

#include "host/readers/field_text.h"

namespace fieldhost {
namespace {

constexpr double kFarthest = 1e8;  // metres

}  // namespace

bool IsOnGround(double metres) { return std::abs(metres) <= kFarthest; }

std::optional<double> GroundNumber(std::string_view field) {
  const std::optional<double> number = RealNumber(field);
  return number && IsOnGround(*number) ? number : std::nullopt;
}

std::string NoGroundNumber(std::string_view what, std::string_view field) {
  std::string sentence = "the ";
  sentence += what;
  if (field.empty()) return sentence + " is missing";
  sentence += ' ' + Quoted(field);
  return sentence + (RealNumber(field) ? " lies beyond any ground" : " is not a number");
}

}  // namespace fieldhost
