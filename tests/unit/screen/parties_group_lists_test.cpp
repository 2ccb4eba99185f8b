// The two comparisons of comma lists the party fields lean on: the sort of a list
// of serials or group IDs, and whether the groups of one list stand in another.
#include <gtest/gtest.h>

#include <ostream>

#include "screen/zuro_frm_dispatch_dispatch.h"

namespace {

using Form = screen::Zuro_frmDispatch_Dispatch;

TEST(GetSerialInAscOrder, SortsNumericallyAndWritesNumbers) {
    EXPECT_EQ(Form::GetSerialInAscOrder("3,1,2,"), "1,2,3");
    // Numbers, not texts: 9 before 10 before 100.
    EXPECT_EQ(Form::GetSerialInAscOrder("100,9,10"), "9,10,100");
    EXPECT_EQ(Form::GetSerialInAscOrder("007,3"), "3,7");
    EXPECT_EQ(Form::GetSerialInAscOrder("2,1,2,1"), "1,1,2,2");
    // The list LoadCategoryGroup gathers has a blank after each comma.
    EXPECT_EQ(Form::GetSerialInAscOrder("4, 1, 3"), "1,3,4");
}

TEST(GetSerialInAscOrder, EdgesOfTheList) {
    EXPECT_EQ(Form::GetSerialInAscOrder(""), "");
    EXPECT_EQ(Form::GetSerialInAscOrder("5"), "5");
    EXPECT_EQ(Form::GetSerialInAscOrder("5,"), "5");
    // The largest at the very end and the smallest at the very start must both move.
    EXPECT_EQ(Form::GetSerialInAscOrder("9,5,4,3,1"), "1,3,4,5,9");
    // An empty element reads 0; only one trailing comma is cut.
    EXPECT_EQ(Form::GetSerialInAscOrder(",5"), "0,5");
    EXPECT_EQ(Form::GetSerialInAscOrder("3,1,,"), "0,1,3");
}

struct GrpExistsCase {
    const char* szOld;
    const char* szNew;
    bool bAll;
    bool bAny;
};

// Test names carry the lists, not the addresses of their texts.
void PrintTo(const GrpExistsCase& c, std::ostream* out) {
    *out << "old \"" << c.szOld << "\" new \"" << c.szNew << "\"";
}

class GrpExistsTest : public ::testing::TestWithParam<GrpExistsCase> {};

TEST_P(GrpExistsTest, ComparesEveryOldGroupWithEveryNewOne) {
    const auto& c = GetParam();
    bool bAll = false, bAny = true;
    Form::GrpExists(c.szOld, c.szNew, bAll, bAny);
    EXPECT_EQ(bAll, c.bAll) << c.szOld << " in " << c.szNew;
    EXPECT_EQ(bAny, c.bAny) << c.szOld << " in " << c.szNew;
}

INSTANTIATE_TEST_SUITE_P(Lists, GrpExistsTest,
                         ::testing::Values(GrpExistsCase{"1,2", "2,1", true, true},  // the same groups in another order
                                           GrpExistsCase{"1,2", "2", false, true},   // one kept, one lost
                                           GrpExistsCase{"1,2,3", "1,2", false, true},  // the last old one lost
                                           GrpExistsCase{"3", "1,2,3", true, true},     // found at the last new place
                                           GrpExistsCase{"1", "2,3", false, false},
                                           GrpExistsCase{"12", "1,2", false, false},  // whole entries, not digits
                                           GrpExistsCase{"", "1", true, false},       // nothing before: nothing lost
                                           GrpExistsCase{"4", "", false, false}));

}  // namespace
