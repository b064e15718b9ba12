// How antialiased text blends with what it is drawn over.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <vector>

namespace tavix {

// What the values 0..255 of a colour channel become under a text pixel.
using BlendRow = std::array<std::uint8_t, 256>;

// The background's weight in a blend that keeps the same part of every value, rounded down. Weights
// count in 65281ths: kFullWeight keeps all of a value, 0 nothing.
constexpr std::uint16_t kFullWeight = 65281;

inline std::uint8_t Weighted(std::uint8_t value, std::uint16_t weight) {
  const auto wide = static_cast<std::uint16_t>(value << 8 | value);
  const auto kept = static_cast<std::uint16_t>((std::uint32_t{wide} * weight) >> 16);
  return static_cast<std::uint8_t>(kept >> 8);
}

// The weight that gives a row exactly, for all of its values; none where no weight does.
[[nodiscard]] std::optional<std::uint16_t> FindWeight(const BlendRow& row);

// A level of coverage is named by what black text makes of white there: 0..255, where 255 leaves
// white as it is. A pixel has one for each channel, red, green and blue; they are the same unless
// text is smoothed in colours.
using CoverageLevels = std::array<std::uint8_t, 3>;

// The levels of a pixel that black text has made of a white one.
inline CoverageLevels LevelsOf(std::uint32_t over_white) {
  return {static_cast<std::uint8_t>(over_white >> 16), static_cast<std::uint8_t>(over_white >> 8),
          static_cast<std::uint8_t>(over_white)};
}

// A row for each level of coverage, for text of one colour.
class BlendTable {
 public:
  void Set(std::uint8_t level, const BlendRow& row);
  void Forget(std::uint8_t level) { levels_[level] = {}; }

  [[nodiscard]] bool Knows(std::uint8_t level) const { return levels_[level].known; }

  // The background's weight at a level; none where the level has no fixed weight.
  [[nodiscard]] std::optional<std::uint16_t> Weight(std::uint8_t level) const {
    return levels_[level].weight;
  }

  // The rows by level; those of levels that are not known are without meaning. Null while no level
  // is known.
  [[nodiscard]] const BlendRow* Rows() const { return rows_.data(); }

 private:
  struct Level {
    bool known = false;
    std::optional<std::uint16_t> weight;
  };

  std::array<Level, 256> levels_;
  std::vector<BlendRow> rows_;
};

// `pixel` with each of its three channels blended by the row of its level.
inline std::uint32_t Blended(const BlendRow* rows, const CoverageLevels& levels,
                             std::uint32_t pixel) {
  const std::uint32_t red = rows[levels[0]][pixel >> 16 & 0xFF];
  const std::uint32_t green = rows[levels[1]][pixel >> 8 & 0xFF];
  const std::uint32_t blue = rows[levels[2]][pixel & 0xFF];
  return red << 16 | green << 8 | blue;
}

}  // namespace tavix
