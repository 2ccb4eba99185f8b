// The detail procedures take a line's quantity out of the demo's batches: in the
// order the stock list offers them, free stock only for free lines, all of it or
// nothing, and never below 0.
#include <string>

#include "save_test_support.h"

namespace server::save_test {
namespace {

class SaveDetail : public SaveDatabase {
protected:
    std::string Batches(const std::string& codes) {
        const std::string batches = "SELECT * FROM Batch_Products WHERE Batch_Code IN (" + codes + ") ORDER BY 1";
        return Text("SELECT group_concat(Batch_Code || '=' || Quantity, ' ') FROM (" + batches + ")");
    }
    // The detail procedure's answer for the line (1 stored, 0 refused), then the batches.
    std::string Take(const Line& line, const std::string& codes, bool customerPrice = false, bool longList = true) {
        const std::string answer = std::to_string(StoreLine(line, customerPrice, longList));
        return answer + ": " + Batches(codes);
    }
    // A new note of the usual customer, for the test's lines.
    const long long note = NewNote();
};

TEST_F(SaveDetail, TakesAPricedLineFromTheBatchesInTheStockListsOrder) {
    // Cream Biscuit, no batch named, 12.5 boxes: the batch that expires first (CB102)
    // goes first, then CB101; the free stock of CB101 is not for sale.
    const Line line{.dispatchID = note, .item = "FD002", .baseQuantity = 150, .unitQuantity = 12.5, .rowNumber = 3};
    EXPECT_EQ(Take(line, "5, 6, 7"), "1: 5=594.0 6=120.0 7=0.0");
    // One row a batch, one serial and unit, the boxes shared in proportion.
    EXPECT_EQ(NoteRows("Serial, Batch_Code, Batch_Number, Quantity, UOM, UOMQty", note, "ORDER BY DetailID"),
              "3|7|CB102|144r|2|12r;3|5|CB101|6r|2|0.5r");
}

TEST_F(SaveDetail, ANamedNumberLimitsTheBatchesAndExpiryIsJudgedOnTheDispatchDay) {
    // The number matches as the server's collation does.
    Line line{.dispatchID = note, .batch = "mb2401", .baseQuantity = 2401};
    // Batch 1 holds 2400 saleable; the 480 free pieces of the same number are not
    // for a priced line, and MB2402 has another number.
    EXPECT_EQ(StoreLine(line), 0);
    line.baseQuantity = 2400;
    EXPECT_EQ(Take(line, "1, 2, 4"), "1: 1=0.0 2=1200.0 4=480.0");

    // MB2312 expired a month ago: not for today, but a note dated forty days back
    // may still take it.
    line.batch = "MB2312";
    line.baseQuantity = 24;
    EXPECT_EQ(StoreLine(line), 0);
    line.dispatchDay = platform::Date{Today().serial - 40};
    EXPECT_EQ(Take(line, "3"), "1: 3=216.0");
}

TEST_F(SaveDetail, GivesFreeStockToFreeLinesOnlyAndPrefersTheKindTheLineStoodOn) {
    // A scheme's free box on the free batch of MB2401, sent with the item's price.
    Line free{.dispatchID = note, .batch = "MB2401", .freeItem = 1, .freeRow = 1};
    EXPECT_EQ(Take(free, "1, 4"), "1: 1=2400.0 4=456.0");
    // The same free line where the user chose the saleable batch.
    free.freeRow = 0;
    EXPECT_EQ(Take(free, "1, 4"), "1: 1=2376.0 4=456.0");
    // More than the free batch holds: a free line may go on to saleable stock.
    free.freeRow = 1;
    free.baseQuantity = 500;
    EXPECT_EQ(Take(free, "1, 4"), "1: 1=2332.0 4=0.0");

    // A line of another category group on free stock goes as not free, and still
    // takes the free batch it was shown.
    Line other{.dispatchID = note, .item = "PC002", .baseQuantity = 10, .freeRow = 1, .otherGroupItem = 1};
    EXPECT_EQ(Take(other, "20, 21", false, false), "1: 20=2000.0 21=490.0");

    // The goods of free lines carry no price, whatever came with them.
    EXPECT_EQ(
        NoteRows("group_concat(FreeItem || Free || OtherCG_Item || ':' || SalePrice || '/' || UOMPrice, ' ')", note),
        "110:0.0/0.0 100:0.0/0.0 110:0.0/0.0 110:0.0/0.0 011:0.0/0.0");
}

TEST_F(SaveDetail, ARefusalTakesNothingAndStoresNothing) {
    Line line{.dispatchID = note, .item = "FD002", .unitQuantity = 62.0833};
    // 744 saleable pieces (600 of CB101, 144 of CB102): one more is refused, though
    // the first batches of the plan could have been emptied.
    line.baseQuantity = 745;
    db().BeginTrans();
    const auto refused = Call("sp_Save_dispatchdetail_UOM_QAX", line.Parameters(false, true));
    ASSERT_EQ(refused.size(), 1u) << "nothing was written, so no row count goes ahead of the answer";
    EXPECT_EQ(std::tuple(testkit::RowsText(refused.front()), Batches("5, 6, 7"), NoteRows("COUNT(*)", note)),
              std::tuple("0", "5=600.0 6=120.0 7=144.0", "0"));

    // The transaction goes on: exactly what is there can still be taken.
    line.baseQuantity = 744;
    const auto stored = Call("sp_Save_dispatchdetail_UOM_QAX", line.Parameters(false, true));
    ASSERT_EQ(stored.size(), 2u);
    EXPECT_EQ(stored.front().rowsAffected, 4) << "two batches and two rows";
    EXPECT_EQ(testkit::RowsText(stored.back()), "1");
    db().CommitTrans();
    EXPECT_EQ(Batches("5, 6, 7"), "5=0.0 6=120.0 7=0.0");

    // An item without stock at all.
    line.item = "FD005";
    line.baseQuantity = 1;
    EXPECT_EQ(StoreLine(line), 0);
}

TEST_F(SaveDetail, TheCustomerPriceProcedureTakesTheBatchAtTheShownPriceFirst) {
    const long long stockistNote = NewNote("C003");
    // PCM24A stands at two prices: batch 24, the older, at PTS 18.00 and PTR 19.50,
    // batch 25 at PTS 19.00 and PTR 20.50. Left to the stock list's order, 24 goes first.
    Line line{
        .dispatchID = stockistNote, .item = "HC001", .batch = "PCM24A", .originalPrice = 20.50, .baseQuantity = 100};
    EXPECT_EQ(Take(line, "24, 25, 26", true), "1: 24=1000.0 25=400.0 26=1500.0");

    // A stockist was shown batch 25 at its PTS; what it lacks comes from the other price.
    line.customerCategory = 1;
    line.originalPrice = 19.00;
    line.baseQuantity = 600;
    EXPECT_EQ(Take(line, "24, 25, 26", true), "1: 24=800.0 25=0.0 26=1500.0");

    EXPECT_EQ(NoteRows("group_concat(Batch_Code || ':' || Price_Option || CustomerCategory, ' ')", stockistNote),
              "25:12 25:11 24:11");
}

TEST_F(SaveDetail, AnItemThatKeepsNoStockTakesNone) {
    // The display stand's category keeps no stock, whatever the screen sends.
    EXPECT_EQ(StoreLine({.dispatchID = note, .item = "PM001", .baseQuantity = 3}), 1);
    // The screen's flag alone stops the take as well: more than batch 8 holds.
    EXPECT_EQ(Take({.dispatchID = note, .item = "FD003", .baseQuantity = 600, .trackInventory = 0}, "8"), "1: 8=500.0");
    EXPECT_EQ(
        NoteRows("group_concat(Product_Code || ':' || Batch_Code || ':' || Track_Inventory || ':' || Quantity, ' ')",
                 note),
        "PM001:0:0:3.0 FD003:0:0:600.0");
}

TEST_F(SaveDetail, TheShortListSendsTheSchemeAsANumberAndTheFreeSerialsAsTheyStand) {
    Line shortLine{.dispatchID = note, .schemeID = 17, .freeSerial = "5"};
    EXPECT_EQ(StoreLine(shortLine, false, false), 1);
    EXPECT_EQ(NoteRows("SchemeID, FreeSerial, CSchemeID, Price_Option, CustomerCategory, DatedPosting", note,
                       "ORDER BY DetailID DESC LIMIT 1"),
              "17|5||0|0|0");
}

TEST_F(SaveDetail, ANoteDatedBackLowersTheOpeningsOfTheLaterDays) {
    const std::string openings =
        "SELECT group_concat(Opening_Quantity || '/' || Free_Saleable_Quantity, ' ') FROM "
        "(SELECT * FROM OpeningDetails WHERE Product_Code = 'FD001' ORDER BY Opening_Date)";
    // The week-old opening, one of the note's own day (taken before the note), and today's.
    db().ExecuteScript(
        "INSERT INTO OpeningDetails (Product_Code, Opening_Date, Opening_Quantity, Free_Saleable_Quantity) "
        "VALUES ('FD001', datetime(date('now', 'localtime', '-3 days')), 4320, 480);");
    const std::string before = Text(openings);
    ASSERT_EQ(before, "4320.0/480.0 4320.0/480.0 4320.0/480.0");
    Line line{.dispatchID = note, .batch = "MB2401", .dispatchDay = platform::Date{Today().serial - 3}};
    // Without dated posting the openings stay.
    EXPECT_EQ(StoreLine(line), 1);
    EXPECT_EQ(Text(openings), before);
    // With it, the days after the note's date lose what it took, free stock apart.
    line.datedPosting = 1;
    line.freeItem = 1;
    line.freeRow = 1;
    line.baseQuantity = 30;
    EXPECT_EQ(StoreLine(line), 1);
    EXPECT_EQ(Text(openings), "4320.0/480.0 4320.0/480.0 4290.0/450.0");
    // A note of today has no later day to correct.
    line.dispatchDay = platform::Value();
    EXPECT_EQ(StoreLine(line), 1);
    EXPECT_EQ(Text(openings), "4320.0/480.0 4320.0/480.0 4290.0/450.0");
}

TEST_F(SaveDetail, RefusesWhatNoLineCanBeAndChangesNothing) {
    const std::string name = "sp_Save_dispatchdetail_UOM_QAX";
    auto refusal = [&](const Line& line) { return Refusal(name, line.Parameters(false, true)); };
    Line line{.dispatchID = note};

    const std::pair<Line, std::string> cases[] = {
        {Line{.dispatchID = 999}, "Dispatch 999 does not exist."},
        {Line{.dispatchID = 1}, "Dispatch 1 is closed; no line can be added to it."},  // invoiced
        {Line{.dispatchID = note, .item = "FD099"}, "Item 'FD099' does not exist."},
        {Line{.dispatchID = note, .baseQuantity = 0}, "The quantity of item 'FD001' must be above 0."},
    };
    for (const auto& [refused, message] : cases) EXPECT_EQ(refusal(refused), message);

    platform::ParameterList tooShort = line.Parameters(false, false);
    tooShort.pop_back();
    EXPECT_EQ(Refusal(name, tooShort),
              "Procedure or function 'sp_Save_dispatchdetail_UOM_QAX' expects parameter '@FreeSerial', which was not "
              "supplied.");
    // The customer-price procedure's short list is one longer.
    EXPECT_NE(Refusal("sp_Save_dispatchDetail_csp_UOM_QAX", line.Parameters(false, false)).find("'@FreeSerial'"),
              std::string::npos);

    EXPECT_EQ(Batches("1, 2, 4"), "1=2400.0 2=1200.0 4=480.0");
    EXPECT_EQ(Text("SELECT COUNT(*) FROM DispatchDetail WHERE DispatchID NOT BETWEEN 1 AND 9"), "0");
}

}  // namespace
}  // namespace server::save_test
