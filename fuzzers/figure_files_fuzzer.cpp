// Any bytes as records and points of the figure files: what is read is written back to the same
// bytes, so nothing of a file is lost by reading it.

#include <algorithm>
#include <array>
#include <vector>

#include "figure/figure_codec.h"
#include "fuzzers/fuzz_input.h"

namespace {

using tavix::fuzz::Require;

void CheckRecord(std::span<const std::uint8_t> bytes) {
  const tavix::FigureRecord record = tavix::DecodeFigureRecord(bytes.data());
  const tavix::FigureRecordBytes written = tavix::EncodeFigureRecord(record);
  Require(std::equal(bytes.begin(), bytes.end(), written.begin()), "a record keeps its bytes");
}

void CheckPoints(std::span<const std::uint8_t> bytes) {
  std::vector<tavix::GroundPoint> points(bytes.size() / tavix::kFigurePointSize);
  tavix::DecodeFigurePoints(bytes.data(), points);
  for (const tavix::GroundPoint point : points) {
    const tavix::FigurePointBytes written = tavix::EncodeFigurePoint(point);
    Require(std::equal(written.begin(), written.end(), bytes.begin()), "a point keeps its bytes");
    bytes = bytes.subspan(written.size());
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::span<const std::uint8_t> bytes(data, size);
  CheckPoints(bytes);
  for (std::size_t at = 0; at + tavix::kFigureRecordSize <= size; at += tavix::kFigureRecordSize) {
    CheckRecord(bytes.subspan(at, tavix::kFigureRecordSize));
  }
  return 0;
}
