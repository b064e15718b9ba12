// What a user and a host wait for at the window: goals 7, 11, 12, 13 and 14.
#include "benchmarks/goals/goals.h"

#include <tavix/tavix.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "benchmarks/goals/figures.h"
#include "benchmarks/goals/plain_picture.h"
#include "benchmarks/goals/plot.h"
#include "benchmarks/timing.h"
#include "store/point_list.h"

namespace tavix {
namespace {

constexpr SIZE kHandheld{240, 320};
constexpr SIZE kTablet{1280, 1024};

void Tap(HWND plot, int x, int y) {
  ::SendMessageW(plot, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
  ::SendMessageW(plot, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

// Takes the reports of taps out of the host's queue, which would be full at some time.
void TakeReports() {
  MSG message;
  while (::PeekMessageW(&message, HostWindow(), WM_COMMAND, WM_COMMAND, PM_REMOVE)) {
  }
}

double Microseconds(double milliseconds) { return milliseconds * 1000; }

// Taps all over views in which `half_box` metres are the pick's ten pixels: the longest of them,
// and what the store takes to find their points. A tap as a whole takes some fifty microseconds,
// nearly all of them the system's, and scatters by more than a search takes.
void MeasurePicksIn(const Plot& plot, const CPntList& points, double half_box) {
  constexpr int kViews = 60;
  constexpr int kTappedViews = 12;
  constexpr int kTaps = 60;  // of a view
  std::mt19937 random(3);
  std::uniform_real_distribution<double> middle(0.1 * kSurveySide, 0.9 * kSurveySide);
  const double side = kTablet.cy * half_box / 10;
  const double metres = side / kTablet.cy;  // of a pixel
  double worst = 0;
  std::vector<double> searches;  // the mean of a view's
  int found = 0;
  for (int view = 0; view < kViews; ++view) {
    const double north = middle(random);
    const double east = middle(random);
    Tavix_Zom(north - side / 2, east - side / 2, north + side / 2, east + side / 2);
    ::UpdateWindow(plot.Window());
    std::vector<GroundPoint> places;
    for (int tap = 0; tap < kTaps; ++tap) {
      const int x = 40 + static_cast<int>(random() % (kTablet.cx - 80));
      const int y = 40 + static_cast<int>(random() % (kTablet.cy - 80));
      places.push_back(
          {north + (kTablet.cy / 2 - y) * metres, east + (x - kTablet.cx / 2) * metres});
      if (view >= kTappedViews) continue;
      worst = std::max(worst, Milliseconds([&] { Tap(plot.Window(), x, y); }));
      TakeReports();
    }
    std::int32_t key = 0;
    searches.push_back(Milliseconds([&] {
                         for (const GroundPoint& at : places) {
                           found += points.FindNearest(half_box, at, &key) == 0 ? 1 : 0;
                         }
                       }) /
                       kTaps);
  }
  const std::string box = Text("taps among 1e6 points, box of %g m", 2 * half_box);
  Print({"7", box + ", the search", Microseconds(Median(searches)), "us", 3,
         Text("%d places, at %d of them a point", kViews * kTaps, found)});
  Print({"7", box + ", the longest tap", worst, "ms", 10, ""});
}

long DifferentPixels(const std::vector<std::uint32_t>& a, const std::vector<std::uint32_t>& b) {
  long count = 0;
  for (std::size_t i = 0; i < a.size(); ++i) count += a[i] != b[i] ? 1 : 0;
  return count;
}

void MeasurePointsAtOnce(bool visible) {
  const Survey survey = MakePoints(3000);
  Plot plot(0, kHandheld);
  plot.Use({});
  plot.Show(kSurveySide, 0);
  plot.RedrawAndPaint();
  if (!visible) Tavix_Dsp(0);
  Tavix_DrwFlg(1);
  std::vector<double> times;
  for (std::size_t i = 0; i < survey.points.size(); ++i) {
    times.push_back(Milliseconds([&] { plot.EnterPoint(survey, i); }));
  }
  long different = -1;
  if (visible) {
    PlainPicture plain(kHandheld, {});
    plain.Draw(survey, plot.View(), PlainPicture::Clipping::kByView);
    different = DifferentPixels(plain.Pixels(), plot.Screen());
  }
  Tavix_DrwFlg(0);
  const int surfaces = visible ? 2 : 1;
  Print({"11",
         visible ? "a point at once, on the screen and in the buffer" : "a point at once, hidden",
         Microseconds(Median(times)) / surfaces, "us a surface", 3, "", different});
}

void MeasureLinesAtOnce() {
  const Survey survey = MakePoints(3000);
  Plot plot(0, kHandheld);
  plot.Use({});
  plot.Enter(survey);
  plot.Show(kSurveySide, 0);
  plot.RedrawAndPaint();
  Tavix_DrwFlg(1);
  std::vector<double> times;
  for (int i = 1; i < 3000; ++i) times.push_back(Milliseconds([&] { Tavix_EntLin(i, i + 1); }));
  Tavix_DrwFlg(0);
  Print({"11", "a line at once", Microseconds(Median(times)) / 2, "us a surface", 3, ""});
}

// A one-bit picture of the survey by plain calls: black on white.
class PlainOneBit {
 public:
  PlainOneBit(int width, int height)
      : width_(width), height_(height), dc_(::CreateCompatibleDC(nullptr)) {
    struct {
      BITMAPINFOHEADER header;
      RGBQUAD colors[2];
    } info{{sizeof(BITMAPINFOHEADER), width, height, 1, 1, BI_RGB, 0, 0, 0, 0, 0},
           {{255, 255, 255, 0}, {0, 0, 0, 0}}};
    void* bits = nullptr;
    bitmap_ = ::CreateDIBSection(dc_, reinterpret_cast<BITMAPINFO*>(&info), DIB_RGB_COLORS, &bits,
                                 nullptr, 0);
    bits_ = static_cast<std::uint8_t*>(bits);
    std::fill_n(bits_, Stride() * static_cast<std::size_t>(height), std::uint8_t{0});
    LOGFONTW font{};
    font.lfHeight = 10;
    font.lfWeight = FW_NORMAL;
    font.lfCharSet = SHIFTJIS_CHARSET;
    font_ = ::CreateFontIndirectW(&font);
    first_bitmap_ = ::SelectObject(dc_, bitmap_);
    first_font_ = ::SelectObject(dc_, font_);
    ::SelectObject(dc_, ::GetStockObject(NULL_BRUSH));
    ::SetBkMode(dc_, TRANSPARENT);
  }
  ~PlainOneBit() {
    ::SelectObject(dc_, first_bitmap_);
    ::SelectObject(dc_, first_font_);
    ::DeleteObject(bitmap_);
    ::DeleteObject(font_);
    ::DeleteDC(dc_);
  }
  PlainOneBit(const PlainOneBit&) = delete;
  PlainOneBit& operator=(const PlainOneBit&) = delete;

  void Draw(const Survey& survey, const CViewState& view) {
    const auto line = [&](GroundPoint from, GroundPoint to) {
      ScreenSegment segment;
      if (!view.ClipGroundSegment(from, to, segment)) return;
      ::MoveToEx(dc_, segment.start.x, segment.start.y, nullptr);
      ::LineTo(dc_, segment.end.x + (segment.start == segment.end ? 1 : 0), segment.end.y);
    };
    for (const std::vector<GroundPoint>& figure : survey.figures) {
      for (std::size_t i = 1; i < figure.size(); ++i) line(figure[i - 1], figure[i]);
    }
    for (std::size_t i = 0; i < static_cast<std::size_t>(survey.lines); ++i) {
      line(survey.points[i], survey.points[i + 1]);
    }
    const double margin = 10 / view.Scale();
    ScreenPoint p;
    for (std::size_t i = 0; i < survey.points.size(); ++i) {
      if (!view.CircleOnScreen(survey.points[i], margin, p)) continue;
      ::Ellipse(dc_, p.x - 5, p.y - 5, p.x + 5, p.y + 5);
      const std::wstring& name = survey.names[i];
      RECT box{p.x, p.y + 2, p.x + 200, p.y - 8};
      ::DrawTextW(dc_, name.c_str(), static_cast<int>(name.size()), &box, DT_NOCLIP);
    }
    ::GdiFlush();
  }

  [[nodiscard]] bool IsInk(int row, int column) const {
    const std::size_t line = static_cast<std::size_t>(height_ - row - 1) * Stride();
    return (bits_[line + static_cast<std::size_t>(column) / 8] >> (7 - column % 8) & 1) != 0;
  }

 private:
  [[nodiscard]] std::size_t Stride() const {
    return static_cast<std::size_t>(width_ + 31) / 32 * 4;
  }

  int width_;
  int height_;
  HDC dc_;
  HBITMAP bitmap_ = nullptr;
  HFONT font_ = nullptr;
  std::uint8_t* bits_ = nullptr;
  HGDIOBJ first_bitmap_ = nullptr;
  HGDIOBJ first_font_ = nullptr;
};

// Every pixel of the current instance's one-bit picture, row by row.
template <class Visit>
void ForEachPixel(int height, int width, Visit visit) {
  for (int row = 0; row < height; ++row) {
    for (int column = 0; column < width; ++column) {
      int ink = 0;
      Tavix_GrpGet(row, column, &ink);
      visit(row, column, ink != 0);
    }
  }
}

}  // namespace

void MeasurePicks() {
  const Survey survey = MakePoints(1000000);
  Plot plot(0, kTablet);
  plot.Use({});
  plot.Enter(survey);
  CPntList points;
  for (std::size_t i = 0; i < survey.points.size(); ++i) {
    const int key = static_cast<int>(i) + 1;
    points.Add({key, key, {}, survey.points[i], 0});
  }
  // The first tap is one of those measured.
  for (const double half_box : {2.0, 10.0, 50.0, 150.0, 400.0, 2000.0}) {
    MeasurePicksIn(plot, points, half_box);
  }
}

void MeasureAtOnce() {
  MeasurePointsAtOnce(true);
  MeasurePointsAtOnce(false);
  MeasureLinesAtOnce();
}

// A redraw of so many points takes much longer than a thousand invalidations differ by.
void MeasureChanges() {
  constexpr int kChanges = 1000;
  const Survey survey = MakeSurvey(100000);
  Plot plot(0, kHandheld);
  plot.Use({});
  plot.Enter(survey);
  plot.Show(kSurveySide);
  RECT area;
  ::GetClientRect(plot.Window(), &area);
  // Each moves a point to another place.
  int moves = 0;
  const auto change = [&] {
    std::mt19937 random(1);
    for (int i = 0; i < kChanges; ++i) {
      const auto key = static_cast<std::size_t>(random() % survey.points.size());
      const GroundPoint at = survey.points[key];
      Tavix_ChgPntCrd(static_cast<int>(key) + 1, at.north + ++moves * 1e-6, at.east);
    }
  };
  // Each change invalidates the drawing area, which hosts can see.
  const auto change_by_hand = [&] {
    return Milliseconds([&] {
      change();
      for (int i = 0; i < kChanges; ++i) ::InvalidateRect(plot.Window(), &area, TRUE);
    });
  };
  std::vector<double> redraws;
  const Comparison result = InTurn(
      15,
      [&] {
        const double changed = change_by_hand();
        redraws.push_back(Milliseconds([&] { plot.RedrawAndPaint(); }));
        return changed;
      },
      [&] {
        Tavix_DrwFlg(1);
        const double changed = Milliseconds([&] {
          change();
          ::UpdateWindow(plot.Window());
          ::GdiFlush();
        });
        Tavix_DrwFlg(0);
        return changed;
      });
  const double redraw = Median(redraws);
  Print({"12", "1000 changes between two paints, in redraws of S(1e5)",
         (result.product - result.floor) / redraw, "redraws", 1.5,
         Text("changes and paint %.3g ms, changes and as many invalidations alone %.3g ms, redraw "
              "and paint %.3g ms",
              result.product, result.floor, redraw)});
}

void MeasurePaint() {
  constexpr UINT kRefreshButton = 425;
  const Survey survey = MakeSurvey(20000);
  for (const SIZE size : {kHandheld, kTablet}) {
    const std::string where = Text(", %ldx%ld", size.cx, size.cy);
    double with_buttons = 0;
    {
      Plot plot(0, size, true);
      plot.Use({});
      plot.Enter(survey);
      Tavix_Drw(0);
      ::UpdateWindow(plot.Window());
      const Comparison press = InTurn(
          31, [&] { return Milliseconds([&] { plot.RedrawAndPaint(); }); },
          [&] {
            return Milliseconds([&] {
              ::SendMessageW(plot.Window(), WM_COMMAND, MAKEWPARAM(kRefreshButton, BN_CLICKED), 0);
              ::UpdateWindow(plot.Window());
              ::GdiFlush();
            });
          });
      Print({"13", "the refresh button to the finished paint, S(2e4)" + where, press.ratio, "",
             1.05, Text("redraw and paint %.3g ms, button %.3g ms", press.floor, press.product)});
    }
    const auto redraw_of_nothing = [&](bool buttons) {
      Plot plot(0, size, buttons);
      plot.RedrawAndPaint();
      return MedianMilliseconds([&] { plot.RedrawAndPaint(); }, 31);
    };
    const double without_buttons = redraw_of_nothing(false);
    with_buttons = redraw_of_nothing(true);
    Print({"13", "redraw and paint without data, with buttons beside without" + where,
           with_buttons / without_buttons, "", 1.5,
           Text("without %.3g ms, with %.3g ms", without_buttons, with_buttons)});
  }
}

void MeasureOneBit() {
  constexpr int kWidth = 2000;
  constexpr int kHeight = 2800;
  const SIZE size{240, 336};
  const Survey survey = MakeSurvey(10000);
  Plot plot(0, size);
  plot.Use({});
  plot.Enter(survey);
  plot.Show(kSurveySide, 0);
  CViewState view = plot.View();
  const double side = kSurveySide;
  view.SetScreenSize(kWidth, kHeight);
  static_cast<void>(view.ZoomToArea({side, side}, {side / 2, side / 2}));
  const Comparison built = InTurn(
      7,
      [&] {
        return Milliseconds([&] {
          PlainOneBit plain(kWidth, kHeight);
          plain.Draw(survey, view);
        });
      },
      [&] { return Milliseconds([] { Tavix_GrpStt(kHeight, kWidth); }); });
  long ink_count = 0;
  const double read = MedianMilliseconds([&] {
    ForEachPixel(kHeight, kWidth, [&](int, int, bool is_ink) { ink_count += is_ink ? 1 : 0; });
  });
  volatile long used = ink_count;
  static_cast<void>(used);
  PlainOneBit plain(kWidth, kHeight);
  plain.Draw(survey, view);
  std::vector<bool> expected;
  {
    // The north arrow, as an instance without data shows it.
    Plot empty(1, size);
    Tavix_GrpStt(kHeight, kWidth);
    ForEachPixel(kHeight, kWidth, [&](int row, int column, bool is_ink) {
      expected.push_back(is_ink || plain.IsInk(row, column));
    });
    Tavix_GrpEnd();
  }
  plot.MakeCurrent();
  long different = 0;
  std::size_t at = 0;
  ForEachPixel(kHeight, kWidth,
               [&](int, int, bool is_ink) { different += is_ink != expected[at++] ? 1 : 0; });
  Tavix_GrpEnd();
  Print({"14", "building a one-bit picture of S(1e4), 2000x2800", built.ratio, "", 0.5,
         Times(built.floor, built.product), different});
  Print({"14", "reading it", read * 1e6 / (1.0 * kWidth * kHeight), "ns a pixel", 4, ""});
}

}  // namespace tavix
