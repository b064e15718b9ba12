// Two instances are given the same calls and input. One draws each redraw when it is asked for, the
// other when its picture is needed: no answer, no report, no update region and no pixel may differ.
#include <tavix/tavix.h>

#include <array>
#include <functional>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "tests/support/message_pump.h"
#include "tests/support/picture_compare.h"
#include "tests/support/plot_input.h"
#include "tests/support/plot_test.h"
#include "tests/support/redraw_count.h"

namespace tavix::test {
namespace {

constexpr int kLate = 0;
constexpr int kPrompt = 1;
constexpr SIZE kSize{150, 120};
constexpr UINT kPicks[] = {900, 901};
constexpr int kCaptures[] = {70, 71};

// What a call has answered, outputs included, as text.
using Answer = std::string;
using Call = std::function<Answer()>;

template <class... Values>
Answer Say(const Values&... values) {
  std::ostringstream text;
  text.precision(17);
  ((text << values << ' '), ...);
  return text.str();
}

// Makes calls that both instances can be given.
class RandomCalls {
 public:
  explicit RandomCalls(unsigned seed) : random_(seed) {}

  unsigned Below(unsigned limit) { return static_cast<unsigned>(random_() % limit); }

  Call Next();

 private:
  int Key() { return 1 + static_cast<int>(Below(9)); }
  double Coordinate() { return static_cast<double>(Below(2000)) / 10.0 - 100.0; }
  bool Chance(unsigned one_in) { return Below(one_in) == 0; }
  POINT Pixel() { return {static_cast<LONG>(Below(kSize.cx)), static_cast<LONG>(Below(kSize.cy))}; }
  short PointLegendNumber() {
    return static_cast<short>(Chance(6) ? 200 + Below(4) : 1 + Below(11));
  }
  short LineLegendNumber() { return static_cast<short>(101 + Below(6)); }
  COLORREF Color() { return RGB(Below(256), Below(256), Below(256)); }

  Call OnData();
  Call OnLegend();
  Call OnView();
  Call OnOverlays();
  Call OnFigures();
  Call OnSideView();
  Call ByUser();
  Call ByHost();

