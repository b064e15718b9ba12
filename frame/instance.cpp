#include "frame/instance.h"

#include <new>

#include "frame/instance_parts.h"
#include "window/output.h"
#include "window/overlays/moved_point.h"
#include "window/plot_display.h"
#include "window/plot_window.h"

namespace tavix {
namespace {

constexpr std::int16_t kNoLegend = -1;

}  // namespace

Instance::Instance(int index)
    : parts_(std::make_unique<Parts>(index)), point_legend_(kNoLegend), line_legend_(kNoLegend) {
  parts_->memos.Open();
  parts_->lines.Open();
  parts_->figures.Open();
}

Instance::~Instance() {
  // Each step is taken, whether or not there was memory for the one before.
  const auto take = [](auto step) {
    try {
      step();
    } catch (const std::bad_alloc&) {
      // The step is left half done: an instance ends all the same.
    }
  };
  take([&] {
    if (window_) window_->DestroyWindow();
  });
  window_.reset();
  take([&] { parts_->memos.Discard(); });
  take([&] { parts_->lines.Discard(); });
  take([&] { parts_->figures.Close(); });
  take([&] { parts_->legend.Save(); });
}

CViewState& Instance::View() { return parts_->view; }
LegendTable& Instance::Legend() { return parts_->legend.Table(); }

CFigList& Instance::Figures() {
  if (window_) window_->Display().LeaveOutNewFigures();
  return parts_->figures;
}

int Instance::Clear() {
  if (const int code = parts_->points.Clear(); code != 0) return code;
  if (const int code = parts_->points3.Clear(); code != 0) return code;
  if (const int code = parts_->memos.Clear(); code != 0) return code;
  if (const int code = parts_->lines.Clear(); code != 0) return code;
  return parts_->figures.Clear();
}

int Instance::LinkWindow(unsigned notify_id, const std::function<bool(CPlotWnd&)>& create) {
  if (window_) window_->DestroyWindow();
  const PlotLinks links{parts_->view,  parts_->points,  parts_->points3,
                        parts_->lines, parts_->figures, parts_->legend.Table()};
  window_ = std::make_unique<CPlotWnd>(notify_id, links);
  const bool created = create(*window_);
  // Compatibility: the button flag is applied to a window that could not be made, too.
  window_->ApplyButtonFlag(show_buttons_);
  return created ? 0 : -1;
}

void Instance::ShowButtons(bool show) {
  show_buttons_ = show;
  if (window_) window_->ApplyButtonFlag(show);
}

void Instance::ShowSideView(bool show) {
  if (window_) window_->Display().ShowSideView(show);
  parts_->view.SetAngle(0);
}

int Instance::StartMovePoint(int legend) {
  const auto number = static_cast<std::int16_t>(legend);
  const HanRec* entry = Legend().Find(number);
  if (!window_ || number != legend || !entry) return -1;
  if (!entry->is_point) return -2;
  window_->Moved().Start(Decode<PointSymbol>(entry->values));
  return 0;
}

int Instance::Redraw(bool keep_view) {
  if (!window_) return -1;
  PlotDisplay& display = window_->Display();
  // With nothing to fit the view stays, and without memory to find out.
  if (!keep_view) DrawWhatCanBe([&] { display.Shown().Fit(); });
  return display.ViewChanged();
}

void Instance::FinishRedraw() {
  if (window_) window_->Display().FinishRedraw();
}

void Instance::FinishRedrawUnlessAnotherFollows() {
  if (!auto_redraw_) FinishRedraw();
}

int Instance::RedrawAfterChange(int code) {
  return code == 0 && auto_redraw_ ? Redraw(true) : code;
}

}  // namespace tavix
