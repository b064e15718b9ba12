// Entering, looking up and keeping data: goals 5, 6, 8, 9, 10 and 15.
#include "benchmarks/goals/goals.h"

#include <tavix/tavix.h>

#include <psapi.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <iterator>
#include <numeric>
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

constexpr SIZE kHandheld{240, 320};
constexpr SIZE kTablet{1280, 1024};
constexpr int kMillion = 1000000;

// The least that an entry can be: columns, a pool of names, a flat hash of the keys.
class FlatPoints {
 public:
  void Enter(int key, int number, const std::wstring& name, GroundPoint at) {
    if ((places_.size() + 1) * 2 > slots_.size()) Grow();
    Slot& slot = slots_[Home(key)];
    if (slot.place != kNone) {
      places_[slot.place] = at;
      return;
    }
    slot = {key, static_cast<std::uint32_t>(places_.size())};
    places_.push_back(at);
    numbers_.push_back(number);
    name_ends_.push_back(static_cast<std::uint32_t>(names_.size() + name.size()));
    names_.insert(names_.end(), name.begin(), name.end());
  }

  [[nodiscard]] const GroundPoint* Find(int key) const {
    const Slot& slot = slots_[Home(key)];
    return slot.place == kNone ? nullptr : &places_[slot.place];
  }

 private:
  static constexpr std::uint32_t kNone = 0xFFFFFFFF;
  struct Slot {
    int key = 0;
    std::uint32_t place = kNone;
  };

  // Where the key is, or where it would be put.
  [[nodiscard]] std::size_t Home(int key) const {
    auto at =
        static_cast<std::size_t>((static_cast<std::uint32_t>(key) * 0x9E3779B97F4A7C15U) >> shift_);
    while (slots_[at].place != kNone && slots_[at].key != key) at = (at + 1) & (slots_.size() - 1);
    return at;
  }

  void Grow() {
    std::vector<Slot> old(std::max<std::size_t>(64, slots_.size() * 2));
    old.swap(slots_);
    shift_ = 64;
    for (std::size_t size = slots_.size(); size > 1; size /= 2) --shift_;
    for (const Slot& slot : old) {
      if (slot.place != kNone) slots_[Home(slot.key)] = slot;
    }
  }

  std::vector<Slot> slots_;
  unsigned shift_ = 64;
  std::vector<GroundPoint> places_;
  std::vector<int> numbers_;
  std::vector<std::uint32_t> name_ends_;
  std::vector<wchar_t> names_;
};

std::vector<int> ShuffledKeys(int count) {
  std::vector<int> keys(static_cast<std::size_t>(count));
  std::iota(keys.begin(), keys.end(), 1);
  std::shuffle(keys.begin(), keys.end(), std::mt19937(5));
  return keys;
}

// A million keys at random, looked up in the instance and in the flat arrays.
void MeasureLookups(const std::vector<int>& keys, const FlatPoints& flat, const char* what,
                    bool present) {
  double sum = 0;
  const Comparison result = InTurn(
      5,
      [&] {
        return Milliseconds([&] {
          for (const int key : keys) {
            const GroundPoint* at = flat.Find(key);
            sum += at ? at->north : 1;
          }
        });
      },
      [&] {
        return Milliseconds([&] {
          double x = 0;
          double y = 0;
          for (const int key : keys) {
            if ((Tavix_GetPntCrd(key, &x, &y) == 0) != present) std::abort();
            sum += x;
          }
        });
      });
  volatile double used = sum;
  static_cast<void>(used);
  Print({"6", what, result.product, "ns", 60,
         Text("flat hash %.3g ns, product %.3g ns", result.floor, result.product)});
}

double WorkingSet() {
  PROCESS_MEMORY_COUNTERS counters{};
  ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof(counters));
  return static_cast<double>(counters.WorkingSetSize);
}

double PeakWorkingSet() {
  PROCESS_MEMORY_COUNTERS counters{};
  ::GetProcessMemoryInfo(::GetCurrentProcess(), &counters, sizeof(counters));
  return static_cast<double>(counters.PeakWorkingSetSize);
}

