// Legend files that other programs hold, and names beside them that are taken.
#include <tavix/tavix.h>

#include "tests/support/held_file.h"
#include "tests/support/legend_bytes.h"
#include "tests/support/library_test.h"

namespace tavix::test {
namespace {

constexpr DWORD kReadOnly = FILE_ATTRIBUTE_READONLY;

class HeldLegend : public LibraryTest {
 protected:
  void SetUp() override { WriteBytes(LegendFile(), OwnBytes()); }

  // A good file that is not the built-in legend.
  static std::string OwnBytes() {
    std::string bytes = LegendBytesWithHeader(" 25                       CHK");
    bytes.replace(5 * kLegendRecord, kLegendRecord, LegendRecord(" 9 12 14  0  3   16744448 chk"));
    return bytes;
  }

  // These bytes with the look that ChangeEntry gives point legend 6.
  static std::string Changed(std::string bytes) {
    return bytes.replace(6 * kLegendRecord, kLegendRecord,
                         LegendRecord("10 10 10  1  1          0 chk"));
  }
  static void ChangeEntry() { ASSERT_EQ(0, Tavix_ChgPntHan(6, 10, 1, 0, 10, 10, 1)); }

  static int KindOf(short number) {
    int kind = -1, width = 0, color = 0, prm1 = 0, prm2 = 0, prm3 = 0;
    EXPECT_EQ(0, Tavix_GetPntHan(number, &kind, &width, &color, &prm1, &prm2, &prm3));
    return kind;
  }

  // Makes the instance while another program holds the file.
  void CreateWhileHeld(DWORD access, DWORD sharing) const {
    const HeldFile held(LegendFile(), access, sharing);
    ASSERT_EQ(0, Tavix_Crt());
    EXPECT_EQ(5, KindOf(5)) << "the built-in legend";
  }

  static constexpr DWORD kShareAll = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;
  static inline const struct {
    DWORD access;
    DWORD sharing;
  } kWaysToHold[] = {{GENERIC_READ, 0}, {GENERIC_WRITE, 0}, {GENERIC_WRITE, kShareAll}};
};

TEST_F(HeldLegend, IsLeftAloneWhenNothingIsChanged) {
  for (const auto& [access, sharing] : kWaysToHold) {
    CreateWhileHeld(access, sharing);
    EXPECT_EQ(OwnBytes(), ReadBytes(LegendFile()));
    short added = 0;
    EXPECT_EQ(0, Tavix_AddPntHan(1, 1, 1, 1, 1, 1, &added));
    ASSERT_EQ(0, Tavix_Del());
    EXPECT_EQ(OwnBytes(), ReadBytes(LegendFile())) << "an added entry is not saved";
    ASSERT_EQ(0, Tavix_Crt());
    EXPECT_EQ(9, KindOf(5)) << "it can be read again";
    ASSERT_EQ(0, Tavix_Del());
  }
}

TEST_F(HeldLegend, IsSavedOverWhenAnEntryWasChanged) {
  for (const auto& [access, sharing] : kWaysToHold) {
    SetUp();
    CreateWhileHeld(access, sharing);
    ChangeEntry();
    ASSERT_EQ(0, Tavix_Del());
    EXPECT_EQ(Changed(BuiltInLegendBytes()), ReadBytes(LegendFile()));
  }
}

TEST_F(HeldLegend, IsWrittenInPlaceWhileAProgramReadsIt) {
  WriteBytes(LegendFile(), OwnBytes() + std::string(5000, 'x'));
  ASSERT_EQ(0, Tavix_Crt());
  ChangeEntry();
  const HeldFile reader(LegendFile(), GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE);
  ASSERT_EQ(0, Tavix_Del());
  EXPECT_EQ(Changed(OwnBytes()), ReadBytes(LegendFile())) << "and cut to its length";
  EXPECT_FALSE(std::filesystem::exists(FileBeside()));
}

TEST_F(HeldLegend, IsSavedThoughAFolderHasTheNameBesideIt) {
  std::filesystem::create_directory(FileBeside());
  ASSERT_EQ(0, Tavix_Crt());
  ChangeEntry();
  ASSERT_EQ(0, Tavix_Del());
  EXPECT_EQ(Changed(OwnBytes()), ReadBytes(LegendFile()));
  EXPECT_TRUE(std::filesystem::is_directory(FileBeside()));
}

TEST_F(HeldLegend, IsMadeThoughAFolderHasTheNameBesideIt) {
  std::filesystem::remove(LegendFile());
  std::filesystem::create_directory(FileBeside());
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, Tavix_Del());
  EXPECT_EQ(BuiltInLegendBytes(), ReadBytes(LegendFile()));
}

TEST_F(HeldLegend, IsSavedAgainAndAgainThoughAReadOnlyFileHasTheNameBesideIt) {
  WriteBytes(FileBeside(), "somebody's own");
  ASSERT_TRUE(::SetFileAttributesW(FileBeside().c_str(), kReadOnly));
  for (const int color : {1, 2}) {
    ASSERT_EQ(0, Tavix_Crt());
    ASSERT_EQ(0, Tavix_ChgPntHan(6, 10, 1, color, 10, 10, 1));
    ASSERT_EQ(0, Tavix_Del());
    EXPECT_EQ(LegendRecord("10 10 10  1  1          " + std::to_string(color) + " chk"),
              ReadBytes(LegendFile()).substr(6 * kLegendRecord, kLegendRecord));
  }
  EXPECT_EQ(0U, ::GetFileAttributesW(LegendFile().c_str()) & kReadOnly);
  EXPECT_EQ("somebody's own", ReadBytes(FileBeside()));
}

TEST_F(HeldLegend, IsSavedByWayOfAFileThatWasLeftBesideIt) {
  WriteBytes(FileBeside(), "of a program that was ended while it saved, and longer" + OwnBytes());
  ASSERT_EQ(0, Tavix_Crt());
  ChangeEntry();
  ASSERT_EQ(0, Tavix_Del());
  EXPECT_EQ(Changed(OwnBytes()), ReadBytes(LegendFile()));
  EXPECT_FALSE(std::filesystem::exists(FileBeside()));
}

}  // namespace
}  // namespace tavix::test
