#include "figure/file_window.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace tavix {
namespace {

// A file in memory, parts of which cannot be read.
class FaultyFile : public CFile {
 public:
  explicit FaultyFile(std::string bytes) : bytes_(std::move(bytes)) {}

  // Reads that include the byte at `offset` throw.
  void Spoil(std::uint64_t offset) { spoilt_.push_back(offset); }
  void Write(std::size_t offset, char byte) { bytes_[offset] = byte; }
  // No read gives more than this.
  void ReadAtMost(UINT count) { most_ = count; }
  // The file reports a greater length than it has.
  void Promise(std::uint64_t length) { promised_ = length; }
  void RefuseLength() { refuses_length_ = true; }

  UINT Read(void* buffer, UINT count) override {
    ++reads_;
    const auto left = bytes_.size() - std::min<std::uint64_t>(place_, bytes_.size());
    const auto given = static_cast<std::size_t>(std::min<std::uint64_t>({count, most_, left}));
    for (const std::uint64_t spoilt : spoilt_) {
      if (spoilt >= place_ && spoilt < place_ + given) {
        AfxThrowFileException(CFileException::hardIO, ERROR_CRC, L"faulty");
      }
    }
    if (given > 0) std::memcpy(buffer, bytes_.data() + place_, given);
    place_ += given;
    return static_cast<UINT>(given);
  }
  ULONGLONG Seek(LONGLONG offset, UINT from) override {
    EXPECT_EQ(CFile::begin, from);
    place_ = static_cast<std::uint64_t>(offset);
    return place_;
  }
  ULONGLONG GetLength() const override {
    if (refuses_length_) AfxThrowFileException(CFileException::genericException, 1, L"faulty");
    return std::max<std::uint64_t>(promised_, bytes_.size());
  }

  [[nodiscard]] int Reads() const { return reads_; }

  // The plain way: one read for just these bytes.
  bool ReadsWhole(std::uint64_t offset, std::string& piece) {
    Seek(static_cast<LONGLONG>(offset), CFile::begin);
    try {
      return Read(piece.data(), static_cast<UINT>(piece.size())) == piece.size();
    } catch (CFileException* error) {
      error->Delete();
      return false;
    }
  }

 private:
  std::string bytes_;
  std::vector<std::uint64_t> spoilt_;
  std::uint64_t place_ = 0;
  std::uint64_t promised_ = 0;
  UINT most_ = 0xFFFFFFFF;
  bool refuses_length_ = false;
  int reads_ = 0;
};

std::string SomeBytes(std::size_t count) {
  std::mt19937 random(7);
  std::string bytes(count, '\0');
  for (char& byte : bytes) byte = static_cast<char>(random());
  return bytes;
}

TEST(FileWindow, GivesEveryPieceThatAReadOfItsOwnWouldGive) {
  const std::string bytes = SomeBytes(300000);
  for (const unsigned seed : {1U, 2U, 3U}) {
    FaultyFile file(bytes);
    std::mt19937 random(seed);
    for (unsigned i = 0; i < 5 * seed; ++i) file.Spoil(random() % bytes.size());
    if (seed == 3) file.ReadAtMost(50000);
    FileWindow window(file);
    std::uint64_t offset = 0;
    int given = 0;
    int refused = 0;
    for (int i = 0; i < 4000; ++i) {
      // Mostly forwards in small steps, as figures lie; sometimes anywhere, the end's far side too.
      const std::uint64_t size = 1 + (random() % 100 == 0 ? random() % 100000 : random() % 400);
      offset = random() % 20 == 0 ? random() % (bytes.size() + 1000) : offset + random() % 300;
      std::string piece(static_cast<std::size_t>(size), '\0');
      const bool readable = offset + size <= bytes.size() && file.ReadsWhole(offset, piece);
      const unsigned char* found = window.Bytes(offset, size);
      ASSERT_EQ(readable, found != nullptr) << "seed " << seed << " step " << i;
      ++(readable ? given : refused);
      if (found) {
        ASSERT_EQ(0, std::memcmp(piece.data(), found, piece.size()));
      }
    }
    EXPECT_GT(given, 1000);
    EXPECT_GT(refused, 20);
  }
}

TEST(FileWindow, ReadsManySmallPiecesAtOnce) {
  const std::string bytes = SomeBytes(200000);
  FaultyFile file(bytes);
  FileWindow window(file);
  for (std::size_t at = 0; at < bytes.size(); at += 100) ASSERT_TRUE(window.Bytes(at, 100));
  EXPECT_LE(file.Reads(), 4);
}

TEST(FileWindow, AsksForNoRoomThatTheFileDoesNotFill) {
  FaultyFile file(SomeBytes(100));
  FileWindow window(file);
  EXPECT_EQ(nullptr, window.Bytes(0, std::uint64_t{1} << 40));
  EXPECT_EQ(nullptr, window.Bytes(std::uint64_t{1} << 63, std::uint64_t{1} << 20));
  EXPECT_EQ(0, file.Reads());
  EXPECT_EQ(nullptr, window.Bytes(std::uint64_t{1} << 32, 1));
}

TEST(FileWindow, AFileShorterThanItSaysGivesWhatItHas) {
  FaultyFile file(SomeBytes(100));
  file.Promise(1000);
  FileWindow window(file);
  EXPECT_TRUE(window.Bytes(0, 100));
  EXPECT_EQ(nullptr, window.Bytes(50, 51));
  EXPECT_TRUE(window.Bytes(99, 1));
}

TEST(FileWindow, AFileThatDoesNotTellItsLengthGivesPiecesThatFitTheBuffer) {
  FaultyFile file(SomeBytes(100000));
  file.RefuseLength();
  FileWindow window(file);
  EXPECT_TRUE(window.Bytes(0, 65536));
  EXPECT_EQ(nullptr, window.Bytes(0, 65537));
}

TEST(FileWindow, ReadsAgainWhatItIsToldToForget) {
  FaultyFile file(SomeBytes(100));
  FileWindow window(file);
  const unsigned char* bytes = window.Bytes(10, 5);
  ASSERT_TRUE(bytes);
  const unsigned char before = bytes[0];
  file.Write(10, static_cast<char>(before + 1));
  bytes = window.Bytes(10, 5);
  ASSERT_TRUE(bytes);
  EXPECT_EQ(before, bytes[0]) << "within one pass";
  window.Forget();
  bytes = window.Bytes(10, 5);
  ASSERT_TRUE(bytes);
  EXPECT_EQ(static_cast<unsigned char>(before + 1), bytes[0]);
}

}  // namespace
}  // namespace tavix
