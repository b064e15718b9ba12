// The legend's file in a data folder of the device: one whose path begins with one backslash.
#include <tavix/tavix.h>

#include <set>

#include "tests/platform/support/environment_variable.h"
#include "tests/support/legend_bytes.h"
#include "tests/support/library_test.h"

namespace tavix::test {
namespace {

class DeviceFolderLegend : public LibraryTest {
 protected:
  void SetUp() override { std::filesystem::create_directory(Folder()); }

  [[nodiscard]] std::filesystem::path Folder() const { return root_.Path() / L"Jobs"; }
  [[nodiscard]] std::filesystem::path File() const { return Folder() / L"HANREI.DAT"; }

  // The names in the data folder.
  [[nodiscard]] std::set<std::wstring> Files() const {
    std::set<std::wstring> names;
    for (const auto& entry : std::filesystem::directory_iterator(Folder())) {
      names.insert(entry.path().filename().wstring());
    }
    return names;
  }

 private:
  PrivateFolder root_{L"CE_DEVICE_ROOT"};
  EnvironmentVariable data_folder_{L"ROVCOND_DATA_FOLDER", L"\\Jobs"};
};

TEST_F(DeviceFolderLegend, IsSavedThereAndNothingIsLeftBesideIt) {
  ASSERT_EQ(0, Tavix_Crt());
  ASSERT_EQ(0, Tavix_Del());
  EXPECT_EQ(BuiltInLegendBytes(), ReadBytes(File()));
  EXPECT_EQ(std::set<std::wstring>{L"HANREI.DAT"}, Files());
}

TEST_F(DeviceFolderLegend, IsFoundReadAndReplacedThere) {
  std::string bytes = BuiltInLegendBytes();
  bytes.replace(5 * kLegendRecord, kLegendRecord, LegendRecord(" 9 12 14  0  3   16744448 chk"));
  WriteBytes(File(), bytes);
  ASSERT_EQ(0, Tavix_Crt());
  int kind = 0, width = 0, color = 0, prm1 = 0, prm2 = 0, prm3 = 0;
  EXPECT_EQ(0, Tavix_GetPntHan(5, &kind, &width, &color, &prm1, &prm2, &prm3));
  EXPECT_EQ(9, kind);
  EXPECT_EQ(12, prm1);
  ASSERT_EQ(0, Tavix_ChgPntHan(1, 1, 1, 0, 7, 10, 1));
  ASSERT_EQ(0, Tavix_Del());
  bytes.replace(kLegendRecord, kLegendRecord, LegendRecord(" 1  7 10  1  1          0 chk"));
  EXPECT_EQ(bytes, ReadBytes(File()));
  EXPECT_EQ(std::set<std::wstring>{L"HANREI.DAT"}, Files());
}

TEST_F(DeviceFolderLegend, IsDeletedThereWhenItIsBad) {
  WriteBytes(File(), "bad");
  ASSERT_EQ(0, Tavix_Crt());
  EXPECT_TRUE(Files().empty());
}

}  // namespace
}  // namespace tavix::test
