// A key pressed on the control that has focus, in the order the runtime raised its
// events: the form's preview first (when the form asks for it), then the control's
// KeyDown, KeyPress for a key that gives a character, KeyUp. A handler that swallows
// the key (sets it to 0) stops the rest.
#pragma once

#include "platform/controls.h"
#include "platform/grid.h"
#include "screen/screen_form.h"

namespace session {

void PressKey(screen::ScreenForm& form, platform::Control& control, int keyCode, int shift);
// In the grid, after the preview, the grid's own key handling (UserKey) takes it.
void PressGridKey(screen::ScreenForm& form, platform::DTFlex& grid, int keyCode, int shift);

}  // namespace session
