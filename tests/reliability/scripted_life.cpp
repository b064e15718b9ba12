#include "tests/reliability/scripted_life.h"

#include <tavix/tavix.h>

#include <algorithm>
#include <cstdint>
#include <sstream>

#include "tests/platform/support/modal_driver.h"
#include "tests/support/message_pump.h"
#include "tests/support/plot_input.h"
#include "tests/support/window_picture.h"

namespace tavix::test {
namespace {

constexpr UINT kNotifyId = 900;
constexpr RECT kPlace{10, 10, 230, 330};
constexpr int kPoints = 80;

// The answers of several calls in one text. To be made with braces: the calls then follow each
// other as they are written.
class Answer {
 public:
  template <class... Parts>
  explicit Answer(const Parts&... parts) {
    const char* separator = "";
    ((text_ << separator << parts, separator = " "), ...);
  }
  operator std::string() const { return text_.str(); }

 private:
  std::ostringstream text_;
};

std::string Narrow(const CString& text) {
  std::string narrow;
  for (int i = 0; i < text.GetLength(); ++i) narrow += static_cast<char>(text[i]);
  return narrow;
}

// The first answer of several calls that is not 0. A host that enters many things stops there: what
// it enters again later then comes in the same order.
class FirstRefusal {
 public:
  FirstRefusal& operator<<(int code) {
    if (code_ == 0) code_ = code;
    return *this;
  }
  [[nodiscard]] bool IsRefused() const { return code_ != 0; }
  operator std::string() const { return std::to_string(code_); }

 private:
  int code_ = 0;
};

// Strings are made before any fault: a host makes its own, and may fail to.
struct Texts {
  std::vector<CString> names;
  CString title{L"Boundary"};
  CString long_name = CString(L'n', 300);
  CString memo{L"iron pipe"};
  CString long_memo = CString(L'm', 2000);

