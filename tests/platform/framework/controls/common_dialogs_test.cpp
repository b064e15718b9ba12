// The colour and file dialogs, driven from inside their loops.

#include <afxdlgs.h>
#include <gtest/gtest.h>

#include <string>

#include "tests/platform/framework/test_windows.h"
#include "tests/platform/support/modal_driver.h"

namespace {

using test::Command;
using test::ModalDriver;

TEST(ColorDialog, AnswersWithTheChosenColour) {
  CColorDialog dialog(RGB(10, 20, 30));
  EXPECT_TRUE(dialog.m_cc.Flags & CC_RGBINIT);
  {
    const ModalDriver driver({Command(IDOK)});
    EXPECT_EQ(IDOK, dialog.DoModal());
  }
  EXPECT_EQ(RGB(10, 20, 30), dialog.GetColor());
  const ModalDriver driver({Command(IDCANCEL)});
  EXPECT_EQ(IDCANCEL, dialog.DoModal());
}

// A file in a folder of its own, which exists as long as this object.
class TemporaryFile {
 public:
  explicit TemporaryFile(const std::wstring& name) {
    wchar_t root[MAX_PATH];
    ::GetTempPathW(MAX_PATH, root);
    folder_ = std::wstring(root) + L"framework_dialogs";
    ::CreateDirectoryW(folder_.c_str(), nullptr);
    path_ = folder_ + L"\\" + name;
    ::CloseHandle(
        ::CreateFileW(path_.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr));
  }
  ~TemporaryFile() {
    ::DeleteFileW(path_.c_str());
    ::RemoveDirectoryW(folder_.c_str());
  }
  TemporaryFile(const TemporaryFile&) = delete;
  TemporaryFile& operator=(const TemporaryFile&) = delete;
  LPCWSTR Path() const { return path_.c_str(); }
  LPCWSTR Folder() const { return folder_.c_str(); }

 private:
  std::wstring folder_, path_;
};

TEST(FileDialog, OpensWhatIsNamed) {
  const TemporaryFile file(L"area 1.local.sim");
  CFileDialog dialog(TRUE, L"sim", file.Path(), OFN_HIDEREADONLY | OFN_FILEMUSTEXIST,
                     L"Survey|*.sim;*.csv|All|*.*||");
  const ModalDriver driver({Command(IDOK)});
  ASSERT_EQ(IDOK, dialog.DoModal());
  EXPECT_EQ(0, dialog.GetPathName().CompareNoCase(file.Path())) << dialog.GetPathName().GetString();
  EXPECT_EQ(L"area 1.local.sim", dialog.GetFileName());
  EXPECT_EQ(L"area 1.local", dialog.GetFileTitle());
  EXPECT_EQ(L"sim", dialog.GetFileExt());
  EXPECT_EQ(0, dialog.GetFolderPath().CompareNoCase(file.Folder()));
  POSITION position = dialog.GetStartPosition();
  EXPECT_EQ(dialog.GetPathName(), dialog.GetNextPathName(position));
  EXPECT_EQ(nullptr, position);
}

TEST(FileDialog, CancelChoosesNothing) {
  CFileDialog dialog(FALSE, L"csv");
  const ModalDriver driver({Command(IDCANCEL)});
  EXPECT_EQ(IDCANCEL, dialog.DoModal());
}

// What the system leaves in its buffer, without the dialog.
TEST(FileDialog, TakesSeveralNamesApart) {
  const struct Row {
    std::wstring buffer;
    std::vector<std::wstring> paths;
  } rows[] = {
      {std::wstring(L"C:\\a\\one.sim\0\0", 14), {L"C:\\a\\one.sim"}},
      {std::wstring(L"C:\\a\0one.sim\0two.csv\0\0", 22), {L"C:\\a\\one.sim", L"C:\\a\\two.csv"}},
      {std::wstring(L"C:\\\0one.sim\0\0", 13), {L"C:\\one.sim"}},
      {std::wstring(L"\0\0", 2), {}},
  };
  for (const Row& row : rows) {
    CFileDialog dialog(TRUE, nullptr, nullptr, OFN_ALLOWMULTISELECT);
    std::copy(row.buffer.begin(), row.buffer.end(), dialog.m_ofn.lpstrFile);
    std::vector<std::wstring> paths;
    for (POSITION position = dialog.GetStartPosition(); position;) {
      paths.emplace_back(dialog.GetNextPathName(position));
    }
    EXPECT_EQ(row.paths, paths);
    EXPECT_EQ(row.paths.empty() ? L"" : row.paths[0].c_str(), dialog.GetPathName());
  }
}

TEST(FileDialog, FilterBecomesTheSystems) {
  const CFileDialog dialog(TRUE, nullptr, nullptr, 0, L"Survey|*.sim|All|*.*||");
  const wchar_t expected[] = L"Survey\0*.sim\0All\0*.*\0";
  EXPECT_EQ(std::wstring(dialog.m_ofn.lpstrFilter, ARRAYSIZE(expected)),
            std::wstring(expected, ARRAYSIZE(expected)));
  EXPECT_EQ(nullptr, CFileDialog(TRUE).m_ofn.lpstrFilter);
}

}  // namespace
