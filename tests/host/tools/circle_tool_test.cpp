// Drawing circles on the plan.

#include "tests/host/tools/plan_test.h"

namespace fieldhost {
namespace {

using tavix::test::Picture;

constexpr std::uint32_t kFigure = 0xC00080;
constexpr std::uint32_t kMark = 0xFF6000;
constexpr const wchar_t* kAskForCentre = L"Circle: tap its centre.";
constexpr const wchar_t* kCentreA = L"Centre X 0.000  Y 0.000  Tap a place on the circle.";
constexpr const wchar_t* kDrawn = L"Circle drawn, radius 100.000 m  Tap the next centre.";

class CircleTool : public PlanTest {
 protected:
  void Start() const {
    Command(ID_TOOL_CIRCLE);
    ExpectInfo(kAskForCentre);
  }
  void TapCentreA() const {
    Tap(0, 0);
    ExpectInfo(kCentreA);
  }
  void DrawFromAToB() const {
    TapCentreA();
    Tap(100, 0);
    ExpectInfo(kDrawn);
  }
};

TEST_F(CircleTool, DrawsAroundTheFirstTapThroughTheSecond) {
  Start();
  DrawFromAToB();
  ExpectColour(kFigure, 100);
  Exit();
}

TEST_F(CircleTool, TakesAPlaceBesidePointsAsItIs) {
  Start();
  Tap(50, 50);
  EXPECT_TRUE(WaitUntil([&] { return TextOf(Info()).starts_with(L"Centre X "); }));
  Tap(0, 0);
  ExpectInfoBegins(L"Circle drawn, radius 7");  // half of the diagonal, to the pixel
  Exit();
}

TEST_F(CircleTool, MarksTheCentreUntilTheCircleIsThere) {
  const Picture before = Shown();
  Start();
  TapCentreA();
  ExpectColour(kMark, 8);
  Command(ID_TOOL_CANCEL);
  ExpectInfo(kSummary);
  ExpectShown(before);
  Exit();
}

TEST_F(CircleTool, AsksAgainForACircleOfNoRadius) {
  Start();
  TapCentreA();
  Tap(0, 0);
  ExpectInfo(L"This is the centre: tap another place for the circle to pass through.");
  Tap(100, 0);
  ExpectInfo(kDrawn);
  Exit();
}

TEST_F(CircleTool, UndoTakesTheCentreBackThenTheCircles) {
  const Picture before = Shown();
  Start();
  DrawFromAToB();
  TapCentreA();
  Command(ID_TOOL_UNDO);
  ExpectInfo(L"The centre is taken back: tap another one.");
  Command(ID_TOOL_UNDO);
  ExpectInfo(L"The last circle is deleted. Tap a centre.");
  ExpectShown(before);
  Command(ID_TOOL_UNDO);
  ExpectInfo(L"There is no circle to take back. Tap a centre.");
  Exit();
}

TEST_F(CircleTool, LastCircleIsDeletedWithoutTheTool) {
  const Picture before = Shown();
  Start();
  DrawFromAToB();
  Command(ID_TOOL_FINISH);
  ExpectInfo(kSummary);
  ExpectColour(kFigure, 100);
  const Picture one_circle = Shown();
  Start();
  Tap(100, 100);
  ExpectInfoBegins(L"Centre X 100.000");
  Tap(0, 100);
  ExpectInfo(kDrawn);
  Command(ID_TOOL_CANCEL);
  ExpectInfo(kSummary);

  Command(ID_FIGURE_DELETE_CIRCLE);
  ExpectInfo(L"The last circle is deleted.");
  ExpectShown(one_circle);
  Command(ID_FIGURE_DELETE_CIRCLE);
  ExpectShown(before);
  Command(ID_FIGURE_DELETE_CIRCLE);
  ExpectInfo(L"There is no circle to delete.");
  Exit();
}

TEST_F(CircleTool, CentreSurvivesAResizedWindow) {
  Start();
  TapCentreA();
  Widen(420);
  ExpectColour(kMark, 8);
  ExpectInfo(kCentreA);
  Tap(100, 0);
  ExpectInfo(kDrawn);
  ExpectColour(kFigure, 100);
  Exit();
}

}  // namespace
}  // namespace fieldhost
