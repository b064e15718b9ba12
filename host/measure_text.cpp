#include "host/measure_text.h"

namespace fieldhost {

CString PositionText(const GroundPosition& position) {
  CString text;
  text.Format(L"X %.3f  Y %.3f", position.north, position.east);
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
