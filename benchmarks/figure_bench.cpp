// Measures how long the figures take to be read again from their files, as each redraw reads them.
//
//   figure_bench [FIGURES]      10000 without an argument; polylines of ten points
//
//   a read per point    the plain way: one read for each record and one for each point
//   a read per figure   one for each record and one for its points together
//   the store           CFigList::ForEach
//   the bytes           both files read in blocks of 64 KiB, and nothing made of them: the floor
//
// The first three must find the same points. Prints the median of several rounds.
#include <afx.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "benchmarks/device_root.h"
#include "benchmarks/timing.h"
#include "figure/figure_codec.h"
#include "figure/figure_list.h"

namespace {

using tavix::GroundPoint;
using tavix::MedianMilliseconds;

constexpr int kPoints = 10;
constexpr UINT kReadFlags = CFile::modeRead | CFile::shareDenyNone;

// What a pass has seen: cheap to keep, and the same only for the same points in the same order.
struct Seen {
  std::uint64_t points = 0;
  std::uint64_t mixed = 0;

  void Add(GroundPoint point) {
    ++points;
    mixed += (std::bit_cast<std::uint64_t>(point.north) ^ points) * 3;
    mixed += (std::bit_cast<std::uint64_t>(point.east) ^ points) * 5;
  }
  friend bool operator==(const Seen&, const Seen&) = default;
};

void AddFigures(tavix::CFigList& figures, int count) {
  for (int i = 0; i < count; ++i) {
    std::vector<GroundPoint> points;
    for (int k = 0; k < kPoints; ++k) points.push_back({i + 0.1 * k, 2.0 * i - 0.3 * k});
    figures.SetPending(i, 101);
    figures.AddPolyline(points, kPoints);
  }
}

// The points of every figure, by reads of `step` points at once.
Seen ReadPlainly(CFile& index, CFile& coordinates, int step) {
  Seen seen;
  tavix::FigureRecordBytes record_bytes;
  std::vector<GroundPoint> points(static_cast<std::size_t>(step));
  std::vector<unsigned char> bytes(points.size() * tavix::kFigurePointSize);
  index.SeekToBegin();
  while (index.Read(record_bytes.data(), static_cast<UINT>(record_bytes.size())) ==
         record_bytes.size()) {
    const tavix::FigureRecord record = tavix::DecodeFigureRecord(record_bytes.data());
    coordinates.Seek(record.first_point, CFile::begin);
    for (int from = 0; from < record.point_count; from += step) {
      if (coordinates.Read(bytes.data(), static_cast<UINT>(bytes.size())) != bytes.size()) break;
      tavix::DecodeFigurePoints(bytes.data(), points);
      for (const GroundPoint point : points) seen.Add(point);
    }
  }
  return seen;
}

Seen ReadThroughStore(const tavix::CFigList& figures) {
  Seen seen;
  figures.ForEach([&](const tavix::Figure& figure) {
    for (const GroundPoint point : figure.points) seen.Add(point);
  });
  return seen;
}

void ReadBlocks(CFile& file, std::vector<unsigned char>& block) {
  file.SeekToBegin();
  while (file.Read(block.data(), static_cast<UINT>(block.size())) > 0) {
  }
}

}  // namespace

int main(int argc, char** argv) {
  const int count = argc > 1 ? std::max(1, std::atoi(argv[1])) : 10000;
  const tavix::DeviceRoot root;
  tavix::CFigList figures(0);
  if (figures.Open() != 0) {
    std::puts("the figure files cannot be made");
    return 1;
  }
  AddFigures(figures, count);
  Seen by_point;
  Seen by_figure;
  Seen by_store;
  double point_ms = 0.0;
  double figure_ms = 0.0;
  double bytes_ms = 0.0;
  {
    CFile index(L"\\FIG0.DAT", kReadFlags);
    CFile coordinates(L"\\FIG0.XY", kReadFlags);
    point_ms = MedianMilliseconds([&] { by_point = ReadPlainly(index, coordinates, 1); });
    figure_ms = MedianMilliseconds([&] { by_figure = ReadPlainly(index, coordinates, kPoints); });
    std::vector<unsigned char> block(std::size_t{64} * 1024);
    bytes_ms = MedianMilliseconds([&] {
      ReadBlocks(index, block);
      ReadBlocks(coordinates, block);
    });
  }
  const double store_ms = MedianMilliseconds([&] { by_store = ReadThroughStore(figures); });
  figures.Close();
  std::printf(
      "%d figures of %d points: a read per point %.2f ms, a read per figure %.2f ms, "
      "the store %.3f ms (1/%.0f of a read per point), the bytes %.3f ms\n",
      count, kPoints, point_ms, figure_ms, store_ms, point_ms / store_ms, bytes_ms);
  const bool same = by_point == by_figure && by_point == by_store &&
                    by_point.points == static_cast<std::uint64_t>(count) * kPoints;
  std::puts(same ? "the same points" : "NOT the same points");
  return same ? 0 : 1;
}
