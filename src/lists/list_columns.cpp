// The document list's columns for the mode: pending confirmations keep the designed
// columns, stored notes and received orders rename and narrow some of them.
#include "platform/runtime_error.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
constexpr int kAlignLeft = 0;
constexpr long kSubscriptOutOfRange = 35600;
}  // namespace

void Zuro_frmDispatch_Dispatch::InitList() {
    Handled("InitList", [&] {
        auto& messages = host_.messages;
        // Columns from 1, as the list numbers them.
        auto column = [&](int n) -> platform::ColumnHeader& {
            if (n < 1 || n > static_cast<int>(lstSO.ColumnHeaders.size()))
                throw platform::RuntimeError(kSubscriptOutOfRange);
            return lstSO.ColumnHeaders[static_cast<std::size_t>(n - 1)];
        };
        switch (nMode) {
            case mode::FromSalesConfirmation:
            case mode::FromAlert: column(5).Width = 0; break;
            case mode::View:
            case mode::Cancel:
            case mode::Amendment:
                column(1).Width = 2500;
                column(2).Text = messages.GetLabel("Dispatch ID");
                column(2).Width = 1100;
                column(3).Width = 1300;
                column(4).Text = messages.GetLabel("Status");
                column(4).Width = 1200;
                column(4).Alignment = kAlignLeft;
                column(5).Width = 0;
                break;
            case mode::FromPurchaseOrder:
                column(1).Width = 2000;
                column(2).Text = messages.GetLabel("PO Number");
                column(2).Width = 1100;
                column(3).Width = 1300;
                column(4).Width = 0;
                column(6).Width = 0;
                break;
            default: break;
        }
    });
}

}  // namespace screen
