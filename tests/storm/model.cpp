#include "tests/storm/model.h"

#include <algorithm>

namespace tavix::storm {
namespace {

// Whether the line joins these two, in either direction.
bool Joins(const ModelLine& line, int a, int b) {
  const auto first = static_cast<std::int16_t>(a);
  const auto second = static_cast<std::int16_t>(b);
  return (line.from == first && line.to == second) || (line.from == second && line.to == first);
}

}  // namespace

ModelPoint* ModelPoints::Find(int key) {
  const auto found = std::find_if(points_.begin(), points_.end(),
                                  [=](const ModelPoint& point) { return point.key == key; });
  return found == points_.end() ? nullptr : &*found;
}

void ModelPoints::Enter(const ModelPoint& point) {
  if (ModelPoint* old = Find(point.key)) {
    *old = point;
  } else {
    points_.push_back(point);
  }
}

bool ModelPoints::Remove(int key) {
  return std::erase_if(points_, [=](const ModelPoint& point) { return point.key == key; }) > 0;
}

ModelLine* ModelLines::Find(int a, int b) {
  const auto found = std::find_if(lines_.begin(), lines_.end(),
                                  [=](const ModelLine& line) { return Joins(line, a, b); });
  return found == lines_.end() ? nullptr : &*found;
}

void ModelLines::Enter(int a, int b, std::int16_t legend) {
  if (Find(a, b)) return;
  lines_.push_back({static_cast<std::int16_t>(a), static_cast<std::int16_t>(b), legend});
}

bool ModelLines::Remove(int a, int b) {
  const ModelLine* line = Find(a, b);
  if (line) lines_.erase(lines_.begin() + (line - lines_.data()));
  return line != nullptr;
}

void Model::ClearData() {
  points.Clear();
  points3.Clear();
  lines.Clear();
  memos.clear();
  pieces.clear();
  pieces_made = 0;
  figure = 0;
  figure_legend = -1;
  figures_known = true;
}

}  // namespace tavix::storm
