// Surveys of more points than the library's lines know keys for.

#include <algorithm>
#include <array>

#include "tests/host/support/main_window_fixture.h"
#include "tests/host/support/picture_image.h"

namespace fieldhost {
namespace {

constexpr std::uint32_t kParcelGreen = 0x006000;
constexpr std::uint32_t kBoundaryBlue = 0x0000C8;
constexpr POINT kPlace = {240, 320};  // where a vertex is moved to, in pixels

// Two parcels side by side. The list's points lie in one spot, without labels, so that
// the order of the files does not show in the points.
class ManyPoints : public WindowTest {
 protected:
  static constexpr int kListPoints = 32764;  // the last vertices of the parcels are beyond 32767

  void SetUp() override {
    WindowTest::SetUp();
    std::string points;
    for (int number = 1; number <= kListPoints; ++number) {
      points += std::to_string(number) + ",-40,50,,road\n";
    }
    list_ = Write(L"many.csv", points);
    parcels_ = Write(L"parcels.sim",
                     "A01,1,P1,0,0,\nA01,2,P2,97,11,\nA01,3,P3,83,61,\nA01,4,P4,-5,53,\n"
                     "A01,5,P5,101,131,\nA01,6,P6,7,113,\n"
                     "D00,1,west,1,\nB01,1,P1,\nB01,2,P2,\nB01,3,P3,\nB01,4,P4,\nD99,\n"
                     "D00,2,east,1,\nB01,4,P4,\nB01,3,P3,\nB01,5,P5,\nB01,6,P6,\nD99,\n");
  }

  std::wstring list_;
  std::wstring parcels_;
};

TEST_F(ManyPoints, ParcelsLookTheSameWhateverTheOrderOfTheFiles) {
  std::array<PictureImage, 2> images;
  for (const bool parcels_first : {true, false}) {
    HostProcess host(folder_, {parcels_first ? parcels_ : list_, parcels_first ? list_ : parcels_,
                               L"--picture", In(L"p.png"), L"--size", L"400x500"});
    ASSERT_EQ(0, host.Wait()) << host.Errors();
    EXPECT_EQ("32770 points, 2 parcels\n", host.Output());
    images[parcels_first ? 0 : 1] = DecodePicture(In(L"p.png"));
  }
  const auto& pixels = images[0].pixels;
  EXPECT_GT(std::count(pixels.begin(), pixels.end(), 0xFF000000U | kParcelGreen), 1000);
  EXPECT_TRUE(pixels == images[1].pixels);
}

TEST_F(ManyPoints, SidesOfParcelsFollowAMovedPointWhateverTheOrderOfTheFiles) {
  std::array<tavix::test::Picture, 2> plans;
  for (const bool parcels_first : {true, false}) {
    ASSERT_NO_FATAL_FAILURE(
        Open({parcels_first ? parcels_ : list_, parcels_first ? list_ : parcels_}));
    ExpectInfo(L"32770 points, 2 parcels");
    Command(ID_VIEW_BUTTONS);  // they are painted on their own
    ExpectColour(kParcelGreen, 1000);
    const tavix::test::Picture before = Shown();
    Command(ID_TOOL_MOVE_POINT);
    const int key = parcels_first ? 3 : kListPoints + 3;
    ::SendMessageW(window_, WM_COMMAND, ID_PLOT_NOTIFY, key);
    ExpectInfoBegins(L"P3  X 83.000  Y 61.000");
    TapPixel(kPlace.x, kPlace.y);
    EXPECT_TRUE(WaitUntil([&] { return TextOf(Info()).ends_with(L"Enter stores it."); }));
    Command(ID_TOOL_FINISH);
    ExpectInfoBegins(L"P3 moved");
    EXPECT_TRUE(WaitUntil([&] { return Shown().At(kPlace.x, kPlace.y) == kBoundaryBlue; }));
    plans[parcels_first ? 0 : 1] = Shown();
    EXPECT_NE(before, Shown());
    Exit();
  }
  EXPECT_GT(tavix::test::CountPixels(plans[0], kParcelGreen), 1000);
  EXPECT_EQ(plans[0], plans[1]);
}

}  // namespace
}  // namespace fieldhost
