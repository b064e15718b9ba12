// Figures for which the disk has no room left.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <vector>

#include "figure/figure_list.h"
#include "tests/platform/support/environment_variable.h"
#include "tests/platform/support/scratch_folder.h"

namespace tavix {
namespace {

constexpr std::uint64_t kPlenty = 1000000;

// A file on a disk that has room for `room` more bytes: as much of a write as fits gets there.
class FileOnFullDisk : public CFile {
 public:
  bool hides_length = false;  // its length cannot be found out

  explicit FileOnFullDisk(std::uint64_t& room) : room_(room) {}

  void Write(const void* buffer, UINT count) override {
    const auto fits = static_cast<UINT>(std::min<std::uint64_t>(room_, count));
    CFile::Write(buffer, fits);
    room_ -= fits;
    if (fits < count) AfxThrowFileException(CFileException::diskFull, ERROR_DISK_FULL);
  }

  ULONGLONG GetLength() const override {
    if (hides_length) AfxThrowFileException(CFileException::hardIO, ERROR_READ_FAULT);
    return CFile::GetLength();
  }

 private:
  std::uint64_t& room_;
};

class FiguresOnFullDisk : public testing::Test {
 protected:
  FiguresOnFullDisk() { EXPECT_EQ(0, figures_.Open()); }
  ~FiguresOnFullDisk() override { figures_.Close(); }

  // A polyline of `count` points that all lie at (mark, mark).
  void AddPolyline(std::int32_t count, double mark) {
    const std::vector<GroundPoint> points(static_cast<std::size_t>(count), {mark, mark});
    figures_.AddPolyline(points, count);
  }

  // For each live figure the marks of its points, which differ only where points of another one
  // have got in.
  std::vector<std::vector<double>> Marks() {
    std::vector<std::vector<double>> all;
    figures_.ForEach([&](const Figure& figure) {
      std::vector<double> marks;
      for (const GroundPoint point : figure.points) marks.push_back(point.north);
      all.push_back(marks);
    });
    return all;
  }

  [[nodiscard]] std::uintmax_t IndexSize() const {
    return std::filesystem::file_size(root_ / L"FIG0.DAT");
  }
  [[nodiscard]] std::uintmax_t CoordinateSize() const {
    return std::filesystem::file_size(root_ / L"FIG0.XY");
  }

  std::uint64_t index_room_ = kPlenty;
  std::uint64_t coordinate_room_ = kPlenty;
  FileOnFullDisk* index_ = new FileOnFullDisk(index_room_);  // the list's
  FileOnFullDisk* coordinates_ = new FileOnFullDisk(coordinate_room_);

 private:
  ScratchFolder root_;
  EnvironmentVariable variable_{L"CE_DEVICE_ROOT", root_.Path().c_str()};

 protected:
  CFigList figures_{0, std::unique_ptr<CFile>(index_), std::unique_ptr<CFile>(coordinates_)};
};

// They were written over the first ones.
TEST_F(FiguresOnFullDisk, AreNotKeptWhenTheEndOfAFileCannotBeFoundOut) {
  AddPolyline(2, 1.0);
  AddPolyline(2, 2.0);
  for (FileOnFullDisk* const file : {index_, coordinates_}) {
    file->hides_length = true;
    AddPolyline(2, 3.0);
    file->hides_length = false;
  }
  EXPECT_EQ((std::vector<std::vector<double>>{{1.0, 1.0}, {2.0, 2.0}}), Marks());
}

TEST_F(FiguresOnFullDisk, AreNotKeptWhenTheirPointsDoNotAllFit) {
  AddPolyline(2, 1.0);
  coordinate_room_ = 3 * kFigurePointSize + 5;
  AddPolyline(10, 2.0);
  EXPECT_EQ(1, figures_.Count());
  EXPECT_EQ(kFigureRecordSize, IndexSize());
  EXPECT_EQ(2 * kFigurePointSize, CoordinateSize()) << "cut back";

  coordinate_room_ = kPlenty;
  for (int i = 0; i < 10; ++i) AddPolyline(2, 3.0 + i);
  const auto marks = Marks();
  ASSERT_EQ(11U, marks.size()) << "no figure is drawn through the points of others";
  EXPECT_EQ((std::vector<double>{1.0, 1.0}), marks[0]);
  EXPECT_EQ((std::vector<double>{3.0, 3.0}), marks[1]);
}

TEST_F(FiguresOnFullDisk, AreNotKeptWhenTheirRecordDoesNotFit) {
  AddPolyline(2, 1.0);
  for (const std::uint64_t room : {0U, 5U, 23U}) {
    index_room_ = room;
    AddPolyline(4, 2.0);
    EXPECT_EQ(kFigureRecordSize, IndexSize()) << room;
    EXPECT_EQ(2 * kFigurePointSize, CoordinateSize()) << "its points are cut off";
  }
  index_room_ = kPlenty;
  AddPolyline(3, 3.0);
  EXPECT_EQ((std::vector<std::vector<double>>{{1.0, 1.0}, {3.0, 3.0, 3.0}}), Marks());
}

TEST_F(FiguresOnFullDisk, OfEveryKindAreRefusedWithoutAWord) {
  coordinate_room_ = kFigurePointSize;
  figures_.AddCircle({1.0, 2.0}, 3.0);
  const std::vector<GroundPoint> curve(5, {1.0, 2.0});
  EXPECT_EQ(0, figures_.AddCurve(curve)) << "as when it is written";
  EXPECT_EQ(0, figures_.Count());
  EXPECT_EQ(0U, CoordinateSize());
}

TEST_F(FiguresOnFullDisk, OfNoPointsNeedRoomForTheirRecordOnly) {
  coordinate_room_ = 0;
  figures_.AddPolyline({}, 0);
  EXPECT_EQ(1, figures_.Count());
}

}  // namespace
}  // namespace tavix
