#include "screen/routine_binder.h"

#include <algorithm>
#include <tuple>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "platform/convert.h"
#include "platform/runtime_error.h"

namespace screen {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Pair;

// An object with one routine of each shape a form has.
struct Probe {
    int runs = 0;
    long Whole(long n) { return ++runs, n; }
    std::int16_t Short(std::int16_t n) { return ++runs, n; }
    int Plain(int n) { return ++runs, n; }
    double Real(double d) { return ++runs, d; }
    bool Flag(bool b) { return ++runs, b; }
    platform::Date Day(platform::Date d) { return ++runs, d; }
    platform::Value Nothing() { return ++runs, platform::Value(); }
    void Split(const std::string& text, std::string& szFirst, long& nCount, bool& bAny) {
        ++runs;
        szFirst = text.substr(0, text.find(','));
        nCount = static_cast<long>(std::count(text.begin(), text.end(), ',')) + 1;
        bAny = !text.empty();
    }
    void Key(int& KeyCode, int Shift) { ++runs, KeyCode = KeyCode * 2 + Shift; }
    void Credit(const std::string& szName, bool bWithBills) { ++runs, lastName = szName, lastFlag = bWithBills; }
    void Fails() {
        ++runs;
        throw platform::RuntimeError(450, "Wrong number of arguments or invalid property assignment");
    }
    static std::string Quote(const std::string& s) { return "\"" + s + "\""; }
    std::string lastName;
    bool lastFlag = true;
};

class RoutineBinderTest : public ::testing::Test {
protected:
    RoutineBinderTest() {
        RoutineBinder routines(table, probe);
        routines.Bind("Whole", &Probe::Whole, {"nValue"});
        routines.Bind("Short", &Probe::Short, {"iValue"});
        routines.Bind("Plain", &Probe::Plain, {"nValue"});
        routines.Bind("Real", &Probe::Real, {"dValue"});
        routines.Bind("Flag", &Probe::Flag, {"bValue"});
        routines.Bind("Day", &Probe::Day, {"dtDay"});
        routines.Bind("Nothing", &Probe::Nothing, {});
        routines.Bind("Split", &Probe::Split, {"szText", "szFirst", "nCount", "bAny"});
        routines.Bind("Key", &Probe::Key, {InOut("KeyCode"), "Shift"});
        routines.Bind("Credit", &Probe::Credit, {"szName", Optional("bWithBills", "False")});
        routines.Bind("Fails", &Probe::Fails, {});
        routines.Bind("Quote", &Probe::Quote, {"szText"});
        routines.Bind("Sum", [](double a, long b) { return a + static_cast<double>(b); }, {"dA", "nB"});
    }

    RoutineCall Call(const std::string& name, std::vector<std::string> words) {
        RoutineCall call;
        call.arguments = std::move(words);
        const auto* routine = table.Find(name);
        if (routine == nullptr) throw std::logic_error("no routine " + name);
        (*routine)(call);
        return call;
    }
    // The result as a cell takes it, or the refusal's reason.
    std::string Outcome(const std::string& name, std::vector<std::string> words) {
        try {
            RoutineCall call = Call(name, std::move(words));
            return call.result ? platform::ToText(*call.result) : "(no result)";
        } catch (const RoutineRefused& e) {
            return std::string("refused: ") + e.what();
        }
    }

