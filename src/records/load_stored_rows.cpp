// The grid of a stored note, rebuilt row by row with its hidden columns: serials,
// free-row flags and scheme columns stand as they were saved, so the scheme links
// hold again. The special category's discount columns, code and indicator are not
// stored and stay empty. Runs under LoadDispatchInfo's handler.
#include "grid/row_model/grid_columns.h"
#include "platform/convert.h"
#include "screen/procedure_results.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

using namespace grid;

namespace {
using platform::adtype::Integer;

// The detail's fields, by position.
enum DetailField {
    kItemCode = 0,
    kItemName = 1,
    kBaseQty = 2,
    kBatch = 3,
    kOriginalPrice = 4,
    kUnitText = 5,
    kBatchCode = 6,
    kTrackInventory = 7,
    kPriceOption = 8,
    kExpiry = 9,
    kPKD = 10,
    kFreeLine = 11,
    kBatchTrack = 12
};

// The grid columns the amendment keeps of each loaded row, in the order it reads them.
constexpr int kOldDetailColumns[] = {colItemCode,  colAvailableQty,   colQuantity,
                                     colSalePrice, colTrackInventory, colUOMID};
constexpr long kOldDetailWidth = 6;

// The table one row longer, its rows kept.
platform::VariantTable WithOneMoreRow(const platform::VariantTable& table) {
    const long nRows = table.IsArray() ? table.UBound(1) : 0;
    platform::VariantTable grown(nRows + 1, kOldDetailWidth);
    for (long r = 1; r <= nRows; ++r)
        for (long c = 1; c <= kOldDetailWidth; ++c) grown.At(r, c) = table.At(r, c);
    return grown;
}
}  // namespace

void Zuro_frmDispatch_Dispatch::LoadStoredRows(long DispatchID) {
    auto& global = host_.global;
    auto& grid = DTFlexDispatch;
    auto rs = global.NextRecordset(
        global.RunProcedure("sp_view_DispatchDetails_MUOM_QAX", {{platform::Value(DispatchID), Integer}}));
    if (!HasRecordset(rs)) return;

    grid.ClearGrid();
    // No item list is made in the view and cancel modes: nothing to silence there.
    if (objItemList) objItemList->SetEnabled(true);
    vOldDetail = platform::VariantTable(1, kOldDetailWidth);

    long nRow = 1;
    for (; !rs->Eof(); rs->MoveNext(), ++nRow) {
        auto text = [&](const platform::Value& value) { return global.ToText(value); };
        auto field = [&](int n) { return text(rs->Fields(n)); };
        auto named = [&](const char* name) { return text(rs->Fields(name)); };
        const int nAt = static_cast<int>(nRow);
        auto set = [&](int col, const std::string& value) { grid.SetCell(nAt, col, value); };

        if (grid.GridRows() < nAt) grid.SetGridRows(nAt);
        set(0, platform::NumberToText(static_cast<double>(nRow)));
        set(colStoredRow, "1");
        set(colItemCode, field(kItemCode));
        set(colItemName, field(kItemName));

        // A quantity keyed in several units comes back as the expression it was typed as.
        const std::string szQty = named("UOMQty");
        const double fBaseQty = szQty.find('*') != std::string::npos
                                    ? global.ConvertToDisplayUOM(field(kItemCode), szQty)
                                    : global.ToNumber(rs->Fields(kBaseQty));
        set(colQuantity, szQty);
        set(colBatch, field(kBatch));
        set(colUOM, field(kUnitText));
        set(colAvailableQty, field(kBatchCode));
        set(colPrevQty, szQty);

        set(colItemCheck, named("FreeSerial"));
        set(colSerialNo, named("Serial"));
        set(colSchemeID, named("CSchemeID"));
        set(colMultiSchemeDetail, named("MultipleSchemeDetails"));

        if (global.ToNumber(rs->Fields(kFreeLine)) == 1) {
            set(colSalePrice, "0");
            set(colFreeItem, "1");
            set(colPriceOption, "1");
        } else {
            set(colSalePrice, named("UOMPrice"));
            set(colOriginalPrice, field(kOriginalPrice));
        }

        set(colTrackInventory, field(kTrackInventory));
        set(colPriceOption, field(kPriceOption));
        set(colStoredQty, platform::NumberToText(fBaseQty));
        set(colStoredBatch, field(kBatch));
        set(colStoredExpiry, field(kExpiry));
        set(colStoredPKD, field(kPKD));
        set(colBatchTrack, field(kBatchTrack));
        set(colUOMID, named("UOMID"));

        const double fFree = global.ToNumber(rs->Fields("Free"));
        if (fFree == 1) set(colFreeRow, "1");
        if (fFree == 0) set(colFreeRow, "0");
        set(colOCGItem, named("OtherCG_Item"));
        if (global.ToNumber(rs->Fields("OtherCG_Item")) == 1) set(colFreeItem, "1");

        // Row n of the record is grid row n; the first fills the row the table was sized to.
        if (vOldDetail.UBound(1) < nRow) vOldDetail = WithOneMoreRow(vOldDetail);
        for (long c = 1; c <= kOldDetailWidth; ++c)
            vOldDetail.At(nRow, c) = platform::Value(grid.GetCell(nAt, kOldDetailColumns[c - 1]));

        // The counter takes each stored serial in turn and ends at the last row's.
        long nSerial = static_cast<long>(platform::Int(global.ToNumber(rs->Fields("Serial"))));
        std::int16_t iResetAll = 0, bToSet = 1;
        Add_Unique_Serial(nSerial, iResetAll, bToSet);

        set(colSchemeCustID, txtCustomer.Text());
        if (global.ToNumber(rs->Fields("SchemeID")) != 0)
            set(colSchemeInvDate, global.ToText(platform::Value(DTDispatchDate.Value)));

        set(colSplCatSchemeID, named("SPLCATSCHEMEID"));
        set(colSplCategoryScheme, named("SpecialCategoryScheme"));
        set(colSplCatSerial, named("SPLCATSERIAL"));
        set(colMultiSpecialCatSchemeDetail, named("MultipleSplCategorySchDetail"));
    }

    if (objItemList) objItemList->SetEnabled(false);
    RequireObject(objCustomerList).SetEnabled(false);
    rs->Close();
}

}  // namespace screen
