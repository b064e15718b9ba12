// Full redraws: goals 1 to 4, 16 and 17.
#include "benchmarks/goals/goals.h"

#include <tavix/tavix.h>

#include <algorithm>
#include <array>
#include <iterator>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "benchmarks/goals/figures.h"
#include "benchmarks/goals/plain_picture.h"
#include "benchmarks/goals/plot.h"
#include "benchmarks/timing.h"

namespace tavix {
namespace {

using Clipping = PlainPicture::Clipping;

constexpr SIZE kHandheld{240, 320};
constexpr SIZE kTablet{1280, 1024};
constexpr SIZE kLarge{3840, 2160};

// What grows with use is there by then: the index of places, a part at each redraw.
constexpr int kRedrawsBefore = 20;

int Rounds(std::size_t points) {
  if (points >= 1000000) return 3;
  return points >= 100000 ? 5 : points >= 10000 ? 11 : 21;
}

std::string SizeText(SIZE size) { return Text("%ldx%ld", size.cx, size.cy); }

// Redraws beside a floor, in turn. Each is painted afterwards, as redraws are, but that is not
// timed with it: the floor has no copy to the screen.
template <class Floor>
void PrintRedraws(Figure figure, const Plot& plot, int rounds, Floor floor) {
  std::vector<double> paints;
  const Comparison result = InTurn(
      rounds, [&] { return Milliseconds(floor); },
      [&] {
        const double redraw = Milliseconds([&] { plot.Redraw(); });
        paints.push_back(Milliseconds([&] { plot.Paint(); }));
        return redraw;
      });
  figure.value = result.ratio;
  figure.details =
      Times(result.floor, result.product) + Text(", its paint %.3g ms", Median(paints));
  Print(figure);
}

long Differences(const std::vector<std::uint32_t>& a, const std::vector<std::uint32_t>& b) {
  long count = 0;
  for (std::size_t i = 0; i < a.size(); ++i) count += a[i] != b[i] ? 1 : 0;
  return count;
}

// Pixels of the plot that are not the plain picture's, with the north arrow laid over it as an
// instance without data shows it.
long DifferencesFromPlain(const Plot& plot, const PlainPicture& plain, SIZE size) {
  const std::vector<std::uint32_t> shown = plot.Screen();
  std::vector<std::uint32_t> expected = plain.Pixels();
  {
    Tavix_Dsp(0);
    Plot empty(4, size);
    empty.Show(kSurveySide);
    empty.RedrawAndPaint();
    const std::vector<std::uint32_t> arrow = empty.Screen();
    const std::uint32_t background = arrow.back();
    for (std::size_t i = 0; i < arrow.size(); ++i) {
      if (arrow[i] != background) expected[i] = arrow[i];
    }
  }
  plot.MakeCurrent();
  Tavix_Dsp(1);
  return Differences(expected, shown);
}

struct Case {
  std::string goal;
  std::string what;
  double limit;
};

// The plot against the plain picture, whole or a part of the survey in view.
void Compare(const Case& named, SIZE size, const Survey& survey, const Look& look,
             double ground_side) {
  Plot plot(0, size);
  plot.Use(look);
  plot.Enter(survey);
  plot.Show(ground_side);
  PlainPicture plain(size, look);
  plain.Draw(survey, plot.View(), Clipping::kByView);
  for (int i = 0; i < kRedrawsBefore; ++i) plot.RedrawAndPaint();
  const long different = DifferencesFromPlain(plot, plain, size);
  PrintRedraws({named.goal, named.what + ", " + SizeText(size), 0, "", named.limit, "", different},
               plot, Rounds(survey.points.size()),
               [&] { plain.Draw(survey, plot.View(), Clipping::kBySystem); });
}

bool Shows(const std::vector<GroundPoint>& figure, const CViewState& view) {
  ScreenSegment unused;
  for (std::size_t i = 1; i < figure.size(); ++i) {
    if (view.ClipGroundSegment(figure[i - 1], figure[i], unused)) return true;
  }
  return false;
}

// The points and figures in view. The lines of S(1e6) lie along its northern edge, out of view.
Survey VisiblePart(const Survey& survey, const CViewState& view) {
  Survey part;
  const double margin = 10 / view.Scale();
  ScreenPoint at;
  for (std::size_t i = 0; i < survey.points.size(); ++i) {
    if (!view.CircleOnScreen(survey.points[i], margin, at)) continue;
    part.points.push_back(survey.points[i]);
    part.names.push_back(survey.names[i]);
  }
  std::copy_if(survey.figures.begin(), survey.figures.end(), std::back_inserter(part.figures),
               [&](const std::vector<GroundPoint>& figure) { return Shows(figure, view); });
  return part;
}

// A zoomed-in view of a survey against a store that holds nothing but what is in view.
void CompareWithSmallStore(const Case& named, SIZE size, const Survey& survey, double ground_side) {
  Plot whole(0, size);
  whole.Use({});
  whole.Enter(survey);
  whole.Show(ground_side);
  Plot small(1, size);
  small.Use({});
  small.Show(ground_side);
  small.Enter(VisiblePart(survey, small.View()));
  for (const Plot* plot : {&small, &whole}) {
    plot->MakeCurrent();
    for (int i = 0; i < kRedrawsBefore; ++i) plot->RedrawAndPaint();
  }
  constexpr int kRounds = 31;
  const auto floor = [&] {
    small.MakeCurrent();
    small.Redraw();
    whole.MakeCurrent();
  };
  PrintRedraws({named.goal, named.what + ", against a store of what is visible, " + SizeText(size),
                0, "", named.limit, ""},
               whole, kRounds, floor);
}

Survey Circles(int count) {
  Survey survey;
  std::mt19937 random(7);
  std::uniform_real_distribution<double> along(0.0, kSurveySide);
  std::uniform_real_distribution<double> radius(20.0, 100.0);
  for (int i = 0; i < count; ++i) {
    const GroundPoint centre{along(random), along(random)};
    survey.circles.push_back({centre, radius(random)});
  }
  return survey;
}

}  // namespace

void MeasureWholeViews() {
  Survey survey = MakeSurvey(1000);
  for (const SIZE size : {kHandheld, kTablet, kLarge}) {
    Compare({"2", "S(1e3), whole", 0.15}, size, survey, {}, kSurveySide);
  }
  survey = MakeSurvey(10000);
  for (const SIZE size : {kHandheld, kTablet, kLarge}) {
    Compare({"1", "S(1e4), whole", 0.08}, size, survey, {}, kSurveySide);
  }
  survey = MakeSurvey(100000);
  for (const SIZE size : {kHandheld, kTablet}) {
    Compare({"1", "S(1e5), whole", 0.08}, size, survey, {}, kSurveySide);
  }
  Compare({"1", "S(1e6), whole", 0.08}, kHandheld, MakeSurvey(1000000), {}, kSurveySide);
}

void MeasureLabels() {
  const std::array<std::pair<Naming, const char*>, 4> cases{{
      {Naming::kKanji, "labels of four kanji"},
      {Naming::kKanjiAndNumber, "labels of a kanji and a number"},
      {Naming::kHalfWidthKana, "labels of half-width kana"},
      {Naming::kAmpersand, "labels with &"},
  }};
  for (const auto& [naming, what] : cases) {
    const Survey survey = MakeSurvey(10000, naming);
    for (const SIZE size : {kHandheld, kTablet}) {
      Compare({"1b", std::string("S(1e4), ") + what, 0.12}, size, survey, {}, kSurveySide);
    }
  }
}

void MeasurePens() {
  Survey lines = MakeSurvey(10000);
  lines.figures.clear();
  Look look;
  look.mark_size = look.label_height = 0;
  for (const int pen : {2, 3}) {
    look.line_pen = pen;
    Compare({"1c", Text("lines alone, pen of %d", pen), 0.5}, kTablet, lines, look, kSurveySide);
  }
  look.line_pen = 1;
  for (const int kind : {102, 103, 104, 105}) {
    look.line_kind = kind;
    Compare({"1c", Text("short lines alone, kind %d", kind), 0.5}, kTablet, lines, look,
            kSurveySide);
  }
  Compare({"1c", "10,000 circle figures alone", 0.5}, kTablet, Circles(10000), {}, kSurveySide);
}

void MeasureZoomedViews() {
  Survey survey = MakeSurvey(1000000);
  for (const SIZE size : {kHandheld, kTablet}) {
    Compare({"3", "S(1e6), 0.01 % in view", 0.10}, size, survey, {}, kSurveySide / 100);
    CompareWithSmallStore({"3", "S(1e6), 0.01 % in view", 2.0}, size, survey, kSurveySide / 100);
  }
  Compare({"4", "S(1e6), 1 % in view", 0.20}, kTablet, survey, {}, kSurveySide / 10);
  Compare({"4", "S(1e5), 1 % in view", 0.20}, kTablet, MakeSurvey(100000), {}, kSurveySide / 10);
  Compare({"4", "S(1e4), 1 % in view", 0.20}, kTablet, MakeSurvey(10000), {}, kSurveySide / 10);
}

void MeasureFirstRedraw() {
  for (const Naming naming : {Naming::kAscii, Naming::kKanji}) {
    const Survey survey = MakeSurvey(1000, naming);
    std::vector<double> first;
    std::vector<double> later;
    for (int round = 0; round < 7; ++round) {
      Plot plot(0, kHandheld);
      plot.Use({});
      plot.Enter(survey);
      const auto zoom = [&] {
        plot.Show(kSurveySide);
        ::UpdateWindow(plot.Window());
        ::GdiFlush();
      };
      const double took = Milliseconds(zoom);
      if (round > 0) first.push_back(took);  // the first window of the process learns it all
      later.push_back(MedianMilliseconds(zoom));
    }
    const std::string names = naming == Naming::kKanji ? "kanji" : "ASCII";
    Print({"16", "first redraw of a fresh window beside the later ones, " + names,
           Median(first) / Median(later), "", 1.5,
           Text("first %.3g ms, later %.3g ms", Median(first), Median(later))});
  }
}

void MeasureSideView() {
  constexpr int kPoints = 100000;
  const Survey survey = MakePoints(kPoints);
  std::mt19937 random(8);
  std::uniform_real_distribution<double> height(0.0, 400.0);
  std::vector<double> heights(kPoints);
  for (double& z : heights) z = height(random);
  heights[0] = 0;  // the height base
  Plot plot(0, kTablet);
  plot.Use({});
  for (std::size_t i = 0; i < kPoints; ++i) {
    const int key = static_cast<int>(i) + 1;
    Tavix_EntPnt3(key, key, survey.names[i].c_str(), survey.points[i].north, survey.points[i].east,
                  heights[i]);
  }
  Tavix_Dsp3D(1);
  Tavix_Drw(0);
  plot.Show(2 * kSurveySide, 0);
  PlainPicture plain(kTablet, {});
  plain.DrawSide(survey, heights, plot.View());
  plot.RedrawAndPaint();
  const long different = Differences(plain.Pixels(), plot.Screen());
  PrintRedraws({"17", "side view of 1e5 points, " + SizeText(kTablet), 0, "", 0.15, "", different},
               plot, 5, [&] { plain.DrawSide(survey, heights, plot.View()); });
}

}  // namespace tavix
