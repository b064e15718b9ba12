// Positions and measures as the user reads them: to the millimetre.
#pragma once

#include <afxwin.h>

#include "host/survey/ground_position.h"

namespace fieldhost {

[[nodiscard]] CString PositionText(const GroundPosition& position);  // X 1.000  Y 2.000
[[nodiscard]] CString LengthText(double metres);                     // 1.000 m
[[nodiscard]] CString AreaText(double square_metres);                // 1.00 m²

}  // namespace fieldhost
