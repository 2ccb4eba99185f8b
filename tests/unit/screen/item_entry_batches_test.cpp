// The stock list of a line: what the stock procedures offer, how the list shows it,
// and what the line takes from the entry selected.
#include "screen_fixture.h"

namespace screen_test {
namespace {

class BatchList : public ScreenTest {
protected:
    // The stock procedure's rows for an item, fields 0, 2, 3 and 5 of each.
    std::string BookStock(const std::string& code, long track, long priceOption, long category) {
        using platform::adtype::Integer;
        auto rs = database->RunProcedure("sp_get_bookstock", {{platform::Value(code), platform::adtype::VarChar},
                                                              {platform::Value(track), Integer},
                                                              {platform::Value(priceOption), Integer},
                                                              {platform::Value(category), Integer},
                                                              {platform::Value(0), Integer}});
        std::string rows;
        for (; !rs->Eof(); rs->MoveNext()) {
            if (!rows.empty()) rows += ";";
            for (int field : {0, 2, 3, 5}) rows += platform::ToText(rs->Fields(field)) + (field == 5 ? "" : "|");
        }
        return rows;
    }

    // The screen open for items with row 1 holding the item in a unit of that rate.
    void OpenWithLine(const std::string& code, const std::string& uomID, double rate, long mode = 2) {
        OpenForItems(mode);
        ItemLine(code, uomID, rate);
    }
    // Marie in boxes of 24 on row 1, its stock list loaded as moving to the row does.
    void MarieListed() {
        OpenWithLine("FD001", "2", 24);
        form->DispatchBatchDetails("FD001", Cell(grid::colBatch), Cell(grid::colSalePrice), 1, 0, 0, "");
    }
};

TEST_F(BatchList, TheStockProcedureOffersLiveBatchesEarliestExpiryFirst) {
    OpenForItems();
    // MB2312 has expired; MB2401 holds saleable and free stock of one number.
    EXPECT_EQ(BookStock("FD001", 1, 0, 2), "MB2401|2400|9|0;MB2401|480|0|1;MB2402|1200|9|0");
    // By batch price: PCM24A stands at two prices, a stockist's here; PCM23X has expired.
    EXPECT_EQ(BookStock("HC001", 1, 1, 1), "PCM24A|1000|18|0;PCM24A|500|19|0;PCM24B|1500|18.5|0");
    EXPECT_EQ(BookStock("HC001", 1, 1, 4), "PCM24A|1500|0|0;PCM24B|1500|0|0") << "no trade category, no price";
    // Without batches: one saleable and one free entry; an exhausted item has none.
    EXPECT_EQ(BookStock("BV003", 0, 0, 1), "|1200|12|0;|240|0|1");
    EXPECT_EQ(BookStock("FD005", 0, 0, 1), "");

    EXPECT_EQ(form->GetTotalBookStock("FD001"), 3600) << "neither free nor expired stock is saleable";
    EXPECT_EQ(std::tuple(form->GetTotalBookStock("FD005"), form->GetTotalBookStock("ZZ999")), std::tuple(0, 0));
}

TEST_F(BatchList, TheListShowsStockInTheRowsUnitAndMarksFreeStock) {
    MarieListed();
    EXPECT_EQ(ListEntries(), "MB2401|216.00|100|;MB2401|0.00|20|Yes;MB2402|216.00|50|");
    const auto& first = form->lstAvailable.Item(1);
    EXPECT_EQ(first.SubItemTag(2), "216");
    EXPECT_EQ(first.SubItem(4), Scalar("SELECT strftime('%m/%Y', PKD) FROM Batch_Products WHERE Batch_Code = 1"));
    // The trade prices of a box, for the row to take from.
    EXPECT_EQ(first.SubItem(8) + " " + first.SubItem(9),
              Scalar("SELECT printf('%.2f %.2f', PTS * 24, PTR * 24) FROM Batch_Products WHERE Batch_Code = 1"));
    EXPECT_EQ(std::tuple(form->szBatchItemCode, Cell(grid::colBatchSelection)), std::tuple("FD001", "1"));
    // The widths of screen 1; the price column only for items priced by batch.
    // Marie carries packing dates, so the fifth column shows.
    std::vector<double> widths;
    for (const auto& header : form->lstAvailable.ColumnHeaders) widths.push_back(header.Width);
    widths.resize(6);
    EXPECT_EQ(widths, (std::vector<double>{1100, 900, 0, 1000, 800, 800}));
}

TEST_F(BatchList, MovingOntoARowShowsItsBatchesUnlessTheRowHasNoName) {
    OpenWithLine("FD001", "2", 24);
    form->DTFlexDispatch_RowColChange(1, grid::colQuantity);
    EXPECT_EQ(std::tuple(form->FrameAvailable.Visible, form->cmdChange.Visible), std::tuple(true, true));
    EXPECT_GT(form->lstAvailable.Count(), 0);

    form->DTFlexDispatch.SetCell(1, grid::colItemName, " ");
    form->DTFlexDispatch_RowColChange(1, grid::colQuantity);
    EXPECT_EQ(std::tuple(form->FrameAvailable.Visible, form->cmdChange.Visible), std::tuple(false, false));
}

TEST_F(BatchList, TheRowsBatchIsSelectedAndTheRowTakesTheEntryTheUserMovesTo) {
    OpenWithLine("FD001", "2", 24);
    SetCell(grid::colBatch, "mb2402");
    form->DispatchBatchDetails("FD001", Cell(grid::colBatch), Cell(grid::colSalePrice), 1, 0, 0, "");
    EXPECT_EQ(form->lstAvailable.SelectedIndex(), 3) << "batch numbers match without regard to case";

    form->nBatchTrack = 1;
    form->lstAvailable.Select(1);
    form->objBatchEntry = 1;
    form->TakeFromBatchEntry(1, grid::colQuantity);
    EXPECT_EQ(
        Cells({grid::colBatch, grid::colAvailableQty, grid::colFreeRow, grid::colSalePrice, grid::colOriginalPrice}),
        "MB2401|2400|0|216|9");

    form->objBatchEntry = 2;  // the free stock of the same number
    form->TakeFromBatchEntry(1, grid::colQuantity);
    EXPECT_EQ(Cells({grid::colBatch, grid::colAvailableQty, grid::colFreeRow, grid::colSalePrice}), "MB2401|480|1|0");
}

TEST_F(BatchList, ABatchPricedItemTakesThePriceOfTheEntry) {
    OpenForItems();
    form->nCustomerCategory = 1;
    ItemLine("HC001", "2", 10);  // boxes of 10 strips
    form->DispatchBatchDetails("HC001", "", "", 1, 1, 0, "");
    EXPECT_EQ(ListEntries(), "PCM24A|180.00|100|;PCM24A|190.00|50|;PCM24B|185.00|150|");
    EXPECT_EQ(form->lstAvailable.ColumnHeaders[2].Width, 1100);

    form->nBatchTrack = 1;
    form->objBatchEntry = 2;
    form->TakeFromBatchEntry(1, grid::colQuantity);
    EXPECT_EQ(Cells({grid::colBatch, grid::colSalePrice, grid::colOriginalPrice, grid::colAvailableQty}),
              "PCM24A|190|19|500");
}

TEST_F(BatchList, InAnAmendmentAnExpiredBatchTheNoteHoldsComesBack) {
    OpenWithLine("FD001", "2", 24, 7);
    SetCell(grid::colBatch, "MB2312");
    SetCell(grid::colStoredQty, "2");
    SetCell(grid::colBatchCode, "3");
    database->ExecuteNative("UPDATE Batch_Products SET ApplicableOn = 2 WHERE Batch_Code = 3");
    form->DispatchBatchDetails("FD001", "MB2312", "216", 1, 0, 1, "MB2312");
    ASSERT_EQ(form->lstAvailable.Count(), 4);
    const auto& added = form->lstAvailable.Item(4);
    EXPECT_EQ(added.Text, "MB2312");
    EXPECT_EQ(added.SubItem(3), "48") << "the stored quantity times the rate, as the list always showed it";
    EXPECT_EQ(added.SubItem(5), "");
    EXPECT_EQ(added.SubItem(11), "PTR") << "what the batch's price applies on";

    // A batch the list still shows takes the line back on its own entry, whether the
    // list shows its batch column or not; nothing is added.
    for (const char* shown : {"1", "0"}) {
        database->ExecuteNative(std::string("UPDATE Items SET Virtual_Track_Batches = ") + shown +
                                " WHERE Product_Code = 'FD001'");
        form->DispatchBatchDetails("FD001", "MB2401", "216", 1, 0, 1, "MB2401");
        EXPECT_EQ(form->lstAvailable.Count(), 3) << shown;
        EXPECT_EQ(form->lstAvailable.SelectedIndex(), 1) << shown;
    }
}

TEST_F(BatchList, InAnAmendmentAnItemWithoutBatchesTakesItsLineBackOnTheEntryOfItsKind) {
    OpenWithLine("PC002", "4", 1, 7);
    SetCell(grid::colStoredQty, "5");
    form->dUOMRate = 1;
    // At most a saleable and a free entry: the row's kind takes back what it held.
    const struct {
        const char* free;
        int selected;
        const char* entries;
    } cases[] = {{"1", 2, "|1.90|2000|;|0.00|505|Yes"}, {"0", 1, "|1.90|2005|;|0.00|500|Yes"}};
    for (const auto& c : cases) {
        SetCell(grid::colFreeRow, c.free);
        form->DispatchBatchDetails("PC002", "", "0", 0, 0, 1, "");
        EXPECT_EQ(form->lstAvailable.SelectedIndex(), c.selected) << c.free;
        EXPECT_EQ(ListEntries(), c.entries) << c.free;
    }
}

TEST_F(BatchList, AnItemWithoutBatchesHasItsFirstEntrySelected) {
    OpenWithLine("PC002", "4", 1);
    form->DispatchBatchDetails("PC002", "", "999", 0, 0, 0, "");
    ASSERT_GT(form->lstAvailable.Count(), 0);
    EXPECT_EQ(form->lstAvailable.SelectedIndex(), 1);
}

TEST_F(BatchList, WhatTheNoteTookGoesBackOnTheEntryOfItsBatchPriceAndKind) {
    MarieListed();
    form->AddUnBatchQty("mb2401", 216, 48, 0);
    form->AddUnBatchQty("MB2401", 0, 24, 1);
    form->AddUnBatchQty("MB2402", 999, 24, 0);  // no entry at that price
    form->AddUnBatchQty("MB2402", 216, 0, 0);
    EXPECT_EQ(ListEntries(), "MB2401|216.00|102|;MB2401|0.00|21|Yes;MB2402|216.00|50|");

    // The row's free-stock flag says which kind of entry takes it back.
    SetCell(grid::colFreeRow, "1");
    form->PreserveOriginalQty("MB2401", "", "", 0, 24);
    SetCell(grid::colFreeRow, "0");
    form->dUOMRate = 1;
    form->PreserveOriginalQty("MB2402", "", "", 216, 1);
    EXPECT_EQ(ListEntries(), "MB2401|216.00|102|;MB2401|0.00|22|Yes;MB2402|216.00|51|");
}

TEST_F(BatchList, TheStatusLineShowsTheBatchAndTheTotalInTheRowsUnit) {
    MarieListed();
    form->nBatchTrack = 1;
    SetCell(grid::colBatch, "MB2401");
    form->ShowBatchStockStatus(1, grid::colItemName);
    EXPECT_EQ(LastStatus(), "Batch: MB2401, Total: 150");
    EXPECT_TRUE(TranscriptHas("status 0 Batch: MB2401")) << "information, not a warning";
}

TEST_F(BatchList, AScreenWithoutStoredWidthsTakesTheDefault) {
    OpenForItems();
    form->LoadListWidths(9, form->FrameAvailable, form->lstAvailable);
    EXPECT_EQ(form->vListWidths, std::vector<double>(5, 1000));
    EXPECT_EQ(form->lstAvailable.ColumnHeaders[3].Width, 1000);
    form->LoadListWidths(2, form->FrameAvailable, form->lstAvailable);
    EXPECT_EQ(form->lstAvailable.ColumnHeaders[0].Width, 1300);
    EXPECT_EQ(form->FrameAvailable.Width, 1300 + 1000 + 1200 + 1100 + 900 + 920);
}

}  // namespace
}  // namespace screen_test
