// A cancelled or amended note on the server: the openings after its day take back its
// stock, and a note is closed once only, whoever tries it a second time.
#include <gtest/gtest.h>

#include "server_test_support.h"

namespace server {
namespace {

class CancelProcedures : public testkit::DemoDatabase {
protected:
    static platform::Date DaysAgo(int days) { return platform::Date{Today().serial - days}; }
    void Close(int dispatchID) {
        db().Execute("UPDATE DispatchAbstract SET Status = Status | 192 WHERE DispatchID = " +
                     std::to_string(dispatchID));
    }
    void Adjust(int dispatchID, platform::Value day) {
        db().CallProcedure("sp_adjust_opening_for_cancel_dispatch",
                           {{dispatchID, platform::adtype::Integer}, {day, platform::adtype::Date}});
    }
    // The item's openings, oldest first: quantity, free stock, value.
    std::string Openings(const char* item) {
        return Text(std::string("SELECT Opening_Quantity, Free_Saleable_Quantity, Opening_Value FROM OpeningDetails "
                                "WHERE Product_Code = '") +
                    item + "' ORDER BY Opening_Date");
    }
};

TEST_F(CancelProcedures, TheOpeningsAfterTheNotesDayTakeBackWhatItsBatchesGave) {
    // Note 6, eighteen days back: 120 biscuits from batch 5, and 10 tubes of free
    // stock (batch 21); both openings, a week back and today's, lie after it.
    Close(6);
    Adjust(6, DaysAgo(18));
    EXPECT_EQ(Openings("FD002"), "984r|120r|8985.6r;984r|120r|8985.6r");
    EXPECT_EQ(Openings("PC002"), "2510r|510r|3000r;2510r|510r|3000r");

    // Note 7, yesterday's: only today's opening lies after it.
    Close(7);
    Adjust(7, DaysAgo(1));
    EXPECT_EQ(Openings("FD003"), "500r|0r|7750r;512r|0r|7936r");
    EXPECT_EQ(Openings("FD004"), "360r|0r|42480r;372r|0r|43896r");
}

TEST_F(CancelProcedures, ALineThatTookNoStockGivesNothingBack) {
    // Note 2's oil keeps no stock (Batch_Code 0); its toothpaste and brushes do.
    const std::string before = Text("SELECT * FROM OpeningDetails WHERE Product_Code = 'PM001'");
    Close(2);
    Adjust(2, DaysAgo(10));
    EXPECT_EQ(Text("SELECT * FROM OpeningDetails WHERE Product_Code = 'PM001'"), before);
    EXPECT_EQ(Openings("PC001"), "1752r|0r|31536r;1752r|0r|31536r");
}

TEST_F(CancelProcedures, OnlyAClosedNoteOfAKnownDayIsAdjusted) {
    const std::string before = Text("SELECT * FROM OpeningDetails ORDER BY Product_Code, Opening_Date");
    EXPECT_NE(testkit::Refusal([&] { Adjust(2, DaysAgo(10)); }).find("open"), std::string::npos);
    EXPECT_NE(testkit::Refusal([&] { Adjust(999, DaysAgo(10)); }), "(no error)");
    Close(2);
    EXPECT_NE(testkit::Refusal([&] { Adjust(2, platform::Value::Null()); }).find("date"), std::string::npos);
    EXPECT_EQ(Text("SELECT * FROM OpeningDetails ORDER BY Product_Code, Opening_Date"), before);
}

TEST_F(CancelProcedures, ANoteIsClosedOnceWhoeverTriesASecondTime) {
    // Closed (invoiced), cancelled and amended notes refuse another close.
    for (int closed : {1, 3, 4})
        EXPECT_NE(testkit::Refusal([&] { Close(closed); }).find("closed already"), std::string::npos) << closed;
    EXPECT_NE(testkit::Refusal([&] {
                  db().Execute("UPDATE DispatchAbstract SET Status = Status | 384 WHERE DispatchID = 3");
              }).find("closed already"),
              std::string::npos);
    // An open note closes once; the second cancel of it is refused.
    Close(2);
    EXPECT_NE(testkit::Refusal([&] { Close(2); }).find("closed already"), std::string::npos);
    EXPECT_EQ(Text("SELECT Status FROM DispatchAbstract WHERE DispatchID IN (1, 2, 3, 4) ORDER BY DispatchID"),
              "129;194;194;385");
    // Other changes to a closed note, and status changes that do not close, go through.
    db().Execute("UPDATE DispatchAbstract SET Remarks = 'Checked' WHERE DispatchID = 3");
    db().Execute("UPDATE DispatchAbstract SET Status = Status | 2 WHERE DispatchID = 9");
    EXPECT_EQ(Text("SELECT Remarks FROM DispatchAbstract WHERE DispatchID = 3"), "Checked");
}

}  // namespace
}  // namespace server
