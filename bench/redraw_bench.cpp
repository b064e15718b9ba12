// Measures a full redraw against its floor, in one process and on bitmaps of one kind.
//
//   redraw_bench [POINTS]      1000, 10000 and 100000 one after another without an argument
//
// The scene: POINTS points on a jittered grid, each a hollow circle of 10 pixels with the label
// "P<number>"; 20,000 lines between neighbours at most; 100 figures of 100 points; a view turned by
// 15 degrees. "whole" has all of it in view, "1 %" a hundredth of the ground. Medians of
//
//   floor     the same picture by the plainest sequence of drawing calls from flat arrays
//   plain     the plan view's passes by GDI
//   fast      the same passes into the bits
//   redraw    the exported call, up to the finished picture
//
// with their ratios to the floor, and how many pixels of `fast` differ from `plain` and, where no
// line is cut, from the floor.
#include <tavix/tavix.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "bench/median_time.h"
#include "bench/redraw_scene.h"
#include "draw/dib/dib_canvas.h"
#include "draw/dib/dib_section.h"
#include "draw/gdi_canvas.h"
#include "draw/gdi_scopes.h"
#include "draw/plan_view.h"
#include "platform/wide_text.h"

namespace tavix {
namespace {

constexpr int kInstance = 4;  // apart from the exported calls' own

// A bitmap section as the back buffer is one.
class Surface {
 public:
  explicit Surface(SIZE size) {
    CClientDC screen(nullptr);
    dc_.CreateCompatibleDC(&screen);
    pixels_ = CreateDib(screen, size.cx, size.cy, bitmap_);
    if (!pixels_.pixels) std::exit(1);
    ::SelectObject(dc_.m_hDC, bitmap_.m_hObject);
    const LOGFONTW font = LabelFont(10);
    font_.CreateFontIndirect(&font);
  }

  [[nodiscard]] CDC& Dc() { return dc_; }
  [[nodiscard]] const PixelBlock& Pixels() const { return pixels_; }

  void Fill() {
    const RECT all{0, 0, pixels_.width, pixels_.height};
    ::FillRect(dc_.m_hDC, &all, ::GetSysColorBrush(COLOR_WINDOW));
  }

  void SelectFloorObjects() {
    ::SelectObject(dc_.m_hDC, font_.m_hObject);
    ::SelectObject(dc_.m_hDC, ::GetStockObject(NULL_BRUSH));
    ::SetBkMode(dc_.m_hDC, TRANSPARENT);
  }

  [[nodiscard]] int Differences(const Surface& other) const {
    ::GdiFlush();
    int count = 0;
    for (std::size_t i = 0; i < pixels_.Count(); ++i) {
      count += pixels_.pixels[i] != other.pixels_.pixels[i] ? 1 : 0;
    }
    return count;
  }

 private:
  CFont font_;
  CBitmap bitmap_;
  CDC dc_;
  PixelBlock pixels_;
};

// The library's own stores with the scene in them, and the exported calls' instance with the same.
class Plot {
 public:
  Plot(SIZE size, const RedrawScene& scene) : lines_(kInstance), figures_(kInstance) {
    view_.SetScreenSize(size.cx, size.cy);
    view_.SetAngle(kSceneAngle);
    figures_.Open();
    lines_.Open();
    legend_.Add(true, {2, 10, 10, 0, 1, static_cast<int>(kMarkColor)}, &mark_);
    legend_.Add(false, {101, 0, 0, 0, 1, static_cast<int>(kLineColor)}, &line_);
    legend_.Add(false, {101, 0, 0, 0, 1, static_cast<int>(kFigureColor)}, &figure_);
    short unused = 0;
    Tavix_AddPntHan(2, 1, static_cast<int>(kMarkColor), 10, 10, 0, &unused);
    Tavix_SelPntHan(unused);
    Tavix_AddLinHan(101, 0, 0, 0, 1, static_cast<int>(kLineColor), &unused);
    Tavix_SelLinHan(unused);
    Tavix_AddLinHan(101, 0, 0, 0, 1, static_cast<int>(kFigureColor), &unused);
    EnterPoints(scene);
    EnterFigures(scene, unused);
    Tavix_SetAng(kSceneAngle);
  }
  ~Plot() {
    lines_.Close();
    figures_.Close();
  }
  Plot(const Plot&) = delete;
  Plot& operator=(const Plot&) = delete;

  void Show(double ground_side) {
    const double low = kSceneSide / 2 - ground_side / 2;
    const double high = kSceneSide / 2 + ground_side / 2;
    Tavix_Zom(low, low, high, high);
    const GroundSize box = view_.RotatedExtent({ground_side, ground_side});
    static_cast<void>(view_.ZoomToArea(box, {kSceneSide / 2, kSceneSide / 2}));
  }

