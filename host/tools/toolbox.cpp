#include "host/tools/toolbox.h"

#include <optional>

#include "host/app/display_text.h"
#include "host/resources/fieldhost_ids.h"
#include "host/tools/sheet_dialog.h"

namespace fieldhost {

Progress CaptureTool::Begin() {
  Say(L"Tap a place to capture its coordinates.");
  return Progress::kGoesOn;
}

Progress CaptureTool::PositionTapped(const GroundPosition& position) {
  Say(L"Captured  " + PositionText(position));
  return Progress::kGoesOn;
}

Toolbox::Toolbox(SurveyDocument& document, PlotPane& plot)
    : document_(document),
      plot_(plot),
      circle_(document, plot.WorkMarkLegend()),
      trace_(document, plot.WorkMarkLegend()),
      move_point_(document, plot.WorkMarkLegend()),
      move_sheet_(sheet_),
      tools_({{{ID_SURVEY_CAPTURE, &capture_},
               {ID_TOOL_CIRCLE, &circle_},
               {ID_TOOL_TRACE, &trace_},
               {ID_TOOL_MOVE_POINT, &move_point_},
               {ID_TOOL_MOVE_SHEET, &move_sheet_}}}) {}

bool Toolbox::Handle(UINT command, int key, CWnd& dialog_parent) {
  for (const ToolCommand& row : tools_) {
    if (row.command != command) continue;
    Choose(*row.tool);
    return true;
  }
  return HandleTap(command, key) || HandleStep(command) || HandleFigure(command) ||
         HandleSheet(command, dialog_parent);
}

// Choosing the tool in use again puts it away.
void Toolbox::Choose(PlanTool& tool) {
  const bool again = tool_ == &tool;
  Stop();
  if (again) return;
  tool_ = &tool;
  Proceed(tool.Begin());
}

void Toolbox::Stop() {
  text_.Empty();
  if (!tool_) return;
  tool_->End();
  tool_ = nullptr;
  UpdateCapture();
}

void Toolbox::Proceed(Progress progress) {
  const CString said = tool_->Text();
  if (progress == Progress::kDone) {
    Stop();
  } else {
    UpdateCapture();
  }
  text_ = said;
}

void Toolbox::UpdateCapture() {
  const bool positions = tool_ && tool_->Wants() == PlanTool::Taps::kPositions;
  // Starting capture again would forget a position that is already reported.
  if (positions != plot_.CapturesCoordinates()) {
    plot_.CaptureCoordinates(positions, ID_PLOT_CAPTURE);
  }
}

bool Toolbox::HandleTap(UINT command, int key) {
  if (command == ID_PLOT_CAPTURE) {
    const std::optional<GroundPosition> position = PlotPane::CapturedCoordinate();
    if (tool_ && position) Proceed(tool_->PositionTapped(*position));
    return true;
  }
  if (command != ID_PLOT_NOTIFY || !tool_ || tool_->Wants() != PlanTool::Taps::kPoints)
    return false;
  Proceed(tool_->PointPicked(key));
  return true;
}

bool Toolbox::HandleStep(UINT command) {
  switch (command) {
    case ID_TOOL_UNDO:
      if (tool_) {
        tool_->Undo();
        Proceed(Progress::kGoesOn);
      }
      return true;
    case ID_TOOL_FINISH:
      if (tool_) Proceed(tool_->Finish(Ending::kAsItStands));
      return true;
    case ID_TOOL_FINISH_CLOSED:
      if (tool_) Proceed(tool_->Finish(Ending::kClosed));
      return true;
    case ID_TOOL_CANCEL:
      Stop();
      return true;
    default:
      return false;
  }
}

bool Toolbox::HandleFigure(UINT command) {
  switch (command) {
    case ID_FIGURE_DELETE_CIRCLE:
      text_ = document_.DeleteLastCircle() ? L"The last circle is deleted."
                                           : L"There is no circle to delete.";
      return true;
    case ID_FIGURE_DELETE_BOUNDARY:
      text_ = document_.DeleteLastBoundary() ? L"The last boundary is deleted."
                                             : L"There is no boundary to delete.";
      return true;
    default:
      return false;
  }
}

bool Toolbox::HandleSheet(UINT command, CWnd& dialog_parent) {
  switch (command) {
    case ID_SHEET_SETUP: {
      Stop();
      const auto chosen = AskForSheet(dialog_parent, sheet_.Now().value_or(UsualSheet()));
      if (chosen) sheet_.Show(*chosen);
      return true;
    }
    case ID_SHEET_REMOVE:
      Stop();
      sheet_.Remove();
      return true;
    default:
      return false;
  }
}

void Toolbox::UpdateMenu(CMenu& menu) const {
  for (const ToolCommand& row : tools_) {
    menu.CheckMenuItem(row.command, row.tool == tool_ ? MF_CHECKED : MF_UNCHECKED);
  }
  const auto enable = [&](UINT command, bool can) {
    menu.EnableMenuItem(command, can ? MF_ENABLED : MF_GRAYED);
  };
  for (const UINT step : {ID_TOOL_UNDO, ID_TOOL_FINISH, ID_TOOL_FINISH_CLOSED, ID_TOOL_CANCEL}) {
    enable(step, tool_ != nullptr);
  }
  enable(ID_FIGURE_DELETE_CIRCLE, document_.HasCircles());
  enable(ID_FIGURE_DELETE_BOUNDARY, document_.HasBoundaries());
  enable(ID_TOOL_MOVE_SHEET, sheet_.Now().has_value());
  enable(ID_SHEET_REMOVE, sheet_.Now().has_value());
}

void Toolbox::RestoreOnNewPlot() {
  sheet_.LayOut();
  if (tool_) tool_->Restore();
}

}  // namespace fieldhost
