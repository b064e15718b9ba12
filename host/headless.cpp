#include "host/headless.h"

#include <cstdio>
#include <optional>

#include "host/load_report.h"
#include "host/main_window.h"
#include "host/picture_writer.h"
#include "host/survey_loader.h"
#include "host/utf8_path.h"

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

// The system keeps the pixels of windows only as far as they lie on the screen.
bool FitsTheScreen(const PictureSize& size) {
  return size.width <= ::GetSystemMetrics(SM_CXSCREEN) &&
         size.height <= ::GetSystemMetrics(SM_CYSCREEN);
}

// What the picture shows; nothing when there is no picture.
std::optional<SurveyCounts> WriteWindow(const LoadedSurvey& loaded, const PictureSize& size,
                                        const std::filesystem::path& file) {
  auto* window = new CMainWindow;  // deletes itself with its window
  if (!window->CreateForPicture(size)) return std::nullopt;
  window->Show(loaded);
  window->ShowWindow(SW_SHOWNOACTIVATE);
  window->RedrawWindow(nullptr, nullptr,
                       RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN | RDW_UPDATENOW);
  std::optional<SurveyCounts> shown;
  if (WritePicture(*window, file)) shown = window->Counts();
  window->DestroyWindow();
  return shown;
}

}  // namespace

int DrawPicture(const CommandLine& line) {
  const PictureSize size = line.size.value_or(kUsualSize);
  if (!FitsTheScreen(size)) {
    return Fail("A picture of " + SizeText(size.width, size.height) +
                " pixels does not fit the screen of " +
                SizeText(::GetSystemMetrics(SM_CXSCREEN), ::GetSystemMetrics(SM_CYSCREEN)) +
                "; choose a smaller --size.");
  }

  const LoadedSurvey loaded = LoadSurveyFiles(PathsOf(line.files));
  std::fputs(Complaints(loaded, kMostLines).c_str(), stderr);
  if (!line.files.empty() && !loaded.survey.HasAnythingToDraw()) return kFailed;

  const std::optional<SurveyCounts> shown = WriteWindow(loaded, size, PathOf(line.picture));
  if (!shown) {
    return Fail("The picture " + line.picture +
                " cannot be written; check that its folder exists and may be written to.");
  }
  std::printf("%s\n", Summary(*shown).c_str());
  return loaded.refusals.empty() ? kDone : kFailed;
}

}  // namespace fieldhost
