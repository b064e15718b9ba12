// The programs of docs/guide and the shortest one, as a user runs them: what their windows show and
// where, and what they answer. With TAVIX_GUIDE_PICTURES set, each leaves a picture of its window
// in that folder.
#include <gtest/gtest.h>
#include <tavix/tavix.h>

#include <array>
#include <fstream>
#include <iterator>
#include <optional>

#include "tests/host/support/picture_image.h"
#include "tests/samples/running_program.h"
#include "tests/support/picture_compare.h"
#include "tests/support/private_folder.h"
#include "tests/support/project_folder.h"

namespace fieldhost {
namespace {

using tavix::test::Picture;
using tavix::test::PrivateFolder;
using tavix::test::SamePicture;

constexpr std::uint32_t kWhite = 0xFFFFFF;  // 0x00RRGGBB, all of them
constexpr std::uint32_t kBlack = 0x000000;
constexpr std::uint32_t kRed = 0xC00000;
constexpr std::uint32_t kBlue = 0x0000C0;
constexpr std::uint32_t kGreen = 0x007000;
constexpr std::uint32_t kBrown = 0x806000;

struct SurveyPoint {
  const wchar_t* title;  // of the window after a tap on it
  double north;          // metres
  double east;
  double height;
  std::uint32_t color;
  const wchar_t* memo;
};

constexpr std::array kPoints{
    SurveyPoint{L"T-1  X -35165.000  Y 12310.000", -35165.0, 12310.0, 41.35, kRed, L"鋲"},
    SurveyPoint{L"T-2  X -35075.000  Y 12390.000", -35075.0, 12390.0, 47.12, kRed, L""},
    SurveyPoint{L"境1  X -35098.200  Y 12318.400", -35098.2, 12318.4, 44.80, kBlue,
                L"コンクリート杭"},
    SurveyPoint{L"境2  X -35092.100  Y 12361.700", -35092.1, 12361.7, 46.05, kBlue, L""},
    SurveyPoint{L"境3  X -35126.500  Y 12366.800", -35126.5, 12366.8, 44.21, kBlue, L""},
    SurveyPoint{L"境4  X -35131.400  Y 12323.600", -35131.4, 12323.6, 42.97, kBlue, L""},
    SurveyPoint{L"電柱  X -35137.250  Y 12379.500", -35137.25, 12379.5, 52.60, kGreen, L""},
};

// A view of the plan, as one ground point's pixel and a scale.
struct View {
  POINT pixel;
  double north;
  double east;
  double scale;  // pixels per metre

  [[nodiscard]] POINT PixelOf(double of_north, double of_east) const {
    return {static_cast<LONG>(pixel.x + (of_east - east) * scale),
            static_cast<LONG>(pixel.y - (of_north - north) * scale)};
  }
  [[nodiscard]] POINT PixelOf(const SurveyPoint& point) const {
    return PixelOf(point.north, point.east);
  }
};

// The plot window has 460 x 380 pixels, 20 of them under the buttons. A fit leaves 20 pixels of the
// height: 90 metres on 360 pixels, the middle of the points in the middle.
constexpr View kFitted{{220, 190}, -35120.0, 12350.0, 4.0};
// A sheet of A4, as wide as the plot less 10 pixels, from its corner on: 430 pixels for 148.5 m.
constexpr View kSheet{{5, 341}, -35170.0, 12275.0, 430 / 148.5};

// The side view of a plot 380 pixels high that shows 140 metres of the ground in its height.
struct SideView {
  static constexpr double kHeight = 380.0;
  static constexpr double kScale = kHeight / 140.0;
  static constexpr double kLowest = 41.0;  // metres

