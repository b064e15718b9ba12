#include "host/tools/sheet.h"

#include <cmath>
#include <numbers>

namespace fieldhost {
namespace {

constexpr PaperSize kA4 = {"A4", 2970, 2100};

constexpr PaperSize kPaperSizes[] = {
    {"A0", 11890, 8410},
    {"A1", 8410, 5940},
    {"A2", 5940, 4200},
    {"A3", 4200, 2970},
    kA4,
    {"B1", 10300, 7280},
    {"B2", 7280, 5150},
    {"B3", 5150, 3640},
    {"B4", 3640, 2570},
    {"B5", 2570, 1820},
};

}  // namespace

std::span<const PaperSize> PaperSizes() { return kPaperSizes; }

Sheet UsualSheet() { return {.paper = kA4, .landscape = false, .scale = 500}; }

GroundPosition OriginAboutSameMiddle(const GroundPosition& origin, const Sheet& sheet,
                                     int old_scale, int degrees) {
  constexpr double kMetresPerTenth = 0.0001;
  const double growth = kMetresPerTenth * 0.5 * (old_scale - sheet.scale);
  const double up = sheet.Height() * growth;
  const double right = sheet.Width() * growth;
  const double angle = degrees * std::numbers::pi / 180.0;
  // A view turned clockwise shows as up what lies to the left of north.
  return {origin.north + up * std::cos(angle) + right * std::sin(angle),
          origin.east - up * std::sin(angle) + right * std::cos(angle)};
}

}  // namespace fieldhost
