// The bytes of the two figure files; docs/formats/figure-files.md describes them.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "view/coordinates.h"

namespace tavix {

// One record of the index file. A deleted record has every other field zero.
struct FigureRecord {
  std::int32_t number = 0;
  std::int32_t legend = -1;
  std::int32_t point_count = 0;
  std::uint32_t is_circle = 0;    // 1 for a circle
  std::uint32_t first_point = 0;  // byte offset in the coordinate file
  std::uint32_t deleted = 0;      // 1 when deleted

  friend bool operator==(const FigureRecord&, const FigureRecord&) = default;
};

constexpr std::size_t kFigureRecordSize = 24;  // bytes; do not change
constexpr std::size_t kFigurePointSize = 16;   // bytes; do not change

using FigureRecordBytes = std::array<unsigned char, kFigureRecordSize>;
using FigurePointBytes = std::array<unsigned char, kFigurePointSize>;

// Little-endian on every machine.
[[nodiscard]] FigureRecordBytes EncodeFigureRecord(const FigureRecord& record);
[[nodiscard]] FigureRecord DecodeFigureRecord(const unsigned char* bytes);
[[nodiscard]] FigurePointBytes EncodeFigurePoint(GroundPoint point);

// Fills `points` from points.size() * kFigurePointSize bytes.
void DecodeFigurePoints(const unsigned char* bytes, std::span<GroundPoint> points);

}  // namespace tavix