  [[nodiscard]] static POINT PixelOf(const SurveyPoint& point) {
    const double up = kTavixSideUp * (point.north - -35190.0) * kScale;
    const double right = kTavixSideRight * (point.east - 12297.0) * kScale;
    const double above = kTavixSideRise * (up - right) + (point.height - kLowest) * kScale;
    return {static_cast<LONG>(kTavixSideAcross * (up + right)),
            static_cast<LONG>(kHeight / 2 - above)};
  }
};

int CountAround(const Picture& picture, POINT at, int reach, std::uint32_t color) {
  int found = 0;
  for (LONG y = std::max(0L, at.y - reach); y <= at.y + reach && y < picture.height; ++y) {
    for (LONG x = std::max(0L, at.x - reach); x <= at.x + reach && x < picture.width; ++x) {
      if (picture.At(x, y) == color) ++found;
    }
  }
  return found;
}

bool Shows(const Picture& picture, POINT at, std::uint32_t color) {
  constexpr int kReach = 2;  // pixels
  return CountAround(picture, at, kReach, color) > 0;
}

// Whether a mark of the right colour lies around each point; labels have another colour.
template <class View>
bool ShowsMarks(const Picture& picture, const View& view) {
  constexpr int kReach = 6;
  for (const SurveyPoint& point : kPoints) {
    if (CountAround(picture, view.PixelOf(point), kReach, point.color) < 4) return false;
  }
  return true;
}

// Whether neither the window nor a window in it has something to paint.
bool IsPainted(HWND window) {
  if (::GetUpdateRect(window, nullptr, FALSE)) return false;
  for (HWND child = ::GetWindow(window, GW_CHILD); child; child = ::GetWindow(child, GW_HWNDNEXT)) {
    if (::IsWindowVisible(child) && !IsPainted(child)) return false;
  }
  return true;
}

// The stored pictures have Wine's fonts and menus.
bool IsWine() {
  return ::GetProcAddress(::GetModuleHandleW(L"ntdll.dll"), "wine_get_version") != nullptr;
}

std::filesystem::path PictureFile(const std::wstring& name) {
  return (tavix::test::ProjectFolder() / L"docs/guide/pictures" / (name + L".png"))
      .make_preferred();
}

// A picture of the guide.
Picture PictureOf(const std::wstring& name) {
  const PictureImage image = DecodePicture(PictureFile(name));
  Picture picture{image.width, image.height, image.pixels};
  for (std::uint32_t& pixel : picture.pixels) pixel &= kWhite;  // without the transparency
  return picture;
}

class Guide : public testing::Test {
 protected:
  // The program of a page.
  RunningProgram& Start(const std::wstring& page, std::size_t plots = 1) {
    page_ = page;
    return program_.emplace(
        data_.Path(),
        RunningProgram::Start{InBuild(L"guide_" + page + L".exe"), {}, L"Survey", plots});
  }

  // Whether the plot comes to show what `is_right` asks for.
  testing::AssertionResult Comes(const std::function<bool(const Picture&)>& is_right,
                                 std::size_t plot = 0) {
    const bool came =
        WaitUntil([&] { return is_right(RunningProgram::Shown(program_->Plot(plot))); });
    if (came) return testing::AssertionSuccess();
    return testing::AssertionFailure() << "the plot does not show it";
  }

  template <class View>
  void ExpectMarks(const View& view, std::size_t plot = 0) {
    EXPECT_TRUE(Comes([&](const Picture& shown) { return ShowsMarks(shown, view); }, plot));
  }

  // A tap on each point; the last is the first boundary point, which has a memo.
  void ExpectAnswers(const View& view, bool with_memo) {
    for (const std::size_t i : {0U, 1U, 3U, 4U, 5U, 6U, 2U}) {
      const SurveyPoint& point = kPoints.at(i);
      RunningProgram::Tap(program_->Plot(), view.PixelOf(point));
      std::wstring title = point.title;
      if (with_memo) title += std::wstring(L"  ") + point.memo;
      ASSERT_TRUE(program_->Says(title)) << point.north << ", " << point.east;
    }
  }

  // What the program shows is the page's picture, or becomes it.
  void TearDown() override {
    if (!program_ || !::IsWindow(program_->Window())) return;
    wchar_t folder[MAX_PATH] = L"";
    if (::GetEnvironmentVariableW(L"TAVIX_GUIDE_PICTURES", folder, MAX_PATH)) {
      WriteBmp(std::filesystem::path(folder) / (page_ + L".bmp"), PaintedWindow());
    } else if (IsWine()) {
      ExpectPicture();
    }
  }

  [[nodiscard]] const std::filesystem::path& DataFolder() const { return data_.Path(); }

