// An item typed by code or name, and the price and flags the line takes from the
// item master.
#include "screen_fixture.h"

namespace screen_test {
namespace {

class ItemPricing : public ScreenTest {};

TEST_F(ItemPricing, TheCustomersCategoryPicksThePriceAndOutsideOneToThreeItIsZero) {
    OpenForItems();
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
    OpenForItems();
    SetCell(grid::colOriginalPrice, "0.7");
    SetCell(grid::colSalePrice, "7");
    ItemLine("HC001", "2", 10);
    EXPECT_EQ(Cells({grid::colPriceOption, grid::colSalePrice, grid::colOriginalPrice}), "1|7|0.7");
}

TEST_F(ItemPricing, ACodeTypedFindsItsNameAndAnUnknownOneIsRefused) {
    OpenForItems();
    form->DTFlexDispatch.SetGridRows(2);
    SetCell(grid::colItemCode, "FD003");
    SetCell(grid::colUOMID, "9");  // the unit of the item the row held before
    EXPECT_FALSE(EndEdit(grid::colItemCode));
    EXPECT_NE(Cell(grid::colUOMID), "9") << "a different item does not keep the unit of the one before";
    EXPECT_EQ(Cell(grid::colOriginalPrice), "19.5");  // a retailer's price

    SetCell(grid::colItemName, "No Such Item");
    EXPECT_TRUE(EndEdit(grid::colItemName));
    // The refusal keeps the cell open, and the row still takes the empty look-up.
    EXPECT_EQ(Cells({grid::colItemCode, grid::colUOMID}), "|");
}

TEST_F(ItemPricing, AnEmptiedItemCellGivesUpTheRowWithoutCancelling) {
    OpenForItems();
    auto& grid = form->DTFlexDispatch;
    grid.SetGridRows(2);
    SetCell(grid::colItemCode, "");
    SetCell(grid::colItemName, "Marie Biscuit 100g");
    SetCell(grid::colItemCode, "FD002", 2);
    EXPECT_FALSE(EndEdit(grid::colItemCode));
    EXPECT_EQ(std::tuple(LastStatus(), grid.GridRows(), Cell(grid::colItemCode)),
              std::tuple("Invalid Item Code has been entered.", 1, "FD002"));
}

TEST_F(ItemPricing, ItemPropertiesAndTheNotesValue) {
    OpenForItems();
    const auto property = [&](const std::string& code, int col) {
        long value = -1;
        form->GetItemProperty(code, col, value);
        return value;
    };
    EXPECT_EQ(std::tuple(property("HC001", grid::colPriceOption), property("PM001", grid::colTrackInventory),
                         property("FD001", grid::colBatchTrack)),
              std::tuple(1, 0, 1));
    EXPECT_EQ(property("FD001", grid::colQuantity), 0) << "only columns 9, 10 and 12 are properties";
    EXPECT_EQ(property("ZZ999", grid::colBatchTrack), 0);

    form->DTFlexDispatch.SetGridRows(3);
    SetCell(grid::colQuantity, "2*3", 1), SetCell(grid::colSalePrice, "10", 1);  // counts with its leading 2
    SetCell(grid::colQuantity, "4", 2), SetCell(grid::colSalePrice, "2.5", 2);
    SetCell(grid::colQuantity, "100", 3), SetCell(grid::colSalePrice, "1", 3);
    double total = 0;
    form->ComputeDispatchValue(2, total);
    EXPECT_EQ(total, 30);
}

}  // namespace
}  // namespace screen_test
