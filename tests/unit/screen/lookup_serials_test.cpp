// Row serials: giving them out, finding a row by its serial, and the merge walk that
// acts on every row a list of serials names.
#include "platform/convert.h"
#include "screen_fixture.h"

namespace screen_test {
namespace {

using screen::Zuro_frmDispatch_Dispatch;

class RowSerials : public ScreenTest {
protected:
    Zuro_frmDispatch_Dispatch& f = Open(2);

    // Rows with the given serials; a free row is marked with a negative serial.
    void Rows(std::initializer_list<int> serials) {
        auto& grid = form->DTFlexDispatch;
        grid.SetGridRows(static_cast<int>(serials.size()));
        int row = 1;
        for (int serial : serials) {
            grid.SetCell(row, grid::colItemCode, "FD00" + std::to_string(row));
            grid.SetCell(row, grid::colSerialNo, serial == 0 ? "" : std::to_string(serial < 0 ? -serial : serial));
            grid.SetCell(row, grid::colFreeItem, serial < 0 ? "1" : "0");
            grid.SetCell(row, grid::colQuantity, std::to_string(row * 10));
            grid.SetCell(row, grid::colUOMID, "1");
            ++row;
        }
    }
    void Serial(long nRow, std::int16_t iResetAll = 0, std::int16_t bToSet = 0) {
        form->Add_Unique_Serial(nRow, iResetAll, bToSet);
    }
    std::string SerialOf(int row) { return form->DTFlexDispatch.GetCell(row, grid::colSerialNo); }
    std::string ItemCodes() {
        std::string codes;
        for (int row = 1; row <= form->DTFlexDispatch.GridRows(); ++row)
            codes += (row > 1 ? "," : "") + form->DTFlexDispatch.GetCell(row, grid::colItemCode);
        return codes;
    }
};

TEST_F(RowSerials, ARowKeepsItsSerialAndANewRowTakesTheNextAfterTheLastLoaded) {
    Rows({5, 9, 7, 0});
    // The loader sets the counter to each stored row's serial in turn.
    for (long serial : {5L, 9L, 7L}) Serial(serial, 0, 1);
    EXPECT_EQ(f.nSerialCounter, 7);

    Serial(2);  // has 9: stays
    EXPECT_EQ(std::tuple(SerialOf(2), f.nSerialCounter), std::tuple("9", 7));

    Serial(4);
    EXPECT_EQ(std::tuple(SerialOf(4), f.nSerialCounter), std::tuple("8", 8));
}

TEST_F(RowSerials, ResetNumbersEveryRowAndOneRowAlwaysRestartsAtOne) {
    Rows({4, 0, 12});
    Serial(1, 1);
    EXPECT_EQ(std::tuple(SerialOf(1) + SerialOf(2) + SerialOf(3), f.nSerialCounter), std::tuple("123", 3));

    Rows({30});
    f.nSerialCounter = 30;
    Serial(1);
    EXPECT_EQ(std::tuple(SerialOf(1), f.nSerialCounter), std::tuple("1", 1));
}

TEST_F(RowSerials, ACounterBeyondSixteenBitsIsAnOverflowAndChangesNothing) {
    expectedErrors = 1;
    Rows({1, 0});
    f.nSerialCounter = 32767;
    Serial(2);
    EXPECT_EQ(std::tuple(SerialOf(2), f.nSerialCounter,
                         TranscriptHas("Zuro_frmDispatch_Dispatch : Add_Unique_Serial - Overflow")),
              std::tuple("", 32767, true));
}

TEST_F(RowSerials, GetRowNumberFindsTheRowNotThePlaceInTheList) {
    Rows({3, 8, 5});
    EXPECT_EQ(std::tuple(f.getRowNumber(8), f.getRowNumber(5), f.getRowNumber(4)), std::tuple(2, 3, 0));
}

TEST_F(RowSerials, RemovingByAListTakesOnlyFreeRows) {
    Rows({10, -12, -13, 15});
    EXPECT_EQ(f.DoRowOperation(1, ",12,13", f.DTFlexDispatch), platform::Value(true));
    EXPECT_EQ(ItemCodes(), "FD001,FD004");

    // A row of the list that is not free stays.
    Rows({10, 12, -13, 15});
    EXPECT_EQ(f.DoRowOperation(1, ",12,13", f.DTFlexDispatch), platform::Value(true));
    EXPECT_EQ(ItemCodes(), "FD001,FD002,FD004");

    EXPECT_EQ(f.DoRowOperation(1, "99", f.DTFlexDispatch), platform::Value(false));
    EXPECT_TRUE(f.DoRowOperation(1, "", f.DTFlexDispatch).IsEmpty());

    // Consecutive free rows are all removed.
    Rows({1, -2, -3, 4});
    EXPECT_EQ(f.DoRowOperation(1, "3,2", f.DTFlexDispatch), platform::Value(true));
    EXPECT_EQ(ItemCodes(), "FD001,FD004");
}

TEST_F(RowSerials, RowNumbersComeInGridOrderSkippingUnmatchedAndOutOfOrderRows) {
    Rows({1, 2, 3, 4, 12, 13});
    EXPECT_EQ(f.DoRowOperation(4, "13,12", f.DTFlexDispatch), platform::Value("5,6"));
    EXPECT_EQ(f.DoRowOperation(4, "2,7,12", f.DTFlexDispatch), platform::Value("2,5"));
    EXPECT_EQ(f.DoRowOperation(4, "7", f.DTFlexDispatch), platform::Value(""));
    // The headings are no row: a serial 0 finds nothing above the first row.
    EXPECT_EQ(f.DoRowOperation(4, "0,13", f.DTFlexDispatch), platform::Value("6"));

    // A row out of order is passed over.
    Rows({1, 5, 3, 6});
    EXPECT_EQ(f.DoRowOperation(4, "3,5,6", f.DTFlexDispatch), platform::Value("2,4"));
}

TEST_F(RowSerials, QuantitiesAddUpInBaseUnitsForMultiUnitRows) {
    Rows({1, 2, 3});
    f.DTFlexDispatch.SetCell(2, grid::colItemCode, "FD001");
    f.DTFlexDispatch.SetCell(2, grid::colUOMID, "0");
    f.DTFlexDispatch.SetCell(2, grid::colQuantity, "1*2*5");  // 240 + 48 + 5 pieces
    EXPECT_EQ(f.DoRowOperation(2, "1,2", f.DTFlexDispatch), platform::Value(10.0 + 293.0));
    EXPECT_EQ(f.DoRowOperation(2, "9", f.DTFlexDispatch), platform::Value(0.0));
}

}  // namespace
}  // namespace screen_test
