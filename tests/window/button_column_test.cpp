// The button column for clients of different heights.
#include <tavix/tavix.h>

#include <ostream>
#include <string>
#include <vector>

#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"
#include "tests/support/raw_canvas.h"

namespace tavix::test {
namespace {

constexpr int kClientWidth = 150;
constexpr int kButtons = 11;

struct Place {
  int button;  // 0..10
  int top;     // pixels from the top of the client area
  int height;

  friend bool operator==(const Place&, const Place&) = default;
};

void PrintTo(const Place& place, std::ostream* out) {
  *out << "button " << place.button << " at " << place.top << ", " << place.height << " high";
}

HWND Button(HWND plot, int k) { return ::GetDlgItem(plot, 401 + 4 * k); }

RECT PlaceInClient(HWND plot, HWND button) {
  RECT place;
  ::GetWindowRect(button, &place);
  ::MapWindowPoints(nullptr, plot, reinterpret_cast<POINT*>(&place), 2);
  return place;
}

bool HasVisibleStyle(HWND window) {
  return (::GetWindowLongPtrW(window, GWL_STYLE) & WS_VISIBLE) != 0;
}

// The buttons that show, or would if the plot window did.
std::vector<Place> ShownButtons(HWND plot) {
  std::vector<Place> shown;
  for (int k = 0; k < kButtons; ++k) {
    if (!HasVisibleStyle(Button(plot, k))) continue;
    const RECT place = PlaceInClient(plot, Button(plot, k));
    shown.push_back({k, static_cast<int>(place.top), static_cast<int>(place.bottom - place.top)});
  }
  return shown;
}

// Draws a button's face where the button shows, and deletes the face.
void CopyFace(HDC dc, HBITMAP face, const Place& place) {
  const HDC source = ::CreateCompatibleDC(dc);
  {
    const RawSelection selection(source, face);
    ::BitBlt(dc, kClientWidth - 20, place.top, 20, place.height, source, 0, 0, SRCCOPY);
  }
  ::DeleteDC(source);
}

struct Row {
  int height;
  std::vector<Place> shown;
};

const Row kRows[] = {
    {200,
     {{1, 0, 20},
      {2, 20, 20},
      {3, 40, 20},
      {4, 60, 20},
      {5, 80, 20},
      {6, 100, 20},
      {7, 120, 20},
      {8, 140, 20},
      {9, 160, 20}}},
    {180,
     {{1, 0, 20},
      {2, 20, 20},
      {3, 40, 20},
      {4, 60, 20},
      {5, 80, 20},
      {6, 100, 20},
      {7, 120, 20},
      {8, 140, 20},
      {9, 160, 20}}},
    {178,  // two pixels too low, and counted as fitting
     {{1, 0, 20},
      {2, 20, 20},
      {3, 40, 20},
      {4, 60, 20},
      {5, 80, 20},
      {6, 100, 20},
      {7, 120, 20},
      {8, 140, 20},
      {9, 160, 20}}},
    {177,
     {{0, 0, 10},
      {1, 10, 20},
      {2, 30, 20},
      {3, 50, 20},
      {4, 70, 20},
      {5, 90, 20},
      {6, 110, 20},
      {7, 130, 20},
      {10, 150, 10}}},
    {100, {{0, 0, 10}, {1, 10, 20}, {2, 30, 20}, {3, 50, 20}, {4, 70, 20}, {10, 90, 10}}},
    {98, {{0, 0, 10}, {1, 10, 20}, {2, 30, 20}, {3, 50, 20}, {4, 70, 20}, {10, 90, 10}}},
    {97, {{0, 0, 10}, {1, 10, 20}, {2, 30, 20}, {3, 50, 20}, {10, 70, 10}}},
    {60, {{0, 0, 10}, {1, 10, 20}, {2, 30, 20}, {10, 50, 10}}},
    {38, {{0, 0, 10}, {1, 10, 20}, {10, 30, 10}}},
    {37, {{0, 0, 10}, {10, 10, 10}}},  // no room for a main button
    {18, {{0, 0, 10}, {10, 10, 10}}},
    {15, {{0, 0, 10}, {10, 10, 10}}},  // less than none: the count of places is -1
};

class ButtonColumnOf : public PlotTest, public testing::WithParamInterface<Row> {
 protected:
  void SetUp() override {
    ASSERT_EQ(0, Tavix_Crt());
    ASSERT_EQ(0, LinkPlot(kClientWidth, GetParam().height));
    ASSERT_EQ(GetParam().height, Client().bottom);
  }
};

TEST_P(ButtonColumnOf, ShowsWhatFits) { EXPECT_EQ(GetParam().shown, ShownButtons(Window())); }

TEST_P(ButtonColumnOf, HasElevenOwnerDrawnButtonsAtTheRightEdge) {
  for (int k = 0; k < kButtons; ++k) {
    const HWND button = Button(Window(), k);
    ASSERT_NE(nullptr, button) << k;
    EXPECT_EQ(Window(), ::GetParent(button)) << k;
    EXPECT_EQ(WS_CHILD | BS_OWNERDRAW,
              ::GetWindowLongPtrW(button, GWL_STYLE) & ~static_cast<LONG_PTR>(WS_VISIBLE))
        << k;
    const RECT place = PlaceInClient(Window(), button);
    EXPECT_EQ(kClientWidth - 20, place.left) << k;
    EXPECT_EQ(kClientWidth, place.right) << k;
    EXPECT_EQ(k == 0 || k == 10 ? 10 : 20, place.bottom - place.top) << k;
  }
}

TEST_P(ButtonColumnOf, HidesAndComesBackTheSame) {
  EXPECT_EQ(0, Tavix_SetBtn(0));
  EXPECT_EQ(std::vector<Place>(), ShownButtons(Window()));
  EXPECT_EQ(0, Tavix_SetBtn(1));
  EXPECT_EQ(GetParam().shown, ShownButtons(Window()));
  EXPECT_EQ(0, Tavix_SetBtn(1));
  EXPECT_EQ(GetParam().shown, ShownButtons(Window()));
}

TEST_P(ButtonColumnOf, ShowsTheButtonsFacesOverThePlot) {
  ASSERT_EQ(0, Tavix_Dsp(1));
  const HMODULE library = ::GetModuleHandleW(L"tavix.dll");
  RawCanvas canvas(Window());
  for (const Place& shown : GetParam().shown) {
    const HBITMAP face =
        ::LoadBitmapW(library, MAKEINTRESOURCEW(static_cast<WORD>(401 + 4 * shown.button)));
    ASSERT_NE(nullptr, face) << shown.button;
    CopyFace(canvas.Dc(), face, shown);
  }
  EXPECT_EQ(0, Tavix_Drw(1));
  ::RedrawWindow(Window(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  EXPECT_TRUE(SamePicture(canvas.Take(), TakeClientPicture(Window())));
}

INSTANTIATE_TEST_SUITE_P(Heights, ButtonColumnOf, testing::ValuesIn(kRows),
                         [](const auto& row) { return std::to_string(row.param.height); });

}  // namespace
}  // namespace tavix::test
