#include "host/app/headless.h"

#include <cstdio>
#include <optional>
#include <utility>

#include "host/app/main_window.h"
#include "host/pictures/picture_writer.h"
#include "host/pictures/plan_picture.h"
#include "host/plot/plot_pane.h"
#include "host/survey/disk_file.h"
#include "host/survey/load_report.h"
#include "host/survey/survey_document.h"
#include "host/survey/survey_loader.h"

namespace fieldhost {
namespace {

constexpr int kDone = 0;
constexpr int kFailed = 1;
constexpr std::size_t kMostLines = 100;

int Fail(const std::string& sentence) {
  std::fprintf(stderr, "%s\n", sentence.c_str());
  return kFailed;
}

std::string SizeText(int width, int height) {
  return std::to_string(width) + "x" + std::to_string(height);
}

// Windows keeps the pixels of a window only as far as they lie on the screen.
bool FitsTheScreen(const PictureSize& size) {
  return size.width <= ::GetSystemMetrics(SM_CXSCREEN) &&
         size.height <= ::GetSystemMetrics(SM_CYSCREEN);
}

std::string CannotWrite(const std::string& file) {
  return "The picture " + file +
         " cannot be written; check that its folder exists and may be written to.";
}

// What is wrong with the picture's size, checked before files are read; empty when it is right.
std::string SizeProblem(const CommandLine& line) {
  const PictureSize size = line.size.value_or(kUsualSize);
  if (!line.one_bit.empty() || FitsTheScreen(size)) return "";
  return "A picture of " + SizeText(size.width, size.height) +
         " pixels does not fit the screen of " +
         SizeText(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)) +
         "; choose a smaller --size.";
}

int ResolutionFor(const CommandLine& line) { return line.resolution.value_or(ScreenResolution()); }

// The result of writing a picture.
struct Written {
  std::string problem;  // empty when all went well
  SurveyCounts shown;
};

Written WriteWindow(LoadedSurvey loaded, const CommandLine& line) {
  auto* window = new CMainWindow;  // deletes itself with its window
  if (!window->CreateForPicture(line.size.value_or(kUsualSize))) {
    return {CannotWrite(line.picture), {}};
  }
  window->Show(std::move(loaded));
  Written written{"", window->Document().Counts()};
  if (line.side && !window->ShowView(PlotView::kSide)) {
    written.problem = "No point has a height; leave out --side.";
  } else {
    window->ShowWindow(SW_SHOWNOACTIVATE);
    window->RedrawWindow(nullptr, nullptr,
                         RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
    if (!WritePicture(*window, ResolutionFor(line), PathOf(line.picture))) {
      written.problem = CannotWrite(line.picture);
    }
  }
  window->DestroyWindow();
  return written;
}

struct DrawnPlan {
  std::optional<OneBitPicture> picture;
  SurveyCounts shown;
};

// The plot has the picture's proportions, so that what fits the one fits the other.
DrawnPlan DrawPlan(CWnd& parent, LoadedSurvey loaded, const PictureSize& size) {
  constexpr int kLongestPlot = 1000;  // pixels
  const PictureSize plot_size = Within(size, kLongestPlot);
  CRect rect(0, 0, plot_size.width, plot_size.height);
  ::AdjustWindowRectEx(&rect, WS_CHILD | WS_BORDER, FALSE, WS_EX_CLIENTEDGE);
  SurveyDocument document;
  PlotPane plot(document);
  plot.ShowButtons(false);
  if (!plot.Place(parent, rect, 0)) return {};
  document.Add(std::move(loaded));
  return {DrawPlanPicture(size), document.Counts()};
}

Written WriteOneBit(LoadedSurvey loaded, const CommandLine& line) {
  auto* frame = new CFrameWnd;  // deletes itself with its window
  if (!frame->Create(nullptr, L"", WS_POPUP)) return {CannotWrite(line.one_bit), {}};
  const DrawnPlan plan = DrawPlan(*frame, std::move(loaded), line.size.value_or(kUsualSize));
  frame->DestroyWindow();
  if (!plan.picture) {
    return {"There is no room for so large a picture; choose a smaller --size.", {}};
  }
  const std::optional<OneBitFormat> format = OneBitFormatOf(line.one_bit);
  if (!format ||
      !WriteOneBitPicture(*plan.picture, *format, ResolutionFor(line), PathOf(line.one_bit))) {
    return {CannotWrite(line.one_bit), {}};
  }
  return {"", plan.shown};
}

}  // namespace

int DrawPicture(const CommandLine& line) {
  if (const std::string problem = SizeProblem(line); !problem.empty()) return Fail(problem);

  LoadedSurvey loaded = LoadSurveyFiles(PathsOf(line.files));
  std::fputs(Complaints(loaded, kMostLines).c_str(), stderr);
  if (!line.files.empty() && !loaded.survey.HasAnythingToDraw()) return kFailed;

  const bool all_read = loaded.refusals.empty();
  const Written written = line.one_bit.empty() ? WriteWindow(std::move(loaded), line)
                                               : WriteOneBit(std::move(loaded), line);
  if (!written.problem.empty()) return Fail(written.problem);
  std::printf("%s\n", Summary(written.shown).c_str());
  return all_read ? kDone : kFailed;
}

}  // namespace fieldhost
