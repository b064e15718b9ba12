#include "host/plot/survey_symbols.h"

#include <algorithm>
#include <string>

#include "host/formats/field_text.h"

namespace fieldhost {
namespace {

// A COLORREF, from parts of 0 to 255.
constexpr std::uint32_t Rgb(std::uint32_t red, std::uint32_t green, std::uint32_t blue) {
  return red | green << 8U | blue << 16U;
}

constexpr int kCircle = 2;
constexpr int kDiagonalCross = 3;
constexpr int kUprightCross = 4;
constexpr int kTriangle = 5;
constexpr int kSquare = 6;
constexpr int kFilledCircle = 8;

constexpr int kSolid = 101;
constexpr int kDashed = 102;

constexpr int kLabel = 12;
constexpr int kNoLabel = 0;

enum Symbol : std::size_t {
  kPlain,
  kBoundary,
  kControl,
  kRoad,
  kBuilding,
  kTree,
  kManhole,
  kTerrain
};

// Points in rows have no labels, which would cover one another. Points are drawn over lines: the
// thousands of a terrain are small crosses, the smallest visible mark (a dot of this size shows
// nothing).
constexpr PointSymbol kPointSymbols[] = {
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
  Symbol symbol;
};

constexpr KindWord kWords[] = {
    {"基準点", kControl},  {"三角点", kControl}, {"多角点", kControl},     {"水準点", kControl},
    {"control", kControl}, {"境界", kBoundary},  {"筆界", kBoundary},      {"boundary", kBoundary},
    {"道路", kRoad},       {"road", kRoad},      {"建物", kBuilding},      {"building", kBuilding},
    {"樹木", kTree},       {"tree", kTree},      {"マンホール", kManhole}, {"manhole", kManhole},
    {"terrain", kTerrain},
};

// What is staked out stands out; what describes the ground stays in the background.
constexpr LineSymbol kLineSymbols[] = {
    {LineKind::kAlignment, kSolid, 0, 0, 2, Rgb(220, 0, 0)},
    {LineKind::kBreakline, kSolid, 0, 0, 1, Rgb(150, 90, 40)},
    {LineKind::kFeature, kSolid, 0, 0, 1, Rgb(40, 80, 150)},
    {LineKind::kParcel, kSolid, 0, 0, 1, Rgb(0, 96, 0)},
    {LineKind::kBoundary, kDashed, 6, 4, 1, Rgb(110, 110, 110)},
    {LineKind::kContour, kSolid, 0, 0, 1, Rgb(200, 170, 120)},
    {LineKind::kPipe, kSolid, 0, 0, 2, Rgb(140, 0, 140)},
    {LineKind::kOther, kSolid, 0, 0, 1, Rgb(90, 90, 90)},
};

}  // namespace

std::span<const PointSymbol> PointSymbols() { return kPointSymbols; }

std::size_t PointSymbolOf(std::string_view kind) {
  const std::string lower = LowerCase(kind);
  const auto* found = std::find_if(std::begin(kWords), std::end(kWords), [&](const KindWord& row) {
    return lower.starts_with(row.word);
  });
  return found == std::end(kWords) ? kPlain : found->symbol;
}

std::span<const LineSymbol> LineSymbols() { return kLineSymbols; }

}  // namespace fieldhost
