// The labels of points, pixel by pixel.
#include <tavix/tavix.h>

#include <limits>
#include <string>

#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"
#include "tests/support/raw_canvas.h"

namespace tavix::test {
namespace {

constexpr POINT kPlace{60, 70};
constexpr int kByName = 0;
constexpr int kByNumber = 1;

class PointLabels : public PlotTest {
 protected:
  void SetUp() override { MakePlot(300, 160); }

  // Compares a point with its mark and `label` drawn by raw calls.
  void ExpectLabel(const PointLegend& symbol, int number, const std::wstring& name,
                   const std::wstring& label, POINT at = kPlace) {
    ASSERT_EQ(0, Enter(1, GroundAt(at), AddLegend(symbol), name, number));
    RawCanvas canvas(Window());
    DrawRawPoint(canvas.Dc(), symbol, at, label);
    EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn()))
        << "number " << number << ", mark " << symbol.size << ", text " << symbol.text_height;
  }

  // How many pixels differ from the empty window's.
  static int Ink() {
    const Picture empty = RawCanvas(Window()).Take();
    const Picture shown = Shown();
    int ink = 0;
    for (std::size_t i = 0; i < empty.pixels.size(); ++i) {
      if (empty.pixels[i] != shown.pixels[i]) ++ink;
    }
    return ink;
  }
};

TEST_F(PointLabels, AreNamesOrNumbers) {
  const PointLegend named{4, 10, 16, kByName, 1, RGB(255, 0, 0)};
  PointLegend numbered = named;
  ExpectLabel(named, 42, L"A-17", L"A-17");
  for (const int flag : {kByNumber, 2, -1, std::numeric_limits<int>::min()}) {
    numbered.label_number = flag;
    ExpectLabel(numbered, 42, L"A-17", L"42");
  }
  ExpectLabel(numbered, std::numeric_limits<int>::max(), L"", L"2147483647");
}

TEST_F(PointLabels, OfNumbersThatAreNotPositiveAreNone) {
  const PointLegend symbol{0, 10, 16, kByNumber, 1, 0};
  for (const int number : {0, -1, -42, std::numeric_limits<int>::min()}) {
    ExpectLabel(symbol, number, L"name", L"");
    EXPECT_EQ(0, Ink()) << number;
  }
  ExpectLabel(symbol, 1, L"name", L"1");
  EXPECT_NE(0, Ink());
}

TEST_F(PointLabels, OfEmptyNamesAreNone) {
  ExpectLabel({0, 10, 16, kByName, 1, 0}, 5, L"", L"");
  EXPECT_EQ(0, Ink());
}

TEST_F(PointLabels, OfJapaneseNamesAreJapanese) {
  const PointLegend symbol{2, 10, 16, kByName, 1, 0};
  int ink_before = 0;
  for (const wchar_t* name : {L"一", L"基準点", L"境界標Ａ１", L"ｶﾀｶﾅ", L"測点①"}) {
    ExpectLabel(symbol, 1, name, name);
    EXPECT_GT(Ink(), 0);
    EXPECT_NE(ink_before, Ink()) << "every name draws the same";
    ink_before = Ink();
  }
}

TEST_F(PointLabels, HaveTheHeightTheLegendSays) {
  for (const int height : {1, 2, 5, 8, 9, 10, 11, 12, 16, 24, 40, 64}) {
    ExpectLabel({4, 10, height, kByName, 1, 0}, 1, L"点A1", L"点A1");
  }
}

TEST_F(PointLabels, OfNoHeightAreNone) {
  for (const int height : {0, -1, -12}) {
    ExpectLabel({4, 10, height, kByName, 1, 0}, 1, L"A", L"");
    ExpectLabel({4, 10, height, kByNumber, 1, 0}, 1, L"A", L"");
  }
}

TEST_F(PointLabels, StandAQuarterOfTheMarkBelowThePoint) {
  for (const int size : {1, 2, 3, 4, 5, 7, 8, 10, 31, 60}) {
    ExpectLabel({4, size, 16, kByName, 1, 0}, 1, L"A1", L"A1");
  }
}

TEST_F(PointLabels, StandAloneWithoutAMark) {
  for (const int size : {0, -3, -4, -8, -10}) {
    ExpectLabel({4, size, 16, kByName, 1, 0}, 1, L"A1", L"A1");
    EXPECT_NE(0, Ink()) << size;
  }
}

TEST_F(PointLabels, AreBlackWhateverTheLegendsColour) {
  for (const COLORREF color : {RGB(255, 0, 0), RGB(255, 255, 255), RGB(0, 128, 0)}) {
    ExpectLabel({10, 12, 20, kByName, 1, color}, 1, L"A1", L"A1");
  }
}

TEST_F(PointLabels, HaveNoBoxBehindThem) {
  const PointLegend ground{10, 60, 0, kByName, 1, RGB(0, 255, 0)};
  const PointLegend symbol{4, 10, 16, kByName, 1, 0};
  ASSERT_EQ(0, Enter(5, GroundAt(kPlace), AddLegend(ground)));
  ASSERT_EQ(0, Enter(6, GroundAt(kPlace), AddLegend(symbol), L"A1"));
  RawCanvas canvas(Window());
  DrawRawPoint(canvas.Dc(), ground, kPlace);
  DrawRawPoint(canvas.Dc(), symbol, kPlace, L"A1");
  EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn()));
}

TEST_F(PointLabels, AreDrawnAsTheSystemDrawsText) {
  const PointLegend symbol{4, 10, 16, kByName, 1, 0};
  for (const wchar_t* name :
       {L"A&B", L"A&&B", L"two\nlines", L"a\tb", L" blank", L"\xD842\xDFB7"}) {
    ExpectLabel(symbol, 1, name, name);
  }
}

TEST_F(PointLabels, RunOutOfTheWindowUncut) {
  const PointLegend symbol{4, 10, 20, kByName, 1, 0};
  const std::wstring name(60, L'W');
  for (const POINT& at : {POINT{60, 70}, POINT{290, 70}, POINT{60, 155}, POINT{-8, 70},
                          POINT{60, -9}, POINT{300, 160}}) {
    ExpectLabel(symbol, 1, name, name, at);
  }
}

}  // namespace
}  // namespace tavix::test
