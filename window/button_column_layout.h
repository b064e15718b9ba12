// Where the on-screen buttons stand and which of them show.
#pragma once

namespace tavix {

// A column of eleven buttons, 20 pixels wide, along the right edge of the client area. Buttons 1 to
// 9 are the main ones, 20 pixels high; buttons 0 and 10, half as high, scroll the column where the
// nine do not all fit the height. Positions are pixels from the top of the client area.
class ButtonColumnLayout {
 public:
  static constexpr int kButtons = 11;
  static constexpr int kWidth = 20;
  static constexpr int kScrollUp = 0;
  static constexpr int kFirstMain = 1;
  static constexpr int kLastMain = 9;
  static constexpr int kScrollDown = 10;

  // The layout for a client area of this height, the first main button at the top.
  explicit ButtonColumnLayout(int client_height);

  [[nodiscard]] bool AllFit() const { return all_fit_; }

  // How many main buttons show between the scroll buttons; -1 below a height of 18.
  [[nodiscard]] int Places() const { return places_; }

  // The topmost main button that shows, 1..9.
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