  Texts() {
    for (int key = 0; key < kPoints; ++key) {
      names.emplace_back();
      names.back().Format(L"Point %d", key);
    }
  }
};

const Texts& TheTexts() {
  static const Texts& texts = *new Texts;
  return texts;
}

double NorthOf(int key) { return 10.0 * (key % 9) - 40.0; }
double EastOf(int key) { return 7.0 * (key / 9) - 30.0; }

std::string Link(CWnd* parent) {
  return Answer{
      Tavix_LnkRct(parent, kPlace.left, kPlace.top, kPlace.right, kPlace.bottom, kNotifyId),
      Tavix_Dsp(1)};
}

HWND PlotHandle() {
  const CWnd* window = Tavix_Wnd();
  return window ? window->m_hWnd : nullptr;
}

// The pixels of the plot window as one number.
std::string Look() {
  if (!PlotHandle()) return "no window";
  DrainMessages();
  ::UpdateWindow(PlotHandle());
  std::uint64_t hash = 14695981039346656037U;
  for (const std::uint32_t pixel : TakeClientPicture(PlotHandle()).pixels) {
    hash = (hash ^ pixel) * 1099511628211U;
  }
  return Answer{std::hex, hash};
}

std::string Redraw() { return Answer{Tavix_Drw(1), Look()}; }

std::string EnterPoints() {
  FirstRefusal first;
  for (int key = 0; key < kPoints && !first.IsRefused(); ++key) {
    Tavix_SelPntHan(static_cast<short>(1 + key % 11));
    first << Tavix_EntPnt(key, key, TheTexts().names[static_cast<std::size_t>(key)], NorthOf(key),
                          EastOf(key));
  }
  return first;
}

std::string EnterSidePoints() {
  FirstRefusal first;
  for (int key = 0; key < kPoints && !first.IsRefused(); ++key) {
    first << Tavix_EntPnt3(key, key, TheTexts().names[static_cast<std::size_t>(key)], NorthOf(key),
                           EastOf(key), key % 5);
  }
  return first;
}

std::string EnterLines() {
  FirstRefusal first;
  for (int key = 1; key < kPoints && !first.IsRefused(); ++key) {
    Tavix_SelLinHan(static_cast<short>(101 + key % 5));
    first << Tavix_EntLin(key - 1, key);
  }
  return first;
}

std::string ReadPoint() {
  int number = 0;
  CString name;
  double x = 0;
  double y = 0;
  const int code = Tavix_GetPntNoNam(7, &number, &name);
  const int code_of_position = Tavix_GetPntCrd(7, &x, &y);
  return Answer{code, number, Narrow(name), code_of_position, x, y};
}

std::string ReadMemo() {
  CString memo;
  const int code = Tavix_GetPntMem(1, &memo);
  return Answer{code, Narrow(memo)};
}

std::string AddLegends() {
  short point = 0;
  short line = 0;
  return FirstRefusal() << Tavix_AddPntHan(9, 1, RGB(0, 0, 255), 12, 12, 0, &point)
                        << Tavix_AddLinHan(104, 5, 3, 2, 1, RGB(0, 128, 0), &line)
                        << Tavix_ChgPntHan(2, 2, 1, RGB(255, 0, 0), 8, 14, 1);
}

// Entries get their numbers in the order in which they are added.
std::string StartOverWithLegends() {
  Tavix_Del();
  Tavix_Crt();
  return AddLegends();
}

std::string AddFigures() {
  const double north[] = {0.0, 20.0, 35.0, 10.0};
  const double east[] = {-20.0, -5.0, 15.0, 30.0};
  return FirstRefusal() << Tavix_FigStt(1, 101) << Tavix_FigMdlLin(-40.0, -30.0, 40.0, 30.0)
                        << Tavix_FigMdlCir(0.0, 0.0, 15.0) << Tavix_FigStt(2, 104)
                        << Tavix_FigMdlPly(4, north, east)
                        << Tavix_FigMdlArc(0.0, 0.0, 6.0, 0.0, 50.0)
                        << Tavix_FigMdlClo(0.0, 0.0, 35.0, 5.0, 160.0, 200.0, 140.0)
                        << Tavix_FigEnd();
}

std::string Trace() {
  FirstRefusal first;
  first << Tavix_VoStt();
  for (int i = 0; i < 5; ++i) first << Tavix_VoAdd(10.0 * i - 20.0, 5.0 * (i % 2));
  first << Tavix_VoDel() << Tavix_VoEnd();
  return first;
}

std::string MovePoint() {
  return FirstRefusal() << Tavix_MvPntStt(9) << Tavix_MvPntRub(0.0, 0.0)
                        << Tavix_MvPntMov(12.0, 12.0) << Tavix_MvPntMov(5.0, -8.0)
                        << Tavix_MvPntEnd();
}

std::string ShowSurround() {
  return FirstRefusal() << Tavix_SetWak(1, 254, 2970, 254, 2100) << Tavix_SclBarDsp(1)
                        << Tavix_SetAng(30) << Tavix_Drw(0);
}

std::string HideSurround() {
  return FirstRefusal() << Tavix_SetWak(0, 0, 0, 0, 0) << Tavix_SclBarDsp(0) << Tavix_SetAng(0)
                        << Tavix_Drw(0);
}

std::string ShowSide() {
  const int on = Tavix_Dsp3D(1);
  const int drawn = Tavix_Drw(0);
  const std::string seen = Look();
  const int off = Tavix_Dsp3D(0);
  return Answer{on, drawn, seen, off, Tavix_Drw(0)};
}

std::string DrawOneBit() {
  constexpr int kSide = 150;
  const int made = Tavix_GrpStt(kSide, kSide);
  int ink = 0;
  for (int row = 0; row < kSide && made == 0; ++row) {
    for (int column = 0; column < kSide; ++column) {
      int here = 0;
      Tavix_GrpGet(row, column, &here);
      ink += here;
    }
  }
  return Answer{made, ink, Tavix_GrpEnd()};
}

std::string UseWindow() {
  Tap({100, 100});
  Drag({60, 60}, {120, 140});
  Press(kPanButton);
  Drag({60, 60}, {90, 70});
  Press(kPanButton);
  double x = 0;
  double y = 0;
  const int started = Tavix_CrdStt(5);
  Tap({100, 100});
  return Answer{started, Tavix_CrdGet(&x, &y), Tavix_CrdEnd(), Tavix_Drw(0)};
}

std::string ChangeWithRedraws() {
  return FirstRefusal() << Tavix_DrwFlg(1) << Tavix_ChgPntCrd(3, 1.0, 2.0)
                        << Tavix_ChgPntHid(3, 201) << Tavix_EntPnt(500, 5, TheTexts().title, 3, 4)
                        << Tavix_EntLin(500, 3) << Tavix_ChgLinHid(500, 3, 202)
                        << Tavix_DelEntLin(500, 3) << Tavix_DelEntPnt(500) << Tavix_DrwFlg(0);
}

std::string Remove() {
  return FirstRefusal() << Tavix_DelFig(2) << Tavix_DelEntPnt3(3)
                        << Tavix_EntPnt3(3, 0, {}, 1, 2, 3) << Tavix_DelEntPnt(79)
                        << Tavix_EntPnt(79, 0, {}, 1, 2) << Tavix_ClrEntLin();
}

LifeStep Create() {
  return {"create",
          [] { return Answer{Tavix_Crt()}; },
          {},
          [] {
            Tavix_Del();
            return Answer{Tavix_Crt()};
          }};
}

LifeStep Link(HWND parent) {
  CWnd* const host = CWnd::FromHandle(parent);
  return {"link", [=] { return Link(host); }, {"-1 0", "-1 -1"}, {}};
}

LifeStep End() {
  return {"end", [] { return Answer{Tavix_Del(), Tavix_Wnd() == nullptr}; }, {}, {}};
}

}  // namespace

bool LifeStep::MayAnswer(const std::string& answer) const {
  return std::any_of(refusals.begin(), refusals.end(), [&](const std::string& refusal) {
    if (!refusal.ends_with('*')) return answer == refusal;
    return answer.starts_with(refusal.substr(0, refusal.size() - 1));
  });
}

std::vector<LifeStep> WholeLife(HWND parent) {
  const Texts& texts = TheTexts();
  return {
      Create(),
      {"legend", &AddLegends, {"-1"}, &StartOverWithLegends},
      {"title", [&] { return Answer{Tavix_PntHanTtl(9, texts.title)}; }, {"-1"}, {}},
      Link(parent),
      {"points", &EnterPoints, {"-1"}, {}},
      {"number and name",
       [&] { return Answer{Tavix_ChgPntNoNam(7, 70, texts.long_name)}; },
       {"-1"},
       {}},
      {"read a point", &ReadPoint, {"-1 0  0 30 -30"}, {}},
      {"enter a memo",
       [&] { return Answer{Tavix_EntPntMem(1, texts.memo)}; },
       {"-1", "-2", "-3"},
       {}},
      {"replace a memo",
       [&] { return Answer{Tavix_EntPntMem(1, texts.long_memo)}; },
       {"-1", "-2", "-3"},
       {}},
      {"read a memo", &ReadMemo, {"0 "}, {}},
      {"3-D points", &EnterSidePoints, {"-1"}, {}},
      {"lines", &EnterLines, {"-1"}, {}},
      {"figures", &AddFigures, {"-1"}, {}},
      {"fit",
       [] {
         return Answer{Tavix_Drw(0), Look()};
       },
       {"0 *"},
       {}},
      {"trace", &Trace, {"-1"}, {}},
      {"moved point", &MovePoint, {"-1"}, {}},
      {"surround", &ShowSurround, {"-1"}, {}},
      {"hide the surround", &HideSurround, {"-1"}, {}},
      {"side view", &ShowSide, {"0 0 *"}, {}},
      {"one-bit picture", &DrawOneBit, {"0 *"}, {}},
      // A tap for which there is no memory captures no point.
      {"taps and buttons", &UseWindow, {"0 -1 0 0"}, {}},
      {"changes", &ChangeWithRedraws, {"-1"}, {}},
      {"redraw", &Redraw, {"0 *"}, {}},
      {"remove", &Remove, {"-1"}, {}},
      {"redraw what is left", &Redraw, {"0 *"}, {}},
      {"clear", [] { return Answer{Tavix_DrwClr()}; }, {"-1", "1"}, {}},
      {"redraw nothing", &Redraw, {"0 *"}, {}},
      End(),
  };
}

std::vector<LifeStep> LifeWithSettings(HWND parent) {
  const auto settings = [] {
    ::test::ModalDriver driver({::test::Command(IDOK)});
    Press(kSettingsButton);
    short number = 2;
    int kind = 0;
    int width = 0;
    int color = 0;
    int size = 0;
    int height = 0;
    int label = 0;
    const int code = Tavix_GetPntHan(number, &kind, &width, &color, &size, &height, &label);
    return Answer{driver.Done(), code, kind, size, height, Tavix_Drw(0)};
  };
  return {Create(),
          Link(parent),
          {"title", [] { return Answer{Tavix_PntHanTtl(9, TheTexts().title)}; }, {"-1"}, {}},
          {"settings", settings, {"0 0 2 10 10 0"}, {}},
          {"redraw", &Redraw, {"0 *"}, {}},
          End()};
}

}  // namespace tavix::test