  std::mt19937 random_;
};

Call RandomCalls::Next() {
  switch (Below(16)) {
    case 0:
    case 1:
    case 2:
    case 3:
    case 4:
      return OnData();
    case 5:
      return OnLegend();
    case 6:
    case 7:
      return OnView();
    case 8:
    case 9:
      return OnOverlays();
    case 10:
    case 11:
      return OnFigures();
    case 12:
      return OnSideView();
    case 13:
    case 14:
      return ByUser();
    default:
      return ByHost();
  }
}

Call RandomCalls::OnData() {
  const int key = Key();
  const int other = Key();
  const double x = Coordinate();
  const double y = Coordinate();
  const int number = static_cast<int>(Below(4));
  const short legend = PointLegendNumber();
  const short line_legend = LineLegendNumber();
  const auto flag = static_cast<BYTE>(!Chance(4));
  switch (Below(15)) {
    case 0:
    case 1:
    case 2:
      return [=] { return Say(Tavix_EntPnt(key, number, L"点1", x, y)); };
    case 3:
      return [=] { return Say(Tavix_ChgPntCrd(key, x, y)); };
    case 4:
      return [=] { return Say(Tavix_ChgPntNoNam(key, number, L"B&b")); };
    case 5:
      return [=] { return Say(Tavix_ChgPntHid(key, legend)); };
    case 6:
      return [=] { return Say(Tavix_DelEntPnt(key)); };
    case 7:
    case 8:
      return [=] { return Say(Tavix_EntLin(key, other)); };
    case 9:
      return [=] { return Say(Tavix_ChgLinHid(key, other, line_legend)); };
    case 10:
      return [=] { return Say(Tavix_DelEntLin(key, other)); };
    case 11:
      return [=, rare = Chance(6)] { return Say(rare ? Tavix_ClrEntLin() : 0); };
    case 12:
      return [=, rare = Chance(12)] { return Say(rare ? Tavix_DrwClr() : 0); };
    case 13:
      return [=] { return Say(Tavix_DrwFlg(flag)); };
    default:
      return [=] {
        double at_x = 0.0;
        double at_y = 0.0;
        const int code = Tavix_GetPntCrd(key, &at_x, &at_y);
        return Say(code, at_x, at_y);
      };
  }
}

Call RandomCalls::OnLegend() {
  const short number = PointLegendNumber();
  const short line_number = LineLegendNumber();
  const int kind = 1 + static_cast<int>(Below(11));
  const int line_kind = 101 + static_cast<int>(Below(5));
  const int size = static_cast<int>(Below(20));
  const int text = static_cast<int>(Below(14));
  const int width = 1 + static_cast<int>(Below(3));
  const int color = static_cast<int>(Color());
  switch (Below(6)) {
    case 0:
      return [=] { return Say(Tavix_ChgPntHan(number, kind, width, color, size, text, text % 2)); };
    case 1:
      return [=] { return Say(Tavix_ChgLinHan(line_number, line_kind, 5, 3, 2, width, color)); };
    case 2:
      return [=] {
        short added = 0;
        const int code = Tavix_AddPntHan(kind, width, color, size, text, 0, &added);
        return Say(code, added);
      };
    case 3:
      return [=] { return Say(Tavix_SelLinHan(line_number)); };
    default:
      return [=] { return Say(Tavix_SelPntHan(number)); };
  }
}

Call RandomCalls::OnView() {
  const double x = Coordinate();
  const double y = Coordinate();
  const double extent = 5.0 + Below(150);
  const int angle = static_cast<int>(Below(360));
  const int up = 1 + static_cast<int>(Below(3));
  const auto flag = static_cast<BYTE>(Chance(2));
  switch (Below(10)) {
    case 0:
    case 1:
      return [=] { return Say(Tavix_Drw(flag)); };
    case 2:
      return [=] { return Say(Tavix_Zom(x, y, x + extent, y + extent)); };
    case 3:
      return [=] { return Say(Tavix_Zom1(x, y, extent)); };
    case 4:
      return [=] { return Say(Tavix_Pan(x / 2, y / 2)); };
    case 5:
      return [=] { return Say(Tavix_SetAng(angle)); };
    case 6:
      return [=] { return Say(Tavix_SetTatYok(up, 2)); };
    case 7:
      return [=, rare = Chance(3)] { return Say(rare ? Tavix_SetBtn(flag) : 0); };
    default:
      return [=] {
        int visible = 0;
        const int code = Tavix_ChkCir(x, y, extent / 4, &visible);
        return Say(code, visible);
      };
  }
}

Call RandomCalls::OnOverlays() {
  const double x = Coordinate() / 2;
  const double y = Coordinate() / 2;
  const int scale = static_cast<int>(Below(3000)) - 100;
  const short legend = PointLegendNumber();
  const auto flag = static_cast<BYTE>(Chance(2));
  switch (Below(17)) {
    case 0:
    case 1:
    case 2:
      return [=] { return Say(Tavix_VoAdd(x, y)); };
    case 3:
      return [=] { return Say(Tavix_VoDel()); };
    case 4:
      return [=, rare = Chance(3)] { return Say(rare ? Tavix_VoEnd() : Tavix_VoAdd(y, x)); };
    case 5:
      return [=] {
        int count = 0;
        Tavix_VoGet(&count);
        return Say(count);
      };
    case 6:
      return [=] { return Say(Tavix_MvPntStt(legend)); };
    case 7:
      return [=] { return Say(Tavix_MvPntRub(x, y)); };
    case 8:
    case 9:
      return [=] { return Say(Tavix_MvPntMov(x, y)); };
    case 10:
      return [=] { return Say(Tavix_MvPntEnd()); };
    case 11:
      return [=] { return Say(Tavix_SetWak(flag, 254, 300, 254, 200)); };
    case 12:
      return [=] { return Say(Tavix_WakDsp(flag)); };
    case 13:
      return [=] { return Say(Tavix_SetWakScl(scale)); };
    case 14:
      return [=] { return Say(Tavix_SetWakGen(x, y)); };
    case 15:
      return [=] { return Say(Tavix_SclBarDsp(flag)); };
    default:
      return [] {
        int n = 0;
        double at_x = 0.0;
        double at_y = 0.0;
        const int code = Tavix_GetWakScl(&n);
        Tavix_GetWakGen(&at_x, &at_y);
        return Say(code, n, at_x, at_y);
      };
  }
}

Call RandomCalls::OnFigures() {
  const double x = Coordinate();
  const double y = Coordinate();
  const double other = Coordinate();
  const int number = static_cast<int>(Below(5));
  const int legend = LineLegendNumber();
  const std::array<double, 4> north{x, y, other, x + 20};
  const std::array<double, 4> east{y, other, x, other - 30};
  switch (Below(9)) {
    case 0:
    case 1:
      return [=] { return Say(Tavix_FigStt(number, legend)); };
    case 2:
    case 3:
      return [=] { return Say(Tavix_FigMdlLin(x, y, other, x)); };
    case 4:
      return [=] { return Say(Tavix_FigMdlCir(x, y, other / 2)); };
    case 5:
      return [=] { return Say(Tavix_FigMdlPly(4, north.data(), east.data())); };
    case 6:
      return [=] { return Say(Tavix_FigMdlArc(x, y, other, x, 150.0)); };
    case 7:
      return [] { return Say(Tavix_FigEnd()); };
    default:
      return [=] { return Say(Tavix_DelFig(number)); };
  }
}

Call RandomCalls::OnSideView() {
  const int key = Key();
  const double x = Coordinate();
  const double y = Coordinate();
  const double z = Coordinate() / 4;
  const short legend = PointLegendNumber();
  const auto flag = static_cast<BYTE>(Chance(3));
  switch (Below(6)) {
    case 0:
    case 1:
      return [=] { return Say(Tavix_EntPnt3(key, key, L"h", x, y, z)); };
    case 2:
      return [=] { return Say(Tavix_ChgPnt3Hid(key, legend)); };
    case 3:
      return [=] { return Say(Tavix_ChgPnt3NoNam(key, 3, L"H")); };
    case 4:
      return [=] { return Say(Tavix_DelEntPnt3(key)); };
    default:
      return [=] { return Say(Tavix_Dsp3D(flag)); };
  }
}

HWND Plot() { return Tavix_Wnd()->m_hWnd; }

// Input as messages that are sent: no paint comes in between.
Call RandomCalls::ByUser() {
  const LPARAM first = MAKELPARAM(Pixel().x, Pixel().y);
  const POINT at = Pixel();
  const LPARAM second = MAKELPARAM(at.x, at.y);
  switch (Below(12)) {
    case 0:
    case 1:
    case 2:
    case 3:
    case 4:  // a tap
      return [=] {
        ::SendMessageW(Plot(), WM_LBUTTONDOWN, MK_LBUTTON, second);
        ::SendMessageW(Plot(), WM_LBUTTONUP, 0, second);
        double x = 0.0;
        double y = 0.0;
        const int code = Tavix_CrdGet(&x, &y);
        return Say(code, x, y);
      };
    case 5:  // a drag
      return [=] {
        ::SendMessageW(Plot(), WM_LBUTTONDOWN, MK_LBUTTON, first);
        ::SendMessageW(Plot(), WM_MOUSEMOVE, MK_LBUTTON, second);
        ::SendMessageW(Plot(), WM_LBUTTONUP, 0, second);
        return Answer();
      };
    case 6:
      return [=, start = Chance(3)] {
        int index = 0;
        Tavix_GetIdx(&index);
        return Say(start ? Tavix_CrdStt(kCaptures[index]) : Tavix_CrdEnd());
      };
    case 7:
      return [=, key = static_cast<WPARAM>(VK_LEFT + Below(4))] {
        MSG message{Plot(), WM_KEYDOWN, key, 1, 0, {}};
        return Say(Tavix_Wnd()->PreTranslateMessage(&message));
      };
    default: {
      constexpr unsigned kModes[] = {kBandZoomButton, kPanButton};
      constexpr unsigned kOthers[] = {kZoomInButton,  kZoomOutButton, kWholeViewButton,
                                      kRefreshButton, kRotateButton,  kRotateBackButton};
      const unsigned button =
          Chance(5) ? kModes[Below(ARRAYSIZE(kModes))] : kOthers[Below(ARRAYSIZE(kOthers))];
      return [=] { return Say(::SendMessageW(Plot(), WM_COMMAND, button, 0)); };
    }
  }
}

// What a host does to the window itself, and the one-bit picture.
Call RandomCalls::ByHost() {
  const POINT corner = Pixel();
  const RECT part{corner.x, corner.y, corner.x + 40, corner.y + 30};
  const int side = 30 + static_cast<int>(Below(40));
  switch (Below(8)) {
    case 0:
      return [=] { return Say(::InvalidateRect(Plot(), &part, TRUE)); };
    case 1:
      return [=] { return Say(::ValidateRect(Plot(), &part)); };
    case 2:
      return [] { return Say(::ValidateRect(Plot(), nullptr)); };
    case 3:
      return [=, show = static_cast<BYTE>(!Chance(3))] { return Say(Tavix_Dsp(show)); };
    case 4:
      return [=] {
        Answer ink = Say(Tavix_GrpStt(side, side));
        for (int i = 0; i < side * side; ++i) {
          int set = 0;
          Tavix_GrpGet(i / side, i % side, &set);
          ink += set ? '#' : '.';
        }
        Tavix_GrpEnd();
        return ink;
      };
    default:
      return [] { return Say(::UpdateWindow(Plot())); };
  }
}

class RedrawPair : public PlotTest, public testing::WithParamInterface<unsigned> {
 protected:
  void SetUp() override {
    for (const int index : {kLate, kPrompt}) {
      Tavix_SetIdx(index);
      ASSERT_EQ(0, Tavix_Crt());
      ASSERT_EQ(0, LinkPlot(kSize.cx, kSize.cy, {10 + index * 300, 10}, kPicks[index]));
      Tavix_SetBtn(0);
      ASSERT_EQ(0, Tavix_Dsp(1));
      Tavix_DrwFlg(1);
      Tavix_CrdStt(kCaptures[index]);
      Shown();
    }
    redraws_.Take();
  }

