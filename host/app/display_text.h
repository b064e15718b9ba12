// Text for the user: UTF-8, which the host works with, as the framework's strings, and positions
// and measures to the millimetre.
#pragma once

#include <afxwin.h>

#include <string>
#include <string_view>

#include "host/survey/ground_geometry.h"

namespace fieldhost {

[[nodiscard]] CString WideOf(std::string_view utf8);
[[nodiscard]] std::string Utf8Of(const CString& text);

[[nodiscard]] CString PositionText(const GroundPosition& position);  // X 1.000  Y 2.000
[[nodiscard]] CString LengthText(double metres);                     // 1.000 m
[[nodiscard]] CString AreaText(double square_metres);                // 1.00 m²

}  // namespace fieldhost