 private:
  // The whole window, once it is painted.
  [[nodiscard]] Picture PaintedWindow() const {
    RECT place{};
    ::GetWindowRect(program_->Window(), &place);
    Picture shown;
    EXPECT_TRUE(WaitUntil([&] {
      const Picture before = shown;
      shown = OnScreen(place);
      return shown == before && IsPainted(program_->Window());
    }));
    return shown;
  }

  // The client area; what is around it is the desktop's.
  void ExpectPicture() const {
    const RECT client = ClientOnScreen(program_->Window());
    RECT place{};
    ::GetWindowRect(program_->Window(), &place);
    const Picture page = PictureOf(page_);
    Picture expected{client.right - client.left, client.bottom - client.top, {}};
    for (LONG y = client.top - place.top; y < client.bottom - place.top; ++y) {
      for (LONG x = client.left - place.left; x < client.right - place.left; ++x) {
        expected.pixels.push_back(page.At(x, y));
      }
    }
    Picture shown;
    (void)WaitUntil([&] {
      shown = OnScreen(client);
      return shown == expected;
    });
    EXPECT_TRUE(SamePicture(expected, shown)) << "scripts/make_guide_pictures.py makes it";
  }

  const PrivateFolder data_{L"ROVCOND_DATA_FOLDER"};
  const PrivateFolder root_{L"CE_DEVICE_ROOT"};
  std::wstring page_;
  std::optional<RunningProgram> program_;
};

TEST_F(Guide, TheShortestHostAnswersATapOnItsPoint) {
  const RunningProgram program(DataFolder(), {InBuild(L"shortest.exe"), {}, L"Tap the point"});
  RECT client;
  ::GetClientRect(program.Plot(), &client);
  // A single point lies in the middle of what the buttons leave.
  RunningProgram::Tap(program.Plot(), {(client.right - kTavixButtonColumn) / 2, client.bottom / 2});
  EXPECT_TRUE(program.Says(L"T-1 was tapped"));
}

TEST_F(Guide, AWindowHasAnEmptyPlot) {
  RunningProgram& program = Start(L"01_window");
  RECT client;
  ::GetClientRect(program.Plot(), &client);
  EXPECT_EQ(460, client.right);
  EXPECT_EQ(380, client.bottom);
  EXPECT_TRUE(Comes([](const Picture& shown) {
    return CountPixels(shown, kWhite) == shown.width * shown.height;
  }));
}

TEST_F(Guide, PointsAreCirclesWithNumbers) {
  Start(L"02_points");
  EXPECT_TRUE(Comes([](const Picture& shown) {
    for (const SurveyPoint& point : kPoints) {
      const POINT at = kFitted.PixelOf(point);
      const int black = CountAround(shown, at, 6, kBlack);
      if (black < 16 || black > 40 || CountAround(shown, at, 2, kWhite) != 5 * 5) return false;
    }
    return true;
  }));
}

TEST_F(Guide, LegendsGiveEachKindItsSymbol) {
  Start(L"03_legend");
  ExpectMarks(kFitted);
  EXPECT_TRUE(Comes([](const Picture& shown) {  // the pole's square is filled, the circles are not
    return shown.At(339, 259) == kGreen && shown.At(93, 102) == kWhite;
  }));
}

TEST_F(Guide, TapsAreAnsweredWithNameAndCoordinates) {
  Start(L"04_taps");
  ExpectAnswers(kFitted, false);
}

TEST_F(Guide, LinesAndFiguresLieWhereTheyWereEntered) {
  Start(L"05_lines_and_figures");
  ExpectMarks(kFitted);
  EXPECT_TRUE(Comes([](const Picture& shown) {
    return Shows(shown, kFitted.PixelOf(-35095.15, 12340.05), kBlack) &&  // between 境1 and 境2
           Shows(shown, kFitted.PixelOf(-35102.1, 12351.8), kBlack) &&    // of the building
           Shows(shown, kFitted.PixelOf(-35148.09, 12322.833), kBrown) &&
           Shows(shown, kFitted.PixelOf(-35141.27, 12353.009), kBrown) &&  // where the arc begins
           Shows(shown, kFitted.PixelOf(-35121.63, 12374.95), kBrown) &&
           CountAround(shown, kFitted.PixelOf(-35120.0, 12350.0), 6, kRed) > 0;  // of the sight
  }));
}

TEST_F(Guide, MemosAreShownToo) {
  Start(L"06_memos");
  ExpectAnswers(kFitted, true);
}

TEST_F(Guide, ASheetHasItsScaleAndItsCorner) {
  Start(L"07_sheets");
  ExpectMarks(kSheet);
  ExpectAnswers(kSheet, true);
  EXPECT_TRUE(Comes([](const Picture& shown) {  // the sheet's outline and the scale bar
    return shown.At(5, 200) == kBlack && shown.At(435, 200) == kBlack &&
           shown.At(220, 37) == kBlack && shown.At(220, 341) == kBlack &&
           shown.At(5, 10) == 0x0000FF;
  }));
}

// The bits of the picture that the program saves.
struct SavedPicture {
  static constexpr int kWidth = 842;
  static constexpr int kHeight = 595;
  static constexpr int kStride = 108;
  static constexpr int kHead = 62;
  std::string bytes;

