// A point entered with auto-redraw on is drawn at once: what is on the screen then, what is in the
// buffer, and what a full redraw makes of it are one picture.
#include <tavix/tavix.h>

#include <cstdint>
#include <functional>
#include <iterator>
#include <random>
#include <string>

#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"
#include "tests/support/raw_canvas.h"

namespace tavix::test {
namespace {

// The GDI objects of this process. Wine does not count them, but takes the index of one for it.
int GdiObjects() {
  if (const DWORD known = ::GetGuiResources(::GetCurrentProcess(), GR_GDIOBJECTS)) {
    return static_cast<int>(known);
  }
  int count = 0;
  for (std::uintptr_t index = 1; index < 0x10000; ++index) {
    if (::GetObjectType(reinterpret_cast<HGDIOBJ>(index)) != 0) ++count;
  }
  return count;
}

class ImmediateDrawing : public PlotTest {
 protected:
  // Screen, buffer and full redraw.
  static void ExpectOnePicture() {
    EXPECT_FALSE(AwaitsPaint());
    const Picture on_screen = TakeClientPicture(Window());
    ::InvalidateRect(Window(), nullptr, TRUE);
    EXPECT_TRUE(SamePicture(on_screen, Shown())) << "the buffer has something else";
    EXPECT_TRUE(SamePicture(on_screen, Redrawn())) << "a full redraw makes something else";
  }

