#include "host/tools/sheet_scale.h"

#include "host/formats/field_text.h"

namespace fieldhost {
namespace {

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

// With plain signs in place of full-width ones.
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

// The digits without what groups them; nothing when there are none, or other signs.
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
  return Quoted(text) + " is no scale: type a whole number from 1 to 1000000.";
}

int MeantScale(int told, int set) {
  return set > 0 && static_cast<int>(1.0 / (1.0 / set)) == told ? set : told;
}

}  // namespace fieldhost
