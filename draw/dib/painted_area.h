// Which parts of a picture have become wholly one colour.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "draw/dib/dib_section.h"

namespace tavix {

// Watches a picture while one colour is drawn: a pixel that has it keeps it, so each is read only
// until it does. What would be drawn in that colour where everything has it already need not be
// drawn.
//
// The picture is divided into square tiles; each remembers how far it has been found painted.
template <class Block>
class PaintedArea {
 public:
  // The block outlives the area.
  explicit PaintedArea(const Block& block) : block_(block) {}

  // From now on only `value` is drawn. After another one all pixels count as not painted.
  void Use(std::uint32_t value) {
    if (is_known_ && value == value_) return;
    is_known_ = true;
    value_ = value;
    painted_tiles_ = 0;
    failed_ = {};
    ++generation_;
  }

  // Something else is drawn from now on, or it is not known what.
  void Forget() { is_known_ = false; }

  // Whether every pixel of `box` that lies in the picture has the value.
  [[nodiscard]] bool Covers(const PixelBox& box) {
    if (!is_known_) return false;
    const PixelBox inside{std::max(box.left, 0), std::max(box.top, 0),
                          std::min(box.right, block_.width), std::min(box.bottom, block_.height)};
    if (inside.left >= inside.right || inside.top >= inside.bottom) return true;
    Allocate();
    if (painted_tiles_ == tiles_.size()) return true;
    const PixelBox tiles{inside.left / side_, inside.top / side_, TilesAlong(inside.right),
                         TilesAlong(inside.bottom)};
    if (IsIn(tiles, failed_) && !IsPainted(failed_)) return false;
    for (TilePlace at{0, tiles.top}; at.y < tiles.bottom; ++at.y) {
      for (at.x = tiles.left; at.x < tiles.right; ++at.x) {
        if (IsPainted(at)) continue;
        failed_ = at;
        return false;
      }
    }
    return true;
  }

 private:
  static constexpr int kLeastSide = 32;  // pixels
  static constexpr std::int64_t kMostTiles = 1 << 16;

  struct TilePlace {
    int x = 0;
    int y = 0;
  };

  // The first `painted` pixels, row by row, were found painted in this generation.
  struct Tile {
    std::uint32_t generation = 0;
    int painted = 0;
  };

  [[nodiscard]] int TilesAlong(int pixels) const { return (pixels - 1) / side_ + 1; }

  // Larger pictures have larger tiles and not more of them.
  void Allocate() {
    if (!tiles_.empty()) return;
    const auto count = [this] {
      return std::int64_t{TilesAlong(block_.width)} * TilesAlong(block_.height);
    };
    while (count() > kMostTiles) side_ *= 2;
    columns_ = TilesAlong(block_.width);
    tiles_.resize(static_cast<std::size_t>(count()));
  }

  [[nodiscard]] static bool IsIn(const PixelBox& tiles, TilePlace at) {
    return at.x >= tiles.left && at.x < tiles.right && at.y >= tiles.top && at.y < tiles.bottom;
  }

  [[nodiscard]] bool IsPainted(TilePlace at) {
    Tile& tile = tiles_[static_cast<std::size_t>(at.y) * static_cast<std::size_t>(columns_) +
                        static_cast<std::size_t>(at.x)];
    if (tile.generation != generation_) tile = {generation_, 0};
    const int left = at.x * side_;
    const int top = at.y * side_;
    const int width = std::min(side_, block_.width - left);
    const int pixels = width * std::min(side_, block_.height - top);
    if (tile.painted == pixels) return true;
    while (block_.Has(left + tile.painted % width, top + tile.painted / width, value_)) {
      if (++tile.painted < pixels) continue;
      ++painted_tiles_;
      return true;
    }
    return false;
  }

  const Block& block_;
  bool is_known_ = false;
  std::uint32_t value_ = 0;
  std::uint32_t generation_ = 0;
  TilePlace failed_;  // where the last question found another colour
  int side_ = kLeastSide;
  int columns_ = 0;  // of tiles
  std::vector<Tile> tiles_;
  std::size_t painted_tiles_ = 0;
};

}  // namespace tavix
