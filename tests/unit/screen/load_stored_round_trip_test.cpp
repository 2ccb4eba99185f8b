// A note keyed and saved, then opened again for viewing, stands in the grid as it
// stood before the save: every cell of every row, the hidden ones included, but for
// the columns the loader is meant to fill or to leave out.
#include <set>

#include "platform/convert.h"
#include "screen_fixture.h"
#include "session/key_press.h"

namespace screen_test {
namespace {

using namespace grid;

class LoadRoundTripTest : public ScreenTest {
protected:
    // The note's rows, every column; the last row is the blank one offered for entry.
    std::vector<std::vector<std::string>> Rows(int nRows) const {
        std::vector<std::vector<std::string>> rows;
        for (int r = 1; r <= nRows; ++r) {
            std::vector<std::string> row;
            for (int c = 0; c <= kGridColumnCount; ++c) row.push_back(Cell(c, r));
            rows.push_back(row);
        }
        return rows;
    }
};

// What legitimately differs after a load: the stored-line columns (21 to 25) are
// written by the loader only, as is the scheme's customer (40), which takes the text
// of the customer box, and the date of a row's schemes (41). Column 7 is the source
// loader's, 14 never written, 16, 18, 20, 26, 28, 34, 36 to 39 are not stored with
// the note: they stay empty. On a free row the original price (11) is not kept.
// A link list as the save stores it: the serials without empty entries, so ",5"
// comes back as "5"; a flag as a number, so an empty one comes back as "0".
std::string Comparable(int col, const std::string& text) {
    if (col == colItemCheck || col == colSplCatSerial) {
        std::string list;
        for (const auto& part : platform::Split(text, ","))
            if (!part.empty()) list += (list.empty() ? "" : ",") + part;
        return list;
    }
    if (col == colOCGItem || col == colSplCategoryScheme) return platform::NumberToText(platform::Val(text));
    return text;
}

// The available quantity holds the stock figure before and the batch code of the stored
// line after; the previous quantity comes back as its text.
bool RestoredColumn(int col) {
    static const std::set<int> kLoaderColumns = {
        colAvailableQty,      colPrevQty,          colBatchRequired, colSchemeName,     colPromptMessage,
        colPrimaryItemCode,   colBatchSelection,   colStoredBatch,   colStoredQty,      colStoredRow,
        colStoredExpiry,      colStoredPKD,        colBatchCode,     colUOMDesc,        colSplCatSchemeIndicator,
        colSplCatDiscPercent, colSplCatDiscAmount, colSplCatCode,    colFreeItmIgnored, colSchemeCustID,
        colSchemeInvDate};
    return !kLoaderColumns.contains(col);
}

TEST_F(LoadRoundTripTest, ASavedNoteLoadsBackCellForCell) {
    // Crackers of an older receipt, without a batch number like the rest: 10 of the
    // 40 keyed come from it, 30 from batch 8.
    database->ExecuteNative(
        "INSERT INTO Batch_Products (Product_Code, Batch_Number, Quantity, PurchasePrice, SalePrice, PTS, PTR, "
        "ECP, MRP, Company_Price, CreationDate) SELECT Product_Code, Batch_Number, 10, PurchasePrice, SalePrice, "
        "PTS, PTR, ECP, MRP, Company_Price, '2020-01-01 00:00:00' FROM Batch_Products WHERE Batch_Code = 8");
    auto& f = OpenForRavi();
    // Marie in three units (1 case, 2 boxes, 3 pieces: 291 pieces) and by the box;
    // Cream Biscuit; Salt Crackers over two batches; the schemes give Marie's free box and the biscuit
    // category's free Cream Biscuit.
    KeyLine(1, "FD001", "1*2*3");
    KeyLine(2, "FD001", "8");
    KeyLine(3, "FD002", "2");
    KeyLine(4, "FD003", "40");
    answers.Queue("SelectFreeItem", {"FD001"});
    answers.Queue("SelectFreeItem", {"FD002"});
    f.cmdApplyScheme_Click();
    const int nRows = f.DTFlexDispatch.IsBlankRow(f.DTFlexDispatch.GridRows()) ? f.DTFlexDispatch.GridRows() - 1
                                                                               : f.DTFlexDispatch.GridRows();
    ASSERT_GE(nRows, 5) << "the schemes gave no free row: " << LastStatus() << ErrorLines() << Cells({1, 4, 6, 27, 22});
    const auto before = Rows(nRows);

    ASSERT_TRUE(f.SaveDispatch()) << ErrorLines() << LastStatus();
    const long nDispatchID = static_cast<long>(platform::Val(Scalar("SELECT MAX(DispatchID) FROM DispatchAbstract")));
    // The three-unit line and the crackers were stored as several rows each.
    EXPECT_NE(Scalar("SELECT COUNT(*) FROM DispatchDetail WHERE DispatchID = " + std::to_string(nDispatchID)),
              std::to_string(nRows));

    component = std::make_unique<screen::Zuro_clsDispatch>(host->Services());
    auto& view = Open(4);
    view.LoadDispatchInfo(nDispatchID);
    ASSERT_EQ(Errors(), 0) << ErrorLines();
    const auto after = Rows(nRows);
    for (int r = 0; r < nRows; ++r) {
        const bool bFree = before[r][colFreeItem] == "1";
        for (int c = 1; c <= kGridColumnCount; ++c) {
            if (!RestoredColumn(c) || (bFree && c == colOriginalPrice)) continue;
            EXPECT_EQ(Comparable(c, after[r][c]), Comparable(c, before[r][c])) << "row " << r + 1 << " column " << c;
        }
    }
    // The quantity of the three-unit line comes back in base units beside its text.
    EXPECT_EQ(std::tuple(after[0][colStoredQty], after[0][colStoredRow]), std::tuple("291", "1"));
}

}  // namespace
}  // namespace screen_test
