#include "parties/party_boxes.h"

#include "parties/party_support.h"
#include "platform/convert.h"

namespace parties {

platform::TextBox& CustomerBox(screen::Zuro_frmDispatch_Dispatch& form, host_services::HostGlobal& global) {
    return global.GetCustomerNameFirst() ? form.txtCustomer : form.txtCustomerID;
}

host_services::AutoList& SalesmanList(screen::Zuro_frmDispatch_Dispatch& form,
                                      const host_services::HostServices& host) {
    return PartyList(form.objSalesmanList, host.newAutoList, form, form.txtSalesman);
}

host_services::AutoList& BeatList(screen::Zuro_frmDispatch_Dispatch& form, const host_services::HostServices& host) {
    return PartyList(form.objBeatList, host.newAutoList, form, form.txtBeat);
}

void WriteBox(platform::TextBox& box, const std::string& text, const std::string& tag) {
    box.SetText(text);
    box.Tag = tag;
}

void MoveOnFromParty(screen::Zuro_frmDispatch_Dispatch& form, host_services::HostGlobal& global,
                     platform::Control& nextField) {
    form.LoadPreviousValues();
    if (!form.bPartyAutoFilled) {
        nextField.SetFocus();
        return;
    }
    form.bPartyAutoFilled = false;
    for (platform::TextBox* box : {&form.txtBeat, &CustomerBox(form, global), &form.txtCategory}) {
        if (platform::Trim(box->Text()).empty()) {
            box->SetFocus();
            return;
        }
    }
    form.txtref.SetFocus();
}

bool IsAllCategoriesText(const std::string& text, host_services::HostMessages& messages) {
    return platform::UCase(text) == platform::UCase(messages.GetBaseLabel("All Categories"));
}

}  // namespace parties
