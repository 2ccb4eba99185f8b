#include "session/key_ascii.h"

#include <gtest/gtest.h>

#include "platform/key_codes.h"

namespace session {
namespace {

namespace keys = platform::keys;

TEST(KeyAscii, EditingKeysGiveTheirOwnCode) {
    EXPECT_EQ(KeyAscii(13, 0), 13);
    EXPECT_EQ(KeyAscii(13, keys::ShiftMask), 13);
    EXPECT_EQ(KeyAscii(27, 0), 27);
    EXPECT_EQ(KeyAscii(8, 0), 8);
    EXPECT_EQ(KeyAscii(32, 0), ' ');
}

TEST(KeyAscii, LettersFollowShiftAndControl) {
    EXPECT_EQ(KeyAscii('A', 0), 'a');
    EXPECT_EQ(KeyAscii('A', keys::ShiftMask), 'A');
    EXPECT_EQ(KeyAscii('C', keys::CtrlMask), 3);
    EXPECT_EQ(KeyAscii('C', keys::CtrlMask | keys::ShiftMask), 3);
}

TEST(KeyAscii, DigitsPunctuationAndTheNumberPad) {
    EXPECT_EQ(KeyAscii('5', 0), '5');
    EXPECT_EQ(KeyAscii('5', keys::ShiftMask), '%');
    EXPECT_EQ(KeyAscii('0', keys::ShiftMask), ')');
    EXPECT_EQ(KeyAscii(96 + 7, 0), '7');
    EXPECT_EQ(KeyAscii(110, 0), '.');
    EXPECT_EQ(KeyAscii(190, 0), '.');
    EXPECT_EQ(KeyAscii(186, keys::ShiftMask), ':');
    EXPECT_EQ(KeyAscii(222, keys::ShiftMask), '"');
}

TEST(KeyAscii, KeysWithoutACharacterGiveNone) {
    EXPECT_FALSE(KeyAscii(114, 0));         // F3
    EXPECT_FALSE(KeyAscii(40, 0));          // down arrow
    EXPECT_FALSE(KeyAscii(46, 0));          // Delete
    EXPECT_FALSE(KeyAscii('A', keys::AltMask));
    EXPECT_FALSE(KeyAscii('5', keys::CtrlMask));
}

}  // namespace
}  // namespace session
