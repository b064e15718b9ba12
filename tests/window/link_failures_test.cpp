// Links during which the system refuses to make a window.
#include <tavix/tavix.h>

#include <functional>

#include "tests/support/plot_test.h"
#include "tests/support/window_refusal.h"

namespace tavix::test {
namespace {

constexpr int kControlId = 1234;

class LinkFailures : public PlotTest {
 protected:
  void SetUp() override {
    ASSERT_EQ(0, Tavix_Crt());
    host_.AddControl(kControlId, {30, 40, 230, 340});
  }

  int LinkByRect() { return LinkPlot(200, 300); }
  int LinkByControl() { return Tavix_Lnk(host_.AsParent(), kControlId, kNotifyId); }
};

TEST_F(LinkFailures, AnyButtonThatCannotBeMadeIsOne) {
  const struct {
    const char* what;
    std::function<int()> link;
  } rows[] = {{"rectangle", [&] { return LinkByRect(); }},
              {"control", [&] { return LinkByControl(); }}};
  for (const auto& [what, link] : rows) {
    for (const int made : {0, 1, 10}) {
      {
        const WindowRefusal refusal(L"BUTTON", made);
        EXPECT_EQ(-1, link()) << what << ", after " << made;
      }
      EXPECT_NE(nullptr, Tavix_Wnd()) << what << ", after " << made;
    }
    const WindowRefusal refusal(L"BUTTON", 11);
    EXPECT_EQ(0, link()) << what << ": eleven are enough";
  }
}

TEST_F(LinkFailures, AreForgottenByTheNextLink) {
  {
    const WindowRefusal refusal(L"BUTTON", 3);
    ASSERT_EQ(-1, LinkByRect());
  }
  const HWND half_made = Window();
  EXPECT_EQ(0, LinkByRect());
  EXPECT_FALSE(::IsWindow(half_made));
  EXPECT_EQ(0, Tavix_Dsp(1));
  EXPECT_TRUE(::IsWindowVisible(Window()));
}

TEST_F(LinkFailures, GoWithTheirInstance) {
  {
    const WindowRefusal refusal(L"BUTTON", 3);
    ASSERT_EQ(-1, LinkByControl());
  }
  const HWND half_made = Window();
  EXPECT_EQ(0, Tavix_Del());
  EXPECT_FALSE(::IsWindow(half_made));
  EXPECT_EQ(nullptr, Tavix_Wnd());
}

}  // namespace
}  // namespace tavix::test
