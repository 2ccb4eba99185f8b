// What the ticked rows of the document list give the screen: the document
// numbers, their IDs and the customer they belong to.
#include "platform/convert.h"
#include "platform/runtime_error.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
// A comma list built with a trailing comma loses it, as the screen always cut it;
// a list that took nothing loses its last character all the same.
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
        // The customer's code comes from the selected row, or from the ticked row's
        // key when the selected row carries none.
        auto customerCodeOf = [&](const platform::ListItem& row) {
            const int selected = lstSO.SelectedIndex();
            if (selected == 0) throw platform::RuntimeError(platform::err::ObjectNotSet);
            const std::string fromSelected = lstSO.Item(selected).SubItem(8);
            return platform::Trim(fromSelected).empty() ? row.Tag : fromSelected;
        };
        bool bRowTicked = false;
        bool bDocumentTicked = false;
        for (int i = 1; i <= lstSO.Count(); ++i) {
            const platform::ListItem& row = lstSO.Item(i);
            if (!row.Checked) continue;
            if (row.Text.empty()) {
                szDocNumbers += row.SubItem(6) + ",";
                szDocIDs += row.SubItem(1) + ",";
                szPONumbers += row.SubItem(5) + ",";
                szDocIDs2 += row.SubItem(1) + ",";
                if (!bDocumentTicked) {
                    szCustomerCode = customerCodeOf(row);
                    szCustomerName = host_.global.LookupName("Customer", "CustomerID", "Company_Name", row.Tag);
                    bDocumentTicked = true;
                }
            } else if (!bRowTicked) {
                szCustomerCode = customerCodeOf(row);
                szCustomerName = row.Text;
            }
            bRowTicked = true;
        }
        for (std::string* list : {&szDocNumbers, &szDocIDs, &szPONumbers, &szDocIDs2}) CutLastCharacter(*list);
    });
}

bool Zuro_frmDispatch_Dispatch::Validate() {
    bool bTicked = false;
    Handled("Validate", [&] {
        for (int i = 1; i <= lstSO.Count() && !bTicked; ++i) bTicked = lstSO.Item(i).Checked;
    });
    return bTicked;
}

}  // namespace screen
