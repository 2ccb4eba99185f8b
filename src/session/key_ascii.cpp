#include "session/key_ascii.h"

#include "platform/grid_key_text.h"

namespace session {

std::optional<int> KeyAscii(int keyCode, int shift) {
    if (shift & AltBit) return std::nullopt;
    switch (keyCode) {
        case 8: case 13: case 27: return keyCode;
        default: break;
    }
    // Ctrl with a letter types the control character of that letter (Ctrl+A is 1).
    if ((shift & CtrlBit) && keyCode >= 'A' && keyCode <= 'Z') return keyCode - 'A' + 1;
    // Otherwise the character the key types is the one the grid would type.
    const auto character = platform::grid_keys::KeyCharacter(keyCode, shift);
    if (!character || character->size() != 1) return std::nullopt;
    return static_cast<unsigned char>(character->front());
}

}  // namespace session
