#include "host/tools/sheet.h"

#include <cmath>
#include <numbers>

#include "host/formats/field_text.h"

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

constexpr int kUsualScales[] = {50,   100,  200,  250,  300,  500,   600,
                                1000, 1200, 2500, 3000, 5000, 10000, 25000};

struct WideSign {
  std::string_view wide;
  char plain;
};

constexpr WideSign kWideSigns[] = {
    {"０", '0'}, {"１", '1'}, {"２", '2'}, {"３", '3'}, {"４", '4'}, {"５", '5'}, {"６", '6'},
    {"７", '7'}, {"８", '8'}, {"９", '9'}, {"：", ':'}, {"／", '/'}, {"，", ','}, {"　", ' '},
};

// With ASCII characters in place of full-width ones.
std::string Plain(std::string_view text) {
  std::string plain;
  while (!text.empty()) {
    std::size_t taken = 1;
    char sign = text.front();
    for (const WideSign& row : kWideSigns) {
      if (!text.starts_with(row.wide)) continue;
      taken = row.wide.size();
      sign = row.plain;
    }
    plain += sign;
    text.remove_prefix(taken);
  }
  return plain;
}

bool IsDigit(char sign) { return '0' <= sign && sign <= '9'; }

// The digits without separators; nothing for other signs, or without digits.
std::optional<std::string> Digits(std::string_view text) {
  std::string digits;
  for (const char sign : text) {
    if (IsDigit(sign)) {
      digits += sign;
    } else if (digits.empty() || (sign != ',' && sign != ' ')) {
      return std::nullopt;
    }
  }
  if (digits.empty()) return std::nullopt;
  return digits;
}

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

std::span<const int> UsualScales() { return kUsualScales; }

std::optional<int> ParseScale(std::string_view typed) {
  const std::string plain = Plain(typed);
  std::string_view text = Trim(plain);
  if (const std::size_t sign = text.find_first_of(":/"); sign != std::string_view::npos) {
    if (Trim(text.substr(0, sign)) != "1") return std::nullopt;
    text = Trim(text.substr(sign + 1));
  }
  const std::optional<std::string> digits = Digits(text);
  const std::optional<int> scale = digits ? WholeNumber(*digits) : std::nullopt;
  if (!scale || *scale < 1 || kLargestScale < *scale) return std::nullopt;
  return scale;
}

std::string NoScale(std::string_view typed) {
  const std::string_view text = Trim(typed);
  if (text.empty()) return "Type a scale, such as 500 for 1:500.";
  return Quoted(text) + " is not a scale: type a whole number from 1 to 1000000.";
}

int ScaleNow(int reported, const GivenScale& last) {
  return reported == last.reported ? last.scale : reported;
}

}  // namespace fieldhost
