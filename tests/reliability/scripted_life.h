// The life of an instance as a script, from its creation to its end.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace tavix::test {

// One or a few calls that belong together, with all they lead to.
struct LifeStep {
  const char* name;
  // The answers of the calls, and what they wrote.
  std::function<std::string()> run;
  // What it may answer instead when the system fails it; one that ends with * stands for all that
  // begin like it, as when a picture lacks something.
  std::vector<std::string> refusals;
  // What brings the instance back to where it would be without the fault, in place of the step
  // itself once more.
  std::function<std::string()> mend;

  [[nodiscard]] bool MayAnswer(const std::string& answer) const;
};

// A life of the current instance without its dialog, in a window on `parent`: legend, points,
// lines, memos, 3-D points, figures, overlays, redraws and paints, the one-bit picture, taps and
// buttons.
[[nodiscard]] std::vector<LifeStep> WholeLife(HWND parent);

// A short one with the settings dialog, which is opened and ended with OK.
[[nodiscard]] std::vector<LifeStep> LifeWithSettings(HWND parent);

}  // namespace tavix::test