void Tap(HWND plot, int x, int y) {
  ::SendMessageW(plot, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
  ::SendMessageW(plot, WM_LBUTTONUP, 0, MAKELPARAM(x, y));
}

constexpr int kLineKeys = 32000;

std::vector<std::pair<int, int>> RandomLines(int count) {
  std::mt19937 random(2);
  std::vector<std::pair<int, int>> lines;
  while (static_cast<int>(lines.size()) < count) {
    const int a = 1 + static_cast<int>(random() % kLineKeys);
    const int b = 1 + static_cast<int>(random() % kLineKeys);
    if (a != b) lines.emplace_back(a, b);
  }
  return lines;
}

void MeasureEnteredLines(const char* what, const std::vector<std::pair<int, int>>& lines) {
  std::vector<double> times;
  for (int round = 0; round < 5; ++round) {
    Plot plot(0, kHandheld);
    plot.Use({});
    times.push_back(Milliseconds([&] {
      for (const auto& [a, b] : lines) Tavix_EntLin(a, b);
    }));
  }
  const double each = Median(times) * 1e6 / static_cast<double>(lines.size());
  Print({"9", what, each, "ns a line", 300,
         Text("%d lines in %.3g ms", static_cast<int>(lines.size()), Median(times))});
}

Survey SmallFigures(int count) {
  Survey survey;
  std::mt19937 random(4);
  std::uniform_real_distribution<double> along(0.0, kSurveySide);
  std::uniform_real_distribution<double> offset(-30.0, 30.0);
  for (int i = 0; i < count; ++i) {
    const GroundPoint middle{along(random), along(random)};
    std::vector<GroundPoint>& figure = survey.figures.emplace_back();
    for (int k = 0; k < 10; ++k) {
      const double north = middle.north + offset(random);
      figure.push_back({north, middle.east + offset(random)});
    }
  }
  return survey;
}

}  // namespace

void MeasurePoints() {
  const Survey survey = MakePoints(kMillion);
  const std::vector<int> keys = ShuffledKeys(kMillion);
  std::vector<CString> names;
  names.reserve(kMillion);
  for (const std::wstring& name : survey.names) names.emplace_back(name.c_str());
  FlatPoints flat;
  const auto enter_flat = [&] {
    flat = FlatPoints();
    return Milliseconds([&] {
      for (std::size_t i = 0; i < keys.size(); ++i) {
        flat.Enter(keys[i], static_cast<int>(i), survey.names[i], survey.points[i]);
      }
    });
  };
  const auto enter = [&] {
    for (std::size_t i = 0; i < keys.size(); ++i) {
      const GroundPoint at = survey.points[i];
      Tavix_EntPnt(keys[i], static_cast<int>(i), names[i], at.north, at.east);
    }
  };
  const Comparison entered = InTurn(3, enter_flat, [&] {
    Plot plot(0, kHandheld);
    plot.Use({});
    return Milliseconds(enter);
  });
  const std::string times = Times(entered.floor, entered.product);
  Print({"5", "entering 1e6 points beside columns and a flat hash", entered.ratio, "", 1.3, times});
  Print({"5", "entering 1e6 points", entered.product / 1000, "s", 0.15, times});

  Plot plot(0, kHandheld);
  plot.Use({});
  enter();
  std::mt19937 random(9);
  std::vector<int> asked(kMillion);
  for (int& key : asked) key = 1 + static_cast<int>(random() % kMillion);
  MeasureLookups(asked, flat, "a random key among 1e6, present", true);
  for (int& key : asked) key += 2 * kMillion;
  MeasureLookups(asked, flat, "a random key among 1e6, absent", false);
}