  [[nodiscard]] const CViewState& View() const { return view_; }
  [[nodiscard]] PlotData Data() { return {view_, legend_, points_, lines_, figures_, true}; }

 private:
  void EnterPoints(const RedrawScene& scene) {
    int key = 0;
    for (const GroundPoint& at : scene.points) {
      const std::wstring& name = scene.names[static_cast<std::size_t>(key++)];
      points_.Add({key, key, NameView(reinterpret_cast<const char16_t*>(name.data()), name.size()),
                   at, mark_});
      Tavix_EntPnt(key, key, name.c_str(), at.north, at.east);
    }
    for (int i = 1; i <= scene.lines; ++i) {
      std::int32_t id = 0;
      lines_.Add(LineKeys::Of(i, i + 1), line_, &id);
      Tavix_EntLin(i, i + 1);
    }
  }

  void EnterFigures(const RedrawScene& scene, short exported_legend) {
    int number = 0;
    for (const std::vector<GroundPoint>& figure : scene.figures) {
      figures_.SetPending(++number, figure_);
      const auto count = static_cast<int>(figure.size());
      figures_.AddPolyline(figure, count);
      std::vector<double> x;
      std::vector<double> y;
      for (const GroundPoint& at : figure) {
        x.push_back(at.north);
        y.push_back(at.east);
      }
      Tavix_FigStt(number, exported_legend);
      Tavix_FigMdlPly(count, x.data(), y.data());
      Tavix_FigEnd();
    }
  }

  CViewState view_;
  LegendTable legend_;
  CPntList points_;
  CLinDb lines_;
  CFigList figures_;
  std::int16_t mark_ = 0;
  std::int16_t line_ = 0;
  std::int16_t figure_ = 0;
};

void Measure(SIZE size, Plot& plot, const RedrawScene& scene, bool whole) {
  plot.Show(whole ? kSceneSide : kSceneSide / 10);
  Surface floor(size);
  Surface plain(size);
  Surface fast(size);
  RasterCache cache;
  floor.SelectFloorObjects();
  int shown = 0;
  const double floor_ms = MedianMilliseconds(
      [&] { shown = DrawRedrawFloor(floor.Dc().m_hDC, size, plot.View(), scene); });
  const double plain_ms = MedianMilliseconds([&] {
    plain.Fill();
    GdiCanvas canvas(plain.Dc());
    DrawPlanView(canvas, plot.Data());
    ::GdiFlush();
  });
  const double fast_ms = MedianMilliseconds([&] {
    fast.Fill();
    DibCanvas canvas(fast.Dc(), fast.Pixels(), cache);
    DrawPlanView(canvas, plot.Data());
    ::GdiFlush();
  });
  const double redraw_ms = MedianMilliseconds([] {
    Tavix_Drw(1);
    Tavix_SetAng(kSceneAngle);  // a change of the view: the redraw is drawn before it
    ::GdiFlush();
  });
  const int different = fast.Differences(plain) + (whole ? fast.Differences(floor) : 0);
  std::printf(
      "%4ldx%-4ld %7zu %-5s floor %7.2f ms  plain %7.2f (%.2f)  fast %7.3f (%.3f)  redraw %7.3f "
      "(%.3f)  %d shown, pixels different %d\n",
      size.cx, size.cy, scene.points.size(), whole ? "whole" : "1 %", floor_ms, plain_ms,
      plain_ms / floor_ms, fast_ms, fast_ms / floor_ms, redraw_ms, redraw_ms / floor_ms, shown,
      different);
  std::fflush(stdout);
}

void Run(HWND host, SIZE size, int points) {
  Tavix_Crt();
  // Three pixels of frame on each side: border and edge.
  Tavix_LnkRct(CWnd::FromHandle(host), 0, 0, size.cx + 6, size.cy + 6, 1);
  Tavix_SetBtn(0);
  Tavix_Dsp(1);
  {
    const RedrawScene scene = MakeRedrawScene(points);
    Plot plot(size, scene);
    Measure(size, plot, scene, true);
    Measure(size, plot, scene, false);
  }
  Tavix_Del();
}

}  // namespace
}  // namespace tavix

int main(int argc, char** argv) {
  const HWND host = ::CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, 1300, 1100,
                                      nullptr, nullptr, nullptr, nullptr);
  std::vector<int> counts{1000, 10000, 100000};
  if (argc > 1) counts = {std::max(2, std::atoi(argv[1]))};
  for (const SIZE& size : {SIZE{240, 320}, SIZE{1280, 1024}}) {
    for (const int points : counts) tavix::Run(host, size, points);
  }
  return 0;
}
