// Which object FromHandle returns for a handle.

#include <gtest/gtest.h>

#include "platform/framework/gdi/handle_map.h"
#include "tests/platform/framework/test_windows.h"

namespace {

using test::MakePlainWindow;

TEST(WindowFromHandle, NullOnlyForANullHandle) {
  EXPECT_EQ(nullptr, CWnd::FromHandle(nullptr));
  const HWND plain = MakePlainWindow();
  CWnd* temporary = CWnd::FromHandle(plain);
  ASSERT_NE(nullptr, temporary);
  EXPECT_EQ(plain, temporary->m_hWnd);
  EXPECT_EQ(temporary, CWnd::FromHandle(plain)) << "one object for each handle";
  EXPECT_EQ(nullptr, CWnd::FromHandlePermanent(plain));
  ::DestroyWindow(plain);
}

TEST(WindowFromHandle, PermanentObjectComesBeforeTheTemporaryOne) {
  const HWND plain = MakePlainWindow();
  CWnd* temporary = CWnd::FromHandle(plain);
  CWnd window;
  window.Attach(plain);
  EXPECT_EQ(&window, CWnd::FromHandle(plain));
  window.Detach();
  EXPECT_EQ(temporary, CWnd::FromHandle(plain));
  ::DestroyWindow(plain);
}

// A new window may get a handle that another object still holds, because it died while merely
// attached.
TEST(WindowFromHandle, StaleObjectGivesWay) {
  const HWND plain = MakePlainWindow();
  CWnd stale;
  stale.Attach(plain);
  CWnd current;
  current.Attach(plain);
  EXPECT_EQ(&current, CWnd::FromHandle(plain));
  EXPECT_EQ(nullptr, stale.m_hWnd);
  EXPECT_TRUE(current.DestroyWindow());
}

// The map itself, with handles whose death the test decides.
struct Thing {
  static inline int alive = 0;
  int handle = 0;
  Thing() { ++alive; }
  ~Thing() { --alive; }
};
int firstLiveHandle = 0;
bool IsLiveHandle(int handle) { return handle >= firstLiveHandle; }

TEST(TemporaryObjects, DeadOnesDoNotPileUp) {
  firstLiveHandle = 1;
  afx::TemporaryMap<Thing, int, &Thing::handle, &IsLiveHandle> map;
  for (int handle = 1; handle <= 10000; ++handle) {
    EXPECT_EQ(handle, map.Get(handle)->handle);
    firstLiveHandle = handle - 9;  // ten are alive at any time
    ASSERT_LE(map.Size(), 64u);
  }
  EXPECT_EQ(static_cast<std::size_t>(Thing::alive), map.Size());
}

TEST(TemporaryObjects, LiveOnesStayWhereTheyAre) {
  firstLiveHandle = 1;
  afx::TemporaryMap<Thing, int, &Thing::handle, &IsLiveHandle> map;
  Thing* first = map.Get(1);
  for (int handle = 2; handle <= 1000; ++handle) map.Get(handle);
  EXPECT_EQ(first, map.Get(1));
  EXPECT_EQ(1000u, map.Size());
}

TEST(PermanentObjects, OnlyTheHolderLeaves) {
  afx::PermanentMap<Thing, int> map;
  Thing a, b;
  map.Set(5, &a);
  EXPECT_EQ(&a, map.Find(5));
  EXPECT_EQ(nullptr, map.Find(6));
  map.Set(5, &b);
  map.Remove(5, &a);
  EXPECT_EQ(&b, map.Find(5));
  map.Remove(5, &b);
  EXPECT_EQ(nullptr, map.Find(5));
}

}  // namespace
