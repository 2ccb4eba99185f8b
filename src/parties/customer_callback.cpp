// The customer form hands a customer it has saved back to the dispatch screen.
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::CustomerCallBack(const std::string& szCode, const std::string& szName) {
    Handled("CustomerCallBack", [&] {
        if (objCustomerList) objCustomerList->SetEnabled(true);
        platform::TextBox& box = nCustomerEntrySource == 2 ? txtCustomerID : txtCustomer;
        if (!szCode.empty()) {
            if (nCustomerEntrySource == 2) {
                txtCustomerID.SetText(szCode);
                txtCustomerID.Tag = szCode;
            } else {
                txtCustomer.SetText(szName);
                txtCustomer.Tag = szCode;
            }
        }
        if (objCustomerList) objCustomerList->SetEnabled(false);
        box.SetFocus();
    });
}

}  // namespace screen
