#include "host/plot/point_look.h"

#include <algorithm>
#include <string>

#include "host/formats/field_text.h"
#include "host/plot/rgb.h"

namespace fieldhost {
namespace {

constexpr int kCircle = 2;
constexpr int kDiagonalCross = 3;
constexpr int kUprightCross = 4;
constexpr int kTriangle = 5;
constexpr int kSquare = 6;
constexpr int kFilledCircle = 8;

constexpr int kLabel = 12;
constexpr int kNoLabel = 0;

enum Look : std::size_t {
  kPlain,
  kBoundary,
  kControl,
  kRoad,
  kBuilding,
  kTree,
  kManhole,
  kTerrain
};

// Points that stand in rows, a name each, would cover one another with their labels; their shape is
// what one wants to see. Points are drawn over lines: the thousands of a terrain are small crosses,
// the smallest mark there is, for the one called a dot shows nothing.
constexpr PointLook kLooks[] = {
    {"Other points", kCircle, 1, Rgb(0, 0, 0), 6, kLabel},
    {"Boundary points", kFilledCircle, 1, Rgb(0, 0, 200), 6, kLabel},
    {"Control points", kTriangle, 1, Rgb(200, 0, 0), 10, kLabel},
    {"Roads", kDiagonalCross, 1, Rgb(90, 90, 90), 4, kNoLabel},
    {"Buildings", kSquare, 1, Rgb(130, 70, 0), 4, kNoLabel},
    {"Trees", kCircle, 1, Rgb(0, 128, 0), 10, kLabel},
    {"Manholes", kUprightCross, 1, Rgb(140, 0, 140), 8, kLabel},
    {"Terrain", kUprightCross, 1, Rgb(190, 140, 90), 2, kNoLabel},
};

struct KindWord {
  std::string_view word;  // lower case
  Look look;
};

constexpr KindWord kWords[] = {
    {"基準点", kControl},  {"三角点", kControl}, {"多角点", kControl},     {"水準点", kControl},
    {"control", kControl}, {"境界", kBoundary},  {"筆界", kBoundary},      {"boundary", kBoundary},
    {"道路", kRoad},       {"road", kRoad},      {"建物", kBuilding},      {"building", kBuilding},
    {"樹木", kTree},       {"tree", kTree},      {"マンホール", kManhole}, {"manhole", kManhole},
    {"terrain", kTerrain},
};

}  // namespace

std::span<const PointLook> PointLooks() { return kLooks; }

std::size_t LookOf(std::string_view kind) {
  const std::string lower = LowerCase(kind);
  const auto* found = std::find_if(std::begin(kWords), std::end(kWords), [&](const KindWord& row) {
    return lower.starts_with(row.word);
  });
  return found == std::end(kWords) ? kPlain : found->look;
}

}  // namespace fieldhost