  static PointLegend RandomSymbol(std::mt19937& random) {
    const auto below = [&random](unsigned limit) { return static_cast<int>(random() % limit); };
    return {below(13), below(40) - 4, below(24) - 2,
            below(2),  below(4),      RGB(below(256), below(256), below(256))};
  }
};

TEST_F(ImmediateDrawing, OfEachKindOfMark) {
  MakePlot(300, 100);
  Tavix_DrwFlg(1);
  RawCanvas canvas(Window());
  for (int kind = 0; kind <= 12; ++kind) {
    const PointLegend symbol{kind, 15, 12, 0, 1, RGB(0, 0, 255)};
    const POINT at{12 + kind * 22, 40};
    const std::wstring name = L"点" + std::to_wstring(kind);
    EXPECT_EQ(0, Enter(kind, GroundAt(at), AddLegend(symbol), name));
    DrawRawPoint(canvas.Dc(), symbol, at, name);
    EXPECT_TRUE(SamePicture(canvas.Take(), TakeClientPicture(Window()))) << kind;
  }
  ExpectOnePicture();
}

TEST_F(ImmediateDrawing, OfManyPointsOneOverTheOther) {
  MakePlot(240, 180);
  Tavix_DrwFlg(1);
  std::mt19937 random(20240511);  // the same points each time
  short legends[8];
  for (short& legend : legends) legend = AddLegend(RandomSymbol(random));
  for (int key = 0; key < 150; ++key) {
    const POINT at{static_cast<LONG>(random() % 280) - 20, static_cast<LONG>(random() % 220) - 20};
    EXPECT_EQ(0, Enter(key, GroundAt(at), legends[random() % 8], L"測点" + std::to_wstring(key),
                       static_cast<int>(random() % 5) - 1));
  }
  ExpectOnePicture();
}

TEST_F(ImmediateDrawing, InATurnedAndStretchedView) {
  MakePlot(240, 180);
  Tavix_SetAng(37);
  Tavix_SetTatYok(3, 2);
  Redrawn();  // with the north arrow, which a paint draws over the points: they keep clear of it
  Tavix_DrwFlg(1);
  std::mt19937 random(7);
  const short legend = AddLegend({9, 11, 12, 0, 1, RGB(255, 0, 0)});
  for (int key = 0; key < 40; ++key) {
    const Ground at{static_cast<double>(random() % 1000) / 10.0,
                    static_cast<double>(random() % 1500) / 10.0 - 30.0};
    EXPECT_EQ(0, Enter(key, at, legend, std::to_wstring(key)));
  }
  ExpectOnePicture();
}

// Nothing is before it: a full redraw shows it with the symbol of the point before.
TEST_F(ImmediateDrawing, OfAPointWithoutALegendEntryDrawsNothing) {
  MakePlot(200, 160);
  const PointLegend square{6, 15, 0, 0, 1, RGB(255, 0, 0)};
  Tavix_DrwFlg(1);
  EXPECT_EQ(0, Enter(1, GroundAt({60, 60}), AddLegend(square)));
  EXPECT_EQ(0, Enter(2, GroundAt({120, 60}), 999));
  RawCanvas canvas(Window());
  DrawRawPoint(canvas.Dc(), square, {60, 60});
  EXPECT_TRUE(SamePicture(canvas.Take(), TakeClientPicture(Window())));
  ::InvalidateRect(Window(), nullptr, TRUE);
  EXPECT_TRUE(SamePicture(canvas.Take(), Shown()));
  DrawRawPoint(canvas.Dc(), square, {120, 60});
  EXPECT_TRUE(SamePicture(canvas.Take(), Redrawn()));
}

TEST_F(ImmediateDrawing, SparesTheButtons) {
  MakePlot(200, 180);
  Tavix_SetBtn(1);
  Tavix_Drw(1);
  ::RedrawWindow(Window(), nullptr, nullptr, RDW_UPDATENOW | RDW_ALLCHILDREN);
  const Picture before = TakeClientPicture(Window());
  Tavix_DrwFlg(1);
  const short legend = AddLegend({10, 60, 0, 0, 1, RGB(255, 0, 0)});
  EXPECT_EQ(0, Enter(1, {0.0, 85.0}, legend));  // five pixels left of the column
  const Picture after = TakeClientPicture(Window());
  EXPECT_EQ(0xFF0000U, after.At(179, 90));
  for (int y = 0; y < 180; ++y) {
    for (int x = 180; x < 200; ++x) ASSERT_EQ(before.At(x, y), after.At(x, y)) << x << ", " << y;
  }
}

// What is kept from one point to the next goes along with the window.
TEST_F(ImmediateDrawing, KeepsUpWithItsWindow) {
  MakePlot(200, 160);
  Tavix_DrwFlg(1);
  const PointLegend symbols[] = {{10, 15, 12, 0, 1, RGB(255, 0, 0)},
                                 {2, 12, 0, 0, 3, RGB(0, 0, 255)},
                                 {9, 12, 10, 0, 1, RGB(0, 0, 255)}};
  const short legends[] = {AddLegend(symbols[0]), AddLegend(symbols[1]), AddLegend(symbols[2])};
  const struct {
    const char* what;
    std::function<void()> happens;
  } rows[] = {
      {"nothing", [] {}},
      {"moved", [] { ::SetWindowPos(Window(), nullptr, 300, 50, 0, 0, SWP_NOSIZE); }},
      {"hidden and shown", [] { Tavix_Dsp(0), Tavix_Dsp(1), Shown(); }},
      {"redrawn", [] { Redrawn(); }},
      {"redrawn without a paint", [] { Tavix_Drw(1), Tavix_DelEntPnt(999), Shown(); }},
      {"painted", [] { ::InvalidateRect(Window(), nullptr, TRUE), Shown(); }},
      {"traced over", [] { Tavix_VoAdd(-50, -50), Tavix_VoAdd(50, 50), Tavix_VoEnd(); }},
      {"another point moved", [] { Tavix_MvPntMov(0, 0), Tavix_MvPntEnd(); }},
      {"the legend changed and back",
       [&] {
         Tavix_ChgPntHan(legends[0], 3, 1, 0, 20, 0, 0);
         Tavix_ChgPntHan(legends[0], 10, 1, RGB(255, 0, 0), 15, 12, 0);
       }},
  };
  RawCanvas canvas(Window());
  int key = 0;
  for (const auto& [what, happens] : rows) {
    happens();
    for (std::size_t i = 0; i < std::size(symbols); ++i) {
      const POINT at{15 + key % 6 * 30, 20 + key / 6 * 25};
      const std::wstring name = L"N" + std::to_wstring(key);
      EXPECT_EQ(0, Enter(key++, GroundAt(at), legends[i], name));
      DrawRawPoint(canvas.Dc(), symbols[i], at, name);
    }
    EXPECT_TRUE(SamePicture(canvas.Take(), TakeClientPicture(Window()))) << what;
  }
  ExpectOnePicture();
}

// Two instances get the same; the second also paints a pixel each time, which gives back all that
// is kept.
TEST_F(ImmediateDrawing, IsTheSameWithNothingKept) {
  constexpr int kInstancesHere = 2;
  for (int index = 0; index < kInstancesHere; ++index) {
    Tavix_SetIdx(index);
    ASSERT_EQ(0, Tavix_Crt());
    ASSERT_EQ(0, LinkPlot(200, 160, {10 + 250 * index, 10}));
    Tavix_SetBtn(0);
    Tavix_Dsp(1);
    Tavix_DrwFlg(1);
    Redrawn();
  }
  std::mt19937 random(4711);
  const auto below = [&random](unsigned limit) { return static_cast<int>(random() % limit); };
  const wchar_t* const names[] = {L"P12", L"測点", L"a&b", L"ｱｲ", L""};
  for (int step = 0; step < 400; ++step) {
    const PointLegend look = RandomSymbol(random);
    const int what = below(12);
    const auto number = static_cast<short>(1 + below(11));
    const auto line = static_cast<short>(101 + below(5));
    const wchar_t* const name = names[below(5)];
    const Ground at{below(1600) / 10.0 - 80.0, below(2000) / 10.0 - 100.0};
    const int other = below(static_cast<unsigned>(step + 1));
    Picture pictures[kInstancesHere];
    for (int index = 0; index < kInstancesHere; ++index) {
      Tavix_SetIdx(index);
      if (what < 6) {
        Enter(step, at, number, name, step % 7);
      } else if (what < 8) {
        Tavix_SelLinHan(line);
        Tavix_EntLin(other, step / 2);
      } else if (what == 8) {
        Tavix_ChgPntHan(number, look.kind, look.width, static_cast<int>(look.color), look.size,
                        look.text_height, look.label_number);
      } else if (what == 9) {
        Tavix_ChgLinHan(line, line, 5, 3, 2, 1 + step % 3, static_cast<int>(look.color));
      } else if (what == 10) {
        Tavix_VoAdd(at.x, at.y);
      } else {
        Tavix_VoDel();
      }
      if (index == 1) {
        const RECT pixel{0, 0, 1, 1};
        ::InvalidateRect(Window(), &pixel, TRUE);
        ::UpdateWindow(Window());
      }
      pictures[index] = TakeClientPicture(Window());
    }
    ASSERT_TRUE(SamePicture(pictures[1], pictures[0])) << step;
  }
  for (int index = 0; index < kInstancesHere; ++index) {
    Tavix_SetIdx(index);
    const Picture on_screen = TakeClientPicture(Window());
    ::InvalidateRect(Window(), nullptr, TRUE);
    EXPECT_TRUE(SamePicture(on_screen, Shown())) << "the buffer has something else";
  }
}

TEST_F(ImmediateDrawing, SparesAWindowThatHasComeMeanwhile) {
  MakePlot(100, 100);
  Tavix_DrwFlg(1);
  const short legend = AddLegend({10, 300, 0, 0, 1, RGB(255, 0, 0)});
  const short small = AddLegend({10, 8, 0, 0, 1, RGB(255, 0, 0)});
  EXPECT_EQ(0, Enter(1, {0.0, 0.0}, small));
  const HWND cover = ::CreateWindowExW(0, L"STATIC", L"note", WS_CHILD | WS_VISIBLE, 20, 20, 50, 40,
                                       Window(), nullptr, ::GetModuleHandleW(nullptr), nullptr);
  ::UpdateWindow(cover);
  const Picture covered = TakeClientPicture(cover);
  EXPECT_EQ(0, Enter(2, {0.0, 0.0}, legend));
  EXPECT_TRUE(SamePicture(covered, TakeClientPicture(cover)));
  ::DestroyWindow(cover);
  EXPECT_EQ(100 * 100, CountPixels(Shown(), 0xFF0000));
}

TEST_F(ImmediateDrawing, LeavesOthersAloneWhenItsWindowIsGone) {
  MakePlot(100, 100);
  Tavix_DrwFlg(1);
  const PointLegend look{10, 20, 12, 0, 1, RGB(255, 0, 0)};
  const short legend = AddLegend(look);
  EXPECT_EQ(0, Enter(1, {0.0, 0.0}, legend));
  ::DestroyWindow(Window());
  EXPECT_EQ(0, Enter(2, {9.0, 9.0}, legend));

  Tavix_SetIdx(1);
  ASSERT_NO_FATAL_FAILURE(MakePlot(120, 90));
  Tavix_DrwFlg(1);
  const short other = AddLegend(look);
  RawCanvas canvas(Window());
  EXPECT_EQ(0, Enter(1, GroundAt({30, 30}), other, L"A"));
  DrawRawPoint(canvas.Dc(), look, {30, 30}, L"A");
  Tavix_SetIdx(0);
  EXPECT_EQ(0, Tavix_Del());
  EXPECT_EQ(0, Enter(2, GroundAt({70, 40}), other, L"B"));
  DrawRawPoint(canvas.Dc(), look, {70, 40}, L"B");
  EXPECT_TRUE(SamePicture(canvas.Take(), TakeClientPicture(Window())));
  ExpectOnePicture();
}

TEST_F(ImmediateDrawing, KeepsNoObjectsOfWindowsThatAreGone) {
  const auto life = [this] {
    MakePlot(100, 100);
    Tavix_DrwFlg(1);
    for (int i = 0; i < 20; ++i) {
      const PointLegend look{i % 13, 10, 8 + i, 0, i % 3, RGB(10 * i, 0, 0)};
      EXPECT_EQ(0, Enter(i, {1.0 * i, 2.0}, AddLegend(look), L"A"));
      EXPECT_EQ(0, Tavix_EntLin(i / 2, i));
    }
    EXPECT_EQ(0, Tavix_Del());
  };
  life();
  const int before = GdiObjects();
  ASSERT_NE(0, before);
  for (int i = 0; i < 20; ++i) life();
  EXPECT_EQ(before, GdiObjects());
}

TEST_F(ImmediateDrawing, StaysInItsOwnWindow) {
  MakePlot(100, 100);
  Tavix_SetIdx(1);
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, LinkPlot(100, 100, {150, 10}));
  Tavix_SetBtn(0);
  Tavix_Dsp(1);
  const Picture second = Redrawn();
  Tavix_SetIdx(0);
  Tavix_DrwFlg(1);
  const Picture host_before = TakeClientPicture(host_.Window());
  const short legend = AddLegend({10, 300, 0, 0, 1, RGB(255, 0, 0)});
  EXPECT_EQ(0, Enter(1, {0.0, 0.0}, legend));
  EXPECT_EQ(100 * 100, CountPixels(TakeClientPicture(Window()), 0xFF0000));
  const Picture host_after = TakeClientPicture(host_.Window());
  EXPECT_EQ(100 * 100, CountPixels(host_after, 0xFF0000) - CountPixels(host_before, 0xFF0000));
  Tavix_SetIdx(1);
  EXPECT_TRUE(SamePicture(second, TakeClientPicture(Window())));
}

}  // namespace
}  // namespace tavix::test
