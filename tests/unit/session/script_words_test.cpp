#include "session/script_words.h"

#include <gtest/gtest.h>

#include "platform/convert.h"
#include "session/script_error.h"

namespace session {
namespace {

ScriptCommand Command(std::vector<std::string> words) { return {7, std::move(words), "test"}; }

TEST(ScriptWords, ControlNamesWithAndWithoutIndex) {
    auto plain = ControlWord(Command({"click", "txtCustomer"}), 1);
    EXPECT_EQ(plain.name, "txtCustomer");
    EXPECT_EQ(plain.index, -1);
    auto indexed = ControlWord(Command({"click", "cmdClose(1)"}), 1);
    EXPECT_EQ(indexed.name, "cmdClose");
    EXPECT_EQ(indexed.index, 1);
    EXPECT_EQ(indexed.FullName(), "cmdClose(1)");
}

TEST(ScriptWords, MalformedControlNamesAreScriptErrors) {
    for (std::string word : {"cmdClose(", "cmdClose(x)", "cmdClose(-1)", "(1)", "cmd-Close", "1txt", "", "Frame1(0)x"}) {
        try {
            ControlWord(Command({"click", word}), 1);
            ADD_FAILURE() << word << " accepted";
        } catch (const ScriptError& e) {
            EXPECT_EQ(e.Line(), 7);
        }
    }
}

TEST(ScriptWords, WholeNumbersOnly) {
    EXPECT_EQ(IntegerWord(Command({"key", "x", "13"}), 2, "the key code"), 13);
    EXPECT_EQ(IntegerWord(Command({"key", "x", "-1"}), 2, "the key code"), -1);
    EXPECT_EQ(IntegerWord(Command({"key", "x", "+2"}), 2, "the key code"), 2);
    for (std::string word : {"", "13a", "1.5", "+", " 3"})
        EXPECT_THROW(IntegerWord(Command({"key", "x", word}), 2, "the key code"), ScriptError) << word;
}

TEST(ScriptWords, DatesWithAndWithoutTime) {
    auto day = DateWord(Command({"date", "dtFromDate", "2026-11-01"}), 2);
    EXPECT_EQ(day, platform::DateSerial(2026, 11, 1));
    auto moment = DateWord(Command({"open", "2026-11-01T10:30:00"}), 1);
    EXPECT_EQ(moment, platform::DateTime(2026, 11, 1, 10, 30, 0));
    for (std::string word : {"2026-11", "01/11/2026", "2026-13-01", "2026-11-01T10:30", "today"})
        EXPECT_THROW(DateWord(Command({"date", "dtFromDate", word}), 2), ScriptError) << word;
}

TEST(ScriptWords, BooleansAreTrueOrFalse) {
    EXPECT_TRUE(BooleanWord(Command({"expect", "true"}), 1));
    EXPECT_FALSE(BooleanWord(Command({"expect", "false"}), 1));
    EXPECT_THROW(BooleanWord(Command({"expect", "True"}), 1), ScriptError);
}

TEST(ScriptWords, ArgumentCounts) {
    EXPECT_NO_THROW(RequireArguments(Command({"key", "a", "13"}), 2, 3, "usage"));
    EXPECT_THROW(RequireArguments(Command({"key", "a"}), 2, 3, "usage"), ScriptError);
    EXPECT_THROW(RequireArguments(Command({"key", "a", "1", "2", "3"}), 2, 3, "usage"), ScriptError);
}

}  // namespace
}  // namespace session
