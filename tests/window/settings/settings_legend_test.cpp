// The point legends in the settings dialog.
#include <tavix/tavix.h>

#include <string>
#include <vector>

#include "tests/window/settings/settings_test.h"

namespace tavix::test {
namespace {

using Lines = std::vector<std::wstring>;

bool Same(const PointLegend& a, const PointLegend& b) {
  return a.kind == b.kind && a.size == b.size && a.text_height == b.text_height &&
         a.label_number == b.label_number && a.width == b.width && a.color == b.color;
}

// What the items show of the entry that is being edited.
struct EntryView {
  int size_line;
  int text_line;
  bool number;
  bool size_enabled;

  friend bool operator==(const EntryView&, const EntryView&) = default;
};

void PrintTo(const EntryView& shown, std::ostream* out) {
  *out << "size line " << shown.size_line << ", text line " << shown.text_line << ", "
       << (shown.number ? "number" : "name") << (shown.size_enabled ? "" : ", size fixed");
}

EntryView ViewIn(HWND dialog) {
  EXPECT_NE(IsChecked(dialog, kShowNumber), IsChecked(dialog, kShowName));
  return {ChosenLine(dialog, kMarkSizes), ChosenLine(dialog, kTextSizes),
          IsChecked(dialog, kShowNumber),
          ::IsWindowEnabled(::GetDlgItem(dialog, kMarkSizes)) != FALSE};
}

class SettingsLegend : public SettingsTest {
 protected:
  // All entries listed, so that a line's number is the entry's less one.
  void TitleAll() {
    for (short number = 1; number <= kEntryCount; ++number) SetTitle(number, L"点");
  }

  static std::vector<PointLegend> AllEntries() {
    std::vector<PointLegend> all;
    for (short number = 1; number <= kEntryCount; ++number) all.push_back(Entry(number));
    return all;
  }

  static void ExpectSame(const std::vector<PointLegend>& expected) {
    for (short number = 1; number <= kEntryCount; ++number) {
      EXPECT_TRUE(Same(expected[static_cast<std::size_t>(number - 1)], Entry(number))) << number;
    }
  }

