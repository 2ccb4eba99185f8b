// Which keys give a character (the KeyPress event) and which character, as the
// runtime raised it on a US keyboard: Enter, Escape, Backspace and the printable keys.
#pragma once

#include <optional>

namespace session {

// The KeyAscii of a key code with the shift state; nothing for keys that raise no
// KeyPress (function keys, arrows, Alt combinations).
std::optional<int> KeyAscii(int keyCode, int shift);

}  // namespace session
