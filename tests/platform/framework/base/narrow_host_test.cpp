// The framework uses wide characters also for a host that is compiled without UNICODE.
#include <afx.h>
#include <gtest/gtest.h>

#if defined(UNICODE)
#error "This file is to be compiled without UNICODE."
#endif

namespace {

TEST(NarrowHost, CallsMembersThatTheSystemsHeaderRenames) {
  CString text(L"before");
  EXPECT_FALSE(text.LoadString(54321));  // LoadStringA here
  EXPECT_TRUE(text.IsEmpty());
}

TEST(NarrowHost, ExchangesStringsWithWideCode) {
  CString text("Tavix");
  text.Format(L"%s %d", text.GetString(), 1);
  EXPECT_EQ(L"Tavix 1", text);
  EXPECT_EQ(L"C:\\x", AfxMapDevicePath(L"C:\\x"));
}

}  // namespace
