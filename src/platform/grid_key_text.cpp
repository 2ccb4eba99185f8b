#include "platform/grid_key_text.h"

namespace platform::grid_keys {
namespace {

constexpr std::string_view kShiftedDigits = ")!@#$%^&*(";

struct PunctuationKey {
    int code;
    char plain, shifted;
};
constexpr PunctuationKey kPunctuation[] = {
    {keys::Semicolon, ';', ':'},    {keys::Equals, '=', '+'},      {keys::Comma, ',', '<'},
    {keys::Minus, '-', '_'},        {keys::Period, '.', '>'},      {keys::Slash, '/', '?'},
    {keys::Backquote, '`', '~'},    {keys::OpenBracket, '[', '{'}, {keys::Backslash, '\\', '|'},
    {keys::CloseBracket, ']', '}'}, {keys::Quote, '\'', '"'},
};

// The number pad's operator keys.
struct PadKey {
    int code;
    char character;
};
constexpr PadKey kPad[] = {{keys::PadMultiply, '*'},
                           {keys::PadPlus, '+'},
                           {keys::PadMinus, '-'},
                           {keys::PadDecimal, '.'},
                           {keys::PadSlash, '/'}};

bool IsContinuationByte(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

}  // namespace

std::optional<std::string> KeyCharacter(int keyCode, int shift) {
    if (shift & (keys::CtrlMask | keys::AltMask)) return std::nullopt;
    const bool shifted = shift & keys::ShiftMask;
    if (keyCode == keys::Space) return std::string(1, ' ');
    if (keyCode >= 'A' && keyCode <= 'Z')
        return std::string(1, static_cast<char>(shifted ? keyCode : keyCode - 'A' + 'a'));
    if (keyCode >= '0' && keyCode <= '9')
        return std::string(
            1, shifted ? kShiftedDigits[static_cast<std::size_t>(keyCode - '0')] : static_cast<char>(keyCode));
    if (keyCode >= keys::PadDigit0 && keyCode <= keys::PadDigit9)
        return std::string(1, static_cast<char>('0' + keyCode - keys::PadDigit0));
    for (const auto& key : kPad)
        if (key.code == keyCode) return std::string(1, key.character);
    for (const auto& key : kPunctuation)
        if (key.code == keyCode) return std::string(1, shifted ? key.shifted : key.plain);
    return std::nullopt;
}

int KeyCodeOf(std::string_view character) {
    if (character.empty()) return 0;
    const unsigned char c = static_cast<unsigned char>(character.front());
    if (c >= 0x80) return keys::Composed;
    if (c >= 'a' && c <= 'z') return c - 'a' + 'A';
    if ((c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9')) return c;
    if (c == ' ') return keys::Space;
    // The operators a clerk types into a quantity come from the number pad.
    for (const auto& key : kPad)
        if (key.character == static_cast<char>(c) && key.code != keys::PadMinus && key.code != keys::PadDecimal)
            return key.code;
    for (const auto& key : kPunctuation)
        if (key.plain == static_cast<char>(c) || key.shifted == static_cast<char>(c)) return key.code;
    const auto digit = kShiftedDigits.find(static_cast<char>(c));
    if (digit != std::string_view::npos) return '0' + static_cast<int>(digit);
    return c;  // tab and the other control characters are their own codes
}

std::vector<std::string> Characters(std::string_view text) {
    std::vector<std::string> characters;
    for (std::size_t i = 0; i < text.size();) {
        std::size_t end = i + 1;
        while (end < text.size() && IsContinuationByte(text[end])) ++end;
        characters.emplace_back(text.substr(i, end - i));
        i = end;
    }
    return characters;
}

void RemoveLastCharacter(std::string& text) {
    while (!text.empty() && IsContinuationByte(text.back())) text.pop_back();
    if (!text.empty()) text.pop_back();
}

}  // namespace platform::grid_keys
