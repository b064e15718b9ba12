// The host's main window, worked by its commands.

#include <cstddef>

#include "tests/host/support/main_window_fixture.h"

namespace fieldhost {
namespace {

constexpr const wchar_t* kBoxTitle = L"fieldhost";

using MainWindow = WindowTest;

TEST_F(MainWindow, HasTheAskedClientSize) {
  ASSERT_NO_FATAL_FAILURE(Open({L"--size", L"300x400"}));
  RECT client = {};
  ::GetClientRect(window_, &client);
  EXPECT_EQ(300, client.right);
  EXPECT_EQ(400, client.bottom);
  ExpectInfo(L"0 points");
  Exit();
}

TEST_F(MainWindow, OpensFilesAndClosesThemAll) {
  ASSERT_NO_FATAL_FAILURE(Open({Sample(L"site.csv"), Sample(L"site.sim")}));
  ExpectInfo(L"94 points, 4 parcels");
  Command(ID_SURVEY_CLOSE_ALL);
  ExpectInfo(L"0 points");
  Exit();
}

TEST_F(MainWindow, TellsTheTappedPoint) {
  ASSERT_NO_FATAL_FAILURE(
      Open({Write(L"list.csv", "7,10.5,20.25,3,\xE6\x9C\xA8\nT-8,-1.0005,2,3\n")}));
  ExpectInfo(L"2 points");
  ::PostMessageW(window_, WM_COMMAND, ID_PLOT_NOTIFY, 1);
  ExpectInfo(L"7 木  X 10.500  Y 20.250");
  // A key no point has says nothing: what is shown stays.
  ::SendMessageW(window_, WM_COMMAND, ID_PLOT_NOTIFY, 3);
  EXPECT_EQ(L"7 木  X 10.500  Y 20.250", TextOf(Info()));
  Exit();
}

TEST_F(MainWindow, CapturesTheCoordinatesOfATap) {
  ASSERT_NO_FATAL_FAILURE(Open({Write(L"list.csv", "1,100,200,3,a\n2,110,210,3,b\n")}));
  ExpectInfo(L"2 points");
  Command(ID_SURVEY_CAPTURE);
  ExpectInfo(L"Tap a place to capture its coordinates.");
  TapPixel(100, 100);
  ExpectInfoBegins(L"Captured  X 1");
  Command(ID_SURVEY_CAPTURE);
  ExpectInfo(L"2 points");
  Exit();
}

TEST_F(MainWindow, PlotFollowsTheWindowsSize) {
  ASSERT_NO_FATAL_FAILURE(Open({Sample(L"site.csv"), L"--size", L"300x400"}));
  ExpectInfo(L"74 points");
  EXPECT_EQ(300, WidthOf(Plot()));
  const int frame = WidthOf(window_) - 300;
  ::SetWindowPos(window_, nullptr, 0, 0, 500 + frame, 500, SWP_NOMOVE | SWP_NOZORDER);
  EXPECT_TRUE(WaitUntil([&] { return Plot() && WidthOf(Plot()) == 500; }));
  // The survey is still there.
  ::PostMessageW(window_, WM_COMMAND, ID_PLOT_NOTIFY, 74);
  ExpectInfoBegins(L"504 雨水2  X ");
  Exit();
}

TEST_F(MainWindow, SizesThePlotOnceAfterTheEdgeWasDragged) {
  ASSERT_NO_FATAL_FAILURE(Open({L"--size", L"300x400"}));
  ASSERT_TRUE(WaitUntil([&] { return Plot() != nullptr; }));
  const HWND before = Plot();
  const int frame = WidthOf(window_) - 300;
  ::SendMessageW(window_, WM_ENTERSIZEMOVE, 0, 0);
  for (int width = 310; width <= 350; width += 10) {
    ::SetWindowPos(window_, nullptr, 0, 0, width + frame, 500, SWP_NOMOVE | SWP_NOZORDER);
    EXPECT_EQ(before, Plot());
  }
  ::SendMessageW(window_, WM_EXITSIZEMOVE, 0, 0);
  EXPECT_TRUE(WaitUntil([&] { return Plot() && WidthOf(Plot()) == 350; }));
  Exit();
}

// In a narrow window the words take two rows, in a wide one they fit into the first.
TEST_F(MainWindow, InformationLineIsLaidOutAnewWithTheWindowsWidth) {
  ASSERT_NO_FATAL_FAILURE(
      Open({Sample(L"site.csv"), Sample(L"site.sim"), Sample(L"site.xml"), L"--size", L"480x600"}));
  ExpectInfo(L"94 points, 4 parcels, 1 polyline, 5 alignment elements");
  const auto has_text = [&](int top, int bottom) {
    const tavix::test::Picture line = ShownBy(Info());
    int ink = 0;
    for (int y = top; y < bottom; ++y) {
      for (int x = 0; x < line.width; ++x) ink += line.At(x, y) != line.At(0, 0);
    }
    return ink > 100;
  };
  constexpr int kRow = 15;
  const auto one_row = [&] { return has_text(0, kRow) && !has_text(kRow, 2 * kRow); };
  EXPECT_TRUE(WaitUntil(one_row));
  Widen(240);
  EXPECT_TRUE(WaitUntil([&] { return has_text(0, kRow) && has_text(kRow, 2 * kRow); }));
  Widen(480);
  EXPECT_TRUE(WaitUntil(one_row));
  Exit();
}

TEST_F(MainWindow, ButtonsHideAndShow) {
  ASSERT_NO_FATAL_FAILURE(Open({Sample(L"site.csv")}));
  ExpectInfo(L"74 points");
  const HWND button = ::FindWindowExW(Plot(), nullptr, L"Button", nullptr);
  ASSERT_TRUE(button);
  const auto shown = [&] {
    for (HWND one = button; one; one = ::FindWindowExW(Plot(), one, L"Button", nullptr)) {
      if (::IsWindowVisible(one)) return true;
    }
    return false;
  };
  EXPECT_TRUE(shown());
  Command(ID_VIEW_BUTTONS);
  EXPECT_FALSE(shown());
  Command(ID_VIEW_BUTTONS);
  EXPECT_TRUE(shown());
  Exit();
}

TEST_F(MainWindow, SaysInABoxWhatCannotBeRead) {
  ASSERT_NO_FATAL_FAILURE(Open({In(L"none.csv"), Sample(L"site.sim")}));
  const HWND box = host_->WaitForWindow(kBoxTitle);
  ASSERT_TRUE(box);
  bool said = false;
  for (HWND child = ::GetWindow(box, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
    said |= TextOf(child).find(L"none.csv does not exist; check its name and folder.") !=
            std::wstring::npos;
  }
  EXPECT_TRUE(said);
  ::PostMessageW(box, WM_COMMAND, IDOK, 0);
  EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(box); }));
  ExpectInfo(L"20 points, 4 parcels");
  Exit();
}

}  // namespace
}  // namespace fieldhost
