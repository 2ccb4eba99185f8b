// An amendment's corrections of the stock list. The note being amended already
// holds goods of its batches, and the stock no longer counts them: the list adds
// them back, to the entry they came from or as an entry of their own.
#include "grid/batches_list_columns.h"
#include "grid/item_entry_cells.h"
#include "grid/row_model/grid_columns.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
// The entry of a batch (any, for "Null"), price and free marker; 0 for none.
int FindEntry(const platform::ListView& list, const std::string& szBatch, const std::string& szPriceText,
              const std::string& szFreeMark) {
    for (int i = 1; i <= list.Count(); ++i) {
        const platform::ListItem& entry = list.Item(i);
        const bool bBatch = szBatch == "Null" || platform::LCase(entry.Text) == platform::LCase(szBatch);
        if (bBatch && entry.SubItem(grid::kSubPrice) == szPriceText && entry.SubItem(grid::kSubFree) == szFreeMark)
            return i;
    }
    return 0;
}
}  // namespace

void Zuro_frmDispatch_Dispatch::AddBatchInfo(const std::string& szBatch, double /*dQuantity*/, double dPrice,
                                             long nBatchCode) {
    Handled("AddBatchInfo", [&] {
        auto& global = host_.global;
        auto& messages = host_.messages;
        auto& grid = DTFlexDispatch;
        const int row = grid.GridRow();
        const std::string szPriceFormat = global.GetNumberFormat(grid::kPriceFormatKind);

        platform::ListItem& entry = lstAvailable.Add(szBatch);
        entry.SetSubItem(grid::kSubExpiry, grid::MonthYear(platform::Value(grid.GetCell(row, grid::colStoredExpiry))));
        entry.SetSubItem(grid::kSubPrice, platform::Format(dPrice, szPriceFormat));
        entry.SetSubItemTag(grid::kSubPrice, platform::NumberToText(dPrice));
        // The stored quantity is multiplied by the rate here, where the stock load
        // divides; the list has always shown it so.
        entry.SetSubItem(grid::kSubQuantity, platform::Format(grid::CellValue(grid, row, grid::colStoredQty) * dUOMRate,
                                                              global.GetNumberFormat(grid::kQuantityFormatKind)));
        if (lstAvailable.ColumnHeaders.at(grid::kListPKDColumn).Width > 0)
            entry.SetSubItem(grid::kSubPKD, grid::MonthYear(platform::Value(grid.GetCell(row, grid::colStoredPKD))));

        auto batch = global.GetConnection().Execute(
            "Select top 1 Batch_Code, IsNull(Free, 0) as Free, PTS, PTR, ECP, Company_Price, TaxSuffered, "
            "ApplicableOn, "
            "PartofPercentage from Batch_Products Where Batch_Code=" +
            std::to_string(nBatchCode));
        if (!batch->Eof()) {
            if (global.ToNumber(batch->Fields("Free")) == 1) entry.SetSubItem(grid::kSubFree, messages.GetYesText());
            entry.SetSubItem(grid::kSubTaxSuffered, platform::Format(batch->Fields("TaxSuffered"), szPriceFormat));
            entry.SetSubItemTag(grid::kSubTaxSuffered, global.ToText(batch->Fields("TaxSuffered")));
            entry.SetSubItem(grid::kSubECP, platform::Format(batch->Fields("ECP"), szPriceFormat));
            entry.SetSubItem(grid::kSubPTS, platform::Format(batch->Fields("PTS"), szPriceFormat));
            entry.SetSubItem(grid::kSubPTR, platform::Format(batch->Fields("PTR"), szPriceFormat));
            entry.SetSubItem(grid::kSubSpecialPrice, platform::Format(batch->Fields("Company_Price"), szPriceFormat));
            std::string szKind;
            switch (static_cast<long>(global.ToNumber(batch->Fields("ApplicableOn")))) {
                case 1: szKind = messages.GetBatchColumnText(1); break;
                case 2: szKind = messages.GetBatchColumnText(2); break;
                case 3: szKind = messages.GetBatchColumnText(3); break;
                case 4: szKind = messages.GetBatchColumnText(4); break;
                case 5: szKind = messages.GetLabel("SPLPRICE"); break;
                case 6: szKind = messages.GetBatchColumnText(5); break;
                default: break;
            }
            entry.SetSubItem(grid::kSubApplicableOn, szKind);
            entry.SetSubItem(grid::kSubPartOfPercentage, platform::Format(batch->Fields("PartofPercentage"), "Fixed"));
        }
        batch->Close();
    });
}

void Zuro_frmDispatch_Dispatch::PreserveOriginalQty(const std::string& szOption, const std::string& /*szExpiry*/,
                                                    const std::string& /*szPKD*/, double dPrice, double dQuantity) {
    Handled("PreserveOriginalQty", [&] {
        const bool bFreeRow = grid::CellValue(DTFlexDispatch, DTFlexDispatch.GridRow(), grid::colFreeRow) == 1;
        AddUnBatchQty(szOption, dPrice, dQuantity, bFreeRow ? 1 : 0);
    });
}

void Zuro_frmDispatch_Dispatch::AddUnBatchQty(const std::string& szBatchOption, double dPrice, double dQuantity,
                                              long nFree) {
    Handled("AddUnBatchQty", [&] {
        if (!(dQuantity > 0)) return;
        auto& global = host_.global;
        const double dRowQty = grid::DivideByRate(dQuantity, dUOMRate);
        const std::string szFreeMark = nFree == 1 ? host_.messages.GetYesText() : "";
        const int nEntry =
            FindEntry(lstAvailable, szBatchOption,
                      platform::Format(dPrice, global.GetNumberFormat(grid::kPriceFormatKind)), szFreeMark);
        if (nEntry == 0) return;
        platform::ListItem& entry = lstAvailable.Item(nEntry);
        entry.SetSubItem(grid::kSubQuantity,
                         platform::Format(platform::Val(entry.SubItem(grid::kSubQuantity)) + dRowQty,
                                          global.GetNumberFormat(grid::kQuantityFormatKind)));
    });
}

void Zuro_frmDispatch_Dispatch::AddUnBatchInfo(double dQuantity, double dPrice, const std::string& szExpiry,
                                               const std::string& szPKD, const std::string& szFreeText) {
    Handled("AddUnBatchInfo", [&] {
        if (!(dQuantity > 0)) return;
        auto& global = host_.global;
        const double dRowQty = grid::DivideByRate(dQuantity, dUOMRate);
        platform::ListItem& entry = lstAvailable.Add();
        entry.SetSubItem(grid::kSubExpiry, szExpiry);
        entry.SetSubItem(grid::kSubPrice, platform::Format(dPrice, global.GetNumberFormat(grid::kPriceFormatKind)));
        entry.SetSubItemTag(grid::kSubPrice, platform::NumberToText(dPrice));
        entry.SetSubItem(grid::kSubQuantity,
                         platform::Format(dRowQty, global.GetNumberFormat(grid::kQuantityFormatKind)));
        entry.SetSubItem(grid::kSubPKD, szPKD);
        if (!platform::Trim(szFreeText).empty()) entry.SetSubItem(grid::kSubFree, szFreeText);
    });
}

}  // namespace screen
