// Legend files that are damaged, and files that cannot be written.
#include <tavix/tavix.h>

#include <array>
#include <cstdio>
#include <optional>
#include <set>
#include <string_view>
#include <vector>

#include "tests/support/legend_bytes.h"
#include "tests/support/library_test.h"

namespace tavix::test {
namespace {

using Values = std::array<int, 6>;  // kind, three parameters, width, colour

// The records of a file by the C library's own formatted input: what reading is defined by.
struct FormattedFile {
  int header = 10;  // stays when the file has none
  std::vector<Values> entries;

  explicit FormattedFile(const std::string& bytes) {
    std::array<char, kLegendRecord + 1> word{};
    int number = 0;
    const std::string first = bytes.substr(0, kLegendRecord);
    if (first.size() < kLegendRecord ||
        std::sscanf(first.c_str(), "%d %30s", &number, word.data()) != 2 ||
        std::string(word.data()).substr(0, 3) != "CHK") {
      return;
    }
    header = number;
    while (entries.size() < 16) {
      const std::size_t start = (1 + entries.size()) * kLegendRecord;
      if (bytes.size() < start + kLegendRecord) return;
      const std::string record = bytes.substr(start, kLegendRecord);
      Values v{};
      word.fill('\0');
      if (std::sscanf(record.c_str(), "%d %d %d %d %d %d %30s", &v[0], &v[1], &v[2], &v[3], &v[4],
                      &v[5], word.data()) != 7 ||
          std::string(word.data()).substr(0, 3) != "chk") {
        return;
      }
      entries.push_back(v);
    }
  }

  [[nodiscard]] bool IsGood() const { return entries.size() == 16; }
};

short NumberAt(std::size_t place) {
  return static_cast<short>(place < 11 ? place + 1 : place - 11 + 101);
}

Values ReadEntry(short number) {
  Values v{};
  EXPECT_EQ(0, Tavix_GetPntHan(number, &v[0], &v[4], &v[5], &v[1], &v[2], &v[3])) << number;
  return v;
}

class DamagedLegend : public LibraryTest {
 protected:
  // Takes the file in, compares the legend with what formatted input makes of it, and saves again.
  void ExpectAsFormatted(const std::string& bytes, const std::string& what) const {
    WriteBytes(LegendFile(), bytes);
    const FormattedFile wanted(bytes);
    ASSERT_EQ(0, Tavix_Crt());
    ASSERT_EQ(wanted.IsGood(), std::filesystem::exists(LegendFile())) << what;
    if (wanted.IsGood()) {
      for (std::size_t place = 0; place < 16; ++place) {
        ASSERT_EQ(wanted.entries[place], ReadEntry(NumberAt(place))) << what << ", entry " << place;
      }
    } else {
      ASSERT_EQ((Values{5, 10, 10, 1, 1, 255}), ReadEntry(5)) << what;
      ASSERT_EQ((Values{103, 0, 0, 0, 1, 255}), ReadEntry(103)) << what;
    }
    ASSERT_EQ(0, Tavix_Del());
    const std::string saved = ReadBytes(LegendFile());
    ASSERT_EQ(kLegendFileSize, saved.size()) << what;
    // A header number taken from the file stays even when the entries are refused.
    ASSERT_EQ(wanted.header, std::stoi(saved)) << what;
  }

