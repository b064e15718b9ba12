#include "host/formats/landxml/length_unit.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "host/formats/field_text.h"

namespace fieldhost {
namespace {

constexpr double kFoot = 0.3048;  // the international one, exact
// Exact by definition: two millionths longer, which is a metre at a coordinate of 500 km.
constexpr double kSurveyFoot = 1200.0 / 3937.0;

struct Unit {
  std::string_view name;  // lower case
  double metres;
};

constexpr Unit kUnits[] = {
    {"millimeter", 0.001},
    {"millimetre", 0.001},
    {"centimeter", 0.01},
    {"centimetre", 0.01},
    {"decimeter", 0.1},
    {"decimetre", 0.1},
    {"meter", 1.0},
    {"metre", 1.0},
    {"kilometer", 1000.0},
    {"kilometre", 1000.0},
    {"foot", kFoot},
    {"feet", kFoot},
    {"internationalfoot", kFoot},
    {"ussurveyfoot", kSurveyFoot},
    {"inch", kFoot / 12.0},
    {"yard", kFoot * 3.0},
    {"mile", kFoot * 5280.0},
};

}  // namespace

std::optional<double> MetresIn(std::string_view unit) {
  const std::string name = LowerCase(Trim(unit));
  const auto* found = std::find_if(std::begin(kUnits), std::end(kUnits),
                                   [&](const Unit& row) { return row.name == name; });
  if (found == std::end(kUnits)) return std::nullopt;
  return found->metres;
}

}  // namespace fieldhost
