#include "window/buttons/button_commands.h"

#include "window/buttons/button_column.h"
#include "window/modes/plot_modes.h"
#include "window/navigation.h"
#include "window/output.h"
#include "window/plot_display.h"
#include "window/settings/settings_command.h"

namespace tavix {

bool ButtonCommands::Run(UINT command) {
  switch (command) {
#define TAVIX_BUTTON_COMMAND(id, name, pressed_in) \
  case id:                                         \
    On##name();                                    \
    return true;
    TAVIX_BUTTONS(TAVIX_BUTTON_COMMAND)
#undef TAVIX_BUTTON_COMMAND
    default:
      // Compatibility: the ids between the buttons are taken and do nothing.
      return kScrollUpButton < command && command < kScrollDownButton;
  }
}

void ButtonCommands::OnScrollUp() {
  if (!buttons_.ScrollUp()) BeepOnRefusal();
}

void ButtonCommands::OnScrollDown() {
  if (!buttons_.ScrollDown()) BeepOnRefusal();
}

void ButtonCommands::OnBandZoom() { modes_.ToggleZoomWindow(); }

void ButtonCommands::OnPan() { modes_.TogglePan(); }

void ButtonCommands::OnZoomIn() { navigation_.ZoomIn(); }

void ButtonCommands::OnZoomOut() { navigation_.ZoomOut(); }

void ButtonCommands::OnWholeView() { navigation_.ZoomExtents(); }

void ButtonCommands::OnRefresh() { display_.ViewChanged(); }

void ButtonCommands::OnSettings() { settings_.Run(); }

void ButtonCommands::OnRotate() { navigation_.Rotate(1); }

void ButtonCommands::OnRotateBack() { navigation_.Rotate(-1); }

}  // namespace tavix
