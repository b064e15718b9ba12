// Tests with the settings dialog open over a plot, driven from inside its modal loop.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "tests/platform/support/modal_driver.h"
#include "tests/support/plot_test.h"

namespace tavix::test {

// The items of the dialog, by the numbers that hosts and translators know.
enum Item {
  kEntries = 1000,
  kShowNumber = 1007,
  kShowName = 1008,
  kCopyToAll = 1009,
  kMarkSizes = 1010,
  kTextSizes = 1011,
  kDrawLines = 1012,
  kStep = 1013,
  kSpin = 1014,
  kColor = 1015,
  kVerticalLabel = 1016,
  kVertical = 1017,
  kHorizontalLabel = 1018,
  kHorizontal = 1019,
  kRatioGroup = 1020,
  kLineGroup = 1021,
  kStepGroup = 1022,
};

using Step = ::test::ModalDriver::Step;

// What an item shows.
[[nodiscard]] std::wstring TextOf(HWND dialog, int item);
[[nodiscard]] int ChosenLine(HWND dialog, int list);
[[nodiscard]] std::vector<std::wstring> LinesOf(HWND dialog, int list);
[[nodiscard]] bool IsChecked(HWND dialog, int item);
[[nodiscard]] bool IsVisible(HWND dialog, int item);

// What the user does.
[[nodiscard]] Step Choose(int list, int line);
[[nodiscard]] Step Click(int item);
[[nodiscard]] Step Focus(int item);
[[nodiscard]] Step Type(int edit, const std::wstring& text);  // in place of what is there

class SettingsTest : public PlotTest {
 protected:
  void SetUp() override { MakePlot(240, 180); }

  // Presses the settings button and does the steps, each in a turn of the loop of its own. It is a
  // failure when the last step leaves a dialog open, and when one is not come to.
  static void RunDialog(const std::vector<Step>& steps);

  // The same with OK, or Cancel, as the last step.
  static void Confirm(std::vector<Step> steps = {});
  static void Cancel(std::vector<Step> steps = {});

  // A point legend of the instance, as the dialog edits it.
  static PointLegend Entry(short number);
  static void SetEntry(short number, const PointLegend& look);

  // Gives entries a title, which lists them.
  static void SetTitle(short number, const wchar_t* title);
};

}  // namespace tavix::test
