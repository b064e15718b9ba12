// One tool at a time, by menu and keyboard.

#include "tests/host/tools/plan_test.h"

namespace fieldhost {
namespace {

using tavix::test::Picture;

constexpr const wchar_t* kAskForVertex = L"Trace: tap the first vertex.";

class Toolbox : public PlanTest {
 protected:
  // A key, typed while the plot has the keyboard.
  void Press(WPARAM key) const {
    ::PostMessageW(Plot(), WM_KEYDOWN, key, 0);
    ::PostMessageW(Plot(), WM_KEYUP, key, 0);
  }
};

TEST_F(Toolbox, AnotherToolEndsTheFirstWithoutATrace) {
  const Picture before = Shown();
  Command(ID_TOOL_TRACE);
  Tap(0, 0);
  ExpectInfoBegins(L"1 vertex");
  Tap(100, 0);
  ExpectInfoBegins(L"2 vertices");
  Command(ID_TOOL_CIRCLE);
  ExpectInfo(L"Circle: tap its centre.");
  ExpectShown(before);
  Tap(0, 0);
  ExpectInfoBegins(L"Centre X 0.000");
  Command(ID_TOOL_MOVE_POINT);
  ExpectInfo(L"Move: tap the point to move.");
  ExpectShown(before);
  Command(ID_SURVEY_CAPTURE);
  ExpectInfo(L"Tap a place to capture its coordinates.");
  Tap(0, 0);
  ExpectInfo(L"Captured  X 0.000  Y 0.000");
  Exit();
}

TEST_F(Toolbox, ToolChosenAgainIsPutAway) {
  for (const int tool : {ID_SURVEY_CAPTURE, ID_TOOL_CIRCLE, ID_TOOL_TRACE, ID_TOOL_MOVE_POINT}) {
    Command(tool);
    EXPECT_NE(kSummary, TextOf(Info()));
    Command(tool);
    ExpectInfo(kSummary);
  }
  Tap(0, 0);
  ExpectInfo(L"1 a  X 0.000  Y 0.000");
  Exit();
}

TEST_F(Toolbox, KeysWorkTheTool) {
  Press(VK_F7);
  ExpectInfo(kAskForVertex);
  Tap(0, 0);
  ExpectInfoBegins(L"1 vertex");
  Tap(100, 0);
  ExpectInfoBegins(L"2 vertices");
  Press(VK_BACK);
  ExpectInfoBegins(L"1 vertex");
  Tap(0, 100);
  ExpectInfoBegins(L"2 vertices");
  Press(VK_RETURN);
  ExpectInfo(L"Line drawn: 2 vertices  100.000 m");
  Press(VK_F6);
  ExpectInfo(L"Circle: tap its centre.");
  Press(VK_ESCAPE);
  ExpectInfo(kSummary);
  Press(VK_F8);
  ExpectInfo(L"Move: tap the point to move.");
  Exit();
}

TEST_F(Toolbox, StepsWithoutAToolDoNothing) {
  const Picture before = Shown();
  for (const int step : {ID_TOOL_UNDO, ID_TOOL_FINISH, ID_TOOL_FINISH_CLOSED, ID_TOOL_CANCEL}) {
    Command(step);
    ExpectInfo(kSummary);
  }
  ExpectShown(before);
  Exit();
}

TEST_F(Toolbox, ClosedSurveyEndsTheToolAndTheFigures) {
  Command(ID_TOOL_CIRCLE);
  Tap(0, 0);
  ExpectInfoBegins(L"Centre X 0.000");
  Tap(100, 0);
  ExpectInfoBegins(L"Circle drawn");
  Tap(100, 100);
  ExpectInfoBegins(L"Centre X 100.000");
  Command(ID_SURVEY_CLOSE_ALL);
  ExpectInfo(L"0 points");
  EXPECT_TRUE(WaitUntil([&] {
    const Picture shown = Shown();
    return tavix::test::CountPixels(shown, 0xFFFFFF) == shown.width * shown.height;
  }));
  Command(ID_FIGURE_DELETE_CIRCLE);
  ExpectInfo(L"There is no circle to delete.");
  Exit();
}

}  // namespace
}  // namespace fieldhost
