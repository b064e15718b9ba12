#include "host/tools/circle_tool.h"

#include "host/app/display_text.h"
#include "host/survey/ground_geometry.h"

namespace fieldhost {

Progress CircleTool::Begin() {
  Say(L"Circle: tap its centre.");
  return Progress::kGoesOn;
}

void CircleTool::End() {
  mark_.Hide();
  centre_.reset();
}

void CircleTool::Restore() {
  if (centre_) mark_.Show(*centre_);
}

Progress CircleTool::PositionTapped(const GroundPosition& position) {
  constexpr double kSmallestRadius = 0.001;  // metres; less is the same point tapped twice
  if (!centre_) {
    TakeCentre(position);
  } else if (const double radius = Distance(*centre_, position); radius < kSmallestRadius) {
    Say(L"This is the centre: tap another place for the circle to pass through.");
  } else {
    Draw(radius);
  }
  return Progress::kGoesOn;
}

void CircleTool::TakeCentre(const GroundPosition& centre) {
  centre_ = centre;
  mark_.Show(centre);
  Say(L"Centre " + PositionText(centre) + L"  Tap a place on the circle.");
}

void CircleTool::Draw(double radius) {
  mark_.Hide();
  document_.DrawCircle({*centre_, radius});
  centre_.reset();
  Say(L"Circle drawn, radius " + LengthText(radius) + L"  Tap the next centre.");
}

void CircleTool::Undo() {
  if (centre_) {
    End();
    Say(L"The centre is taken back: tap another one.");
  } else if (document_.DeleteLastCircle()) {
    Say(L"The last circle is deleted. Tap a centre.");
  } else {
    Say(L"There is no circle to take back. Tap a centre.");
  }
}

Progress CircleTool::Finish(Ending) {
  Say(L"");
  return Progress::kDone;
}

}  // namespace fieldhost
