// The export of the one-bit picture from the host's main window.

#include <fstream>
#include <iterator>

#include "tests/host/support/main_window_fixture.h"
#include "tests/host/support/picture_image.h"

namespace fieldhost {
namespace {

class MainWindowExport : public WindowTest {
 protected:
  [[nodiscard]] HWND OpenDialog() {
    ::PostMessageW(window_, WM_COMMAND, ID_SURVEY_EXPORT, 0);
    return host_->WaitForWindow(L"One-bit picture");
  }

  static void Press(HWND dialog, int button) {
    ::PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
  }

  // The system's dialog, with a file name typed into it; null when it does not come.
  [[nodiscard]] HWND TypeFileName(const std::wstring& file) {
    constexpr int kFileName = 0x47C;  // the system's box for the name
    const HWND dialog = host_->WaitForWindow(L"Save As");
    HWND name = nullptr;
    if (!WaitUntil([&] { return (name = ::GetDlgItem(dialog, kFileName)) != nullptr; })) {
      return nullptr;
    }
    ::SendMessageW(name, WM_SETTEXT, 0, reinterpret_cast<LPARAM>(file.c_str()));
    return dialog;
  }

  // The message box that stands over a window; null when none comes.
  static HWND WaitForBoxOf(HWND owner) {
    HWND box = nullptr;
    EXPECT_TRUE(WaitUntil([&] {
      do {
        box = ::FindWindowExW(nullptr, box, L"#32770", nullptr);
      } while (box && ::GetWindow(box, GW_OWNER) != owner);
      return box != nullptr;
    }));
    return box;
  }

  void AcceptBox(const wchar_t* text) {
    const HWND box = host_->WaitForWindow(L"fieldhost");
    ASSERT_TRUE(box);
    bool said = false;
    for (HWND child = ::GetWindow(box, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
      said |= TextOf(child).find(text) != std::wstring::npos;
    }
    EXPECT_TRUE(said);
    Press(box, IDOK);
    EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(box); }));
  }

  static void ChooseOffer(HWND dialog, WPARAM offer) {
    const HWND list = ::GetDlgItem(dialog, IDC_EXPORT_OFFER);
    ::SendMessageW(list, CB_SETCURSEL, offer, 0);
    ::SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(IDC_EXPORT_OFFER, CBN_SELCHANGE),
                   reinterpret_cast<LPARAM>(list));
  }

  static UINT Number(HWND dialog, int id) { return ::GetDlgItemInt(dialog, id, nullptr, FALSE); }

  static void SetNumber(HWND dialog, int id, const wchar_t* text) {
    ::SendMessageW(::GetDlgItem(dialog, id), WM_SETTEXT, 0, reinterpret_cast<LPARAM>(text));
  }
};

TEST_F(MainWindowExport, OffersThePlotsSizeAndSheets) {
  ASSERT_NO_FATAL_FAILURE(Open({Sample(L"site.csv"), L"--size", L"300x400"}));
  ExpectInfo(L"74 points");
  RECT plot = {};
  ::GetClientRect(Plot(), &plot);
  const HWND dialog = OpenDialog();
  ASSERT_TRUE(dialog);
  EXPECT_EQ(static_cast<LONG>(Number(dialog, IDC_EXPORT_WIDTH)), plot.right - 20);
  EXPECT_EQ(static_cast<LONG>(Number(dialog, IDC_EXPORT_HEIGHT)), plot.bottom);
  ChooseOffer(dialog, 2);
  EXPECT_EQ(1654U, Number(dialog, IDC_EXPORT_WIDTH));
  EXPECT_EQ(2339U, Number(dialog, IDC_EXPORT_HEIGHT));
  Press(dialog, IDCANCEL);
  EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(dialog); }));
  Exit();
}

