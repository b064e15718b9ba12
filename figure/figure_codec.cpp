#include "figure/figure_codec.h"

#include <bit>
#include <utility>

namespace tavix {
namespace {

template <class Word>
void Put(unsigned char* bytes, Word word) {
  for (std::size_t i = 0; i < sizeof(Word); ++i) {
    bytes[i] = static_cast<unsigned char>(word >> (8 * i));
  }
}

template <class Word, std::size_t... i>
Word Join(const unsigned char* bytes, std::index_sequence<i...> /*bytes*/) {
  return ((static_cast<Word>(bytes[i]) << (8 * i)) | ...);
}

// Written out byte by byte: the compiler makes one load of this, but not of a loop.
template <class Word>
Word Take(const unsigned char* bytes) {
  return Join<Word>(bytes, std::make_index_sequence<sizeof(Word)>());
}

std::int32_t TakeSigned(const unsigned char* bytes) {
  return static_cast<std::int32_t>(Take<std::uint32_t>(bytes));
}

}  // namespace

FigureRecordBytes EncodeFigureRecord(const FigureRecord& record) {
  FigureRecordBytes bytes{};
  Put(bytes.data(), static_cast<std::uint32_t>(record.number));
  Put(bytes.data() + 4, static_cast<std::uint32_t>(record.legend));
  Put(bytes.data() + 8, static_cast<std::uint32_t>(record.point_count));
  Put(bytes.data() + 12, record.is_circle);
  Put(bytes.data() + 16, record.first_point);
  Put(bytes.data() + 20, record.deleted);
  return bytes;
}

FigureRecord DecodeFigureRecord(const unsigned char* bytes) {
  return {TakeSigned(bytes),
          TakeSigned(bytes + 4),
          TakeSigned(bytes + 8),
          Take<std::uint32_t>(bytes + 12),
          Take<std::uint32_t>(bytes + 16),
          Take<std::uint32_t>(bytes + 20)};
}

FigurePointBytes EncodeFigurePoint(GroundPoint point) {
  FigurePointBytes bytes{};
  Put(bytes.data(), std::bit_cast<std::uint64_t>(point.north));
  Put(bytes.data() + 8, std::bit_cast<std::uint64_t>(point.east));
  return bytes;
}

void DecodeFigurePoints(const unsigned char* bytes, std::span<GroundPoint> points) {
  for (GroundPoint& point : points) {
    point = {std::bit_cast<double>(Take<std::uint64_t>(bytes)),
             std::bit_cast<double>(Take<std::uint64_t>(bytes + 8))};
    bytes += kFigurePointSize;
  }
}

}  // namespace tavix
