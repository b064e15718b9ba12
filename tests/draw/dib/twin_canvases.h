// The plain canvas and the one on bits, side by side.
#pragma once

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "draw/dib/dib_canvas.h"
#include "draw/dib/learnt_drawing.h"
#include "draw/dib/system_sample.h"
#include "draw/gdi_canvas.h"

namespace tavix::test {

// Does the same on both, over the same uneven picture.
class TwinCanvases : public PlanCanvas {
 public:
  TwinCanvases(int width, int height, LearntDrawing& learnt);

  [[nodiscard]] ScreenBox Visible() const override { return plain_.Visible(); }
  void UsePen(const Pen& pen) override;
  void Line(const ScreenSegment& segment) override;
  void Circle(ScreenPoint centre, int radius) override;
  void UsePointSymbol(const PointSymbol& symbol) override;
  void Mark(ScreenPoint at) override;
  void UseTextColor(std::uint32_t color) override;
  void Label(ScreenPoint at, NameView text) override;

  // Succeeds when both pictures are the same in every bit.
  [[nodiscard]] testing::AssertionResult AreSame() const;

  // Whether anything was drawn: two pictures of nothing are the same too.
  [[nodiscard]] bool ShowSomething() const { return !before_.Equals(plain_sample_); }

 private:
  SystemSample plain_sample_;
  SystemSample bits_sample_;
  OwnSample before_;
  GdiCanvas plain_;
  DibCanvas bits_;
};

// Numbers that are the same in every run.
class Dice {
 public:
  explicit Dice(unsigned seed) : random_(seed) {}

  // low..high, both included.
  int Between(int low, int high) {
    return low + static_cast<int>(random_() % static_cast<unsigned>(high - low + 1));
  }

  ScreenPoint Place(int width, int height, int outside) {
    const int x = Between(-outside, width + outside);
    return {x, Between(-outside, height + outside)};
  }

  std::int32_t Color() { return static_cast<std::int32_t>(random_() & 0x00FFFFFF); }

 private:
  std::mt19937 random_;
};

}  // namespace tavix::test
