// The settings command: opens the dialog over a plot window and carries out what was set.
#pragma once

#include <afxwin.h>

#include <vector>

namespace tavix {

class LegendTable;
class Navigation;
class PlotDisplay;
class SettingsDialog;

class SettingsCommand {
 public:
  // The dialog's owner is the parent of `window`.
  SettingsCommand(CWnd& window, PlotDisplay& display, Navigation& navigation, LegendTable& legend)
      : window_(window), display_(display), navigation_(navigation), legend_(legend) {}

  // Returns when the dialog has ended. A host can call from a timer while the dialog's loop runs:
  // if it ends the window then, this object is gone on return.
  void Run();

  // Ends the dialogs that are open, as if cancelled. To be called before the window ends.
  void Abandon();

 private:
  CWnd& window_;
  PlotDisplay& display_;
  Navigation& navigation_;
  LegendTable& legend_;
  std::vector<SettingsDialog*> open_;  // the innermost last; they stand on the stack
};

}  // namespace tavix