  static constexpr short kEntryCount = 11;
};

TEST_F(SettingsLegend, ListsTheTitledEntriesWithTheirMarks) {
  TitleAll();
  SetTitle(5, L"");
  SetTitle(9, L"杭、未確認");
  Cancel({[](HWND dialog) {
    EXPECT_EQ((Lines{L"Dot（点）", L"○（点）", L"×（点）", L"＋（点）", L"□（点）", L"▽（点）",
                     L"●（点）", L"▲（杭、未確認）", L"■（点）", L"▼（点）"}),
              LinesOf(dialog, kEntries));
    EXPECT_EQ(0, ChosenLine(dialog, kEntries));
  }});
}

TEST_F(SettingsLegend, NamesAnUnknownMarkAsTheOneBefore) {
  for (const short number : {short{2}, short{4}, short{7}, short{8}, short{11}}) {
    SetTitle(number, L"点");
  }
  SetEntry(2, {.kind = 0});
  SetEntry(7, {.kind = 12});
  SetEntry(8, {.kind = -1});
  SetEntry(11, {.kind = 3});
  Cancel({[](HWND dialog) {
    EXPECT_EQ((Lines{L"（点）", L"＋（点）", L"＋（点）", L"＋（点）", L"×（点）"}),
              LinesOf(dialog, kEntries));
  }});
}

TEST_F(SettingsLegend, WithoutATitleEditsTheFirstEntry) {
  Confirm({[](HWND dialog) { EXPECT_EQ(Lines(), LinesOf(dialog, kEntries)); },
           Choose(kTextSizes, 7), Click(kShowName)});
  EXPECT_EQ(14, Entry(1).text_height);
  EXPECT_EQ(0, Entry(1).label_number);
  EXPECT_EQ(2, Entry(1).size);
}

// The change once took the entry before the first one and wrote into it.
TEST_F(SettingsLegend, AChangeThatLeavesNothingChosenKeepsTheEntry) {
  TitleAll();
  const std::vector<PointLegend> before = AllEntries();
  Confirm({Choose(kEntries, 2), Choose(kEntries, -1),
           [](HWND dialog) {
             EXPECT_EQ(-1, ChosenLine(dialog, kEntries));
             EXPECT_EQ(5, ChosenLine(dialog, kTextSizes));
           },
           Choose(kTextSizes, 7)});
  EXPECT_EQ(14, Entry(3).text_height);
  EXPECT_EQ(before[1].text_height, Entry(2).text_height);
}

TEST_F(SettingsLegend, OffersTheseSizes) {
  Cancel({[](HWND dialog) {
    const Lines sizes{L"なし", L" 2", L" 4", L" 6", L" 8", L"10",
                      L"12",   L"14", L"16", L"18", L"20"};
    EXPECT_EQ(sizes, LinesOf(dialog, kMarkSizes));
    EXPECT_EQ(sizes, LinesOf(dialog, kTextSizes));
  }});
}

TEST_F(SettingsLegend, ShowsTheSizesAndTheLabelOfAnEntry) {
  const struct {
    PointLegend look;
    EntryView shown;
  } rows[] = {
      {{.size = 10, .text_height = 12, .label_number = 1}, {5, 6, true, true}},
      {{.size = 0, .text_height = 0, .label_number = 0}, {0, 0, false, true}},
      {{.size = 20, .text_height = 20, .label_number = 2}, {10, 10, true, true}},
      {{.size = 21, .text_height = 1, .label_number = -1}, {10, 0, true, true}},
      {{.size = 30, .text_height = 99, .label_number = 0}, {10, 10, false, true}},
      {{.size = 7, .text_height = 9, .label_number = 0}, {3, 4, false, true}},
  };
  SetTitle(3, L"点");
  SetTitle(4, L"点");
  for (const auto& row : rows) {
    SetEntry(3, row.look);
    SetEntry(4, row.look);
    Cancel({[&](HWND dialog) { EXPECT_EQ(row.shown, ViewIn(dialog)) << "at first"; },
            Choose(kEntries, 1),
            [&](HWND dialog) { EXPECT_EQ(row.shown, ViewIn(dialog)) << "chosen"; }});
  }
}

TEST_F(SettingsLegend, SavesALargeSizeAsTwenty) {
  SetTitle(2, L"円");
  SetEntry(2, {.kind = 2, .size = 30, .text_height = 24});
  SetEntry(3, {.kind = 3, .size = 30, .text_height = 24});  // never shown
  Confirm();
  EXPECT_EQ(20, Entry(2).size);
  EXPECT_EQ(20, Entry(2).text_height);
  EXPECT_EQ(30, Entry(3).size);
  EXPECT_EQ(24, Entry(3).text_height);
}

TEST_F(SettingsLegend, FixesTheMarkSizeOfTheFirstEntryOnly) {
  TitleAll();
  Cancel({Choose(kEntries, 1), [](HWND dialog) { EXPECT_TRUE(ViewIn(dialog).size_enabled); },
          Choose(kEntries, 0), [](HWND dialog) { EXPECT_FALSE(ViewIn(dialog).size_enabled); },
          Choose(kEntries, 10), [](HWND dialog) { EXPECT_TRUE(ViewIn(dialog).size_enabled); }});
}

TEST_F(SettingsLegend, KeepsWhatWasEditedWhenAnotherEntryIsChosen) {
  TitleAll();
  SetTitle(3, L"");  // from here on a line is not the entry's number less one
  const PointLegend before = Entry(5);
  Confirm({Choose(kEntries, 1), Choose(kMarkSizes, 3), Choose(kTextSizes, 4), Click(kShowName),
           Choose(kEntries, 2),
           [](HWND dialog) {
             EXPECT_EQ((EntryView{5, 5, true, true}), ViewIn(dialog));
           },
           Choose(kMarkSizes, 0), Choose(kEntries, 1),
           [](HWND dialog) {
             EXPECT_EQ((EntryView{3, 4, false, true}), ViewIn(dialog));
           },
           Choose(kEntries, 9), Choose(kTextSizes, 10)});
  EXPECT_TRUE(Same({.kind = 2, .size = 6, .text_height = 8, .label_number = 0}, Entry(2)));
  EXPECT_TRUE(Same({.kind = 4, .size = 0, .text_height = 10, .label_number = 1}, Entry(4)));
  EXPECT_EQ(20, Entry(11).text_height);
  EXPECT_TRUE(Same(before, Entry(5)));
}

TEST_F(SettingsLegend, TheArrowKeysChooseAnEntry) {
  TitleAll();
  Cancel({Focus(kEntries), ::test::Key(VK_DOWN), ::test::Key(VK_DOWN), [](HWND dialog) {
            EXPECT_EQ(2, ChosenLine(dialog, kEntries));
            EXPECT_TRUE(ViewIn(dialog).size_enabled);
          }});
}

TEST_F(SettingsLegend, CarriesThePenWidthAndTheMark) {
  SetTitle(6, L"角");
  const PointLegend look{6, 8, 12, 1, 7, RGB(1, 2, 3)};
  SetEntry(6, look);
  Confirm();
  EXPECT_TRUE(Same(look, Entry(6)));
}

TEST_F(SettingsLegend, MakesPointLegendsOfTheEntriesOnOk) {
  SetTitle(1, L"点");
  ASSERT_EQ(0, Tavix_ChgLinHan(4, 4, 6, 8, 1, 2, 0));
  EXPECT_EQ(-2, Tavix_MvPntStt(4));
  Cancel();
  EXPECT_EQ(-2, Tavix_MvPntStt(4));
  Confirm();
  EXPECT_EQ(0, Tavix_MvPntStt(4));
  EXPECT_TRUE(
      Same({.kind = 4, .size = 6, .text_height = 8, .label_number = 1, .width = 2}, Entry(4)));
}

TEST_F(SettingsLegend, CopiesToAllByItsHiddenButton) {
  TitleAll();
  const std::vector<PointLegend> before = AllEntries();
  Confirm({Choose(kEntries, 4), Choose(kMarkSizes, 9), Choose(kTextSizes, 8), Click(kShowName),
           [](HWND dialog) {
             ::PostMessageW(dialog, WM_COMMAND, MAKEWPARAM(kCopyToAll, BN_CLICKED),
                            reinterpret_cast<LPARAM>(::GetDlgItem(dialog, kCopyToAll)));
           },
           Choose(kEntries, 7),
           [](HWND dialog) {
             EXPECT_EQ((EntryView{9, 8, false, true}), ViewIn(dialog));
             EXPECT_FALSE(IsVisible(dialog, kCopyToAll));
           }});
  std::vector<PointLegend> expected = before;
  for (PointLegend& look : expected) {
    look.size = 18;
    look.text_height = 16;
    look.label_number = 0;
    look.color = 255;  // of the fifth
  }
  ExpectSame(expected);
}

TEST_F(SettingsLegend, CancelDiscardsEverything) {
  TitleAll();
  SetEntry(2, {.kind = 2, .size = 30});
  const std::vector<PointLegend> before = AllEntries();
  Cancel({Choose(kEntries, 1), Choose(kMarkSizes, 1), Choose(kTextSizes, 1), Click(kShowName),
          [](HWND dialog) { ::PostMessageW(dialog, WM_COMMAND, kCopyToAll, 0); },
          Choose(kEntries, 3)});
  ExpectSame(before);
}

}  // namespace
}  // namespace tavix::test
