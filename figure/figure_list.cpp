#include "figure/figure_list.h"

#include <algorithm>
#include <array>
#include <optional>
#include <utility>

#include "figure/file_window.h"

namespace tavix {
namespace {

// Locked by the instance that owns the file: a byte far behind the end of any file, so that other
// programs can still read and write the contents.
constexpr std::uint64_t kOwnersByte = std::uint64_t{1} << 62;

// Runs a step on the files. False when it failed, which is not reported to hosts.
template <class Step>
bool Quietly(Step step) {
  try {
    step();
    return true;
  } catch (CFileException* error) {
    error->Delete();
    return false;
  }
}

enum class Opening { kDone, kFailed, kTaken };

// Opens a file and empties it. A file of an instance of another process is taken: it is not
// touched.
Opening OpenEmpty(CFile& file, LPCWSTR name_format, int instance) {
  constexpr UINT kKeepContents = CFile::modeCreate | CFile::modeNoTruncate;
  constexpr UINT kForThisProcessOnly = CFile::modeReadWrite | CFile::modeNoInherit;
  CString path;
  path.Format(name_format, instance);
  if (!file.Open(path, kKeepContents | kForThisProcessOnly | CFile::shareDenyNone)) {
    return Opening::kFailed;
  }
  Opening opening = Opening::kTaken;
  const bool done = Quietly([&] {
    file.LockRange(kOwnersByte, 1);
    opening = Opening::kFailed;
    file.SetLength(0);
  });
  if (done) return Opening::kDone;
  file.Abort();
  return opening;
}

void CloseAndDelete(CFile& file) {
  const CString path = file.GetFilePath();
  file.Abort();
  if (!path.IsEmpty()) Quietly([&] { CFile::Remove(path); });
}

// Nothing when the length cannot be found out.
std::optional<std::uint64_t> LengthOf(CFile& file) {
  std::optional<std::uint64_t> length;
  Quietly([&] { length = file.GetLength(); });
  return length;
}

bool WriteAt(CFile& file, std::uint64_t offset, std::span<const unsigned char> bytes) {
  return Quietly([&] {
    file.Seek(static_cast<LONGLONG>(offset), CFile::begin);
    file.Write(bytes.data(), static_cast<UINT>(bytes.size()));
  });
}

void CutTo(CFile& file, std::uint64_t length) {
  Quietly([&] { file.SetLength(length); });
}

// Writes all of the bytes from `length` on; a file that cannot take them is cut back to `length`.
bool Extend(CFile& file, std::uint64_t length, std::span<const unsigned char> bytes) {
  if (WriteAt(file, length, bytes)) return true;
  CutTo(file, length);
  return false;
}

std::uint64_t OffsetOf(std::int32_t index) {
  return static_cast<std::uint64_t>(index) * kFigureRecordSize;
}

std::optional<FigureRecord> ReadRecord(FileWindow& index_file, std::int32_t index) {
  const unsigned char* bytes = index_file.Bytes(OffsetOf(index), kFigureRecordSize);
  if (!bytes) return std::nullopt;
  return DecodeFigureRecord(bytes);
}

int ReadFigure(FileWindow& index_file, FileWindow& coordinate_file, std::int32_t index,
               Figure* figure) {
  const std::optional<FigureRecord> record = ReadRecord(index_file, index);
  if (!record) return -2;
  if (record->deleted != 0) return -1;
  figure->number = record->number;
  figure->legend = record->legend;
  figure->is_circle = record->is_circle != 0;
  std::vector<GroundPoint>& points = figure->points;
  if (record->point_count < 1) {
    points.clear();
    return 0;
  }
  // In 64 bits: the size of a damaged count may exceed 32.
  const auto size = static_cast<std::uint64_t>(record->point_count) * kFigurePointSize;
  const unsigned char* bytes = coordinate_file.Bytes(record->first_point, size);
  if (!bytes) {
    points.clear();
    return -3;
  }
  // Not cleared before, which would set each point twice.
  points.resize(static_cast<std::size_t>(record->point_count));
  DecodeFigurePoints(bytes, points);
  return 0;
}

}  // namespace

CFigList::CFigList(int instance)
    : CFigList(instance, std::make_unique<CFile>(), std::make_unique<CFile>()) {}

CFigList::CFigList(int instance, std::unique_ptr<CFile> index, std::unique_ptr<CFile> coordinates)
    : index_(std::move(index)),
      coordinates_(std::move(coordinates)),
      index_window_(*index_),
      coordinate_window_(*coordinates_),
      instance_(instance) {}

int CFigList::Open() {
  changed_ = false;
  Opening opening = OpenEmpty(*index_, L"\\FIG%d.DAT", instance_);
  if (opening == Opening::kDone) opening = OpenEmpty(*coordinates_, L"\\FIG%d.XY", instance_);
  taken_ = opening == Opening::kTaken;
  if (opening == Opening::kDone) return 0;
  Close();
  return -1;
}

int CFigList::Close() {
  CloseAndDelete(*index_);
  CloseAndDelete(*coordinates_);
  return 0;
}

int CFigList::Clear() {
  Close();
  pending_ = {};
  return Open();
}

void CFigList::SetPending(std::int32_t number, std::int32_t legend) {
  pending_.number = number;
  pending_.legend = legend;
}

void CFigList::AddPolyline(std::span<const GroundPoint> points, std::int32_t point_count) {
  Append(point_count, false, points);
}

void CFigList::AddCircle(GroundPoint centre, double radius) {
  const std::array<GroundPoint, 2> points{centre, {radius, 0.0}};
  Append(2, true, points);
}

int CFigList::AddCurve(std::span<const GroundPoint> points) {
  if (points.empty()) return -1;
  Append(static_cast<std::int32_t>(points.size()), false, points);
  return 0;
}

// Points first and record last, so that a record never refers to missing points. What does not fit
// is cut off again: otherwise the points of later figures would be read as those of this record.
// The record is written behind the last whole one, over a record that was cut short. Where the end
// of a file cannot be found out nothing is written: it would go over the first figures.
void CFigList::Append(std::int32_t point_count, bool is_circle,
                      std::span<const GroundPoint> points) {
  const std::optional<std::uint64_t> end_of_points = LengthOf(*coordinates_);
  const std::optional<std::uint64_t> end_of_records = LengthOf(*index_);
  if (!end_of_points || !end_of_records) return;
  const std::uint64_t first_point = *end_of_points;
  std::vector<unsigned char> bytes;
  bytes.reserve(points.size() * kFigurePointSize);
  for (const GroundPoint point : points) {
    const FigurePointBytes encoded = EncodeFigurePoint(point);
    bytes.insert(bytes.end(), encoded.begin(), encoded.end());
  }
  if (!Extend(*coordinates_, first_point, bytes)) return;

  pending_.point_count = point_count;
  pending_.is_circle = is_circle ? 1 : 0;
  pending_.first_point = static_cast<std::uint32_t>(first_point);
  pending_.deleted = 0;
  const FigureRecordBytes record = EncodeFigureRecord(pending_);
  const std::uint64_t first_place = *end_of_records / kFigureRecordSize * kFigureRecordSize;
  if (!Extend(*index_, first_place, record)) CutTo(*coordinates_, first_point);
}

int CFigList::Delete(std::int32_t number) {
  const std::int32_t count = Count();
  if (count == 0) return -1;
  std::vector<std::int32_t> found;
  index_window_.Forget();
  for (std::int32_t i = 0; i < count; ++i) {
    const std::optional<FigureRecord> record = ReadRecord(index_window_, i);
    if (!record) break;
    if (record->deleted == 0 && record->number == number) found.push_back(i);
  }
  const FigureRecordBytes deleted = EncodeFigureRecord({0, 0, 0, 0, 0, 1});
  for (const std::int32_t i : found) WriteAt(*index_, OffsetOf(i), deleted);
  changed_ = true;
  return 0;
}

std::int32_t CFigList::Count() const {
  return static_cast<std::int32_t>(LengthOf(*index_).value_or(0) / kFigureRecordSize);
}

void CFigList::ForgetWhatWasRead() const {
  index_window_.Forget();
  coordinate_window_.Forget();
}

int CFigList::Get(std::int32_t index, Figure* figure) const {
  if (index < 0) return -2;
  ForgetWhatWasRead();
  return ReadFigure(index_window_, coordinate_window_, index, figure);
}

void CFigList::ForEach(const std::function<void(const Figure&)>& visit, std::int32_t most) const {
  ForgetWhatWasRead();
  Figure figure;
  const std::int32_t count = std::min(Count(), most);
  for (std::int32_t i = 0; i < count; ++i) {
    if (ReadFigure(index_window_, coordinate_window_, i, &figure) == 0) visit(figure);
  }
}

int CFigList::GetExtent(GroundExtent* extent) const {
  ExtentBuilder builder;
  ForEach([&](const Figure& figure) {
    if (figure.is_circle && figure.points.size() >= 2) {
      const GroundPoint centre = figure.points[0];
      const double radius = figure.points[1].north;
      builder.Include(GroundPoint{centre.north + radius, centre.east + radius});
      builder.Include(GroundPoint{centre.north - radius, centre.east - radius});
      return;
    }
    for (const GroundPoint point : figure.points) builder.Include(point);
  });
  *extent = builder.Extent();
  return builder.IsEmpty() ? -3 : 0;
}

}  // namespace tavix
