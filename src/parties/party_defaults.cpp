// Parties that come from elsewhere: the defaults of a source document, the names of
// a list of groups, and the customer's own salesman and beat.
#include "parties/party_boxes.h"
#include "parties/party_support.h"
#include "platform/convert.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::SetDefaultSalesman(long nSalesmanID) {
    Handled("SetDefaultSalesman", [&] {
        parties::ProgramWrite writing({&parties::SalesmanList(*this, host_)});
        const std::string szID = platform::ToText(platform::Value(nSalesmanID));
        const std::string szName = host_.global.LookupName("Salesman", "SalesmanID", "Salesman_Name", szID);
        parties::WriteBox(txtSalesman, szName, szID);
    });
}

void Zuro_frmDispatch_Dispatch::SetDefaultBeat(long nBeatID) {
    Handled("SetDefaultBeat", [&] {
        parties::ProgramWrite writing({&parties::BeatList(*this, host_)});
        const std::string szID = platform::ToText(platform::Value(nBeatID));
        const std::string szName = host_.global.LookupName("Beat", "BeatID", "Description", szID);
        parties::WriteBox(txtBeat, szName, szID);
    });
}

// The group may be a comma list of IDs; its leading ID tells whether any group is
// named at all.
void Zuro_frmDispatch_Dispatch::SetDefaultCatGroup(const std::string& szGroup) {
    Handled("SetDefaultCatGroup", [&] {
        if (platform::Val(szGroup) <= 0) {
            parties::WriteBox(txtCategory, szLblAllCategories, "0");
            return;
        }
        const std::string szNames = GetCategoryGroupNames(szGroup);
        parties::WriteBox(txtCategory, szNames, szGroup);
    });
}

std::string Zuro_frmDispatch_Dispatch::GetCategoryGroupNames(const std::string& szIDs) {
    std::string szNames;
    Handled("GetCategoryGroupNames", [&] {
        auto& global = host_.global;
        auto rs = global.NextRecordset(
            global.RunProcedure("Zuro_sp_Get_CGNames", {{platform::Value(szIDs), platform::adtype::VarChar}}));
        for (; rs && rs->IsOpen() && !rs->Eof(); rs->MoveNext())
            szNames += (szNames.empty() ? "" : ",") + platform::ToText(rs->Fields(0));
        if (rs && rs->IsOpen()) rs->Close();
    });
    return szNames;
}

void Zuro_frmDispatch_Dispatch::LoadDefaultBeatSalesman() {
    Handled("LoadDefaultBeatSalesman", [&] {
        auto& global = host_.global;
        {
            parties::ProgramWrite writing({&parties::SalesmanList(*this, host_), &parties::BeatList(*this, host_)});
            auto rs = global.NextRecordset(global.RunProcedure(
                "Sp_Get_BeatSalesMan_QAX", {{platform::Value(txtCustomerID.Text()), platform::adtype::VarChar},
                                            {platform::Value(1), platform::adtype::Integer}}));
            if (rs && rs->IsOpen() && !rs->Eof()) {
                txtSalesman.SetText(platform::ToText(rs->Fields("Salesman_Name")));
                txtBeat.Tag = platform::ToText(rs->Fields("BeatID"));
                txtBeat.SetText(platform::ToText(rs->Fields("BeatName")));
                txtSalesman.Tag = platform::ToText(rs->Fields("SalesmanID"));
            }
            if (rs && rs->IsOpen()) rs->Close();
        }
        txtCategory.SetFocus();
    });
}

}  // namespace screen
