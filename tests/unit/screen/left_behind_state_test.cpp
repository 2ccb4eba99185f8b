// What the form leaves behind for later steps to read: locked columns, marks, kept
// serials and the words of a batch list entry.
#include "grid/batches_list_columns.h"
#include "screen_fixture.h"

namespace screen_test {
namespace {

using namespace grid;

TEST_F(ScreenTest, ANoteFromADocumentTakesItsItemsAsTheDocumentGivesThem) {
    for (long mode : {1L, 3L, 6L}) {
        auto& f = Open(mode);
        EXPECT_TRUE(f.DTFlexDispatch.ColLocked(colItemCode)) << "mode " << mode;
        EXPECT_TRUE(f.DTFlexDispatch.ColLocked(colItemName)) << "mode " << mode;
    }
    EXPECT_FALSE(Open(2).DTFlexDispatch.ColLocked(colItemName));
}

TEST_F(ScreenTest, AnItemWithoutStockMarksItsRow) {
    auto& f = OpenForItems();
    auto& grid = f.DTFlexDispatch;
    grid.UserGoto(1, colItemCode);
    grid.UserType("FD005");
    grid.UserKey(13);
    EXPECT_TRUE(TranscriptHas("status 1 No stock available"));
    EXPECT_TRUE(f.bNoStockRow);
}

TEST_F(ScreenTest, ALineKeepsItsSerialWhenItsQuantityIsEditedAgain) {
    OpenForItems();
    ItemLine("FD001", "2", 24);
    SetCell(colAvailableQty, "2400");
    ASSERT_FALSE(Quantity("5"));
    ASSERT_EQ(Cell(colSerialNo), "1");
    ASSERT_FALSE(Quantity("6"));
    EXPECT_EQ(Cell(colSerialNo), "1");
}

TEST_F(ScreenTest, AnUnknownItemHasNoBatchFlags) {
    auto& f = Open(2);
    long nVirtual = 7;
    EXPECT_EQ(f.GetItemBatchFlags("ZZ999", nVirtual), 0);
    EXPECT_EQ(nVirtual, 0);
}

// A batch of the amended note that the stock no longer lists comes back with the
// words of what its price applies on.
TEST_F(ScreenTest, ABatchAddedBackSaysWhatItsPriceAppliesOn) {
    auto& f = Open(7);
    f.AddBatchInfo("MB2401", 0, 9.0, 1);  // applies on PTS
    ASSERT_GE(f.lstAvailable.Count(), 1);
    EXPECT_EQ(f.lstAvailable.Item(f.lstAvailable.Count()).SubItem(kSubApplicableOn), "PTS");
}

}  // namespace
}  // namespace screen_test
