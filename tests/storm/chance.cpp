#include "tests/storm/chance.h"

#include <limits>

namespace tavix::storm {

int Chance::Between(int low, int high) {
  const auto count = static_cast<std::uint64_t>(static_cast<std::int64_t>(high) - low + 1);
  return static_cast<int>(low + static_cast<std::int64_t>(random_() % count));
}

double Chance::Part() { return static_cast<double>(random_() >> 11) * 0x1p-53; }

int Chance::Key() {
  if (!OneIn(20)) return Between(1, 60);
  return AnyOf<int>({0, -1, -32768, 32767, 32768, 65536, 65537, 1 << 30,
                     std::numeric_limits<int>::max(), std::numeric_limits<int>::min()});
}

double Chance::Coordinate() {
  if (!OneIn(25)) return 1000.0 * Part() - 500.0;
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  return AnyOf<double>({0.0, -0.0, 1e-6, 1e5, -1e5, 1e9, 1e15, -1e15, 1e300, -1e300, 5e-324,
                        kInfinity, -kInfinity, std::numeric_limits<double>::quiet_NaN()});
}

double Chance::Length() { return OneIn(10) ? Coordinate() : 200.0 * Part(); }

int Chance::Number() {
  if (!OneIn(15)) return Between(-20, 120);
  return AnyOf<int>({32767, -32768, 32768, 65535, 1 << 24, std::numeric_limits<int>::max(),
                     std::numeric_limits<int>::min()});
}

std::uint8_t Chance::Flag() {
  return static_cast<std::uint8_t>(OneIn(8) ? Between(0, 255) : Between(0, 1));
}

std::int16_t Chance::Legend() {
  switch (Between(0, 9)) {
    case 0:
      return Short();
    case 1:
    case 2:
      return static_cast<std::int16_t>(Between(201, 210));
    case 3:
    case 4:
      return static_cast<std::int16_t>(Between(101, 105));
    default:
      return static_cast<std::int16_t>(Between(1, 11));
  }
}

std::wstring Chance::Name() {
  if (OneIn(40)) return std::wstring(static_cast<std::size_t>(Between(200, 3000)), L'長');
  return AnyOf<std::wstring>({L"", L"P1", L"T-12", L"基準点", L"境界&杭", L"&&", L"ｶﾅ12", L"a\tb",
                              L"two\nlines", L"\xD83D", L"\xD842\xDFB7野屋", L"\x200F\x0301",
                              L"KB-7&"});
}

}  // namespace tavix::storm
