// What holds for every call of the C layer: the instance, the thread, nulls, and the same answers
// as the call behind it.
#include <gtest/gtest.h>

#include <new>
#include <string>
#include <thread>

#include <c_call_table.h>  // made at build time
#include "tests/support/plot_test.h"

namespace tavix::test {
namespace {

std::wstring LastError() {
  wchar_t text[200];
  int length = 0;
  EXPECT_EQ(0, TavixC_LastError(text, 200, &length));
  EXPECT_EQ(static_cast<std::size_t>(length), std::wstring(text).size());
  return text;
}

bool BeginsWith(const std::wstring& text, const std::string& begin) {
  return text.compare(0, begin.size(), std::wstring(begin.begin(), begin.end())) == 0;
}

// A window that takes every message it is asked about, after doing what the test gives it to do.
class HearingWindow : public CWnd {
 public:
  explicit HearingWindow(void (*act)()) : act_(act) {
    EXPECT_TRUE(CreateEx(0, nullptr, L"", WS_POPUP, 0, 0, 9, 9, nullptr, nullptr));
  }

  BOOL PreTranslateMessage(MSG*) override {
    ++heard_;
    act_();
    return TRUE;
  }

  // A message of a pressed key to this window.
  [[nodiscard]] MSG Key() const { return {m_hWnd, WM_KEYDOWN, 'A', 1, 0, {}}; }

  [[nodiscard]] int Heard() const { return heard_; }

 private:
  void (*act_)();
  int heard_ = 0;
};

class CLayer : public PlotTest {
 protected:
  void TearDown() override {
    for (int i = 0; i < kInstances; ++i) TavixC_Del(i);
    PlotTest::TearDown();
  }

