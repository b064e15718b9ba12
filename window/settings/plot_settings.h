// What users set of a plot window in the settings dialog, besides the legend.
#pragma once

namespace tavix {

// The vertical : horizontal ratio that the host or the user has given.
struct RatioSetting {
  bool given = false;
  int vertical = 1;
  int horizontal = 1;
};

// What the dialog edits. Written on OK only.
struct PlotSettings {
  bool draws_lines = true;
  int rotation_step = 10;  // whole degrees, 1..180 when it comes from the dialog
  RatioSetting ratio;      // edited only when it has been given
};

}  // namespace tavix