TEST_F(MainWindowExport, WritesEitherFormatInTheTypedSize) {
  ASSERT_NO_FATAL_FAILURE(Open({Sample(L"site.csv")}));
  ExpectInfo(L"74 points");
  for (const wchar_t* file : {L"p.png", L"p.pbm"}) {
    const HWND dialog = OpenDialog();
    ASSERT_TRUE(dialog);
    SetNumber(dialog, IDC_EXPORT_WIDTH, L"250");
    SetNumber(dialog, IDC_EXPORT_HEIGHT, L"200");
    Press(dialog, IDOK);
    const HWND save = TypeFileName(In(file));
    ASSERT_TRUE(save);
    Press(save, IDOK);
    ExpectInfo(std::wstring(L"Written: ") + file);
  }
  const PictureImage image = DecodePicture(In(L"p.png"));
  EXPECT_EQ(250, image.width);
  EXPECT_EQ(200, image.height);
  std::ifstream file(folder_ / L"p.pbm", std::ios::binary);
  const std::string bytes{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
  EXPECT_TRUE(bytes.starts_with("P4\n250 200\n"));
  EXPECT_EQ(11U + 32U * 200U, bytes.size());
  Exit();
}

// Of the sheets, a printed picture is as large as its sheet.
TEST_F(MainWindowExport, NotesTheResolutionOfTheChosenSheet) {
  ASSERT_NO_FATAL_FAILURE(Open({Sample(L"site.csv")}));
  ExpectInfo(L"74 points");
  const HWND dialog = OpenDialog();
  ASSERT_TRUE(dialog);
  const UINT own = Number(dialog, IDC_EXPORT_RESOLUTION);
  const HDC screen = ::GetDC(nullptr);
  EXPECT_EQ(static_cast<int>(own), ::GetDeviceCaps(screen, LOGPIXELSX));
  ::ReleaseDC(nullptr, screen);
  ChooseOffer(dialog, 2);
  EXPECT_EQ(200U, Number(dialog, IDC_EXPORT_RESOLUTION));
  ChooseOffer(dialog, 0);
  EXPECT_EQ(Number(dialog, IDC_EXPORT_RESOLUTION), own);
  ChooseOffer(dialog, 2);
  Press(dialog, IDOK);
  const HWND save = TypeFileName(In(L"sheet.png"));
  ASSERT_TRUE(save);
  Press(save, IDOK);
  ExpectInfo(L"Written: sheet.png");
  EXPECT_EQ(7874U, PixelsPerMetre(In(L"sheet.png")));
  Exit();
}

TEST_F(MainWindowExport, SaysWhichResolutionsThereAre) {
  ASSERT_NO_FATAL_FAILURE(Open({Sample(L"site.csv")}));
  ExpectInfo(L"74 points");
  const HWND dialog = OpenDialog();
  ASSERT_TRUE(dialog);
  for (const wchar_t* dots : {L"29", L"2401", L""}) {
    SetNumber(dialog, IDC_EXPORT_RESOLUTION, dots);
    Press(dialog, IDOK);
    ASSERT_NO_FATAL_FAILURE(AcceptBox(L"The resolution goes from 30 to 2400 dots an inch."));
    EXPECT_TRUE(::IsWindow(dialog));
  }
  Press(dialog, IDCANCEL);
  EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(dialog); }));
  Exit();
}

TEST_F(MainWindowExport, SaysWhichSizesThereAre) {
  ASSERT_NO_FATAL_FAILURE(Open({Sample(L"site.csv")}));
  ExpectInfo(L"74 points");
  const HWND dialog = OpenDialog();
  ASSERT_TRUE(dialog);
  for (const wchar_t* width : {L"99", L"8193", L"", L"99999999999"}) {
    SetNumber(dialog, IDC_EXPORT_WIDTH, width);
    Press(dialog, IDOK);
    ASSERT_NO_FATAL_FAILURE(AcceptBox(L"Width and height go from 100 to 8192 pixels."));
    EXPECT_TRUE(::IsWindow(dialog));
  }
  Press(dialog, IDCANCEL);
  EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(dialog); }));
  ExpectInfo(L"74 points");
  Exit();
}

TEST_F(MainWindowExport, SaysWhichFormatsThereAre) {
  ASSERT_NO_FATAL_FAILURE(Open({Sample(L"site.csv")}));
  ExpectInfo(L"74 points");
  const HWND dialog = OpenDialog();
  ASSERT_TRUE(dialog);
  Press(dialog, IDOK);
  const HWND save = TypeFileName(In(L"p.bmp"));
  ASSERT_TRUE(save);
  Press(save, IDOK);
  ASSERT_NO_FATAL_FAILURE(AcceptBox(L"p.bmp: name the picture .png or .pbm."));
  EXPECT_FALSE(std::filesystem::exists(In(L"p.bmp")));
  Exit();
}

TEST_F(MainWindowExport, SaysThatAFileIsHeldByAnother) {
  ASSERT_NO_FATAL_FAILURE(Open({Sample(L"site.csv")}));
  ExpectInfo(L"74 points");
  const OwnedHandle held(::CreateFileW(In(L"held.pbm").c_str(), GENERIC_WRITE, 0, nullptr,
                                       CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
  const HWND dialog = OpenDialog();
  ASSERT_TRUE(dialog);
  Press(dialog, IDOK);
  const HWND save = TypeFileName(In(L"held.pbm"));
  ASSERT_TRUE(save);
  Press(save, IDOK);
  // The system asks whether to replace it.
  const HWND ask = WaitForBoxOf(save);
  ASSERT_TRUE(ask);
  Press(ask, IDYES);
  ASSERT_NO_FATAL_FAILURE(AcceptBox(L"held.pbm cannot be written."));
  Exit();
}

TEST_F(MainWindowExport, TurnsToThePlan) {
  ASSERT_NO_FATAL_FAILURE(Open({Sample(L"site.csv")}));
  ExpectInfo(L"74 points");
  Command(ID_VIEW_SIDE);
  ASSERT_TRUE(ShowsSide());
  const HWND dialog = OpenDialog();
  ASSERT_TRUE(dialog);
  EXPECT_FALSE(ShowsSide());
  Press(dialog, IDCANCEL);
  EXPECT_TRUE(WaitUntil([&] { return !::IsWindow(dialog); }));
  Exit();
}

}  // namespace
}  // namespace fieldhost
