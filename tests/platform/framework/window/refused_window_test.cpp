// A window that another hook of the thread refuses, after it was bound and before its first
// message: its object kept the handle of a window that is gone.
#include <afxwin.h>
#include <gtest/gtest.h>

#include "tests/support/window_refusal.h"

namespace {

using tavix::test::WindowRefusal;

class EndCountingWnd : public CWnd {
 public:
  int ends = 0;

 protected:
  void PostNcDestroy() override { ++ends; }
};

constexpr const wchar_t* kClass = L"STATIC";

BOOL Create(CWnd& object) {
  return object.CreateEx(0, kClass, L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr);
}

TEST(RefusedWindow, LeavesItsObjectWithoutAWindow) {
  EndCountingWnd object;
  {
    const WindowRefusal refusal(kClass, 0);
    EXPECT_FALSE(Create(object));
  }
  EXPECT_EQ(nullptr, object.m_hWnd);
  EXPECT_EQ(1, object.ends);
  EXPECT_FALSE(object.DestroyWindow());
}

TEST(RefusedWindow, MayBeMadeLater) {
  EndCountingWnd object;
  {
    const WindowRefusal refusal(kClass, 0);
    ASSERT_FALSE(Create(object));
  }
  ASSERT_TRUE(Create(object));
  EXPECT_TRUE(::IsWindow(object.m_hWnd));
  EXPECT_EQ(&object, CWnd::FromHandlePermanent(object.m_hWnd));
  EXPECT_TRUE(object.DestroyWindow());
  EXPECT_EQ(2, object.ends);
}

}  // namespace
