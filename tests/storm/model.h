// What an instance has to hold, kept as simply as can be: plain lists, searched from the front.
#pragma once

#include <windows.h>

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace tavix::storm {

struct ModelPoint {
  int key = 0;
  int number = 0;
  std::wstring name;
  std::array<double, 3> at{};  // x, y, and z of a 3-D point
  std::int16_t legend = -1;
};

// In the order of entry.
class ModelPoints {
 public:
  [[nodiscard]] ModelPoint* Find(int key);
  // Replaces the point of the same key, or appends.
  void Enter(const ModelPoint& point);
  bool Remove(int key);
  void Clear() { points_.clear(); }
  [[nodiscard]] const std::vector<ModelPoint>& All() const { return points_; }

 private:
  std::vector<ModelPoint> points_;
};

struct ModelLine {
  std::int16_t from = 0;  // as entered: the last pixel of a line is not drawn
  std::int16_t to = 0;
  std::int16_t legend = -1;
};

class ModelLines {
 public:
  [[nodiscard]] ModelLine* Find(int a, int b);
  void Enter(int a, int b, std::int16_t legend);  // one that is there stays as it is
  bool Remove(int a, int b);
  void Clear() { lines_.clear(); }
  [[nodiscard]] const std::vector<ModelLine>& All() const { return lines_; }

 private:
  std::vector<ModelLine> lines_;
};

struct ModelLegend {
  bool is_point = false;
  std::array<int, 6> values{};  // kind, prm1, prm2, prm3, width, colour
};

// A piece of a figure: the call that made it, by what it was given.
struct ModelPiece {
  enum class Kind { kLine, kCircle, kPolyline, kArc, kClothoid };
  Kind kind = Kind::kLine;
  int figure = 0;
  int legend = 0;
  std::vector<double> numbers;
};

struct ModelGround {
  double north = 0;
  double east = 0;
};

// The ground under the middle and the corners of the drawing area; nothing where a point is.
using MeasuredView = std::array<std::optional<ModelGround>, 5>;

// What begins with every link.
struct ModelWindow {
  SIZE client{};   // when it was linked or its buttons changed: the drawing area keeps to it
  int column = 0;  // the height of the buttons' column: that of the link
  bool shown = false;
  std::pair<int, int> ratio{1, 1};  // vertical, horizontal
  bool ratio_given = false;
  bool ratio_counts = true;  // false after a change of the buttons: the view's is 1 then
  bool has_frame = false;
  std::vector<ModelGround> trace;

  // Of the view, as far as it is known without the arithmetic of the library.
  std::optional<ModelGround> centre;
  std::optional<double> scale;           // pixels per metre
  std::optional<MeasuredView> measured;  // since the last call that may change it

  void ForgetView() {
    centre.reset();
    scale.reset();
    measured.reset();
  }
};

struct Model {
  bool exists = false;
  bool linked = false;
  ModelWindow window;
  int angle = 0;
  bool buttons = true;
  bool auto_redraw = false;
  std::int16_t point_legend = -1;
  std::int16_t line_legend = -1;
  int figure = 0;  // as FigStt said last, since the figure files were made
  int figure_legend = -1;
  ModelPoints points;
  ModelPoints points3;
  ModelLines lines;
  std::map<std::int16_t, std::wstring> memos;
  std::map<std::int16_t, ModelLegend> legend;
  std::vector<ModelPiece> pieces;
  int pieces_made = 0;        // deleted ones keep their record
  bool figures_known = true;  // false after a call of which only the library knows the outcome

  void ClearData();
};

}  // namespace tavix::storm