  // Every call on `instance` and its twin on the current instance, one after the other.
  static void CompareTwins(int instance) {
    for (const TwinCall& call : kTwinCalls) {
      const std::string name = call.name;
      if (name == "TavixC_Crt" || name == "TavixC_Del" || name == "TavixC_SetIdx") continue;
      const int current = CurrentIndex();
      Places plain;
      Places c;
      const int expected = call.plain(plain, current);
      EXPECT_EQ(expected, call.c(c, instance)) << name;
      EXPECT_EQ(plain.ints, c.ints) << name;
      EXPECT_EQ(plain.shorts, c.shorts) << name;
      EXPECT_EQ(plain.doubles, c.doubles) << name;
      EXPECT_EQ(current, CurrentIndex()) << name;
      EXPECT_EQ(expected < 0, !LastError().empty()) << name;
    }
  }
};

TEST_F(CLayer, HasAllCalls) { EXPECT_EQ(84U, std::size(kTwinCalls)); }

TEST_F(CLayer, RefusesAnInstanceThatThereIsNot) {
  for (const int instance : {-2147483647, -1, 5, 100}) {
    for (const TwinCall& call : kTwinCalls) {
      if (std::string(call.name) == "TavixC_GetIdx") continue;
      Places places;
      const int expected = call.gives_window ? 0 : TAVIX_C_NO_SUCH_INSTANCE;
      EXPECT_EQ(expected, call.c(places, instance)) << call.name;
      EXPECT_TRUE(BeginsWith(LastError(), call.name)) << call.name;
    }
  }
  EXPECT_EQ(0, CurrentIndex());
}

TEST_F(CLayer, RefusesAnotherThreadWhileAnInstanceExists) {
  ASSERT_EQ(0, TavixC_Crt(2));
  std::thread([] {
    for (const TwinCall& call : kTwinCalls) {
      Places places;
      const int expected = call.gives_window ? 0 : TAVIX_C_WRONG_THREAD;
      EXPECT_EQ(expected, call.c(places, 2)) << call.name;
      EXPECT_TRUE(BeginsWith(LastError(), call.name)) << call.name;
    }
  }).join();
  int angle = -1;
  EXPECT_EQ(0, TavixC_GetAng(2, &angle)) << "the instance is as it was";
}

TEST_F(CLayer, LetsAnotherThreadBeginAfterTheLastInstance) {
  ASSERT_EQ(0, TavixC_Crt(2));
  ASSERT_EQ(0, TavixC_Crt(4));
  ASSERT_EQ(0, TavixC_Del(2));
  std::thread([] { EXPECT_EQ(TAVIX_C_WRONG_THREAD, TavixC_Crt(0)); }).join();
  ASSERT_EQ(0, TavixC_Del(4));
  std::thread([] {
    EXPECT_EQ(0, TavixC_Crt(0));
    EXPECT_EQ(0, TavixC_Del(0));
  }).join();
  EXPECT_EQ(0, TavixC_Crt(0));
}

TEST_F(CLayer, RefusesANullWhereItWrites) {
  ASSERT_EQ(0, TavixC_Crt(1));
  EXPECT_LE(28U, std::size(kNullCalls));
  for (const NullCall& call : kNullCalls) {
    Places places;
    const bool vertices = std::string(call.name) == "TavixC_VoLst";
    const int expected = vertices ? -1 : TAVIX_C_NULL_OUTPUT;  // takes nulls while there are none
    EXPECT_EQ(expected, call.c(places, 1)) << call.name << ' ' << call.output;
    EXPECT_EQ(Places().ints, places.ints) << call.name;
    EXPECT_EQ(Places().doubles, places.doubles) << call.name;
    EXPECT_EQ(0, places.length) << call.name;
    EXPECT_TRUE(BeginsWith(LastError(), call.name)) << call.name;
  }
}

TEST_F(CLayer, AnswersAsTheLibraryDoesWithoutAnInstance) { CompareTwins(3); }

TEST_F(CLayer, AnswersAsTheLibraryDoesWithoutAWindow) {
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, TavixC_Crt(3));
  CompareTwins(3);
}

TEST_F(CLayer, AnswersAsTheLibraryDoesWithAWindow) {
  MakePlot(200, 200);
  ASSERT_EQ(0, TavixC_Crt(3));
  ASSERT_EQ(0, TavixC_LnkRct(3, host_.Window(), 0, 0, 200, 200, 901));
  for (const TwinCall& call : kTwinCalls) {
    const std::string name = call.name;
    if (name == "TavixC_Lnk" || name == "TavixC_LnkRct") continue;
    if (name == "TavixC_Crt" || name == "TavixC_Del" || name == "TavixC_SetIdx") continue;
    Places plain;
    Places c;
    EXPECT_EQ(call.plain(plain, 0), call.c(c, 3)) << name;
    EXPECT_EQ(0, CurrentIndex()) << name;
  }
}

TEST_F(CLayer, LeavesTheCurrentInstanceAloneWhenAnotherIsMadeAndDeleted) {
  Tavix_SetIdx(2);
  ASSERT_EQ(0, TavixC_Crt(4));
  EXPECT_EQ(2, CurrentIndex());
  ASSERT_EQ(0, TavixC_Crt(1));
  EXPECT_EQ(-1, TavixC_Crt(1)) << "it exists";
  ASSERT_EQ(0, TavixC_Del(4));
  EXPECT_EQ(2, CurrentIndex());
  EXPECT_EQ(0, TavixC_SetIdx(1));
  EXPECT_EQ(1, CurrentIndex());
}

TEST_F(CLayer, SaysItsVersion) {
  EXPECT_EQ(TAVIX_VERSION_MAJOR * 10000 + TAVIX_VERSION_MINOR * 100 + TAVIX_VERSION_PATCH,
            TavixC_Version());
}

TEST_F(CLayer, WorksOnItsInstanceAlone) {
  ASSERT_EQ(0, TavixC_Crt(0));
  ASSERT_EQ(0, TavixC_Crt(1));
  ASSERT_EQ(0, TavixC_EntPnt(1, 7, 70, L"T-7", 12.5, -3.25));
  double x = 0;
  double y = 0;
  EXPECT_EQ(-1, TavixC_GetPntCrd(0, 7, &x, &y));
  ASSERT_EQ(0, TavixC_GetPntCrd(1, 7, &x, &y));
  EXPECT_EQ(12.5, x);
  EXPECT_EQ(-3.25, y);
}

TEST_F(CLayer, TakesAnyNonZeroIntForOn) {
  ASSERT_EQ(0, TavixC_Crt(0));
  ASSERT_EQ(0, TavixC_LnkRct(0, host_.Window(), 0, 0, 200, 200, 901));
  const auto window = static_cast<HWND>(TavixC_Wnd(0));
  ASSERT_NE(nullptr, window);
  ASSERT_EQ(0, TavixC_Dsp(0, 256));
  EXPECT_TRUE(::IsWindowVisible(window));
  ASSERT_EQ(0, TavixC_Dsp(0, 0));
  EXPECT_FALSE(::IsWindowVisible(window));
}

TEST_F(CLayer, LinksToWindowHandlesAndRefusesWhatIsNone) {
  ASSERT_EQ(0, TavixC_Crt(0));
  EXPECT_EQ(nullptr, TavixC_Wnd(0));
  EXPECT_EQ(-1, TavixC_LnkRct(0, nullptr, 0, 0, 9, 9, 901));
  EXPECT_EQ(-1, TavixC_LnkRct(0, reinterpret_cast<void*>(0x1234567), 0, 0, 9, 9, 901));
  EXPECT_EQ(-1, TavixC_Lnk(0, reinterpret_cast<void*>(0x1234567), 1, 901));
  EXPECT_EQ(0, TavixC_LnkRct(0, host_.Window(), 0, 0, 99, 99, 901));
  EXPECT_EQ(host_.Window(), ::GetParent(static_cast<HWND>(TavixC_Wnd(0))));
}

TEST_F(CLayer, HandsTheArrowKeysToThePlot) {
  ASSERT_EQ(0, TavixC_Crt(0));
  ASSERT_EQ(0, TavixC_LnkRct(0, host_.Window(), 0, 0, 204, 204, 901));
  ASSERT_EQ(0, TavixC_Dsp(0, 1));
  MSG key{static_cast<HWND>(TavixC_Wnd(0)), WM_KEYDOWN, VK_LEFT, 0, 0, {}};
  int visible = -1;
  ASSERT_EQ(0, TavixC_ChkCrd(0, 0, -120, &visible));
  EXPECT_EQ(0, visible);
  EXPECT_EQ(1, TavixC_PreTranslate(&key));
  ASSERT_EQ(0, TavixC_ChkCrd(0, 0, -120, &visible));
  EXPECT_EQ(1, visible) << "half a drawing area further west";
  key.message = WM_KEYUP;
  EXPECT_EQ(0, TavixC_PreTranslate(&key));
  EXPECT_EQ(L"", LastError());
}

TEST_F(CLayer, TranslatesNothingOfANullMessage) {
  EXPECT_EQ(0, TavixC_PreTranslate(nullptr));
  EXPECT_TRUE(BeginsWith(LastError(), "TavixC_PreTranslate"));
}

TEST_F(CLayer, TranslatesMessagesOfItsOwnThreadOnly) {
  ASSERT_EQ(0, TavixC_Crt(3));
  HearingWindow window([] {});
  MSG key = window.Key();
  std::thread([&] {
    EXPECT_EQ(0, TavixC_PreTranslate(&key)) << "a window of another thread";
    EXPECT_TRUE(BeginsWith(LastError(), "TavixC_PreTranslate"));
    HearingWindow beside([] {});
    MSG here = beside.Key();
    EXPECT_EQ(0, TavixC_PreTranslate(&here)) << "the instances live on another thread";
    EXPECT_TRUE(BeginsWith(LastError(), "TavixC_PreTranslate"));
    EXPECT_EQ(0, beside.Heard());
  }).join();
  EXPECT_EQ(0, window.Heard());
  EXPECT_EQ(1, TavixC_PreTranslate(&key));
  EXPECT_EQ(1, window.Heard());
}

TEST_F(CLayer, LetsNoExceptionOutOfATranslation) {
  ASSERT_EQ(0, TavixC_Crt(3));
  Tavix_SetIdx(1);
  const struct {
    void (*raise)();
    const wchar_t* reason;
  } rows[] = {
      {[] { throw std::bad_alloc(); }, L"TavixC_PreTranslate: there was not enough memory"},
      {[] { AfxThrowMemoryException(); }, L"TavixC_PreTranslate: there was not enough memory"},
      {[] { AfxThrowUserException(); }, L"TavixC_PreTranslate: an exception ended the call"},
      {[] { throw 7; }, L"TavixC_PreTranslate: an exception ended the call"},
  };
  for (const auto& row : rows) {
    HearingWindow window(row.raise);
    MSG key = window.Key();
    EXPECT_EQ(0, TavixC_PreTranslate(&key));
    EXPECT_EQ(1, window.Heard());
    EXPECT_EQ(row.reason, LastError());
    EXPECT_EQ(1, CurrentIndex());
  }
  ASSERT_EQ(0, TavixC_Del(3));
  std::thread([] {
    EXPECT_EQ(0, TavixC_Crt(0));
    EXPECT_EQ(0, TavixC_Del(0));
  }).join();
}

}  // namespace
}  // namespace tavix::test
