// What the buttons of the column do.
#pragma once

#include <afxwin.h>

#include "window/buttons/button_table.h"

namespace tavix {

class ButtonColumn;
class Navigation;
class PlotDisplay;
class PlotModes;
class SettingsCommand;

class ButtonCommands {
 public:
  ButtonCommands(ButtonColumn& buttons, PlotModes& modes, PlotDisplay& display,
                 Navigation& navigation, SettingsCommand& settings)
      : buttons_(buttons),
        modes_(modes),
        display_(display),
        navigation_(navigation),
        settings_(settings) {}

  // Carries out the command with this id; false when it belongs to no button. After the settings
  // the window can be gone, with this object.
  bool Run(UINT command);

 private:
#define TAVIX_BUTTON_HANDLER(id, name, pressed_in) void On##name();
  TAVIX_BUTTONS(TAVIX_BUTTON_HANDLER)
#undef TAVIX_BUTTON_HANDLER

  ButtonColumn& buttons_;
  PlotModes& modes_;
  PlotDisplay& display_;
  Navigation& navigation_;
  SettingsCommand& settings_;
};

}  // namespace tavix
