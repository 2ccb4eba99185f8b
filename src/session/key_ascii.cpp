#include "session/key_ascii.h"

#include <string_view>

namespace session {
namespace {

constexpr std::string_view kDigitsShifted = ")!@#$%^&*(";

// The punctuation keys: codes 186 to 192 and 219 to 222.
struct PunctuationKey {
    int code;
    char plain, shifted;
};
constexpr PunctuationKey kPunctuation[] = {
    {186, ';', ':'}, {187, '=', '+'}, {188, ',', '<'}, {189, '-', '_'}, {190, '.', '>'},
    {191, '/', '?'}, {192, '`', '~'}, {219, '[', '{'}, {220, '\\', '|'}, {221, ']', '}'},
    {222, '\'', '"'},
};

}  // namespace

std::optional<int> KeyAscii(int keyCode, int shift) {
    bool shifted = shift & ShiftBit;
    if (shift & AltBit) return std::nullopt;
    switch (keyCode) {
        case 8: case 13: case 27: return keyCode;
        case 32: return ' ';
        default: break;
    }
    if (keyCode >= 'A' && keyCode <= 'Z') {
        if (shift & CtrlBit) return keyCode - 'A' + 1;  // Ctrl+A is 1
        return shifted ? keyCode : keyCode - 'A' + 'a';
    }
    if (shift & CtrlBit) return std::nullopt;
    if (keyCode >= '0' && keyCode <= '9')
        return shifted ? kDigitsShifted[static_cast<std::size_t>(keyCode - '0')] : keyCode;
    if (keyCode >= 96 && keyCode <= 105) return '0' + (keyCode - 96);  // the number pad
    switch (keyCode) {
        case 106: return '*';
        case 107: return '+';
        case 109: return '-';
        case 110: return '.';
        case 111: return '/';
        default: break;
    }
    for (const auto& key : kPunctuation)
        if (key.code == keyCode) return shifted ? key.shifted : key.plain;
    return std::nullopt;
}

}  // namespace session
