// A program that is ended by force at any moment of saving its legend or of adding figures.
#include <tavix/tavix.h>

#include <cstdint>
#include <cstring>
#include <iostream>
#include <random>

#include "tests/figure/second_program.h"
#include "tests/reliability/saved_legend.h"
#include "tests/reliability/whole_run.h"
#include "tests/support/figure_bytes.h"
#include "tests/support/library_test.h"

namespace tavix::test {
namespace {

class Kills : public LibraryTest {
 protected:
  // Has another program do something without end, and ends it after up to `longest` microseconds.
  void Kill(const char* doing, int longest) {
    SecondProgram other;
    ASSERT_EQ("0", other.Ask(doing));
    LARGE_INTEGER frequency;
    LARGE_INTEGER now;
    ::QueryPerformanceFrequency(&frequency);
    ::QueryPerformanceCounter(&now);
    const auto wait = static_cast<LONGLONG>(random_() % static_cast<unsigned>(longest));
    const LONGLONG end = now.QuadPart + wait * frequency.QuadPart / 1000000;
    while (now.QuadPart < end) {
      ::Sleep(0);
      ::QueryPerformanceCounter(&now);
    }
    other.EndByForce();
  }

 private:
  std::minstd_rand random_{1};
};

TEST_F(Kills, LeaveALegendFileWhole) {
  int half_saved = 0;
  for (int kill = 0; kill < Rounds(10, 100); ++kill) {
    WriteBytes(LegendFile(), BuiltInLegendBytes());
    Kill("live without end", 40000);
    const std::string left = ReadBytes(LegendFile());
    ASSERT_TRUE(left == BuiltInLegendBytes() || IsLegendOfSomeLife(left)) << kill << ": " << left;
    half_saved += std::filesystem::exists(FileBeside()) ? 1 : 0;

    ASSERT_EQ(0, Tavix_Crt());
    ASSERT_EQ(0, Tavix_ChgPntHan(3, 3, 1, 17, 17, 10, 1));
    ASSERT_EQ(0, Tavix_Del());
    EXPECT_TRUE(IsLegendOfSomeLife(ReadBytes(LegendFile())));
    EXPECT_FALSE(std::filesystem::exists(FileBeside())) << "of the one that was ended";
  }
  std::cout << half_saved << " left a file that was not moved yet\n";
}

// The words of a record, and the figure's points.
void ExpectWhole(const std::string& index, const std::string& coordinates) {
  constexpr std::size_t kRecord = 24;
  constexpr std::size_t kPoint = 16;
  for (std::size_t at = 0; at + kRecord <= index.size(); at += kRecord) {
    std::uint32_t words[6] = {};
    std::memcpy(words, index.data() + at, kRecord);
    const std::uint32_t figure = words[0];
    ASSERT_EQ(at / kRecord, figure);
    ASSERT_EQ(figure % 60 + 2, words[2]);
    ASSERT_LE(words[4] + words[2] * kPoint, coordinates.size()) << figure;
    for (std::uint32_t point = 0; point < words[2]; ++point) {
      ASSERT_EQ(NumberBytes(figure, figure), coordinates.substr(words[4] + point * kPoint, kPoint))
          << figure;
    }
  }
}

TEST_F(Kills, LeaveFiguresWholeAndFilesThatCanBeTaken) {
  std::size_t figures = 0;
  for (int kill = 0; kill < Rounds(10, 100); ++kill) {
    Kill("add figures without end", 40000);
    const std::string index = ReadBytes(IndexFile());
    ExpectWhole(index, ReadBytes(CoordinateFile()));
    figures += index.size() / 24;

    ASSERT_EQ(0, Tavix_Crt());
    EXPECT_EQ("", ReadBytes(IndexFile())) << "the next instance begins without figures";
    ASSERT_EQ(0, Tavix_FigStt(0, 101));
    ASSERT_EQ(0, Tavix_FigMdlLin(0.0, 0.0, 1.0, 1.0));
    EXPECT_EQ(24U, ReadBytes(IndexFile()).size());
    ASSERT_EQ(0, Tavix_Del());
    EXPECT_FALSE(std::filesystem::exists(IndexFile()));
  }
  EXPECT_LT(0U, figures);
  std::cout << figures << " figures written by programs that were ended\n";
}

}  // namespace
}  // namespace tavix::test
