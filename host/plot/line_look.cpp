#include "host/plot/line_look.h"

#include "host/plot/rgb.h"

namespace fieldhost {
namespace {

constexpr int kSolid = 101;
constexpr int kDashed = 102;

// What one sets out by stands out; what the ground is made of stands back.
constexpr LineLook kLooks[] = {
    {LineKind::kAlignment, kSolid, 0, 0, 2, Rgb(220, 0, 0)},
    {LineKind::kBreakline, kSolid, 0, 0, 1, Rgb(150, 90, 40)},
    {LineKind::kFeature, kSolid, 0, 0, 1, Rgb(40, 80, 150)},
    {LineKind::kLot, kSolid, 0, 0, 1, Rgb(0, 96, 0)},
    {LineKind::kBoundary, kDashed, 6, 4, 1, Rgb(110, 110, 110)},
    {LineKind::kContour, kSolid, 0, 0, 1, Rgb(200, 170, 120)},
    {LineKind::kPipe, kSolid, 0, 0, 2, Rgb(140, 0, 140)},
    {LineKind::kOther, kSolid, 0, 0, 1, Rgb(90, 90, 90)},
};

}  // namespace

std::span<const LineLook> LineLooks() { return kLooks; }

}  // namespace fieldhost
