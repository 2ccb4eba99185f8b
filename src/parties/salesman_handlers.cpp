// The salesman box: its type-ahead list, Enter that narrows beat, customer and
// category group to the salesman, and leaving the box with a name that was typed
// rather than chosen.
#include "parties/party_boxes.h"
#include "parties/party_support.h"
#include "platform/convert.h"
#include "platform/key_codes.h"

namespace screen {

namespace keys = platform::keys;

void Zuro_frmDispatch_Dispatch::txtSalesman_Change() {
    Handled("txtSalesman_Change", [&] {
        auto& list = parties::SalesmanList(*this, host_);
        list.AttachControl(txtSalesman);
        list.SetCaption("SalesMan Name");
        list.SetDisplayField("SalesMan_Name");
        list.SetKeyField("SalesManID");
        list.SetTableName("SalesMan");
        list.SetLockedToList(true);
        list.SetQuery("", 0, 1);
        list.ShowList(txtSalesman.Text());
    });
}

void Zuro_frmDispatch_Dispatch::txtSalesman_KeyDown(int& KeyCode, int Shift) {
    Handled("txtSalesman_KeyDown", [&] {
        auto& global = host_.global;
        if (objSalesmanList && objSalesmanList->GetVisible()) objSalesmanList->ListKeyDown(KeyCode, Shift, 0);

        if (KeyCode == keys::Enter && Shift == global.GetShiftMask()) {
            bAllCategories = false;
            if (platform::Trim(txtSalesman.Text()).empty()) {
                parties::MoveOnFromParty(*this, global, txtBeat);
                return;
            }
            if (txtSalesman.Tag.empty()) {
                global.ShowNumberedMessage(6, 1, {});
                ClearSalesman();
                txtSalesman.SetFocus();
                return;
            }
            global.ShowStatus(global.GetReadyMessage(), 0);

            const bool bSalesmanChanged = nPrevSalesmanID == 0 ||
                                          platform::ToNumber(txtSalesman.Tag) != nPrevSalesmanID ||
                                          txtSalesman.Text() != szPrevSalesmanName;
            if (bSalesmanChanged) {
                if (!platform::Trim(szPrevGroupID).empty()) {
                    bool bRefused = false;
                    CheckForGridItem(0, bRefused);
                    if (bRefused) return;
                }
            } else {
                const bool bOthersUnchanged =
                    platform::ToNumber(txtBeat.Tag) == nPrevBeatID && txtBeat.Text() == szPrevBeatName &&
                    txtCustomer.Tag == szPrevCustomerCode && txtCustomer.Text() == szPrevCustomerName &&
                    txtCategory.Tag == szPrevGroupID && platform::Trim(txtCategory.Text()) == szPrevGroupName;
                if (bOthersUnchanged) {
                    txtBeat.SetFocus();
                    return;
                }
            }

            const bool bSalesmanSet = !platform::Trim(txtSalesman.Text()).empty();
            ClearBeat();
            if (bSalesmanSet) LoadBeat();
            LoadCustomer();
            if (bSalesmanSet) LoadCategoryGroup(1);
            if (DSTypeNotMapped(txtCategory.Text())) {
                txtSalesman.SetFocus();
                return;
            }
            parties::MoveOnFromParty(*this, global, txtBeat);
        } else if (KeyCode == keys::Enter && Shift == keys::ShiftMask) {
            parties::CustomerBox(*this, global).SetFocus();
        }
    });
}

void Zuro_frmDispatch_Dispatch::txtSalesman_LostFocus() {
    Handled("txtSalesman_LostFocus", [&] {
        auto& global = host_.global;
        if (platform::Trim(txtSalesman.Text()).empty()) {
            // Built as a string: g++ 12 warns falsely (-Wrestrict) on the bare literal here.
            txtSalesman.Tag = std::string("0");
            szPrevSalesmanName.clear();
            return;
        }
        if (!txtSalesman.Tag.empty()) return;

        // A name typed in full, not chosen from the list, is taken when the master
        // knows it.
        const std::string szCode = global.LookupCode("Salesman", "SalesmanID", "Salesman_Name", txtSalesman.Text());
        if (platform::ToNumber(szCode) == 0) {
            global.ShowNumberedMessage(6, 1, {});
            ClearSalesman();
            txtSalesman.SetFocus();
            return;
        }
        txtSalesman.Tag = szCode;
        int nKeyCode = keys::Enter;
        txtSalesman_KeyDown(nKeyCode, global.GetShiftMask());
    });
}

}  // namespace screen
