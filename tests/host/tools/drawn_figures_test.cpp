// What the user draws beside the figures of a survey.

#include "tests/host/support/main_window_fixture.h"

namespace fieldhost {
namespace {

constexpr std::uint32_t kAlignment = 0xDC0000;
constexpr std::uint32_t kDrawn = 0xC00080;

using DrawnFigures = WindowTest;

TEST_F(DrawnFigures, LeaveThoseOfTheSurveyAloneWhenTheyAreDeleted) {
  ASSERT_NO_FATAL_FAILURE(Open({Sample(L"site.xml")}));
  ExpectInfo(L"1 polyline, 5 alignment elements");
  ExpectColour(kAlignment, 300);
  const int alignment = CountColour(kAlignment);

  Command(ID_TOOL_CIRCLE);
  TapPixel(60, 60);
  ExpectInfoBegins(L"Centre ");
  TapPixel(100, 60);
  ExpectInfoBegins(L"Circle drawn");
  ExpectColour(kDrawn, 100);

  Command(ID_FIGURE_DELETE_CIRCLE);
  ExpectInfo(L"The last circle is deleted.");
  Command(ID_TOOL_CANCEL);
  EXPECT_TRUE(WaitUntil([&] { return CountColour(kDrawn) == 0; }));
  EXPECT_EQ(alignment, CountColour(kAlignment));
  Exit();
}

}  // namespace
}  // namespace fieldhost
