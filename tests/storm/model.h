// What an instance has to hold, kept as simply as can be: plain lists, searched from the front.
#pragma once

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
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

struct Model {
  bool exists = false;
  bool linked = false;
  int width = 0;  // of the rectangle of the link, in pixels
  int height = 0;
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
