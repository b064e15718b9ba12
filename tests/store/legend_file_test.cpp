// The legend's file: its bytes, and what survives from one instance to the next.
#include <tavix/tavix.h>

#include <limits>

#include "tests/support/legend_bytes.h"
#include "tests/support/library_test.h"

namespace tavix::test {
namespace {

int KindOf(short number) {
  int kind = -1, width = 0, color = 0, prm1 = 0, prm2 = 0, prm3 = 0;
  EXPECT_EQ(0, Tavix_GetPntHan(number, &kind, &width, &color, &prm1, &prm2, &prm3)) << number;
  return kind;
}

bool IsKnown(short number) {
  int kind = 0, width = 0, color = 0, prm1 = 0, prm2 = 0, prm3 = 0;
  return Tavix_GetPntHan(number, &kind, &width, &color, &prm1, &prm2, &prm3) == 0;
}

class SavedLegend : public LibraryTest {
 protected:
  static void Recreate() {
    ASSERT_EQ(0, Tavix_Del());
    ASSERT_EQ(0, Tavix_Crt());
  }

  // The file's record after an instance has taken the file in and saved it again.
  std::string ResavedRecord(std::size_t record) const {
    EXPECT_EQ(0, Tavix_Crt());
    EXPECT_EQ(0, Tavix_Del());
    return ReadBytes(LegendFile()).substr(record * kLegendRecord, kLegendRecord);
  }
};

TEST_F(SavedLegend, AppearsWhenTheInstanceIsDeletedAndNotBefore) {
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, Tavix_ChgPntHan(5, 5, 1, 0, 10, 10, 1));
  EXPECT_FALSE(std::filesystem::exists(LegendFile()));
  ASSERT_EQ(0, Tavix_Del());
  EXPECT_EQ(kLegendFileSize, std::filesystem::file_size(LegendFile()));
}

TEST_F(SavedLegend, HasTheBuiltInEntriesInTheirOrder) {
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, Tavix_Del());
  EXPECT_EQ(BuiltInLegendBytes(), ReadBytes(LegendFile()));
}

TEST_F(SavedLegend, SwapsTwoLineStylesOnTheFirstSave) {
  ASSERT_EQ(0, Tavix_Crt());
  EXPECT_EQ(102, KindOf(102));
  EXPECT_EQ(103, KindOf(103));
  Recreate();
  EXPECT_EQ(103, KindOf(102));  // the built-in list has 103 first; numbers come from the place
  EXPECT_EQ(102, KindOf(103));
  Recreate();
  EXPECT_EQ(103, KindOf(102));
}

TEST_F(SavedLegend, BringsChangesBack) {
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, Tavix_ChgPntHan(5, 9, 3, 0x00FF8000, 12, 14, 0));
  ASSERT_EQ(0, Tavix_ChgLinHan(105, 102, 7, 8, 9, 2, 0x000000FF));
  ASSERT_EQ(0, Tavix_Del());
  const std::string bytes = ReadBytes(LegendFile());
  EXPECT_EQ(kLegendFileSize, bytes.size());
  EXPECT_EQ(LegendRecord(" 9 12 14  0  3   16744448 chk"), bytes.substr(5 * 30, 30));
  EXPECT_EQ(LegendRecord("102  7  8  9  2        255 chk"), bytes.substr(16 * 30, 30));
  ASSERT_EQ(0, Tavix_Crt());
  int kind = 0, width = 0, color = 0, prm1 = 0, prm2 = 0, prm3 = -1;
  EXPECT_EQ(0, Tavix_GetPntHan(5, &kind, &width, &color, &prm1, &prm2, &prm3));
  EXPECT_EQ(9, kind);
  EXPECT_EQ(3, width);
  EXPECT_EQ(0x00FF8000, color);
  EXPECT_EQ(12, prm1);
  EXPECT_EQ(14, prm2);
  EXPECT_EQ(0, prm3);
}

TEST_F(SavedLegend, LeavesAddedEntriesOut) {
  short number = 0;
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, Tavix_AddPntHan(1, 1, 1, 1, 1, 1, &number));
  ASSERT_EQ(0, Tavix_AddLinHan(1, 1, 1, 1, 1, 1, &number));
  Recreate();
  EXPECT_FALSE(IsKnown(201));
  EXPECT_FALSE(IsKnown(202));
  ASSERT_EQ(0, Tavix_AddPntHan(1, 1, 1, 1, 1, 1, &number));
  EXPECT_EQ(201, number);
}

