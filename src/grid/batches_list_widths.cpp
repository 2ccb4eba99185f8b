// How wide the stock list's columns are: five widths a screen from formatinfo, and
// per item only the columns its batches fill.
#include "grid/batches_list_columns.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
constexpr int kWidthsPerScreen = 5;
constexpr double kDefaultWidth = 1000;
// The frame and the list keep a margin around the columns.
constexpr double kFrameMargin = 920, kListMargin = 800;
// The five columns the widths belong to, in the order formatinfo holds them.
constexpr int kWidthColumns[kWidthsPerScreen] = {grid::kListBatchColumn, grid::kListExpiryColumn,
                                                 grid::kListPriceColumn, grid::kListQuantityColumn,
                                                 grid::kListRemarksColumn};

void SetColumnWidth(platform::ListView& list, int column, double width) {
    if (column >= static_cast<int>(list.ColumnHeaders.size())) throw platform::RuntimeError(35600);
    list.ColumnHeaders[static_cast<std::size_t>(column)].Width = width;
}
}  // namespace

void Zuro_frmDispatch_Dispatch::LoadListWidths(long nScreen, platform::Frame& frame, platform::ListView& list) {
    Handled("LoadListWidths", [&] {
        const long nFirst = (nScreen - 1) * kWidthsPerScreen + 10;
        auto widths = host_.global.GetConnection().Execute(
            "Select colwidth from formatinfo where formatid>=" + std::to_string(nFirst) +
            "and formatid<=" + std::to_string(nFirst + 4));
        vListWidths.clear();
        double dSum = 0;
        if (widths->Eof()) vListWidths.assign(kWidthsPerScreen, kDefaultWidth);
        for (; !widths->Eof(); widths->MoveNext()) {
            const double dWidth = host_.global.ToNumber(widths->Fields(0));
            vListWidths.push_back(dWidth);
            dSum += dWidth;
        }
        widths->Close();
        // A screen with fewer than five widths stored takes the default for the rest.
        while (vListWidths.size() < kWidthsPerScreen) vListWidths.push_back(kDefaultWidth);
        for (int i = 0; i < kWidthsPerScreen; ++i)
            SetColumnWidth(list, kWidthColumns[i], vListWidths[static_cast<std::size_t>(i)]);
        frame.Width = dSum + kFrameMargin;
        list.Width = dSum + kListMargin;
    });
}

void Zuro_frmDispatch_Dispatch::SetGridMode(platform::ListView& list, long nPriceOption, long /*nBatchTrack*/,
                                            const std::string& szItemCode) {
    Handled("SetGridMode", [&] {
        auto& global = host_.global;
        LoadListWidths(global.GetItemListScreenNumber(), FrameAvailable, list);
        const std::string szCode = global.EscapeQuotes(szItemCode);
        const long nVirtual = static_cast<long>(global.ToNumber(global.LookupValue(
            global.GetConnection(),
            "SELECT ISNULL(Virtual_Track_Batches, 0) FROM Items WHERE Product_Code = N'" + szCode + "'")));
        const long nPKD = static_cast<long>(global.ToNumber(global.LookupValue(
            global.GetConnection(), "SELECT ISNULL(TrackPKD, 0) FROM Items WHERE Product_Code = N'" + szCode + "'")));
        // Only what the item's batches carry is shown.
        SetColumnWidth(list, grid::kListBatchColumn, nVirtual == 1 ? vListWidths.at(0) : 0);
        SetColumnWidth(list, grid::kListExpiryColumn, nPKD == 1 || nVirtual == 1 ? vListWidths.at(1) : 0);
        SetColumnWidth(list, grid::kListPriceColumn, nPriceOption == 1 ? vListWidths.at(2) : 0);
    });
}

long Zuro_frmDispatch_Dispatch::GetItemBatchFlags(const std::string& szItemCode, long& nVirtualBatches) {
    long nTrackPKD = 0;
    nVirtualBatches = 0;
    Handled("GetItemBatchFlags", [&] {
        auto& global = host_.global;
        auto flags = global.GetConnection().Execute(
            "SELECT TrackPKD, IsNull(Virtual_Track_Batches,0) FROM Items WHERE Product_Code = N'" + szItemCode + "'");
        if (!flags->Eof()) {
            nTrackPKD = static_cast<long>(global.ToNumber(flags->Fields(0)));
            nVirtualBatches = static_cast<long>(global.ToNumber(flags->Fields(1)));
        }
        flags->Close();
    });
    return nTrackPKD;
}

}  // namespace screen
