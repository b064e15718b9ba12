// The titles a host gives to the built-in point legends, as the settings dialog lists them.
#include <tavix/tavix.h>

#include <string>
#include <vector>

#include "tests/window/settings/settings_test.h"

namespace tavix::test {
namespace {

class SettingsTitles : public SettingsTest {
 protected:
  static void ExpectListed(const std::vector<std::wstring>& lines) {
    Cancel({[&](HWND dialog) { EXPECT_EQ(lines, LinesOf(dialog, kEntries)); }});
  }
};

TEST_F(SettingsTitles, AreWhatTheHostGaveLast) {
  ASSERT_EQ(0, Tavix_PntHanTtl(2, L"境界標"));
  ASSERT_EQ(0, Tavix_PntHanTtl(11, L"杭"));
  ExpectListed({L"○（境界標）", L"▼（杭）"});
  ASSERT_EQ(0, Tavix_PntHanTtl(2, L"基準点"));
  ASSERT_EQ(0, Tavix_PntHanTtl(11, L""));
  EXPECT_EQ(-1, Tavix_PntHanTtl(0, L"無"));
  EXPECT_EQ(-1, Tavix_PntHanTtl(12, L"無"));
  ExpectListed({L"○（基準点）"});
}

TEST_F(SettingsTitles, AreNotSavedWithTheLegend) {
  ASSERT_EQ(0, Tavix_PntHanTtl(2, L"境界標"));
  ASSERT_EQ(0, Tavix_ChgPntHan(2, 3, 1, 0, 10, 10, 1));
  ASSERT_EQ(0, Tavix_Del());
  ASSERT_NO_FATAL_FAILURE(MakePlot(240, 180));
  EXPECT_EQ(3, Entry(2).kind) << "saved";
  ExpectListed({});
}

}  // namespace
}  // namespace tavix::test
