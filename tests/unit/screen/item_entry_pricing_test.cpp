// An item typed by code or name, and the price and flags the line takes from the
// item master.
#include "item_entry_fixture.h"

namespace screen_test {
namespace {

class ItemPricing : public ItemEntryTest {
protected:
    bool EndItemEdit(int col) {
        bool cancel = false;
        form->DTFlexDispatch_AfterColUpdate(1, col, cancel);
        return cancel;
    }
};

TEST_F(ItemPricing, TheCustomersCategoryPicksThePriceAndOutsideOneToThreeItIsZero) {
    OpenNote();
    const std::pair<long, std::string> expected[] = {{1, "8.5"}, {2, "9"}, {3, "8"}, {4, "0"}, {5, "0"}};
    for (const auto& [category, price] : expected) {
        form->nCustomerCategory = category;
        ItemLine("FD001", "2", 24);
        EXPECT_EQ(Cell(grid::colOriginalPrice), price) << "category " << category;
        EXPECT_EQ(Cell(grid::colSalePrice), platform::NumberToText(platform::Val(price) * 24))
            << "category " << category;
    }
    EXPECT_EQ(Cells({grid::colBatchTrack, grid::colPriceOption, grid::colTrackInventory}), "1|0|1");
    EXPECT_EQ(form->nBatchTrack, 1);
}

TEST_F(ItemPricing, AnItemPricedByBatchKeepsItsPriceColumnsForTheBatch) {
    OpenNote();
    SetCell(grid::colOriginalPrice, "0.7");
    SetCell(grid::colSalePrice, "7");
    ItemLine("HC001", "2", 10);
    EXPECT_EQ(Cells({grid::colPriceOption, grid::colSalePrice, grid::colOriginalPrice}), "1|7|0.7");
}

TEST_F(ItemPricing, ACodeTypedFindsItsNameAndAnUnknownOneIsRefused) {
    OpenNote();
    form->DTFlexDispatch.SetGridRows(2);
    SetCell(grid::colItemCode, "FD003");
    SetCell(grid::colUOMID, "9");  // the unit of the item the row held before
    EXPECT_FALSE(EndItemEdit(grid::colItemCode));
    EXPECT_EQ(Cell(grid::colItemName), "Salt Crackers 200g");
    EXPECT_NE(Cell(grid::colUOMID), "9") << "a different item does not keep the unit of the one before";
    EXPECT_EQ(Cell(grid::colOriginalPrice), "19.5");  // a retailer's price
    EXPECT_EQ(Cell(grid::colAvailableQty), "500") << "an item without batches has one stock figure";

    SetCell(grid::colItemName, "No Such Item");
    EXPECT_TRUE(EndItemEdit(grid::colItemName));
    EXPECT_EQ(LastStatus(), "Invalid Item selected");
    // The refusal keeps the cell open, and the row still takes the empty look-up.
    EXPECT_EQ(Cells({grid::colItemCode, grid::colUOMID}), "|");
}

TEST_F(ItemPricing, AnItemOutsideTheNotesGroupGetsMessage13) {
    OpenNote();
    form->txtCategory.Tag = "2";  // Beverages
    SetCell(grid::colItemCode, "FD001");
    EXPECT_TRUE(EndItemEdit(grid::colItemCode));
    const auto numbered = transcript.TakeNumbered();
    ASSERT_FALSE(numbered.empty());
    EXPECT_EQ(numbered.back(), 13);
    EXPECT_EQ(Cell(grid::colItemName), "");

    SetCell(grid::colItemCode, "BV001");
    EXPECT_FALSE(EndItemEdit(grid::colItemCode));
    EXPECT_EQ(Cell(grid::colItemName), "Orange Drink 200ml");
    EXPECT_EQ(Errors(), 0) << ErrorLines();
}

TEST_F(ItemPricing, AnEmptiedItemCellGivesUpTheRowWithoutCancelling) {
    OpenNote();
    auto& grid = form->DTFlexDispatch;
    grid.SetGridRows(2);
    SetCell(grid::colItemCode, "");
    SetCell(grid::colItemName, "Marie Biscuit 100g");
    SetCell(grid::colItemCode, "FD002", 2);
    EXPECT_FALSE(EndItemEdit(grid::colItemCode));
    EXPECT_EQ(LastStatus(), "Invalid Item Code has been entered.");
    EXPECT_EQ(grid.GridRows(), 1);
    EXPECT_EQ(Cell(grid::colItemCode), "FD002");
}

TEST_F(ItemPricing, ItemPropertiesAndTheNotesValue) {
    OpenNote();
    long value = -1;
    form->GetItemProperty("HC001", grid::colPriceOption, value);
    EXPECT_EQ(value, 1);
    form->GetItemProperty("PM001", grid::colTrackInventory, value);
    EXPECT_EQ(value, 0);
    form->GetItemProperty("FD001", grid::colBatchTrack, value);
    EXPECT_EQ(value, 1);
    form->GetItemProperty("FD001", grid::colQuantity, value);
    EXPECT_EQ(value, 0) << "only columns 9, 10 and 12 are properties";
    form->GetItemProperty("ZZ999", grid::colBatchTrack, value);
    EXPECT_EQ(value, 0);

    form->DTFlexDispatch.SetGridRows(3);
    SetCell(grid::colQuantity, "2*3", 1), SetCell(grid::colSalePrice, "10", 1);  // counts with its leading 2
    SetCell(grid::colQuantity, "4", 2), SetCell(grid::colSalePrice, "2.5", 2);
    SetCell(grid::colQuantity, "100", 3), SetCell(grid::colSalePrice, "1", 3);
    double total = 0;
    form->ComputeDispatchValue(2, total);
    EXPECT_EQ(total, 30);
    EXPECT_EQ(Errors(), 0) << ErrorLines();
}

}  // namespace
}  // namespace screen_test
