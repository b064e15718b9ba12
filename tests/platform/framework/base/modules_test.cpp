// The resource chain: where bitmaps, strings, menus and dialogs come from.

#include <afxdllx.h>
#include <gtest/gtest.h>

#include "tests/platform/framework/test_resources.h"
#include "tests/platform/framework/test_windows.h"

namespace {

// Loads the extension module for the lifetime of this object.
class Extension {
 public:
  Extension() : module_(::LoadLibraryW(L"framework_test_extension.dll")) {}
  ~Extension() { ::FreeLibrary(module_); }
  Extension(const Extension&) = delete;
  Extension& operator=(const Extension&) = delete;
  HMODULE Module() const { return module_; }

 private:
  HMODULE module_;
};

HINSTANCE Program() { return ::GetModuleHandleW(nullptr); }

HINSTANCE WhereIsBitmap(UINT id) { return AfxFindResourceHandle(MAKEINTRESOURCEW(id), RT_BITMAP); }

TEST(ResourceChain, ProgramComesFirstThenTheExtension) {
  EXPECT_EQ(Program(), WhereIsBitmap(IDB_ONLY_IN_EXTENSION)) << "found nowhere: the program's";
  {
    const Extension extension;
    ASSERT_NE(nullptr, extension.Module());
    EXPECT_EQ(Program(), WhereIsBitmap(IDB_UP));
    EXPECT_EQ(extension.Module(), WhereIsBitmap(IDB_ONLY_IN_EXTENSION));
    EXPECT_EQ(Program(), WhereIsBitmap(9999));
  }
  EXPECT_EQ(Program(), WhereIsBitmap(IDB_ONLY_IN_EXTENSION)) << "removed with the module";
}

TEST(ResourceChain, BitmapsLoadThroughIt) {
  CBitmap bitmap;
  EXPECT_FALSE(bitmap.LoadBitmap(IDB_ONLY_IN_EXTENSION));
  const Extension extension;
  EXPECT_TRUE(bitmap.LoadBitmap(IDB_ONLY_IN_EXTENSION));
  BITMAP info;
  bitmap.GetBitmap(&info);
  EXPECT_EQ(8, info.bmWidth);
  EXPECT_EQ(6, info.bmHeight);
  CBitmap named;
  EXPECT_TRUE(named.LoadBitmap(L"OKU"));
}

// The program has a string in the same block of sixteen; the string beside it is in the extension
// only.
TEST(ResourceChain, StringsLoadThroughIt) {
  const Extension extension;
  CString text;
  EXPECT_TRUE(text.LoadString(IDS_BOTH));
  EXPECT_EQ(L"of the program", text);
  EXPECT_TRUE(text.LoadString(IDS_ONLY_IN_EXTENSION));
  EXPECT_EQ(L"only in the extension", text);
  EXPECT_FALSE(text.LoadString(IDS_NOWHERE));
  EXPECT_TRUE(text.IsEmpty());
}

TEST(ResourceChain, NewestEntryComesFirst) {
  const Extension extension;
  AFX_EXTENSION_MODULE record;
  ASSERT_TRUE(AfxInitExtensionModule(record, extension.Module()));
  record.hResource = Program();
  auto* entry = new CDynLinkLibrary(record);
  EXPECT_EQ(extension.Module(), WhereIsBitmap(IDB_ONLY_IN_EXTENSION));
  delete entry;
  EXPECT_EQ(extension.Module(), WhereIsBitmap(IDB_ONLY_IN_EXTENSION));
}

TEST(ResourceChain, ResourcesMayBeAnotherModules) {
  const Extension extension;
  AfxSetResourceHandle(extension.Module());
  EXPECT_EQ(extension.Module(), AfxGetResourceHandle());
  EXPECT_EQ(extension.Module(), WhereIsBitmap(IDB_UP));
  AfxSetResourceHandle(nullptr);
  EXPECT_EQ(Program(), AfxGetResourceHandle());
  EXPECT_EQ(Program(), AfxGetInstanceHandle());
}

TEST(ExtensionRecord, IsFilledOnceAndEmptied) {
  AFX_EXTENSION_MODULE record;
  EXPECT_FALSE(AfxInitExtensionModule(record, nullptr));
  EXPECT_FALSE(record.bInitialized);
  EXPECT_TRUE(AfxInitExtensionModule(record, Program()));
  EXPECT_TRUE(AfxInitExtensionModule(record, ::GetModuleHandleW(L"user32.dll")));
  EXPECT_EQ(Program(), record.hModule);
  AfxTermExtensionModule(record);
  EXPECT_FALSE(record.bInitialized);
}

TEST(ExtensionRecord, TermTakesOnlyItsOwnEntriesUnlessAll) {
  const HMODULE other = ::GetModuleHandleW(L"user32.dll");
  AFX_EXTENSION_MODULE mine, others;
  AfxInitExtensionModule(mine, Program());
  AfxInitExtensionModule(others, other);
  new CDynLinkLibrary(mine);
  new CDynLinkLibrary(others);
  // A resource that is in the other module and not in the program.
  constexpr UINT kNone = 9999;
  const Extension extension;
  AfxTermExtensionModule(mine);
  EXPECT_EQ(extension.Module(), WhereIsBitmap(IDB_ONLY_IN_EXTENSION));
  AfxTermExtensionModule(others, TRUE);
  EXPECT_EQ(Program(), WhereIsBitmap(IDB_ONLY_IN_EXTENSION)) << "all entries are gone";
  EXPECT_EQ(Program(), WhereIsBitmap(kNone));
}

TEST(Menus, LoadThroughTheChainAndAnswer) {
  CMenu menu;
  ASSERT_TRUE(menu.LoadMenu(IDM_MAIN));
  EXPECT_FALSE(CMenu().LoadMenu(9999u));
  ASSERT_EQ(1u, menu.GetMenuItemCount());
  CMenu* file = menu.GetSubMenu(0);
  ASSERT_NE(nullptr, file);
  EXPECT_EQ(file, menu.GetSubMenu(0)) << "one object for each handle";
  EXPECT_EQ(UINT{ID_FILE_OPEN_TEST}, file->GetMenuItemID(0));
  CString text;
  EXPECT_EQ(5, file->GetMenuString(0, text, MF_BYPOSITION));
  EXPECT_EQ(L"&Open", text);
  file->EnableMenuItem(ID_FILE_OPEN_TEST, MF_BYCOMMAND | MF_GRAYED);
  EXPECT_TRUE(file->GetMenuState(ID_FILE_OPEN_TEST, MF_BYCOMMAND) & MF_GRAYED);
  EXPECT_EQ(UINT{MF_UNCHECKED}, file->CheckMenuItem(ID_FILE_OPEN_TEST, MF_BYCOMMAND | MF_CHECKED));
  EXPECT_TRUE(file->GetMenuState(ID_FILE_OPEN_TEST, MF_BYCOMMAND) & MF_CHECKED);
  EXPECT_EQ(UINT(-1), file->EnableMenuItem(1, MF_BYCOMMAND)) << "no such item";
}

TEST(Menus, HandleDiesWithItsOwner) {
  HMENU handle = nullptr;
  {
    CMenu menu;
    ASSERT_TRUE(menu.CreatePopupMenu());
    EXPECT_TRUE(menu.AppendMenu(MF_STRING, 5, L"five"));
    EXPECT_EQ(5u, menu.GetMenuItemID(0));
    handle = menu.m_hMenu;
    EXPECT_EQ(&menu, CMenu::FromHandle(handle));
  }
  EXPECT_FALSE(::IsMenu(handle));
  EXPECT_EQ(nullptr, CMenu::FromHandle(nullptr));
}

}  // namespace
