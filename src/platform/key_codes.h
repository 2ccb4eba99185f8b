// The key codes and shift states that the key events carry, numbered as the
// runtime numbered them on a US keyboard: a letter key is its capital letter, a
// digit key its digit; the shift state is a mask of Shift, Ctrl and Alt.
#pragma once

namespace platform::keys {

inline constexpr int Backspace = 8, Tab = 9, Enter = 13, Escape = 27, Space = 32;
inline constexpr int End = 35, Home = 36, Left = 37, Up = 38, Right = 39, Down = 40;
inline constexpr int Delete = 46;
inline constexpr int C = 67, T = 84, V = 86;

// The number pad: its digits run from PadDigit0 to PadDigit9.
inline constexpr int PadDigit0 = 96, PadDigit9 = 105;
inline constexpr int PadMultiply = 106, PadPlus = 107, PadMinus = 109, PadDecimal = 110, PadSlash = 111;

inline constexpr int F1 = 112, F2 = 113, F3 = 114, F4 = 115, F5 = 116, F6 = 117, F7 = 118, F8 = 119, F9 = 120,
                     F10 = 121, F11 = 122, F12 = 123;

// The punctuation keys of the main keyboard, each named by its unshifted character.
inline constexpr int Semicolon = 186, Equals = 187, Comma = 188, Minus = 189, Period = 190, Slash = 191,
                     Backquote = 192, OpenBracket = 219, Backslash = 220, CloseBracket = 221, Quote = 222;

// What the keyboard reports for a character it composed itself (accented letters
// and the like): the key code that carries no key of its own.
inline constexpr int Composed = 229;

// Shift states. A handler tests a single modifier with &, or compares the whole
// state when only that exact combination counts.
inline constexpr int NoShift = 0, ShiftMask = 1, CtrlMask = 2, CtrlShiftMask = 3, AltMask = 4;

}  // namespace platform::keys
