// Between key codes and the characters they type, as a US keyboard gave them to
// the grid: which character a key puts in a cell, and which key code the grid's
// KeyCode event reports for a character typed.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace platform::grid_keys {

inline constexpr int Backspace = 8, Tab = 9, Enter = 13, Escape = 27, Space = 32;
inline constexpr int Left = 37, Up = 38, Right = 39, Down = 40, Delete = 46, F4 = 115;
// What the keyboard reports for a character it composed itself (accented letters
// and the like): the key code that carries no key of its own.
inline constexpr int Composed = 229;

// The character a key types with the shift state (1 Shift, 2 Ctrl, 4 Alt); nothing
// for keys that type none, and for any key with Ctrl or Alt.
std::optional<std::string> KeyCharacter(int keyCode, int shift);

// The key code of one typed character: letters as their capital, digits as
// themselves, '*' 106, '/' 111, '.' 190, '-' 189, the other punctuation as the key
// that carries it.
int KeyCodeOf(std::string_view character);

// The characters of a UTF-8 text, one string each.
std::vector<std::string> Characters(std::string_view text);

// Removes the last character of a UTF-8 text; nothing when it is empty.
void RemoveLastCharacter(std::string& text);

}  // namespace platform::grid_keys
