// Measures what each layer of a full redraw takes.
//
//   layer_bench [POINTS [WIDTH HEIGHT [GROUND_SIDE [LINE_KIND]]]]
//
// S(POINTS) of the goals, 1000 without an argument, in a picture of 240 by 320 pixels, all of its
// 10,000 metres in view. A layer is timed once with a canvas that draws nothing, which leaves the
// store and the view, and once drawn. "picture" is all of it, "copy" what a paint adds.
//
// Prints the least and the median of many rounds in microseconds: on a machine that does other work
// the least is what counts.
#include <afxwin.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <vector>

#include "benchmarks/device_root.h"
#include "benchmarks/goals/survey.h"
#include "benchmarks/timing.h"
#include "draw/dib/dib_canvas.h"
#include "draw/plan_view.h"
#include "platform/wide_text.h"
#include "window/output.h"

namespace tavix {
namespace {

// Draws nothing.
class NoCanvas : public PlanCanvas {
 public:
  explicit NoCanvas(SIZE size)
      : visible_{0, 0, static_cast<int>(size.cx), static_cast<int>(size.cy)} {}

  [[nodiscard]] ScreenBox Visible() const override { return visible_; }
  void UsePen(const Pen& /*pen*/) override {}
  void Line(const ScreenSegment& /*segment*/) override {}
  void Circle(ScreenPoint /*centre*/, int /*radius*/) override {}
  void UsePointSymbol(const PointSymbol& /*symbol*/) override {}
  void Mark(ScreenPoint /*at*/) override {}
  void UseTextColor(std::uint32_t /*color*/) override {}
  void Label(ScreenPoint /*at*/, NameView /*text*/) override {}

 private:
  ScreenBox visible_;
};

// The parts of an instance.
struct Plan {
  CViewState view;
  LegendTable legend;
  CPntList points;
  CLinDb lines{0};
  CFigList figures{0};
};

void EnterPoints(const Survey& survey, Plan& plan) {
  std::int16_t legend = 0;
  plan.legend.Add(true, {2, 10, 10, 0, 1, kMarkColor}, &legend);
  for (std::size_t i = 0; i < survey.points.size(); ++i) {
    const int key = static_cast<int>(i) + 1;
    const std::wstring& name = survey.names[i];
    plan.points.Add({key, key, AsUtf16(name.c_str(), name.size()), survey.points[i], legend});
  }
}

void EnterLines(const Survey& survey, int kind, Plan& plan) {
  std::int16_t legend = 0;
  plan.legend.Add(false, {kind, kDash, kGap, kShortDash, 1, kLineColor}, &legend);
  plan.lines.Open();
  for (int i = 1; i <= survey.lines; ++i) {
    std::int32_t id = 0;
    plan.lines.Add({static_cast<std::int16_t>(i), static_cast<std::int16_t>(i + 1)}, legend, &id);
  }
}

void EnterFigures(const Survey& survey, Plan& plan) {
  std::int16_t legend = 0;
  plan.legend.Add(false, {101, 0, 0, 0, 1, kFigureColor}, &legend);
  plan.figures.Open();
  plan.figures.SetPending(1, legend);
  for (const std::vector<GroundPoint>& figure : survey.figures) {
    plan.figures.AddPolyline(figure, static_cast<std::int32_t>(figure.size()));
  }
}

template <class Work>
void Time(const char* what, Work work) {
  constexpr int kRounds = 101;
  std::vector<double> times;
  for (int round = 0; round < kRounds; ++round) times.push_back(Milliseconds(work));
  std::printf("%-24s %9.1f %9.1f\n", what, *std::min_element(times.begin(), times.end()) * 1000,
              Median(times) * 1000);
}

// A window of this size, whose picture is drawn.
void TimeLayers(SIZE size, Plan& plan) {
  CWnd window;
  window.Attach(::CreateWindowExW(0, L"STATIC", L"", WS_POPUP | WS_VISIBLE, 0, 0, size.cx, size.cy,
                                  nullptr, nullptr, nullptr, nullptr));
  BackBuffer buffer;
  buffer.Create(window);
  const CPntList no_points;
  CFigList no_figures(1);
  no_figures.Open();
  CLinDb no_lines(1);
  no_lines.Open();
  const auto draw = [&](PlanCanvas& canvas, const CPntList& points, CLinDb& lines,
                        const CFigList& figures) {
    DrawPlanView(canvas, {plan.view, plan.legend, points, lines, figures, true});
  };
  const auto time = [&](const std::string& what, const CPntList& points, CLinDb& lines,
                        const CFigList& figures) {
    NoCanvas nothing(size);
    Time((what + ", not drawn").c_str(), [&] { draw(nothing, points, lines, figures); });
    Time(what.c_str(), [&] {
      DibCanvas canvas(buffer.Dc(), buffer.Pixels(), RasterCache::OfProcess());
      draw(canvas, points, lines, figures);
    });
  };
  const auto fill = [&] {
    buffer.Fill();
    ::GdiFlush();
  };
  const auto picture = [&] {
    fill();
    DibCanvas canvas(buffer.Dc(), buffer.Pixels(), RasterCache::OfProcess());
    draw(canvas, plan.points, plan.lines, plan.figures);
  };
  constexpr int kRedrawsBefore = 20;  // what grows with use is there by then
  for (int i = 0; i < kRedrawsBefore; ++i) picture();
  Time("fill", fill);
  Time("figures, read", [&] { plan.figures.ForEach([](const Figure& /*figure*/) {}); });
  time("figures", no_points, no_lines, plan.figures);
  time("points", plan.points, no_lines, no_figures);
  time("points and lines", plan.points, plan.lines, no_figures);
  Time("picture", picture);
  CClientDC screen(&window);
  Time("copy", [&] {
    screen.BitBlt(0, 0, size.cx, size.cy, &buffer.Dc(), 0, 0, SRCCOPY);
    ::GdiFlush();
  });
  no_figures.Close();
}

}  // namespace
}  // namespace tavix

int main(int argc, char** argv) {
  const auto number = [&](int i, int otherwise) {
    return argc > i ? std::max(1, std::atoi(argv[i])) : otherwise;
  };
  const SIZE size{number(2, 240), number(3, 320)};
  const double side = number(4, static_cast<int>(tavix::kSurveySide));
  const tavix::DeviceRoot root;
  const tavix::Survey survey = tavix::MakeSurvey(number(1, 1000));
  tavix::Plan plan;
  tavix::EnterPoints(survey, plan);
  tavix::EnterLines(survey, number(5, 101), plan);
  tavix::EnterFigures(survey, plan);
  plan.view.SetScreenSize(size.cx, size.cy);
  const double middle = tavix::kSurveySide / 2;
  static_cast<void>(plan.view.ZoomToArea({side, side}, {middle, middle}));
  plan.view.SetAngle(tavix::kSurveyAngle);
  tavix::TimeLayers(size, plan);
  plan.figures.Close();
  return 0;
}