  // A good file that is not the built-in legend.
  static std::string OwnBytes() {
    std::string bytes = LegendBytesWithHeader(" 25                       CHK");
    bytes.replace(5 * kLegendRecord, kLegendRecord, LegendRecord(" 9 12 14  0  3   16744448 chk"));
    return bytes;
  }
};

TEST_F(DamagedLegend, InAnyOneByteIsReadAsFarAsItsNumbersAndMarksGo) {
  const std::string good = OwnBytes();
  ASSERT_TRUE(FormattedFile(good).IsGood());
  constexpr std::string_view kDamages("x7\0\n", 4);
  int refused = 0;
  for (std::size_t place = 0; place < good.size(); ++place) {
    std::string bytes = good;
    bytes[place] = kDamages[place % kDamages.size()];
    refused += FormattedFile(bytes).IsGood() ? 0 : 1;
    ExpectAsFormatted(bytes, "byte " + std::to_string(place));
    if (HasFatalFailure()) return;
  }
  EXPECT_GT(refused, 100);
  EXPECT_LT(refused, 400);
}

TEST_F(DamagedLegend, CutShortIsRefusedAtAnyLength) {
  const std::string good = OwnBytes();
  for (std::size_t length = 0; length < good.size(); ++length) {
    const std::size_t in_record = length % kLegendRecord;
    if (in_record > 1 && in_record < kLegendRecord - 2) continue;  // all alike
    ASSERT_FALSE(FormattedFile(good.substr(0, length)).IsGood());
    ExpectAsFormatted(good.substr(0, length), std::to_string(length) + " bytes");
    if (HasFatalFailure()) return;
  }
}

TEST_F(DamagedLegend, WithFifteenEntriesIsDeletedAndItsHeaderNumberKept) {
  WriteBytes(LegendFile(), OwnBytes().substr(0, 16 * kLegendRecord));
  ASSERT_EQ(0, Tavix_Crt());
  EXPECT_FALSE(std::filesystem::exists(LegendFile()));
  ASSERT_EQ(0, Tavix_Del());
  EXPECT_EQ(LegendBytesWithHeader(" 25                       CHK"), ReadBytes(LegendFile()));
}

TEST_F(DamagedLegend, WithMoreBytesThanRecordsIsGood) {
  for (const std::size_t extra : {std::size_t{1}, std::size_t{30}, std::size_t{100'000}}) {
    ExpectAsFormatted(OwnBytes() + std::string(extra, 'x'), std::to_string(extra) + " more");
    EXPECT_EQ(OwnBytes(), ReadBytes(LegendFile()));
  }
}

TEST_F(DamagedLegend, OtherLayoutsThatFormattedInputTakesAreGood) {
  const struct {
    const char* record;
    bool good;
  } rows[] = {
      {"1 2 3 4 5 6 chk", true},
      {"+1 -2 03 +4 5 6 chkmore", true},
      {"1 2 3 4 5 6chk", true},
      {"\t1\n2\r3\v4\f5 6 chk", true},
      {"1 2 3 4 5 6 ch", false},
      {"1 2 3 4 5 chk", false},
      {"1 2 3 4 5 6 CHK", false},
      {"1 2 3 4 5 6.0 chk", false},
      {"1 2 3 4 5 0x6 chk", false},
      {"1 2 3 4 5 +-6 chk", false},
      {"", false},
      {"1 2 3 4 5 - 6 chk", false},
  };
  for (const auto& [record, good] : rows) {
    std::string bytes = OwnBytes();
    bytes.replace(3 * kLegendRecord, kLegendRecord, LegendRecord(record));
    EXPECT_EQ(good, FormattedFile(bytes).IsGood()) << record;
    ExpectAsFormatted(bytes, record);
  }
}

class UnwritableLegend : public DamagedLegend {
 protected:
  // Deletes an instance whose legend differs from the file's.
  static void SaveChangedLegend() {
    ASSERT_EQ(0, Tavix_Crt());
    ASSERT_EQ(0, Tavix_ChgPntHan(6, 10, 1, 0, 10, 10, 1));
    ASSERT_EQ(0, Tavix_Del());
  }

  // The names in the legend's folder.
  std::set<std::wstring> Files() const {
    std::set<std::wstring> names;
    for (const auto& entry : std::filesystem::directory_iterator(LegendFile().parent_path())) {
      names.insert(entry.path().filename().wstring());
    }
    return names;
  }

  static inline const std::set<std::wstring> kLegendAlone{L"HANREI.DAT"};
};

TEST_F(UnwritableLegend, ReadOnlyKeepsEveryByte) {
  WriteBytes(LegendFile(), OwnBytes());
  ASSERT_TRUE(::SetFileAttributesW(LegendFile().c_str(), FILE_ATTRIBUTE_READONLY));
  SaveChangedLegend();
  EXPECT_EQ(OwnBytes(), ReadBytes(LegendFile()));
  EXPECT_EQ(kLegendAlone, Files());
}

TEST_F(UnwritableLegend, HeldByAnotherProgramKeepsEveryByte) {
  WriteBytes(LegendFile(), OwnBytes());
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, Tavix_ChgPntHan(6, 10, 1, 0, 10, 10, 1));
  const HANDLE held = ::CreateFileW(LegendFile().c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, 0, nullptr);
  ASSERT_NE(INVALID_HANDLE_VALUE, held);
  EXPECT_EQ(0, Tavix_Del());
  ::CloseHandle(held);
  EXPECT_EQ(OwnBytes(), ReadBytes(LegendFile()));
  EXPECT_EQ(kLegendAlone, Files());
}

TEST_F(UnwritableLegend, UnderTheNameOfAFolderIsDoneWithout) {
  std::filesystem::create_directory(LegendFile());
  SaveChangedLegend();
  EXPECT_TRUE(std::filesystem::is_directory(LegendFile()));
  EXPECT_EQ(kLegendAlone, Files());
}

TEST_F(UnwritableLegend, InAFolderThatIsGoneIsDoneWithout) {
  ASSERT_EQ(0, Tavix_Crt());
  std::filesystem::remove_all(LegendFile().parent_path());
  EXPECT_EQ(0, Tavix_Del());
  EXPECT_FALSE(std::filesystem::exists(LegendFile().parent_path()));
}

}  // namespace
}  // namespace tavix::test
