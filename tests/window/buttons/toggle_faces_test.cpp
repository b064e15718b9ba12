// The faces of the two buttons that stay pressed in.
#include <algorithm>

#include "tests/support/button_face.h"
#include "tests/support/interaction_test.h"
#include "tests/support/picture_compare.h"
#include "tests/support/raw_canvas.h"

namespace tavix::test {
namespace {

class ToggleFaces : public InteractionTest {
 protected:
  void SetUp() override {
    InteractionTest::SetUp();
    MakePlotWithButtons(240, 180);
  }

  static void ExpectFace(ButtonId button, unsigned bitmap, const char* state) {
    ::RedrawWindow(ButtonWindow(button), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    const RawCanvas canvas(ButtonWindow(button));
    DrawFace(canvas.Dc(), bitmap, {0, 0});
    EXPECT_TRUE(SamePicture(canvas.Take(), TakeClientPicture(ButtonWindow(button))))
        << button << " " << state << ", expected " << bitmap;
  }

  // Bitmaps by their numbers.
  struct Faces {
    unsigned up;
    unsigned held;
    unsigned focused;
    unsigned disabled;
  };

  static constexpr Faces Off(ButtonId button) {
    return {button, button + 1U, button + 2U, button + 3U};
  }

  // Pressed in: up and held change places, and the other two are bitmaps of their own.
  static Faces On(ButtonId button) {
    const auto* const row =
        std::ranges::find(kButtonTable, static_cast<unsigned>(button), &ButtonRow::id);
    return {button + 1U, button, row->pressed_in, row->pressed_in + 1};
  }

  static void ExpectFaces(ButtonId button, const Faces& faces) {
    ::SetFocus(Window());
    ExpectFace(button, faces.up, "up");
    ::SendMessageW(ButtonWindow(button), BM_SETSTATE, TRUE, 0);
    ExpectFace(button, faces.held, "held");
    ::SendMessageW(ButtonWindow(button), BM_SETSTATE, FALSE, 0);
    ::SetFocus(ButtonWindow(button));
    ExpectFace(button, faces.focused, "focused");
    ::SetFocus(Window());
    ::EnableWindow(ButtonWindow(button), FALSE);
    ExpectFace(button, faces.disabled, "disabled");
    ::EnableWindow(ButtonWindow(button), TRUE);
  }
};

TEST_F(ToggleFaces, OfTheBandZoomTakeTurns) {
  ExpectFaces(kBandZoomButton, Off(kBandZoomButton));
  Press(kBandZoomButton);
  ExpectFaces(kBandZoomButton, On(kBandZoomButton));
  Press(kBandZoomButton);
  ExpectFaces(kBandZoomButton, Off(kBandZoomButton));
  Press(kBandZoomButton);
  Drag({50, 40}, {150, 120});
  ExpectFaces(kBandZoomButton, Off(kBandZoomButton));
}

TEST_F(ToggleFaces, OfPanTakeTurns) {
  ExpectFaces(kPanButton, Off(kPanButton));
  Press(kPanButton);
  ExpectFaces(kPanButton, On(kPanButton));
  Press(kBandZoomButton);  // ends panning
  ExpectFace(kPanButton, Off(kPanButton).disabled, "disabled");
  Press(kBandZoomButton);
  ExpectFaces(kPanButton, Off(kPanButton));
}

}  // namespace
}  // namespace tavix::test