    RoutineTable table;
    Probe probe;
};

TEST_F(RoutineBinderTest, WordsAreReadAsTheParameterTypesAndTheResultIsWrittenAsACellTakesIt) {
    for (const auto& [routine, typed, outcome] : std::vector<std::tuple<std::string, std::string, std::string>>{
             // whole numbers round half to even, as the runtime does, and must fit their type
             {"Whole", "2.5", "2"},
             {"Whole", "2147483647", "2147483647"},
             {"Whole", "2147483647.5", "refused: argument 1 (nValue) does not fit: \"2147483647.5\" (Overflow)"},
             {"Plain", "-2147483649", "refused: argument 1 (nValue) does not fit: \"-2147483649\" (Overflow)"},
             {"Short", "32767", "32767"},
             {"Short", "32767.5", "refused: argument 1 (iValue) does not fit: \"32767.5\" (Overflow)"},
             // a word where a number belongs
             {"Whole", "abc", "refused: argument 1 (nValue) must be a number, was \"abc\""},
             {"Whole", "", "refused: argument 1 (nValue) must be a number, was \"\""},
             {"Real", "0.25", "0.25"},
             {"Real", "1.5.2", "refused: argument 1 (dValue) must be a number, was \"1.5.2\""},
             {"Flag", "True", "True"},
             {"Flag", "0", "False"},
             {"Flag", "yes", "refused: argument 1 (bValue) must be True, False or a number, was \"yes\""},
             {"Day", "2026-11-22", "22/11/2026"},
             {"Day", "tomorrow", "refused: argument 1 (dtDay) must be a date (YYYY-MM-DD), was \"tomorrow\""},
             {"Quote", "a b", "\"a b\""},
         })
        EXPECT_EQ(Outcome(routine, {typed}), outcome) << routine << " " << typed;
    EXPECT_EQ(Outcome("Nothing", {}), "");
    EXPECT_EQ(Outcome("Sum", {"1.5", "2"}), "3.5");
}

TEST_F(RoutineBinderTest, WrongCountOrKindIsRefusedBeforeTheRoutineRuns) {
    using Case = std::tuple<std::string, std::vector<std::string>, std::string>;
    for (const auto& [routine, words, reason] : std::vector<Case>{
             {"Whole", {}, "takes 1 argument (nValue), was given 0"},
             {"Whole", {"1", "2"}, "takes 1 argument (nValue), was given 2"},
             {"Nothing", {"1"}, "takes no arguments, was given 1"},
             {"Split", {"a", "b"}, "takes 1 argument (szText), was given 2"},
             {"Key", {"13"}, "takes 2 arguments (KeyCode, Shift), was given 1"},
             {"Credit", {}, "takes 1 to 2 arguments (szName, bWithBills), was given 0"},
             {"Credit", {"C", "True", "x"}, "takes 1 to 2 arguments (szName, bWithBills), was given 3"},
             // the last word is wrong: the first was good, still nothing runs
             {"Sum", {"1", "two"}, "argument 2 (nB) must be a number, was \"two\""},
             {"Key", {"13", "shift"}, "argument 2 (Shift) must be a number, was \"shift\""},
         }) {
        EXPECT_EQ(Outcome(routine, words), "refused: " + reason) << routine;
    }
    EXPECT_EQ(probe.runs, 0);
}

TEST_F(RoutineBinderTest, ByReferenceParametersAreOutsInOrderUnderTheirNames) {
    RoutineCall call = Call("Split", {"x,y,z"});
    EXPECT_FALSE(call.result);
    std::vector<std::pair<std::string, std::string>> outs;
    for (const auto& [name, value] : call.outs) outs.emplace_back(name, platform::ToText(value));
    EXPECT_THAT(outs, ElementsAre(Pair("szFirst", "x"), Pair("nCount", "3"), Pair("bAny", "True")));

    // An in-out parameter takes its word and is reported with what the routine left in it.
    call = Call("Key", {"13", "1"});
    ASSERT_EQ(call.outs.size(), 1u);
    EXPECT_EQ(std::tuple(call.outs[0].first, platform::ToText(call.outs[0].second)), std::tuple("KeyCode", "27"));
}

TEST_F(RoutineBinderTest, AnOptionalParameterLeftOutTakesItsWord) {
    Call("Credit", {"Shah Traders"});
    EXPECT_EQ(std::tuple(probe.lastName, probe.lastFlag), std::tuple("Shah Traders", false));
    Call("Credit", {"Shah Traders", "true"});
    EXPECT_TRUE(probe.lastFlag);
}

TEST_F(RoutineBinderTest, ARunTimeErrorInsideTheRoutineIsNotARefusal) {
    try {
        Call("Fails", {});
        FAIL() << "the routine's error was lost";
    } catch (const platform::RuntimeError& e) {  // a refusal is not one, and fails the test uncaught
        EXPECT_EQ(e.Number(), 450);
    }
    EXPECT_EQ(probe.runs, 1);
}

TEST_F(RoutineBinderTest, NamesThatDoNotMatchTheSignatureAreTheWiringsMistake) {
    RoutineBinder routines(table, probe);
    EXPECT_THROW(routines.Bind("Split", &Probe::Split, {"szText", "szFirst"}), std::logic_error);
    EXPECT_THROW(routines.Bind("Whole", &Probe::Whole, {InOut("nValue")}), std::logic_error);
    EXPECT_THROW(routines.Bind("Key", &Probe::Key, {Optional("KeyCode", "0"), "Shift"}), std::logic_error);
    EXPECT_THROW(routines.Bind("Sum", [](double, long) { return 0.0; }, {Optional("dA", "0"), "nB"}), std::logic_error);
}

}  // namespace
}  // namespace screen
