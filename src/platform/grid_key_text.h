// Between key codes and the characters they type, as a US keyboard gave them to
// the grid: which character a key puts in a cell, and which key code the grid's
// KeyCode event reports for a character typed.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/key_codes.h"

namespace platform::grid_keys {

// The character a key types with the shift state; nothing for keys that type none,
// and for any key with Ctrl or Alt.
std::optional<std::string> KeyCharacter(int keyCode, int shift);

// The key code of one typed character: letters as their capital, digits as
// themselves, '*' and '/' as the number pad's keys, the other punctuation ('.' and
// '-' among it) as the main keyboard's key that carries it.
int KeyCodeOf(std::string_view character);

// The characters of a UTF-8 text, one string each.
std::vector<std::string> Characters(std::string_view text);

// Removes the last character of a UTF-8 text; nothing when it is empty.
void RemoveLastCharacter(std::string& text);

}  // namespace platform::grid_keys
