#include "session/key_ascii.h"

#include "platform/grid_key_text.h"
#include "platform/key_codes.h"

namespace session {

std::optional<int> KeyAscii(int keyCode, int shift) {
    if (shift & platform::keys::AltMask) return std::nullopt;
    switch (keyCode) {
        case platform::keys::Backspace:
        case platform::keys::Enter:
        case platform::keys::Escape: return keyCode;
        default: break;
    }
    // Ctrl with a letter types the control character of that letter (Ctrl+A is 1).
    if ((shift & platform::keys::CtrlMask) && keyCode >= 'A' && keyCode <= 'Z') return keyCode - 'A' + 1;
    // Otherwise the character the key types is the one the grid would type.
    const auto character = platform::grid_keys::KeyCharacter(keyCode, shift);
    if (!character || character->size() != 1) return std::nullopt;
    return static_cast<unsigned char>(character->front());
}

}  // namespace session
