// What the form leaves behind for later steps to read: the no-stock mark, kept serials
// and an unknown item's batch flags.
#include "screen_fixture.h"

namespace screen_test {
namespace {

using namespace grid;

TEST_F(ScreenTest, AnItemWithoutStockMarksItsRow) {
    auto& f = OpenForItems();
    auto& grid = f.DTFlexDispatch;
    grid.UserGoto(1, colItemCode);
    grid.UserType("FD005");
    grid.UserKey(13);
    EXPECT_EQ(std::tuple(TranscriptHas("status 1 No stock available"), f.bNoStockRow), std::tuple(true, true));
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

}  // namespace
}  // namespace screen_test
