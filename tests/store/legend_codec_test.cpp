// Short records end with a NUL, a three-digit kind fills its record, longer ones are cut: each of
// the three is in here, as are files damaged at every single place.
#include "store/legend_codec.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace tavix {
namespace {

using std::string_view_literals::operator""sv;

constexpr std::size_t kRecord = 30;
constexpr std::size_t kFile = 17 * kRecord;

std::string RecordOf(const std::string& bytes, std::size_t record) {
  return bytes.substr(record * kRecord, kRecord);
}

std::string BuiltIn() { return EncodeLegend(LegendTable()); }

// The entry of a number; an empty one where there is none.
HanRec Entry(const LegendTable& table, std::int16_t number) {
  const HanRec* entry = table.Find(number);
  return entry ? *entry : HanRec{};
}

// The built-in file with one record replaced.
std::string FileWith(std::size_t record, std::string_view bytes) {
  std::string text(bytes);
  text.resize(kRecord, '\0');
  return BuiltIn().replace(record * kRecord, kRecord, text);
}

TEST(LegendCodec, WritesTheBuiltInLegendByteForByte) {
  const std::string_view records[] = {
      " 10                       CHK\0"sv, " 1  2 10  1  1          0 chk\0"sv,
      " 2 10 10  1  1          0 chk\0"sv, " 3 10 10  1  1          0 chk\0"sv,
      " 4 10 10  1  1          0 chk\0"sv, " 5 10 10  1  1        255 chk\0"sv,
      " 6 10 10  1  1        255 chk\0"sv, " 7 10 10  1  1        255 chk\0"sv,
      " 8 10 10  1  1          0 chk\0"sv, " 9 10 10  1  1        255 chk\0"sv,
      "10 10 10  1  1        255 chk\0"sv, "11 10 10  1  1        255 chk\0"sv,
      "101  0  0  0  1          0 chk"sv,  "103  0  0  0  1        255 chk"sv,
      "102  4  2  0  1          0 chk"sv,  "104  4  2  2  1        255 chk"sv,
      "105  4  2  2  1        255 chk"sv};
  const std::string bytes = BuiltIn();
  ASSERT_EQ(kFile, bytes.size());
  for (std::size_t i = 0; i < std::size(records); ++i) {
    ASSERT_EQ(kRecord, records[i].size());
    EXPECT_EQ(records[i], RecordOf(bytes, i)) << i;
  }
}

TEST(LegendCodec, WritesEachEntryIntoExactlyThirtyBytes) {
  const struct {
    const char* what;
    LegendValues values;
    std::string_view record;
  } rows[] = {
      {"zeros", {0, 0, 0, 0, 0, 0}, " 0  0  0  0  0          0 chk\0"sv},
      {"full fields", {99, 98, 97, 96, 95, 1234567890}, "99 98 97 96 95 1234567890 chk\0"sv},
      {"one too wide: no NUL", {8, 100, 7, 6, 5, 4}, " 8 100  7  6  5          4 chk"sv},
      {"two too wide: cut", {8, 100, 100, 6, 5, 4}, " 8 100 100  6  5          4 ch"sv},
      {"negative", {-1, -2, -3, -4, -5, -6}, "-1 -2 -3 -4 -5         -6 chk\0"sv},
      {"the lowest colour", {1, 1, 1, 1, 1, INT32_MIN}, " 1  1  1  1  1 -2147483648 chk"sv},
      {"the widest",
       {INT32_MIN, INT32_MIN, INT32_MIN, INT32_MIN, INT32_MIN, INT32_MIN},
       "-2147483648 -2147483648 -21474"sv}};
  for (const auto& row : rows) {
    LegendTable table;
    ASSERT_EQ(0, table.Change(1, true, row.values));
    const std::string bytes = EncodeLegend(table);
    ASSERT_EQ(kFile, bytes.size()) << row.what;
    EXPECT_EQ(row.record, RecordOf(bytes, 1)) << row.what;
    EXPECT_EQ(RecordOf(BuiltIn(), 2), RecordOf(bytes, 2)) << row.what;
  }
}

TEST(LegendCodec, WritesTheHeaderNumberWhateverItIs) {
  const struct {
    std::int32_t number;
    std::string_view record;
    bool readable;  // the mark survives
  } rows[] = {{0, "  0                       CHK\0"sv, true},
              {5, "  5                       CHK\0"sv, true},
              {45, " 45                       CHK\0"sv, true},
              {359, "359                       CHK\0"sv, true},
              {-9, " -9                       CHK\0"sv, true},
              {-10, "-10                       CHK\0"sv, true},
              {1000, "1000                       CHK"sv, true},
              {-100, "-100                       CHK"sv, true},
              {12345, "12345                       CH"sv, false},
              {INT32_MIN, "-2147483648                   "sv, false}};
  for (const auto& row : rows) {
    LegendTable table;
    table.SetRotationStep(row.number);
    const std::string bytes = EncodeLegend(table);
    ASSERT_EQ(kFile, bytes.size()) << row.number;
    EXPECT_EQ(row.record, RecordOf(bytes, 0)) << row.number;
    LegendTable read;
    EXPECT_EQ(row.readable, DecodeLegend(bytes, read)) << row.number;
    EXPECT_EQ(row.readable ? row.number : 10, read.RotationStep()) << row.number;
  }
}

TEST(LegendCodec, OnlyTheFirstSixteenEntriesAreWritten) {
  LegendTable table;
  std::int16_t number = 0;
  ASSERT_EQ(0, table.Add(true, {1, 2, 3, 4, 5, 6}, &number));
  EXPECT_EQ(BuiltIn(), EncodeLegend(table));
}

TEST(LegendCodec, ReadsBackWhatWasWritten) {
  LegendTable table;
  const LegendValues values{11, 24, 16, 0, 3, 0x00FF8000};
  ASSERT_EQ(0, table.Change(5, true, values));
  ASSERT_EQ(0, table.Change(105, false, {105, 9, 8, 7, 2, 255}));
  table.SetRotationStep(15);
  LegendTable read;
  ASSERT_TRUE(DecodeLegend(EncodeLegend(table), read));
  EXPECT_EQ((HanRec{5, true, values}), Entry(read, 5));
  EXPECT_EQ((LegendValues{105, 9, 8, 7, 2, 255}), Entry(read, 105).values);
  EXPECT_EQ(15, read.RotationStep());
}

TEST(LegendCodec, TheFirstRoundTripSwaps102And103AndTheSecondNothing) {
  LegendTable once;
  ASSERT_TRUE(DecodeLegend(BuiltIn(), once));
  EXPECT_EQ((LegendValues{103, 0, 0, 0, 1, 255}), Entry(once, 102).values);
  EXPECT_EQ((LegendValues{102, 4, 2, 0, 1, 0}), Entry(once, 103).values);
  EXPECT_EQ(BuiltIn(), EncodeLegend(once));
  LegendTable twice;
  ASSERT_TRUE(DecodeLegend(EncodeLegend(once), twice));
  EXPECT_EQ(once.Entries(), twice.Entries());
}

TEST(LegendCodec, ALineLegendTurnedPointLegendComesBackAsItsPlaceSays) {
  LegendTable table;
  ASSERT_EQ(0, table.Change(1, false, {1, 2, 3, 4, 5, 6}));
  LegendTable read;
  ASSERT_TRUE(DecodeLegend(EncodeLegend(table), read));
  EXPECT_TRUE(read.Entries().front().is_point);
}

TEST(LegendCodec, ReadsNumbersAsFormattedInputDoes) {
  constexpr LegendValues kRead{1, 2, 3, 4, 5, 6};
  const struct {
    const char* what;
    std::string_view record;
    bool good;
  } rows[] = {{"single blanks", "1 2 3 4 5 6 chk", true},
              {"tabs and line breaks", "1\t2\n3\r4\v5\f6 chk", true},
              {"plus signs", "+1 +2 +3 +4 +5 +6 chk", true},
              {"leading zeros", "01 002 0003 4 5 6 chk", true},
              {"word without a blank", "1 2 3 4 5 6chk", true},
              {"a longer word", "1 2 3 4 5 6 chkdsk", true},
              {"text after the word", "1 2 3 4 5 6 chk 7 8 9", true},
              {"NUL and noise after the word", "1 2 3 4 5 6 chk\0noise"sv, true},
              {"all 30 bytes", "     1 2 3 4 5 6           chk", true},
              {"capital mark", "1 2 3 4 5 6 CHK", false},
              {"half a mark", "1 2 3 4 5 6 ch", false},
              {"no mark", "1 2 3 4 5 6", false},
              {"a number missing", "1 2 3 4 5 chk", false},
              {"a number too many", "1 2 3 4 5 6 7 chk", false},
              {"a NUL inside", "1 2 3\0 4 5 6 chk"sv, false},
              {"a fraction", "1.5 2 3 4 5 6 chk", false},
              {"two signs", "+-1 2 3 4 5 6 chk", false},
              {"a sign alone", "- 1 2 3 4 5 6 chk", false},
              {"empty", "", false},
              {"blanks", "                              ", false}};
  for (const auto& row : rows) {
    LegendTable table;
    ASSERT_EQ(row.good, DecodeLegend(FileWith(1, row.record), table)) << row.what;
    if (row.good) {
      EXPECT_EQ(kRead, table.Entries().front().values) << row.what;
    } else {
      EXPECT_EQ(LegendTable().Entries(), table.Entries()) << row.what;
    }
  }
}

TEST(LegendCodec, ABadHeaderIsNotTaken) {
  const struct {
    const char* what;
    std::string_view record;
    bool good;
  } rows[] = {{"small", "77 CHK", true},
              {"no blank", "77CHK", true},
              {"a longer word", "77 CHKX", true},
              {"a small mark", "77 chk", false},
              {"half a mark", "77 CH", false},
              {"no mark", "77", false},
              {"no number", "CHK", false},
              {"a word before", "x 77 CHK", false},
              {"empty", "", false}};
  for (const auto& row : rows) {
    LegendTable table;
    EXPECT_EQ(row.good, DecodeLegend(FileWith(0, row.record), table)) << row.what;
    EXPECT_EQ(row.good ? 77 : 10, table.RotationStep()) << row.what;
  }
}

TEST(LegendCodec, ABadEntryLeavesTheHeaderNumberTaken) {
  LegendTable source;
  source.SetRotationStep(77);
  const std::string bytes = EncodeLegend(source);
  for (std::size_t record = 1; record <= 16; ++record) {
    std::string damaged = bytes;
    damaged[record * kRecord] = 'x';
    LegendTable table;
    EXPECT_FALSE(DecodeLegend(damaged, table)) << record;
    EXPECT_EQ(77, table.RotationStep()) << record;
    EXPECT_EQ(LegendTable().Entries(), table.Entries()) << record;
  }
}

TEST(LegendCodec, AFileCutAnywhereIsBad) {
  LegendTable source;
  source.SetRotationStep(77);
  const std::string bytes = EncodeLegend(source);
  for (std::size_t size = 0; size < kFile; ++size) {
    LegendTable table;
    ASSERT_FALSE(DecodeLegend(bytes.substr(0, size), table)) << size;
    ASSERT_EQ(size < kRecord ? 10 : 77, table.RotationStep()) << size;
    ASSERT_EQ(LegendTable().Entries(), table.Entries()) << size;
  }
}

TEST(LegendCodec, BytesAfterTheLastRecordDoNotMatter) {
  LegendTable table;
  EXPECT_TRUE(DecodeLegend(BuiltIn() + "more", table));
  EXPECT_TRUE(DecodeLegend(BuiltIn() + BuiltIn(), table));
  EXPECT_EQ(16U, table.Entries().size());
}

// Sixteen entries are kept, or the built-in ones: never a mixture, never another count.
void ExpectWholeTable(std::string_view bytes) {
  static const LegendTable kBuiltInTable;
  LegendTable table;
  const bool good = DecodeLegend(bytes, table);
  ASSERT_EQ(16U, table.Entries().size());
  if (!good) {
    ASSERT_TRUE(table.Entries() == kBuiltInTable.Entries());
    return;
  }
  for (std::size_t i = 0; i < 16; ++i) {
    ASSERT_EQ(i < 11 ? static_cast<int>(i) + 1 : static_cast<int>(i) + 90,
              table.Entries()[i].number);
  }
}

TEST(LegendCodec, AnyOneByteDamagedGivesAWholeTable) {
  const std::string bytes = BuiltIn();
  for (std::size_t at = 0; at < bytes.size(); ++at) {
    for (int value = 0; value < 256; ++value) {
      std::string damaged = bytes;
      damaged[at] = static_cast<char>(value);
      ExpectWholeTable(damaged);
    }
  }
}

TEST(LegendCodec, RandomDamageGivesAWholeTable) {
  std::mt19937 random(61);
  const auto below = [&](std::size_t end) {
    return std::uniform_int_distribution<std::size_t>(0, end - 1)(random);
  };
  constexpr std::string_view kLikely = "0123456789+-. \t\0\nchkCHK"sv;
  for (int i = 0; i < 20000; ++i) {
    std::string damaged = BuiltIn();
    for (std::size_t changes = below(6) + 1; changes > 0; --changes) {
      const std::size_t at = below(damaged.size());
      switch (below(5)) {
        case 0:
          damaged.erase(at, below(40));
          break;
        case 1:
          damaged.insert(at, below(40), kLikely[below(kLikely.size())]);
          break;
        case 2:
          damaged[at] = static_cast<char>(below(256));
          break;
        case 3:
          damaged.replace(at, 1, damaged.substr(below(damaged.size()), below(60)));
          break;
        default:
          damaged[at] = kLikely[below(kLikely.size())];
      }
      if (damaged.empty()) damaged = "\0"sv;
    }
    ExpectWholeTable(damaged);
  }
}

TEST(LegendCodec, AnyValuesThatFitTheirFieldsComeBack) {
  std::mt19937 random(62);
  for (int i = 0; i < 2000; ++i) {
    LegendTable table;
    const LegendTable built_in;
    for (const HanRec& entry : built_in.Entries()) {
      LegendValues values;
      for (std::int32_t* value :
           {&values.kind, &values.prm1, &values.prm2, &values.prm3, &values.width}) {
        *value = std::uniform_int_distribution<std::int32_t>(-9, 99)(random);
      }
      values.color = std::uniform_int_distribution<std::int32_t>(0, 0xFFFFFF)(random);
      ASSERT_EQ(0, table.Change(entry.number, entry.is_point, values));
    }
    const std::string bytes = EncodeLegend(table);
    LegendTable read;
    ASSERT_TRUE(DecodeLegend(bytes, read));
    ASSERT_EQ(bytes, EncodeLegend(read));
    for (std::size_t place = 0; place < 16; ++place) {
      ASSERT_EQ(table.Entries()[place].values, read.Entries()[place].values);
    }
  }
}

}  // namespace
}  // namespace tavix