void MeasureMemory() {
  const Survey survey = MakePoints(kMillion);
  Plot plot(0, kHandheld);
  plot.Use({});
  plot.RedrawAndPaint();
  double names = 0;
  for (const std::wstring& name : survey.names) names += static_cast<double>(2 * name.size());
  const double before = WorkingSet();
  plot.Enter(survey);
  plot.Show(kSurveySide);
  plot.RedrawAndPaint();
  plot.Show(kSurveySide / 200);
  plot.RedrawAndPaint();
  for (int i = 0; i < 80; ++i) Tap(plot.Window(), 20 + i, 30);  // an index of places is made by now
  const double each = (WorkingSet() - before - names) / kMillion;
  const double peak = (PeakWorkingSet() - before - names) / kMillion;
  Print({"8", "a point beside its name, after redraws and taps", each, "B", 80,
         Text("names %.3g B a point", names / kMillion)});
  Print({"8", "the same at its peak", peak, "B", 80, ""});

  const double before_lines = WorkingSet();
  const auto lines = RandomLines(100000);
  const double list = WorkingSet() - before_lines;
  for (const auto& [a, b] : lines) Tavix_EntLin(a, b);
  plot.Show(kSurveySide);
  plot.RedrawAndPaint();
  const double line = (WorkingSet() - before_lines - list) / static_cast<double>(lines.size());
  Print({"8", "a line, after a redraw", line, "B", 64,
         Text("%d lines", static_cast<int>(lines.size()))});
}

void MeasureLines() {
  MeasureEnteredLines("1e5 lines among 32,000 keys", RandomLines(100000));
  std::vector<std::pair<int, int>> star;
  for (int i = 0; i < 20000; ++i) star.emplace_back(1, i + 2);
  MeasureEnteredLines("2e4 lines from one key", star);
}

void MeasureFigures() {
  constexpr int kCount = 10000;
  const Survey survey = SmallFigures(kCount);
  Plot plot(0, kTablet);
  plot.Use({});
  plot.Show(kSurveySide, 0);
  const double empty = MedianMilliseconds([&] { plot.Redraw(); }, 31);
  plot.Enter(survey);
  Tavix_Zom(1e7, 1e7, 1.001e7, 1.001e7);
  const double away = MedianMilliseconds([&] { plot.Redraw(); }, 31);
  Print({"10", "a pass over 1e4 figures of ten points out of view", away - empty, "ms", 1.5,
         Text("redraw %.3g ms, without figures %.3g ms", away, empty)});
}

void MeasureList(const char* file) {
  Survey survey;
  const double read = Milliseconds([&] {
    std::ifstream stream(file, std::ios::binary);
    const std::string text(std::istreambuf_iterator<char>(stream), {});
    for (const char* at = text.c_str(); *at;) {
      char* end = nullptr;
      std::strtol(at, &end, 10);
      const double north = std::strtod(end + 1, &end);
      const double east = std::strtod(end + 1, &end);
      std::strtod(end + 1, &end);
      const char* name = *end == ',' ? end + 1 : end;
      const char* line_end = std::find(name, text.c_str() + text.size(), '\n');
      survey.points.push_back({north, east});
      survey.names.emplace_back(name, std::min(line_end, name + 12));
      at = *line_end ? line_end + 1 : line_end;
    }
  });
  const SIZE size{460, 600};
  CViewState view;
  view.SetScreenSize(size.cx, size.cy);
  GroundPoint low = survey.points.at(0);
  GroundPoint high = low;
  for (const GroundPoint& at : survey.points) {
    low = {std::min(low.north, at.north), std::min(low.east, at.east)};
    high = {std::max(high.north, at.north), std::max(high.east, at.east)};
  }
  static_cast<void>(view.FitToArea({high.north - low.north, high.east - low.east},
                                   {(low.north + high.north) / 2, (low.east + high.east) / 2}));
  PlainPicture plain(size, {});
  const double picture =
      Milliseconds([&] { plain.Draw(survey, view, PlainPicture::Clipping::kBySystem); });
  std::printf("list\t%.6g\t%d points, reading %.3g ms, base %.3g ms\n", read + picture,
              static_cast<int>(survey.points.size()), read, picture);
}

}  // namespace tavix
