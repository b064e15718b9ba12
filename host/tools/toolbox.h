// The tools of the plan. At most one is in use; commands and taps go to it.
#pragma once

#include <afxwin.h>

#include <array>

#include "host/plot/plot_pane.h"
#include "host/survey/survey_document.h"
#include "host/tools/circle_tool.h"
#include "host/tools/move_point_tool.h"
#include "host/tools/sheet_frame.h"
#include "host/tools/trace_tool.h"

namespace fieldhost {

// Capturing coordinates: each tap shows its position.
class CaptureTool : public PlanTool {
 public:
  Progress Begin() override;
  Progress PositionTapped(const GroundPosition& position) override;
};

class Toolbox {
 public:
  // Both must outlive the toolbox.
  Toolbox(SurveyDocument& document, PlotPane& plot);

  // Carries out a command; reports of the plot window come with the key of a point. False for a
  // command of no tool, and for a tapped point that no tool waits for.
  bool Handle(UINT command, int key, CWnd& dialog_parent);

  // What the user is to read after a command; empty when there is nothing to say.
  [[nodiscard]] const CString& Text() const { return text_; }
  [[nodiscard]] bool IsToolInUse() const { return tool_ != nullptr; }

  // The sheet, for when there is nothing else to show; empty without a sheet.
  [[nodiscard]] CString SheetText() const { return sheet_.Text(); }

  // Shows in a menu what is in use and what can be done now.
  void UpdateMenu(CMenu& menu) const;

  // Ends the tool in use and takes off what it shows. Before the document is emptied.
  void Stop();

  // Around a change of the plot window's size, and around a new one.
  void KeepForNewPlot() { sheet_.Keep(); }
  void RestoreOnNewPlot();

 private:
  struct ToolCommand {
    UINT command;
    PlanTool* tool;
  };

  void Choose(PlanTool& tool);
  void Proceed(Progress progress);
  void UpdateCapture();
  bool HandleTap(UINT command, int key);
  bool HandleStep(UINT command);
  bool HandleFigure(UINT command);
  bool HandleSheet(UINT command, CWnd& dialog_parent);

  SurveyDocument& document_;
  PlotPane& plot_;
  SheetFrame sheet_;
  CaptureTool capture_;
  CircleTool circle_;
  TraceTool trace_;
  MovePointTool move_point_;
  MoveSheetTool move_sheet_;
  std::array<ToolCommand, 5> tools_;
  PlanTool* tool_ = nullptr;  // in use
  CString text_;
};

}  // namespace fieldhost
