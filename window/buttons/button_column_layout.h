// Where the on-screen buttons stand and which of them show.
#pragma once

#include "window/buttons/button_table.h"

namespace tavix {

// The column of the table's buttons, 20 pixels wide, along the right edge of the client area. The
// main buttons are 20 pixels high; the first and the last, half as high, scroll the column where
// the main ones do not all fit the height. Buttons are counted from 0, positions are pixels from
// the top of the client area.
class ButtonColumnLayout {
 public:
  static constexpr int kButtons = static_cast<int>(kButtonTable.size());
  static constexpr int kWidth = 20;
  static constexpr int kScrollUp = 0;
  static constexpr int kFirstMain = 1;
  static constexpr int kLastMain = kButtons - 2;
  static constexpr int kScrollDown = kButtons - 1;

  // The layout for a client area of this height, the first main button at the top.
  explicit ButtonColumnLayout(int client_height);

  [[nodiscard]] bool AllFit() const { return all_fit_; }

  // How many main buttons show between the scroll buttons; -1 below a height of 18.
  [[nodiscard]] int Places() const { return places_; }

  // The topmost main button that shows.
  [[nodiscard]] int FirstVisible() const { return first_visible_; }

  // The top edge of a button. Hidden main buttons stand where their visible neighbour does, so that
  // scrolling moves the visible ones only.
  [[nodiscard]] int Top(int button) const;

  // Whether a button shows while the column does.
  [[nodiscard]] bool IsVisible(int button) const;

  // Scrolls by one button; false at the end of the column, where nothing changes.
  bool ScrollUp();
  bool ScrollDown();

 private:
  int places_;
  bool all_fit_;
  int first_visible_ = kFirstMain;
};

}  // namespace tavix
