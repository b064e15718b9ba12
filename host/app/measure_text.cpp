#include "host/app/measure_text.h"

#include <cmath>

namespace fieldhost {
namespace {

// To the millimetre, so that what rounds to zero has no minus sign.
double Rounded(double metres) { return std::round(metres * 1000.0) / 1000.0 + 0.0; }

}  // namespace

CString PositionText(const GroundPosition& position) {
  CString text;
  text.Format(L"X %.3f  Y %.3f", Rounded(position.north), Rounded(position.east));
  return text;
}

CString LengthText(double metres) {
  CString text;
  text.Format(L"%.3f m", metres);
  return text;
}

CString AreaText(double square_metres) {
  CString text;
  text.Format(L"%.2f m\u00B2", square_metres);
  return text;
}

}  // namespace fieldhost
