// What the ticked rows of the document list give the screen: the document
// numbers, their IDs and the customer they belong to.
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
// A comma list built with a trailing comma loses it, as the screen always cut it.
void CutLastCharacter(std::string& list) {
    list = platform::Trim(list);
    if (!list.empty()) list.pop_back();
}
}  // namespace

void Zuro_frmDispatch_Dispatch::GetDetails() {
    Handled("GetDetails", [&] {
        szDocNumbers.clear();
        szDocIDs.clear();
        szDocIDs2.clear();
        bool customerTaken = false;
        auto takeCustomer = [&](const platform::ListItem& row) {
            const int selected = lstSO.SelectedIndex();
            const std::string fromSelected = selected > 0 ? lstSO.Item(selected).SubItem(8) : std::string();
            szCustomerCode = platform::Trim(fromSelected).empty() ? row.Tag : fromSelected;
            customerTaken = true;
        };
        for (int i = 1; i <= lstSO.Count(); ++i) {
            const platform::ListItem& row = lstSO.Item(i);
            if (!row.Checked) continue;
            if (row.Text.empty()) {
                szDocNumbers += row.SubItem(6) + ",";
                szDocIDs += row.SubItem(1) + ",";
                szPONumbers += row.SubItem(5) + ",";
                szDocIDs2 += row.SubItem(1) + ",";
                if (!customerTaken) {
                    takeCustomer(row);
                    szCustomerName = host_.global.LookupName("Customer", "CustomerID", "Company_Name", row.Tag);
                }
            } else if (!customerTaken) {
                takeCustomer(row);
                szCustomerName = row.Text;
            }
        }
        for (std::string* list : {&szDocNumbers, &szDocIDs, &szPONumbers, &szDocIDs2}) CutLastCharacter(*list);
    });
}

}  // namespace screen
