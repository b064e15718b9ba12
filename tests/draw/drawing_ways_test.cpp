// Whole scenes drawn both ways: fast, and by GDI calls alone.
#include <tavix/tavix.h>

#include <algorithm>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "tests/draw/random_scene.h"
#include "tests/platform/support/environment_variable.h"
#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"

namespace tavix::test {
namespace {

struct WaysScene {
  unsigned seed;
  int width;
  int height;
};

class DrawingWays : public PlotTest, public testing::WithParamInterface<WaysScene> {
 protected:
  // The scene under several views, in an instance of its own that is drawn one way.
  std::vector<Picture> Pictures(const wchar_t* way) {
    const EnvironmentVariable drawing(L"TAVIX_DRAWING", way);
    dice_ = Dice(GetParam().seed);
    MakePlot(GetParam().width, GetParam().height);
    EnterScene();
    std::vector<Picture> pictures;
    for (const int degrees : {0, 15, 90, 217, 359}) {
      EXPECT_EQ(0, Tavix_SetAng(degrees));
      Tavix_Drw(0);
      pictures.push_back(Redrawn());
      Tavix_Zom1(dice_.Between(-70, 70), dice_.Between(-70, 70), dice_.Between(15, 60));
      pictures.push_back(Redrawn());
      pictures.push_back(OneBit());
      Tavix_SetTatYok(dice_.Between(1, 4), dice_.Between(1, 4));
    }
    Tavix_SetAng(0);
    Tavix_SetWak(1, 100, 200, 100, 150);
    Tavix_Drw(0);
    pictures.push_back(Redrawn());
    pictures.push_back(OneBit());
    Tavix_SetWak(0, 0, 0, 0, 0);
    Tavix_Dsp3D(1);
    Tavix_Drw(0);
    pictures.push_back(Redrawn());
    EXPECT_EQ(0, Tavix_Del());
    return pictures;
  }

 private:
  double Metres() { return dice_.Between(-10'000, 10'000) / 100.0; }

  std::wstring Name() {
    const std::u16string name = dice_.Label();
    return {name.begin(), name.end()};
  }

  short AddPointLegend() {
    const int kind = dice_.Between(0, 12);
    const int size = dice_.Between(0, 24);
    const int text_height = dice_.Between(0, 24);
    const int label_number = dice_.Between(0, 1);
    const int width = dice_.Between(0, 3);
    const auto color = static_cast<COLORREF>(dice_.Color());
    return AddLegend({kind, size, text_height, label_number, width, color});
  }

  short AddLineLegend() {
    const int kind = dice_.Between(101, 105);
    const auto dash = static_cast<short>(dice_.Between(0, 9));
    const auto gap = static_cast<short>(dice_.Between(0, 6));
    const int width = dice_.Between(0, 4);
    short number = 0;
    EXPECT_EQ(0, Tavix_AddLinHan(kind, dash, gap, 2, width, dice_.Color(), &number));
    return number;
  }

  void EnterScene() {
    constexpr int kPoints = 250;
    Tavix_DrwFlg(0);
    short legend = AddPointLegend();
    for (int key = 1; key <= kPoints; ++key) {
      if (dice_.Between(0, 4) == 0) legend = AddPointLegend();
      const double x = Metres();
      const double y = Metres();
      Tavix_SelPntHan(legend);
      Tavix_EntPnt(key, key, CString(Name().c_str()), x, y);
      Tavix_EntPnt3(key, key, CString(Name().c_str()), y, x, Metres());
    }
    for (int i = 0; i < kPoints; ++i) {
      if (dice_.Between(0, 9) == 0) Tavix_SelLinHan(AddLineLegend());
      const int from = dice_.Between(1, kPoints);
      // Most lines are short.
      Tavix_EntLin(from, i % 9 == 0 ? dice_.Between(1, kPoints) : from % kPoints + 1);
    }
    for (int figure = 1; figure <= 40; ++figure) {
      Tavix_FigStt(figure, AddLineLegend());
      const double x = Metres();
      const double y = Metres();
      if (figure % 2 == 0) {
        Tavix_FigMdlCir(x, y, dice_.Between(0, 4000) / 100.0);
      } else {
        Tavix_FigMdlLin(x, y, x + Metres() / 10, y + Metres() / 10);
      }
      Tavix_FigEnd();
    }
    Tavix_DrwFlg(1);
  }

  // The one-bit picture, in black and white.
  static Picture OneBit() {
    constexpr int kHeight = 150;
    constexpr int kWidth = 200;
    Picture picture{kWidth, kHeight, {}};
    EXPECT_EQ(0, Tavix_GrpStt(kHeight, kWidth));
    for (int row = 0; row < kHeight; ++row) {
      for (int column = 0; column < kWidth; ++column) {
        int ink = 0;
        Tavix_GrpGet(row, column, &ink);
        picture.pixels.push_back(ink ? 0x000000 : 0xFFFFFF);
      }
    }
    Tavix_GrpEnd();
    return picture;
  }

  Dice dice_{0};
};

TEST_P(DrawingWays, ShowTheSame) {
  const std::vector<Picture> wanted = Pictures(L"gdi");
  const std::vector<Picture> fast = Pictures(L"fast");
  ASSERT_EQ(wanted.size(), fast.size());
  for (std::size_t i = 0; i < wanted.size(); ++i) {
    EXPECT_TRUE(SamePicture(wanted[i], fast[i])) << i;
    const std::vector<std::uint32_t>& pixels = wanted[i].pixels;
    EXPECT_TRUE(std::adjacent_find(pixels.begin(), pixels.end(), std::not_equal_to<>()) !=
                pixels.end())
        << i << " shows nothing";
  }
}

INSTANTIATE_TEST_SUITE_P(Dice, DrawingWays,
                         testing::Values(WaysScene{1, 240, 320}, WaysScene{2, 400, 300},
                                         WaysScene{3, 101, 97}, WaysScene{4, 640, 480}));

}  // namespace
}  // namespace tavix::test
