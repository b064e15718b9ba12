// The button column for clients of different heights.
#include <tavix/tavix.h>

#include <ostream>
#include <string>
#include <vector>

#include "tests/support/button_face.h"
#include "tests/support/picture_compare.h"
#include "tests/support/plot_input.h"
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

static_assert(kButtonTable.size() == kButtons);

unsigned Id(int k) { return kButtonTable[static_cast<std::size_t>(k)].id; }

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
    if (!HasVisibleStyle(ButtonWindow(Id(k)))) continue;
    const RECT place = PlaceInClient(plot, ButtonWindow(Id(k)));
    shown.push_back({k, static_cast<int>(place.top), static_cast<int>(place.bottom - place.top)});
  }
  return shown;
}

struct Row {
  int height;
  std::vector<Place> shown;
};

// The nine main buttons from the top edge on.
std::vector<Place> AllNine() {
  std::vector<Place> shown;
  for (int k = 1; k <= 9; ++k) shown.push_back({k, (k - 1) * 20, 20});
  return shown;
}

// The first main buttons between the two that scroll.
std::vector<Place> Scrolling(int main_buttons) {
  std::vector<Place> shown{{0, 0, 10}};
  for (int k = 1; k <= main_buttons; ++k) shown.push_back({k, 10 + (k - 1) * 20, 20});
  shown.push_back({10, 10 + main_buttons * 20, 10});
  return shown;
}

// A client of 178 is two pixels too low for all nine, and counted as fitting them; one of 37 has no
// room for a main button, and one of 15 less than none: the count of places is -1.
const Row kRows[] = {{200, AllNine()},    {180, AllNine()},    {178, AllNine()},
                     {177, Scrolling(7)}, {100, Scrolling(4)}, {98, Scrolling(4)},
                     {97, Scrolling(3)},  {60, Scrolling(2)},  {38, Scrolling(1)},
                     {37, Scrolling(0)},  {18, Scrolling(0)},  {15, Scrolling(0)}};

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
    const HWND button = ButtonWindow(Id(k));
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
  const RawCanvas canvas(Window());
  for (const Place& shown : GetParam().shown) {
    DrawFace(canvas.Dc(), Id(shown.button), {kClientWidth - 20, shown.top});
  }
  EXPECT_EQ(0, Tavix_Drw(1));
  ::RedrawWindow(Window(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  EXPECT_TRUE(SamePicture(canvas.Take(), TakeClientPicture(Window())));
}

INSTANTIATE_TEST_SUITE_P(Heights, ButtonColumnOf, testing::ValuesIn(kRows),
                         [](const auto& row) { return std::to_string(row.param.height); });

}  // namespace
}  // namespace tavix::test
