// Filling the stock list from the stock procedure: one entry per row it returns,
// in its order, quantities and prices in the row's unit. Expired stock is never
// offered, whatever the procedure returns.
#include <iterator>
#include <optional>

#include "grid/batches_list_columns.h"
#include "grid/item_entry_cells.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
// Fields of a stock row, by position.
enum StockField {
    fBatch,
    fExpiry,
    fQuantity,
    fSalePrice,
    fPKD,
    fFree,
    fTaxSuffered,
    fECP,
    fPTS,
    fPTR,
    fSpecialPrice,
    fApplicableOn,
    fPartOfPercentage
};
constexpr double kPKDWidth = 800;
// The price kinds a batch's tax is reckoned on, by ApplicableOn.
constexpr const char* kPriceKinds[] = {"", "SP", "PTS", "PTR", "ECP", "SPLPRICE", "MRP"};

bool ExpiredBefore(const platform::Value& expiry, platform::Date day) {
    if (expiry.IsNull() || expiry.IsEmpty()) return false;
    std::optional<platform::Date> date;
    if (expiry.kind() == platform::Value::Kind::Date)
        date = expiry.AsDate();
    else
        date = platform::ParseIsoDate(platform::ToText(expiry));
    return date && platform::DateOnly(*date).serial < platform::DateOnly(day).serial;
}
}  // namespace

platform::RecordsetPtr Zuro_frmDispatch_Dispatch::OpenBatchStock(const std::string& szItemCode, long nBatchTrack,
                                                                 long nPriceOption, long nCustomerCategory,
                                                                 const std::string& szProcedure, long nVirtualBatches) {
    platform::RecordsetPtr stock;
    Handled("OpenBatchStock", [&] {
        auto& global = host_.global;
        using platform::adtype::Integer;
        stock = global.NextRecordset(global.RunProcedure(szProcedure.empty() ? "sp_get_bookstock" : szProcedure,
                                                         {{platform::Value(szItemCode), platform::adtype::VarChar},
                                                          {platform::Value(nBatchTrack), Integer},
                                                          {platform::Value(nPriceOption), Integer},
                                                          {platform::Value(nCustomerCategory), Integer},
                                                          {platform::Value(nVirtualBatches), Integer}}));
    });
    return stock;
}

double Zuro_frmDispatch_Dispatch::LoadBatchStock(platform::ListView& list, const std::string& szItemCode,
                                                 long nBatchTrack, long nPriceOption, long nCustomerCategory,
                                                 const std::string& szProcedure, long nVirtualBatches, long nTrackPKD,
                                                 double dRate, long nDetail) {
    double dTotal = 0;
    Handled("LoadBatchStock", [&] {
        auto& global = host_.global;
        auto stock =
            OpenBatchStock(szItemCode, nBatchTrack, nPriceOption, nCustomerCategory, szProcedure, nVirtualBatches);
        list.Clear();
        if (list.ColumnHeaders.size() <= grid::kListPKDColumn) throw platform::RuntimeError(35600);
        list.ColumnHeaders[grid::kListPKDColumn].Width = nTrackPKD != 0 ? kPKDWidth : 0;
        if (!stock || !stock->IsOpen()) return;

        const std::string szPriceFormat = global.GetNumberFormat(grid::kPriceFormatKind);
        const std::string szQtyFormat = global.GetNumberFormat(grid::kQuantityFormatKind);
        const platform::Date dtToday = global.GetTransactionDate();
        auto price = [&](int field) { return global.ToNumber(stock->Fields(field)) * dRate; };
        for (; !stock->Eof(); stock->MoveNext()) {
            if (ExpiredBefore(stock->Fields(fExpiry), dtToday)) continue;
            platform::ListItem& entry = list.Add(global.ToText(stock->Fields(fBatch)));
            entry.SetSubItem(grid::kSubExpiry, grid::MonthYear(stock->Fields(fExpiry)));
            entry.SetSubItem(grid::kSubPrice, platform::Format(price(fSalePrice), szPriceFormat));
            entry.SetSubItemTag(grid::kSubPrice, platform::NumberToText(price(fSalePrice)));
            const double dQuantity = global.ToNumber(stock->Fields(fQuantity));
            entry.SetSubItem(grid::kSubQuantity, platform::Format(grid::DivideByRate(dQuantity, dRate), szQtyFormat));
            if (nTrackPKD == 1) entry.SetSubItem(grid::kSubPKD, grid::MonthYear(stock->Fields(fPKD)));
            if (global.ToNumber(stock->Fields(fFree)) == 1)
                entry.SetSubItem(grid::kSubFree, host_.messages.GetYesText());
            const double dTax = global.ToNumber(stock->Fields(fTaxSuffered));
            entry.SetSubItem(grid::kSubTaxSuffered, platform::Format(dTax, szPriceFormat));
            entry.SetSubItemTag(grid::kSubTaxSuffered, platform::NumberToText(dTax));
            entry.SetSubItem(grid::kSubECP, platform::Format(price(fECP), szPriceFormat));
            if (nDetail == 1) {
                entry.SetSubItem(grid::kSubPTS, platform::Format(price(fPTS), szPriceFormat));
                entry.SetSubItem(grid::kSubPTR, platform::Format(price(fPTR), szPriceFormat));
                entry.SetSubItem(grid::kSubSpecialPrice, platform::Format(price(fSpecialPrice), szPriceFormat));
                const auto nKind = static_cast<long>(global.ToNumber(stock->Fields(fApplicableOn)));
                if (nKind > 0 && nKind < static_cast<long>(std::size(kPriceKinds)))
                    entry.SetSubItem(grid::kSubApplicableOn, host_.messages.GetLabel(kPriceKinds[nKind]));
                entry.SetSubItem(grid::kSubPartOfPercentage,
                                 platform::Format(stock->Fields(fPartOfPercentage), "Fixed"));
            }
            dTotal += dQuantity;
        }
        stock->Close();
    });
    return dTotal;
}

}  // namespace screen