  [[nodiscard]] bool InkNear(POINT at) const {
    constexpr int kReach = 7;
    for (LONG y = at.y - kReach; y <= at.y + kReach; ++y) {
      for (LONG x = at.x - kReach; x <= at.x + kReach; ++x) {
        const auto byte = static_cast<unsigned char>(
            bytes.at(static_cast<std::size_t>(kHead + (kHeight - 1 - y) * kStride + x / 8)));
        if (byte & 0x80 >> x % 8) return true;
      }
    }
    return false;
  }
};

TEST_F(Guide, TheSheetIsSavedAsAPicture) {
  const std::filesystem::path file = std::filesystem::current_path() / L"sheet.bmp";
  std::filesystem::remove(file);
  const RunningProgram& program = Start(L"08_pictures");
  ExpectMarks(kSheet);
  ::PostMessageW(program.Window(), WM_COMMAND, 200, 0);
  constexpr std::size_t kSize =
      SavedPicture::kHead + std::size_t{SavedPicture::kHeight} * SavedPicture::kStride;
  std::error_code not_there;
  ASSERT_TRUE(WaitUntil([&] { return std::filesystem::file_size(file, not_there) == kSize; }));
  std::ifstream in(file, std::ios::binary);
  const SavedPicture saved{{std::istreambuf_iterator<char>(in), {}}};
  EXPECT_EQ("BM", saved.bytes.substr(0, 2));
  const View on_paper{{0, SavedPicture::kHeight}, -35170.0, 12275.0, SavedPicture::kWidth / 148.5};
  for (const SurveyPoint& point : kPoints) {
    EXPECT_TRUE(saved.InkNear(on_paper.PixelOf(point))) << point.north << ", " << point.east;
  }
  EXPECT_FALSE(saved.InkNear(on_paper.PixelOf(-35160.0, 12340.0)));
  if (IsWine()) {
    EXPECT_EQ(DecodePicture(PictureFile(L"sheet")).pixels, DecodePicture(file).pixels);
  }
}

TEST_F(Guide, ASecondPlotShowsTheSideView) {
  const RunningProgram& program = Start(L"09_several_plots", 2);
  ExpectMarks(kSheet);
  ExpectMarks(SideView(), 1);
  RunningProgram::Tap(program.Plot(1), {200, 200});
  ExpectAnswers(kSheet, true);
}

TEST_F(Guide, PlotsFollowTheSizeOfTheWindow) {
  RunningProgram& program = Start(L"10_resize_and_shut_down", 2);
  ExpectMarks(kSheet);
  RECT frame{};
  ::GetWindowRect(program.Window(), &frame);
  program.Resize(frame.right - frame.left + 80, frame.bottom - frame.top + 60);
  // 40 pixels wider and 60 higher: the middle keeps its ground, the view its scale.
  const View larger{{25, 371}, -35170.0, 12275.0, kSheet.scale};
  ExpectMarks(larger);
  ExpectAnswers(larger, true);
}

TEST_F(Guide, AnOrderlyEndSavesTheLegend) {
  RunningProgram& program = Start(L"10_resize_and_shut_down", 2);
  EXPECT_FALSE(std::filesystem::exists(DataFolder() / L"HANREI.DAT"));
  EXPECT_EQ(0, program.Close());
  EXPECT_TRUE(std::filesystem::exists(DataFolder() / L"HANREI.DAT"));
}

}  // namespace
}  // namespace fieldhost
