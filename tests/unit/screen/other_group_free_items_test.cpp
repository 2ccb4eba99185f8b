// Free items of other category groups: the table the form hands the host's dialog,
// the rows the dialog's answer drops, keeps, updates and makes, and the answers a
// session may queue for the dialog.
#include "platform/convert.h"
#include "platform/variant_table.h"
#include "screen_fixture.h"

namespace screen_test {
namespace {

using namespace grid;

class OtherGroupFreeItems : public ScreenTest {
protected:
    // A note of Ravi Stores (group Foods): a Marie Biscuit line, two other-group free
    // rows around a scheme's own free row, then the blank entry row.
    void StandingRows() {
        Open(2);
        auto& grid = form->DTFlexDispatch;
        grid.SetGridRows(5);
        Row(1, {"FD001", "Marie Biscuit 100g", "MB2401", "BOX", "2", "1", "2", "1", "0", "1", "0", "1"}, false);
        Row(2, {"BV001", "Orange Drink 200ml", "OD24A", "BTL", "12", "12", "5", "1", "0", "1", "0", "2"}, true);
        Row(3, {"FD002", "Cream Biscuit 75g", "CB101", "PCS", "6", "6", "1", "1", "0", "1", "1", "3"}, false);
        grid.SetCell(3, colFreeItem, "1");
        Row(4, {"PC002", "Shampoo Sachet", "", "STRIP", "3", "21", "4", "0", "0", "1", "1", "4"}, true);
    }
    void Row(int row, const std::vector<std::string>& fields, bool otherGroup) {
        static const int columns[] = {colItemCode,    colItemName,       colBatch,   colUOM,
                                      colQuantity,    colBatchCode,      colUOMID,   colBatchTrack,
                                      colPriceOption, colTrackInventory, colFreeRow, colSerialNo};
        for (std::size_t f = 0; f < fields.size(); ++f) form->DTFlexDispatch.SetCell(row, columns[f], fields[f]);
        form->DTFlexDispatch.SetCell(row, colOCGItem, otherGroup ? "1" : "0");
        if (otherGroup) form->DTFlexDispatch.SetCell(row, colFreeItem, "1");
    }
    // The dialog's answer: the entry first, and a spare slot.
    static platform::VariantTable Settled(const std::vector<std::vector<platform::Value>>& entries) {
        platform::VariantTable table(static_cast<long>(entries.size()), 11);
        for (std::size_t e = 0; e < entries.size(); ++e)
            for (std::size_t f = 0; f < entries[e].size(); ++f) table.At(static_cast<long>(e), f) = entries[e][f];
        return table;
    }
    std::string Codes() const {
        std::string codes;
        for (int row = 1; row <= form->DTFlexDispatch.GridRows(); ++row)
            codes += (row > 1 ? " " : "") + form->DTFlexDispatch.GetCell(row, colItemCode);
        return codes;
    }
};

TEST_F(OtherGroupFreeItems, TheStandingRowsGoToTheDialogFieldFirstWithASpareSlot) {
    StandingRows();
    const platform::VariantTable table = form->ClubOCGFreeItems();
    ASSERT_TRUE(table.IsArray());
    EXPECT_EQ(std::tuple(table.UBound(1), table.UBound(2), table.At(0, 0), table.At(2, 1), table.At(4, 0),
                         table.At(10, 1), table.At(11, 1), table.At(0, 2).IsEmpty()),
              std::tuple(11, 2, platform::Value("BV001"), platform::Value(""), platform::Value(12.0),
                         platform::Value(1.0), platform::Value(4.0), true));

    form->DTFlexDispatch.SetCell(2, colOCGItem, "0");
    form->DTFlexDispatch.SetCell(4, colOCGItem, "0");
    EXPECT_FALSE(form->ClubOCGFreeItems().IsArray());
}

// Only other-group rows go, and only those no entry names by a serial; an entry of
// serial 0 keeps nothing, and a scheme's own free row is never touched.
TEST_F(OtherGroupFreeItems, RowsTheDialogDroppedAreDeleted) {
    StandingRows();
    form->DeleteExistingOCGItems(Settled({{"PC002", "", "", "", 3, 21, 4, 0, 0, 1, 1, 4}, {"X", "", "", "", 1}}));
    EXPECT_EQ(Codes(), "FD001 FD002 PC002 ");
    form->DeleteExistingOCGItems(Settled({}));
    EXPECT_EQ(Codes(), "FD001 FD002 ");
}

// A standing entry is rewritten in its row; one whose row has gone and one the dialog
// added are made under the lines with serials of their own; the spare slot is never
// read; the grid returns to the row of the serial asked for.
TEST_F(OtherGroupFreeItems, SettledEntriesUpdateOrMakeRows) {
    StandingRows();
    form->nSerialCounter = 4;
    form->DTFlexDispatch.RemoveRow(2);
    platform::VariantTable table = Settled({{"PC002", "Shampoo Sachet", "", "STRIP", 5, 21, 4, 0, 0, 1, 1, 4},
                                            {"BV001", "Orange Drink 200ml", "OD24A", "BTL", 12, 12, 5, 1, 0, 1, 0, 2},
                                            {"BV003", "Drinking Water 1L", "", "BTL", 6, 17, 5, 0, 0, 1, 1, 0}});
    table.At(3, 0) = "FD003";  // the spare slot
    form->LoadOCGFreeItems(table, 1);

    auto& grid = form->DTFlexDispatch;
    EXPECT_EQ(std::tuple(Codes(), grid.GetCell(3, colQuantity), grid.GetCell(3, colSerialNo)),
              std::tuple("FD001 FD002 PC002 BV001 BV003", "5", "4"));
    for (int row : {4, 5}) {
        SCOPED_TRACE(row);
        EXPECT_EQ(
            std::tuple(grid.GetCell(row, colOCGItem), grid.GetCell(row, colFreeItem), grid.GetCell(row, colSalePrice)),
            std::tuple("1", "1", "0"));
    }
    EXPECT_EQ(std::tuple(grid.GetCell(4, colBatch), grid.GetCell(4, colBatchCode)), std::tuple("OD24A", "12"));
    EXPECT_NE(grid.GetCell(4, colSerialNo), grid.GetCell(5, colSerialNo));
    EXPECT_GT(platform::Val(grid.GetCell(5, colSerialNo)), 4);
    EXPECT_EQ(std::tuple(grid.GridRow(), grid.GridCol()), std::tuple(1, host->Global().GetGridEditColumnValue()));
}

// Only the modes that load their lines from documents give up the blank entry row.
TEST_F(OtherGroupFreeItems, ANewNoteKeepsItsBlankEntryRow) {
    StandingRows();
    form->LoadOCGFreeItems(Settled({{"PC002", "Shampoo Sachet", "", "STRIP", 5, 21, 4, 0, 0, 1, 1, 4}}), 1);
    EXPECT_EQ(Codes(), "FD001 FD002 PC002 ");
}

TEST_F(OtherGroupFreeItems, TheDialogsAnswersAreCheckedWhenQueued) {
    using Words = std::vector<std::string>;
    for (const Words& good : {Words{"cancel"}, Words{"ok"}, Words{"drop", "3", "add", "BV001", "OD24A", "12", "ok"},
                              Words{"drop", "all", "add-free", "PC002", "", "5", "cancel"}})
        EXPECT_EQ(host::DialogAnswers::Problem("ShowDocumentInfoDialog", good), "");
    for (const Words& bad : {Words{}, Words{"add", "BV001", "OD24A", "12"}, Words{"add", "BV001", "OD24A", "ok"},
                             Words{"add", "BV001", "OD24A", "0", "ok"}, Words{"drop", "x", "ok"}, Words{"keep", "ok"}})
        EXPECT_NE(host::DialogAnswers::Problem("ShowDocumentInfoDialog", bad), "");
}

}  // namespace
}  // namespace screen_test