  static Answer Give(int index, const Call& call) {
    Tavix_SetIdx(index);
    return call();
  }

  // Has the prompt instance draw what is pending: setting the angle there is does nothing else.
  static void DrawPromptly() {
    Tavix_SetIdx(kPrompt);
    Tavix_SetAng(Angle());
  }

  static RECT UpdateRect(int index) {
    Tavix_SetIdx(index);
    RECT invalid{};
    ::GetUpdateRect(Plot(), &invalid, FALSE);
    return invalid;
  }

  static Picture Screen(int index) {
    Tavix_SetIdx(index);
    return TakeClientPicture(Plot());
  }

  // What an instance has reported: the keys of points, and 0 for a capture.
  [[nodiscard]] std::vector<LPARAM> Reported(int index) const {
    std::vector<LPARAM> reported;
    for (const auto& [id, value] : host_.Commands()) {
      if (id == kPicks[index] || id == static_cast<UINT>(kCaptures[index])) {
        reported.push_back(value);
      }
    }
    return reported;
  }

  RedrawCount redraws_;
};

TEST_P(RedrawPair, GivesTheSameAnswersReportsAndPixels) {
  RandomCalls calls(GetParam());
  int late = 0;
  int prompt = 0;
  for (int step = 0; step < 500; ++step) {
    const Call call = calls.Next();
    const Answer expected = Give(kPrompt, call);
    DrawPromptly();
    prompt += redraws_.Take();
    ASSERT_EQ(expected, Give(kLate, call)) << step;
    late += redraws_.Take();
    const RECT invalid = UpdateRect(kPrompt);
    const RECT actually = UpdateRect(kLate);
    ASSERT_TRUE(::EqualRect(&invalid, &actually)) << step;
    if (step % 3 == 0) {
      ASSERT_TRUE(SamePicture(Screen(kPrompt), Screen(kLate))) << step;
    }
    if (calls.Below(12) != 0) continue;
    for (const int index : {kPrompt, kLate}) {  // the host comes to its messages
      Tavix_SetIdx(index);
      ::InvalidateRect(Plot(), nullptr, TRUE);
    }
    DrainMessages();
    ASSERT_TRUE(SamePicture(Screen(kPrompt), Screen(kLate))) << step;
    ASSERT_EQ(Reported(kPrompt), Reported(kLate)) << step;
    late += redraws_.Take();
  }
  EXPECT_FALSE(Reported(kLate).empty());
  EXPECT_GT(prompt, 40);
  EXPECT_LT(late, prompt);
}

INSTANTIATE_TEST_SUITE_P(Seeds, RedrawPair, testing::Values(1u, 2u, 3u, 4u, 6u, 7u, 8u, 9u));

}  // namespace
}  // namespace tavix::test
