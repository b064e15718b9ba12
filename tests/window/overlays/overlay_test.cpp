#include "tests/window/overlays/overlay_test.h"

#include <tavix/tavix.h>

#include "tests/support/picture_compare.h"

namespace tavix::test {
namespace {

constexpr RECT kPart{50, 40, 80, 75};

// The view an instance begins with, of a window that shows it.
void ResetView() {
  Tavix_Dsp(1);
  Tavix_Dsp3D(0);
  Tavix_SetAng(0);
  Tavix_SetTatYok(1, 1);
  Tavix_Zom(-80, -100, 80, 100);
}

}  // namespace

std::vector<OverlayTest::Disturbance> OverlayTest::Disturbances() {
  return {
      {"nothing", [] {}},
      {"pan", [] { Tavix_Pan(5, 7); }},
      {"pan and paint", [] { Tavix_Pan(0, 0), Shown(); }},
      {"zoom", [] { Tavix_Zom(-30, -40, 30, 40); }},
      {"zoom and paint", [] { Tavix_Zom(-80, -100, 80, 100), Shown(); }},
      {"redraw", [] { Tavix_Drw(1); }},
      {"redraw and paint", [] { Redrawn(); }},
      {"fit", [] { Tavix_Drw(0), Shown(); }},
      {"hide", [] { Tavix_Dsp(0); }},
      {"show", [] { Tavix_Dsp(1); }},
      {"hide, show and paint", [] { Tavix_Dsp(0), Tavix_Dsp(1), Shown(); }},
      {"paint a part", [] { ::InvalidateRect(Window(), &kPart, TRUE); }},
      {"paint a part at once",
       [] {
         ::RedrawWindow(Window(), &kPart, nullptr, RDW_INVALIDATE | RDW_UPDATENOW | RDW_ERASE);
       }},
      {"cover",
       [this] {
         RECT place{60, 50, 100, 90};
         ::MapWindowPoints(Window(), host_.Window(), reinterpret_cast<POINT*>(&place), 2);
         cover_ = host_.AddControl(77, place);
         ::SetWindowPos(cover_, HWND_TOP, 0, 0, 0, 0, SWP_NOMOVE | SWP_NOSIZE);
         ::UpdateWindow(cover_);
       }},
      {"turn and redraw", [] { Tavix_SetAng(30), Tavix_Drw(1); }},
      {"a new point under it",
       [] {
         const Ground at = GroundAt({75, 60});
         Tavix_DrwFlg(1);
         Tavix_EntPnt(2, 0, CString(), at.x, at.y);
       }},
      {"side view", [] { Tavix_Dsp3D(1), Redrawn(); }},
      {"side view and back",
       [] {
         Tavix_Dsp3D(1), Redrawn();
         Tavix_Dsp3D(0), Redrawn();
       }},
  };
}

void OverlayTest::ExpectNoTrace(const std::function<void()>& draw,
                                const std::function<void()>& take_off) {
  Enter(1, {0, 0}, AddLegend({.kind = 8, .size = 30, .color = RGB(0, 0, 200)}));
  for (const Disturbance& disturbance : Disturbances()) {
    SCOPED_TRACE(disturbance.what);
    ResetView();
    Redrawn();
    draw();
    disturbance.happens();
    take_off();
    if (::IsWindow(cover_)) ::DestroyWindow(cover_);
    Tavix_Dsp(1);
    ::UpdateWindow(host_.Window());
    const Picture after = Shown();
    EXPECT_TRUE(SamePicture(Redrawn(), after));
  }
}

}  // namespace tavix::test
