// The salesmen that the beat and the customer allow: the previous one comes back
// when it is among them, a single one fills the box by itself.
#include "parties/party_boxes.h"
#include "parties/party_support.h"
#include "platform/convert.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::LoadSalesman() {
    Handled("LoadSalesman", [&] {
        auto& global = host_.global;
        auto& list = parties::SalesmanList(*this, host_);
        const std::string szSQL =
            "Select Distinct SalesmanID,Salesman_Name From dbo.Fn_Get_MappedSalemanBeatAndCustomer_QAX(" +
            std::string("0") + "," + parties::SqlNumber(platform::ToNumber(txtBeat.Tag)) + ",'" +
            global.EscapeQuotes(txtCustomer.Text()) +
            "') Where IsNull(Salesman_Name,'') <> '' And Salesman_Name Like '%%' Order By Salesman_Name";
        const parties::Candidates found = parties::WalkCandidates(
            global.GetConnection(), szSQL, [&](const std::string& key, const std::string& name) {
                return platform::ToNumber(key) == nPrevSalesmanID && name == szPrevSalesmanName;
            });

        if (found.previousFound) {
            parties::ProgramWrite writing({&list});
            parties::WriteBox(txtSalesman, szPrevSalesmanName,
                              platform::ToText(platform::Value(long{nPrevSalesmanID})));
            return;
        }
        // A single salesman that were the previous one would have been found above.
        if (found.count == 1) {
            {
                parties::ProgramWrite writing({&list});
                parties::WriteBox(txtSalesman, found.firstName, found.firstKey);
            }
            bPartyAutoFilled = true;
            bool bRefused = false;
            CheckForGridItem(2, bRefused);
        } else {
            parties::ProgramWrite writing({&list});
            parties::WriteBox(txtSalesman, "", "");
        }

        if (!platform::Trim(txtSalesman.Text()).empty()) {
            bPartyAutoFilled = true;
            txtBeat.SetFocus();
        }
    });
}

}  // namespace screen
