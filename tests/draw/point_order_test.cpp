// Several points: the order they are drawn in, and symbols that alternate.
#include <tavix/tavix.h>

#include <string>
#include <vector>

#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"
#include "tests/support/raw_canvas.h"

namespace tavix::test {
namespace {

struct Drawn {
  PointLegend symbol;
  POINT at;
  std::wstring label;
};

class PointOrder : public PlotTest {
 protected:
  void SetUp() override { MakePlot(240, 180); }

  static void ExpectDrawn(const std::vector<Drawn>& points) {
    RawCanvas canvas(Window());
    for (const Drawn& point : points)
      DrawRawPoint(canvas.Dc(), point.symbol, point.at, point.label);
    EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn()));
  }
};

const PointLegend kRedSquare{10, 40, 0, 0, 1, RGB(255, 0, 0)};
const PointLegend kBlueSquare{10, 30, 0, 0, 1, RGB(0, 0, 255)};
const PointLegend kGreenCircle{8, 36, 0, 0, 1, RGB(0, 255, 0)};

TEST_F(PointOrder, IsTheOrderOfEntering) {
  Enter(3, GroundAt({100, 80}), AddLegend(kRedSquare));
  Enter(1, GroundAt({110, 90}), AddLegend(kBlueSquare));
  Enter(2, GroundAt({120, 80}), AddLegend(kGreenCircle));
  ExpectDrawn(
      {{kRedSquare, {100, 80}, {}}, {kBlueSquare, {110, 90}, {}}, {kGreenCircle, {120, 80}, {}}});
}

TEST_F(PointOrder, StaysWhenAPointIsEnteredAgainOrChanged) {
  const short red = AddLegend(kRedSquare);
  const short blue = AddLegend(kBlueSquare);
  Enter(1, GroundAt({100, 80}), red);
  Enter(2, GroundAt({110, 90}), blue);
  Enter(1, GroundAt({105, 85}), red);
  ExpectDrawn({{kRedSquare, {105, 85}, {}}, {kBlueSquare, {110, 90}, {}}});
  const Ground moved = GroundAt({115, 95});
  Tavix_ChgPntCrd(1, moved.x, moved.y);
  Tavix_ChgPntHid(1, blue);
  Tavix_ChgPntHid(2, red);
  ExpectDrawn({{kBlueSquare, {115, 95}, {}}, {kRedSquare, {110, 90}, {}}});
}

TEST_F(PointOrder, PutsAPointEnteredAfterItsDeletionLast) {
  const short red = AddLegend(kRedSquare);
  const short blue = AddLegend(kBlueSquare);
  Enter(1, GroundAt({100, 80}), red);
  Enter(2, GroundAt({110, 90}), blue);
  Tavix_DelEntPnt(1);
  Enter(1, GroundAt({100, 80}), red);
  ExpectDrawn({{kBlueSquare, {110, 90}, {}}, {kRedSquare, {100, 80}, {}}});
}

TEST_F(PointOrder, AlternatingLooksDoNotMix) {
  const PointLegend symbols[] = {
      {4, 15, 16, 0, 3, RGB(255, 0, 0)},    // thick cross, label
      {8, 14, 0, 0, 1, RGB(0, 0, 255)},     // filled, no label
      {6, 17, 12, 0, 1, RGB(0, 128, 0)},    // hollow again, smaller label
      {0, 10, 20, 1, 5, RGB(255, 0, 255)},  // no mark, the number
      {11, 19, 16, 0, 2, RGB(0, 0, 0)},
  };
  std::vector<short> legends;
  for (const PointLegend& symbol : symbols) legends.push_back(AddLegend(symbol));
  std::vector<Drawn> drawn;
  for (int i = 0; i < 60; ++i) {
    // In turn for a while, then in runs of three.
    const auto which = static_cast<std::size_t>(i < 30 ? i % 5 : i / 3 % 5);
    const POINT at{8 + i % 10 * 24, 12 + i / 10 * 28};
    const std::wstring name = L"点" + std::to_wstring(i);
    Enter(i, GroundAt(at), legends[which], name, i + 1);
    drawn.push_back(
        {symbols[which], at, symbols[which].label_number ? std::to_wstring(i + 1) : name});
  }
  ExpectDrawn(drawn);
}

// Mark, label, pen and brush are those of the point before; the first has none before it.
TEST_F(PointOrder, APointWithoutALegendEntryLooksLikeTheOneBefore) {
  const PointLegend named{5, 15, 12, 0, 2, RGB(0, 128, 0)};
  const PointLegend numbered{10, 11, 14, 1, 1, RGB(255, 0, 255)};
  const short red = AddLegend(kRedSquare);
  const short name = AddLegend(named);
  const short number = AddLegend(numbered);
  for (const short unknown : {short{-1}, short{0}, short{999}}) {
    Enter(1, GroundAt({20, 40}), unknown, L"A", 1);
    Enter(2, GroundAt({100, 80}), red, L"B", 2);
    Enter(3, GroundAt({160, 120}), unknown, L"C", 3);
    Enter(4, GroundAt({30, 120}), name, L"D", 4);
    Enter(5, GroundAt({60, 30}), unknown, L"E", 5);
    Enter(6, GroundAt({80, 140}), short{-1}, L"F", 6);
    Enter(7, GroundAt({140, 30}), number, L"G", 7);
    Enter(8, GroundAt({180, 60}), unknown, L"H", 8);
    ExpectDrawn({{kRedSquare, {100, 80}, {}},
                 {kRedSquare, {160, 120}, {}},
                 {named, {30, 120}, L"D"},
                 {named, {60, 30}, L"E"},
                 {named, {80, 140}, L"F"},
                 {numbered, {140, 30}, L"7"},
                 {numbered, {180, 60}, L"8"}});
  }
}

// The point before counts where it is out of view, too.
TEST_F(PointOrder, APointWithoutALegendEntryLooksLikeOneOutOfView) {
  Enter(1, {5000.0, 5000.0}, AddLegend(kBlueSquare));
  Enter(2, GroundAt({100, 80}), 999);
  ExpectDrawn({{kBlueSquare, {100, 80}, {}}});
}

TEST_F(PointOrder, APointEnteredBeforeAnySelectionHasNoLook) {
  const Ground at = GroundAt({100, 80});
  EXPECT_EQ(0, Tavix_EntPnt(1, 1, L"A", at.x, at.y));
  ExpectDrawn({});
}

TEST_F(PointOrder, ALookChangedLaterShowsAtTheNextRedraw) {
  const short legend = AddLegend(kRedSquare);
  Enter(1, GroundAt({100, 80}), legend);
  ExpectDrawn({{kRedSquare, {100, 80}, {}}});
  EXPECT_EQ(0, Tavix_ChgPntHan(legend, 8, 1, static_cast<int>(RGB(0, 255, 0)), 36, 0, 0));
  ExpectDrawn({{kGreenCircle, {100, 80}, {}}});
}

TEST_F(PointOrder, ALineEntryServesAPointByItsNumbers) {
  // Kind 102 is no mark, but a text height is a text height.
  EXPECT_EQ(0, Tavix_ChgLinHan(102, 102, 10, 16, 0, 1, 0));
  Enter(1, GroundAt({100, 80}), 102, L"A1");
  ExpectDrawn({{{102, 10, 16, 0, 1, 0}, {100, 80}, L"A1"}});
}

}  // namespace
}  // namespace tavix::test
