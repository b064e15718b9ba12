// Links during which Windows refuses to create a button.
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

  // The window of a link that could make only three of its buttons.
  static HWND HalfMade(const std::function<int()>& link) {
    const WindowRefusal refusal(L"BUTTON", 3);
    EXPECT_EQ(-1, link());
    return Window();
  }
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
  const HWND half_made = HalfMade([&] { return LinkByRect(); });
  EXPECT_EQ(0, LinkByRect());
  EXPECT_FALSE(::IsWindow(half_made));
  EXPECT_EQ(0, Tavix_Dsp(1));
  EXPECT_TRUE(::IsWindowVisible(Window()));
}

TEST_F(LinkFailures, GoWithTheirInstance) {
  const HWND half_made = HalfMade([&] { return LinkByControl(); });
  EXPECT_EQ(0, Tavix_Del());
  EXPECT_FALSE(::IsWindow(half_made));
  EXPECT_EQ(nullptr, Tavix_Wnd());
}

}  // namespace
}  // namespace tavix::test
