// The faces of the two buttons that stay pressed in.
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

  static HWND Button(int id) { return ::GetDlgItem(Window(), id); }

  static void ExpectFace(int button, int bitmap, const char* state) {
    ::RedrawWindow(Button(button), nullptr, nullptr, RDW_INVALIDATE | RDW_UPDATENOW);
    const RawCanvas canvas(Button(button));
    DrawFace(canvas.Dc(), bitmap, {0, 0});
    EXPECT_TRUE(SamePicture(canvas.Take(), TakeClientPicture(Button(button))))
        << button << " " << state << ", expected " << bitmap;
  }

  struct Faces {
    int up;
    int held;
    int focused;
    int disabled;
  };

  static void ExpectFaces(int button, const Faces& faces) {
    ::SetFocus(Window());
    ExpectFace(button, faces.up, "up");
    ::SendMessageW(Button(button), BM_SETSTATE, TRUE, 0);
    ExpectFace(button, faces.held, "held");
    ::SendMessageW(Button(button), BM_SETSTATE, FALSE, 0);
    ::SetFocus(Button(button));
    ExpectFace(button, faces.focused, "focused");
    ::SetFocus(Window());
    ::EnableWindow(Button(button), FALSE);
    ExpectFace(button, faces.disabled, "disabled");
    ::EnableWindow(Button(button), TRUE);
  }
};

TEST_F(ToggleFaces, OfTheBandZoomTakeTurns) {
  constexpr Faces kOff{405, 406, 407, 408};
  constexpr Faces kOn{406, 405, 451, 452};
  ExpectFaces(kBandZoom, kOff);
  Press(kBandZoom);
  ExpectFaces(kBandZoom, kOn);
  Press(kBandZoom);
  ExpectFaces(kBandZoom, kOff);
  Press(kBandZoom);
  Drag({50, 40}, {150, 120});
  ExpectFaces(kBandZoom, kOff);
}

TEST_F(ToggleFaces, OfPanTakeTurns) {
  constexpr Faces kOff{421, 422, 423, 424};
  constexpr Faces kOn{422, 421, 449, 450};
  ExpectFaces(kPan, kOff);
  Press(kPan);
  ExpectFaces(kPan, kOn);
  Press(kBandZoom);  // ends panning
  ExpectFace(kPan, kOff.disabled, "disabled");
  Press(kBandZoom);
  ExpectFaces(kPan, kOff);
}

}  // namespace
}  // namespace tavix::test
