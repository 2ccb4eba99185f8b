// The customers on the salesman's beat: the previous one comes back when it is
// among them, a single one fills both customer boxes and its addresses, and with
// any other count the boxes are let go.
#include "parties/party_boxes.h"
#include "parties/party_support.h"
#include "platform/convert.h"
#include "platform/key_codes.h"

namespace screen {

namespace keys = platform::keys;

void Zuro_frmDispatch_Dispatch::LoadCustomer() {
    Handled("LoadCustomer", [&] {
        auto& global = host_.global;
        const std::string szSQL =
            "Select Distinct CustomerID,Company_Name From dbo.Fn_Get_MappedSalemanBeatAndCustomer_QAX(" +
            parties::SqlNumber(GetSalesmanID()) + "," + parties::SqlNumber(GetBeatID()) + ",''" +
            ") Where IsNull(Company_Name,'') <> '' And Company_Name Like '%%' Order By Company_Name";
        const bool bCustomerFilled = !platform::Trim(txtCustomer.Text()).empty() && !txtCustomer.Tag.empty();
        const parties::Candidates found = parties::WalkCandidates(
            global.GetConnection(), szSQL, [&](const std::string& key, const std::string& name) {
                return bCustomerFilled && key == szPrevCustomerCode && name == szPrevCustomerName;
            });

        if (found.previousFound) {
            parties::ProgramWrite writing({objCustomerList.get()});
            parties::WriteBox(txtCustomer, szPrevCustomerName, szPrevCustomerCode);
            parties::WriteBox(txtCustomerID, szPrevCustomerCode, szPrevCustomerCode);
            return;
        }
        if (found.count == 1) {
            {
                parties::ProgramWrite writing({objCustomerList.get()});
                parties::WriteBox(txtCustomer, found.firstName, found.firstKey);
                parties::WriteBox(txtCustomerID, found.firstKey, found.firstKey);
            }
            LoadCustomerAdd();
            if (found.firstKey != szPrevCustomerCode) CheckTinNumber();
        } else {
            ClearCustomer();
        }

        int nKeyAscii = keys::Enter;
        txtCustomer_KeyPress(nKeyAscii);
        nKeyAscii = keys::Enter;
        txtCustomerID_KeyPress(nKeyAscii);

        platform::TextBox& customerBox = parties::CustomerBox(*this, global);
        if (!platform::Trim(customerBox.Text()).empty()) {
            bPartyAutoFilled = true;
            customerBox.SetFocus();
        }
    });
}

}  // namespace screen
