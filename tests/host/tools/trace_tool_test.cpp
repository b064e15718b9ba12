// Tracing a boundary on the plan.

#include "tests/host/tools/plan_test.h"

namespace fieldhost {
namespace {

using tavix::test::CountPixels;
using tavix::test::Picture;

constexpr std::uint32_t kFigure = 0xC00080;
constexpr std::uint32_t kTraced = 0xFF0000;  // cyan, exclusive-or, on white
constexpr std::uint32_t kMark = 0xFF6000;
constexpr const wchar_t* kAskForFirst = L"Trace: tap the first vertex.";
constexpr const wchar_t* kOneVertex = L"1 vertex  X 0.000  Y 0.000  Tap the next.";
constexpr const wchar_t* kTwoVertices = L"2 vertices  100.000 m  Tap the next; Enter finishes.";
constexpr const wchar_t* kThreeVertices =
    L"3 vertices  200.000 m  5000.00 m\u00B2  Tap the next; Enter finishes.";

class TraceTool : public PlanTest {
 protected:
  void Start() const {
    Command(ID_TOOL_TRACE);
    ExpectInfo(kAskForFirst);
  }
  void TapA() const {
    Tap(0, 0);
    ExpectInfo(kOneVertex);
  }
  void TapAToB() const {
    TapA();
    Tap(100, 0);
    ExpectInfo(kTwoVertices);
  }
  void TapAToC() const {
    TapAToB();
    Tap(100, 100);
    ExpectInfo(kThreeVertices);
  }
};

TEST_F(TraceTool, TellsVerticesLengthAndArea) {
  Start();
  TapAToC();
  Tap(0, 100);
  ExpectInfo(L"4 vertices  300.000 m  10000.00 m\u00B2  Tap the next; Enter finishes.");
  ExpectColour(kTraced, 300);
  Exit();
}

TEST_F(TraceTool, SaysThatTheBoundaryCrossesItself) {
  Start();
  TapA();
  Tap(100, 100);
  ExpectInfoBegins(L"2 vertices  141.421 m");
  Tap(100, 0);
  ExpectInfoBegins(L"3 vertices  241.421 m  5000.00 m\u00B2");
  Tap(0, 100);
  ExpectInfo(L"4 vertices  382.843 m  crosses itself  Tap the next; Enter finishes.");
  Exit();
}

TEST_F(TraceTool, VertexTappedAgainCountsOnce) {
  Start();
  TapA();
  Tap(0, 0);
  ExpectInfo(L"This vertex is there already: tap the next.");
  Tap(100, 0);
  ExpectInfo(kTwoVertices);
  Exit();
}

TEST_F(TraceTool, UndoTakesVerticesBackOneByOne) {
  const Picture before = Shown();
  Start();
  TapAToC();
  ExpectColour(kTraced, 150);
  Command(ID_TOOL_UNDO);
  ExpectInfo(kTwoVertices);
  Command(ID_TOOL_UNDO);
  ExpectInfo(kOneVertex);
  ExpectColour(kMark, 8);
  Command(ID_TOOL_UNDO);
  ExpectInfo(kAskForFirst);
  ExpectShown(before);
  Command(ID_TOOL_UNDO);
  ExpectInfo(L"There is no vertex to take back. Tap the first vertex.");
  // The trace goes on.
  TapAToB();
  Exit();
}

TEST_F(TraceTool, FinishLeavesALine) {
  Start();
  TapAToC();
  Command(ID_TOOL_FINISH);
  ExpectInfo(L"Line drawn: 3 vertices  200.000 m");
  // Two sides of the square, each two pixels wide.
  ExpectColour(kFigure, 600);
  EXPECT_EQ(0, CountPixels(Shown(), kTraced));
  EXPECT_EQ(0, CountPixels(Shown(), kMark));
  // The tool is put away: a tap shows the point.
  Tap(0, 0);
  ExpectInfo(L"1 a  X 0.000  Y 0.000");
  Exit();
}

TEST_F(TraceTool, FinishClosedLeavesABoundary) {
  Start();
  TapAToC();
  Command(ID_TOOL_FINISH);
  ExpectInfo(L"Line drawn: 3 vertices  200.000 m");
  ExpectColour(kFigure, 600);
  const int open_line = CountPixels(Shown(), kFigure);
  Command(ID_FIGURE_DELETE_BOUNDARY);
  ExpectInfo(L"The last boundary is deleted.");

  Start();
  TapAToC();
  Command(ID_TOOL_FINISH_CLOSED);
  ExpectInfo(L"Boundary drawn: 3 vertices  341.421 m  5000.00 m\u00B2");
  ExpectColour(kFigure, open_line + 200);
  Exit();
}

TEST_F(TraceTool, BoundaryTracedBackToItsStartCountsThatVertexOnce) {
  Start();
  TapAToC();
  Tap(0, 0);
  ExpectInfo(L"4 vertices  341.421 m  5000.00 m\u00B2  Tap the next; Enter finishes.");
  Command(ID_TOOL_FINISH_CLOSED);
  ExpectInfo(L"Boundary drawn: 3 vertices  341.421 m  5000.00 m\u00B2");
  Exit();
}

TEST_F(TraceTool, FinishWaitsForEnoughVertices) {
  Start();
  Command(ID_TOOL_FINISH);
  ExpectInfo(L"0 vertices: a line takes two. Tap the next.");
  TapA();
  Command(ID_TOOL_FINISH);
  ExpectInfo(L"1 vertex: a line takes two. Tap the next.");
  Tap(100, 0);
  ExpectInfo(kTwoVertices);
  Command(ID_TOOL_FINISH_CLOSED);
  ExpectInfo(L"2 vertices: a closed boundary takes three. Tap the next.");
  Tap(100, 100);
  ExpectInfo(kThreeVertices);
  Exit();
}

TEST_F(TraceTool, CancelLeavesNothing) {
  const Picture before = Shown();
  Start();
  TapAToC();
  ExpectColour(kTraced, 150);
  Command(ID_TOOL_CANCEL);
  ExpectInfo(kSummary);
  ExpectShown(before);
  // Nor does a new trace begin with the old vertices.
  Start();
  TapAToB();
  Exit();
}

TEST_F(TraceTool, DeletedBoundaryLeavesNothing) {
  const Picture before = Shown();
  Start();
  TapAToC();
  Command(ID_TOOL_FINISH_CLOSED);
  ExpectColour(kFigure, 600);
  Command(ID_FIGURE_DELETE_BOUNDARY);
  ExpectShown(before);
  Command(ID_FIGURE_DELETE_BOUNDARY);
  ExpectInfo(L"There is no boundary to delete.");
  Exit();
}

TEST_F(TraceTool, VerticesSurviveAResizedWindow) {
  Start();
  TapAToB();
  Widen(420);
  ExpectColour(kTraced, 150);
  ExpectInfo(kTwoVertices);
  Tap(100, 100);
  ExpectInfo(kThreeVertices);
  Command(ID_TOOL_UNDO);
  ExpectInfo(kTwoVertices);
  Exit();
}

}  // namespace
}  // namespace fieldhost
