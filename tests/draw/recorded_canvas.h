// A canvas that writes down what it is asked to draw.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "draw/plan_canvas.h"

namespace tavix::test {

// One note an operation, in their order: "pen 3" (its width), "line 1,2 5,6",
// "circle 1,2 5", "symbol 8" (its mark), "mark 1,2", "colour 255", "label 1,2".
class RecordedCanvas : public PlanCanvas {
 public:
  [[nodiscard]] ScreenBox Visible() const override { return {0, 0, 240, 180}; }
  void UsePen(const Pen& pen) override { Note("pen", pen.width); }
  void Line(const ScreenSegment& segment) override { Note("line", segment.start, segment.end); }
  void Circle(ScreenPoint centre, int radius) override { Note("circle", centre, radius); }
  void UsePointSymbol(const PointSymbol& symbol) override { Note("symbol", symbol.mark); }
  void Mark(ScreenPoint at) override { Note("mark", at); }
  void UseTextColor(std::uint32_t color) override { Note("colour", static_cast<int>(color)); }
  void Label(ScreenPoint at, NameView) override { Note("label", at); }

  // What was noted since the last call.
  std::vector<std::string> Take() { return std::exchange(notes_, {}); }

 private:
  static std::string Text(int number) { return std::to_string(number); }
  static std::string Text(ScreenPoint at) { return Text(at.x) + ',' + Text(at.y); }

  template <class... Values>
  void Note(const char* what, Values... values) {
    notes_.push_back((std::string(what) + ... + (' ' + Text(values))));
  }

  std::vector<std::string> notes_;
};

}  // namespace tavix::test
