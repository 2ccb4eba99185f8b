#include "session/key_press.h"

#include "session/key_ascii.h"

namespace session {
namespace {

// False when the form's preview swallowed the key.
bool Preview(screen::ScreenForm& form, int& keyCode, int shift) {
    if (!form.KeyPreview()) return true;
    form.Form_KeyDown(keyCode, shift);
    return keyCode != 0;
}

}  // namespace

void PressKey(screen::ScreenForm& form, platform::Control& control, int keyCode, int shift) {
    int code = keyCode;
    if (!Preview(form, code, shift)) return;
    control.KeyDown.Raise(code, shift);
    if (code == 0) return;
    if (auto ascii = KeyAscii(code, shift)) {
        int keyAscii = *ascii;
        control.KeyPress.Raise(keyAscii);
        if (keyAscii == 0) return;
    }
    control.KeyUp.Raise(code, shift);
}

void PressGridKey(screen::ScreenForm& form, platform::DTFlex& grid, int keyCode, int shift) {
    int code = keyCode;
    if (!Preview(form, code, shift)) return;
    grid.UserKey(code, shift);
}

}  // namespace session