TEST_F(SavedLegend, CutsARecordWhoseValuesAreTooWide) {
  const struct {
    int size;
    int color;
    const char* record;
  } rows[] = {
      {99, 2147483647, " 5 99 10  1  1 2147483647 chk"},
      {100, 0, " 5 100 10  1  1          0 chk"},   // fills the record: no NUL
      {1000, 0, " 5 1000 10  1  1          0 ch"},  // its mark is cut: the file will be refused
      {-5, -1, " 5 -5 10  1  1         -1 chk"},
      {10, std::numeric_limits<int>::min(), " 5 10 10  1  1 -2147483648 chk"},
  };
  for (const auto& [size, color, record] : rows) {
    ASSERT_EQ(0, Tavix_Crt());
    ASSERT_EQ(0, Tavix_ChgPntHan(5, 5, 1, color, size, 10, 1));
    ASSERT_EQ(0, Tavix_Del());
    const std::string bytes = ReadBytes(LegendFile());
    EXPECT_EQ(kLegendFileSize, bytes.size());
    EXPECT_EQ(LegendRecord(record), bytes.substr(5 * kLegendRecord, kLegendRecord));
  }
}

TEST_F(SavedLegend, WithACutMarkGivesTheBuiltInEntriesNextTime) {
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, Tavix_ChgPntHan(5, 9, 1, 0, 1000, 10, 1));
  Recreate();
  EXPECT_EQ(5, KindOf(5));
  EXPECT_FALSE(std::filesystem::exists(LegendFile()));
}

TEST_F(SavedLegend, CarriesTheHeaderNumberUnchanged) {
  for (const char* number : {"  0", "  1", " 25", "180", "181", "360", "999", " -7", "-99"}) {
    const std::string header = std::string(number) + "                       CHK";
    WriteBytes(LegendFile(), LegendBytesWithHeader(header));
    EXPECT_EQ(LegendRecord(header), ResavedRecord(0)) << number;
  }
}

TEST_F(SavedLegend, CutsTheHeaderOfANumberTooWide) {
  WriteBytes(LegendFile(), LegendBytesWithHeader("1000 CHK"));
  EXPECT_EQ("1000                       CHK", ResavedRecord(0));
  EXPECT_EQ("1000                       CHK", ResavedRecord(0));
  WriteBytes(LegendFile(), LegendBytesWithHeader("10000 CHK"));
  EXPECT_EQ("10000                       CH", ResavedRecord(0));
  // Its mark is gone: the file is refused, and the number with it.
  EXPECT_EQ(LegendRecord(" 10                       CHK"), ResavedRecord(0));
}

TEST_F(SavedLegend, IsOneFileForAllInstances) {
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, Tavix_ChgPntHan(5, 9, 1, 0, 10, 10, 1));
  Tavix_SetIdx(1);
  ASSERT_EQ(0, Tavix_Crt());  // nothing is saved yet
  EXPECT_EQ(5, KindOf(5));
  ASSERT_EQ(0, Tavix_ChgPntHan(6, 10, 1, 0, 10, 10, 1));
  ASSERT_EQ(0, Tavix_Del());
  ASSERT_EQ(0, CurrentIndex());
  ASSERT_EQ(0, Tavix_Del());  // the later one to save wins
  ASSERT_EQ(0, Tavix_Crt());
  EXPECT_EQ(9, KindOf(5));
  EXPECT_EQ(6, KindOf(6));
}

TEST_F(SavedLegend, GoesToTheFolderOfTheInstanceMadeLast) {
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, Tavix_ChgPntHan(5, 9, 1, 0, 10, 10, 1));
  const PrivateFolder other(L"ROVCOND_DATA_FOLDER");
  Tavix_SetIdx(1);
  ASSERT_EQ(0, Tavix_Crt());
  Tavix_SetIdx(0);
  ASSERT_EQ(0, Tavix_Del());
  EXPECT_FALSE(std::filesystem::exists(LegendFile()));
  EXPECT_EQ(LegendRecord(" 9 10 10  1  1          0 chk"),
            ReadBytes(other.Path() / L"HANREI.DAT").substr(5 * kLegendRecord, kLegendRecord));
  ASSERT_EQ(1, CurrentIndex());
  ASSERT_EQ(0, Tavix_Del());
}

TEST_F(SavedLegend, StaysInTheFolderTheInstanceBeganWith) {
  ASSERT_EQ(0, Tavix_Crt());
  const PrivateFolder other(L"ROVCOND_DATA_FOLDER");
  ASSERT_EQ(0, Tavix_Del());
  EXPECT_EQ(BuiltInLegendBytes(), ReadBytes(LegendFile()));
  EXPECT_FALSE(std::filesystem::exists(other.Path() / L"HANREI.DAT"));
}

}  // namespace
}  // namespace tavix::test
