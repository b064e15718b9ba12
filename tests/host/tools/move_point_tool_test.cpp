// Moving a point on the plan.

#include "tests/host/tools/plan_test.h"

namespace fieldhost {
namespace {

using tavix::test::Picture;

constexpr std::uint32_t kMark = 0xFF6000;
constexpr const wchar_t* kAskForPoint = L"Move: tap the point to move.";
constexpr const wchar_t* kAskForPlace = L"a  X 0.000  Y 0.000  Tap its new place.";
constexpr const wchar_t* kOntoC =
    L"a  141.421 m  X 0.000 \u2192 100.000  Y 0.000 \u2192 100.000  Enter stores it.";
constexpr const wchar_t* kMoved =
    L"a moved  141.421 m  X 0.000 \u2192 100.000  Y 0.000 \u2192 100.000";

class MovePointTool : public PlanTest {
 protected:
  void PickA() const {
    Command(ID_TOOL_MOVE_POINT);
    ExpectInfo(kAskForPoint);
    Tap(0, 0);
    ExpectInfo(kAskForPlace);
  }
  void PickAAndTapC() const {
    PickA();
    Tap(100, 100);
    ExpectInfo(kOntoC);
  }
  // What the survey has for the point of key 1.
  void ExpectPointA(const wchar_t* text) const {
    ::SendMessageW(window_, WM_COMMAND, ID_PLOT_NOTIFY, 1);
    ExpectInfo(text);
  }
};

TEST_F(MovePointTool, FinishStoresTheNewPlace) {
  const Picture before = Shown();
  PickAAndTapC();
  ExpectColour(kMark, 100);
  Command(ID_TOOL_FINISH);
  ExpectInfo(kMoved);
  EXPECT_TRUE(WaitUntil([&] { return tavix::test::CountPixels(Shown(), kMark) == 0; }));
  EXPECT_NE(before, Shown());
  ExpectPointA(L"1 a  X 100.000  Y 100.000");
  Exit();
}

TEST_F(MovePointTool, LastTapBeforeTheFinishCounts) {
  PickAAndTapC();
  Tap(0, 100);
  ExpectInfo(L"a  100.000 m  X 0.000 \u2192 0.000  Y 0.000 \u2192 100.000  Enter stores it.");
  Command(ID_TOOL_FINISH);
  ExpectPointA(L"1 a  X 0.000  Y 100.000");
  Exit();
}

TEST_F(MovePointTool, CancelLeavesAllAsItWas) {
  const Picture before = Shown();
  PickAAndTapC();
  ExpectColour(kMark, 100);
  Command(ID_TOOL_CANCEL);
  ExpectInfo(kSummary);
  ExpectShown(before);
  ExpectPointA(L"1 a  X 0.000  Y 0.000");
  Exit();
}

TEST_F(MovePointTool, TapBesidePointsPicksNone) {
  Command(ID_TOOL_MOVE_POINT);
  Tap(50, 50);
  Tap(100, 0);
  ExpectInfo(L"b  X 100.000  Y 0.000  Tap its new place.");
  Exit();
}

TEST_F(MovePointTool, FinishWaitsForPointAndPlace) {
  Command(ID_TOOL_MOVE_POINT);
  Command(ID_TOOL_FINISH);
  ExpectInfo(kAskForPoint);
  Tap(0, 0);
  ExpectInfo(kAskForPlace);
  Command(ID_TOOL_FINISH);
  ExpectInfo(kAskForPlace);
  Tap(100, 100);
  ExpectInfo(kOntoC);
  Exit();
}

TEST_F(MovePointTool, UndoTakesBackThePlaceThenThePoint) {
  const Picture before = Shown();
  PickAAndTapC();
  Command(ID_TOOL_UNDO);
  ExpectInfo(kAskForPlace);
  Command(ID_TOOL_UNDO);
  ExpectInfo(kAskForPoint);
  ExpectShown(before);
  Command(ID_TOOL_UNDO);
  ExpectInfo(kAskForPoint);
  Tap(100, 0);
  ExpectInfo(L"b  X 100.000  Y 0.000  Tap its new place.");
  Exit();
}

TEST_F(MovePointTool, NewPlaceSurvivesAResizedWindow) {
  PickAAndTapC();
  Widen(420);
  ExpectColour(kMark, 100);
  ExpectInfo(kOntoC);
  Command(ID_TOOL_FINISH);
  ExpectInfo(kMoved);
  ExpectPointA(L"1 a  X 100.000  Y 100.000");
  Exit();
}

}  // namespace
}  // namespace fieldhost
