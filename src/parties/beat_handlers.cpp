// The beat box: its type-ahead list over the salesman's beats, Enter that fills
// the salesman and the customer the beat allows, and leaving the box with a beat
// that was not chosen.
#include "parties/party_boxes.h"
#include "parties/party_support.h"
#include "platform/convert.h"
#include "platform/key_codes.h"

namespace screen {

namespace keys = platform::keys;

void Zuro_frmDispatch_Dispatch::txtBeat_Change() {
    // Emptying the box below raises this handler again; that run has nothing to add.
    if (bEmptyingBox) return;
    Handled("txtBeat_Change", [&] {
        auto& global = host_.global;
        const double nSalesman = platform::ToNumber(txtSalesman.Tag);
        if (DSTypeNotMapped(txtCategory.Text())) {
            parties::ProgramWrite writing({objBeatList.get()});
            bEmptyingBox = true;
            txtBeat.SetText("");
            bEmptyingBox = false;
            txtSalesman.SetFocus();
            return;
        }
        // The list set up with the item list knows only its owner: it follows this box.
        auto& list = parties::BeatList(*this, host_);
        list.AttachControl(txtBeat);
        list.SetQuery("Select Distinct BeatID,BeatName From dbo.Fn_Get_MappedSalemanBeatAndCustomer_QAX(" +
                          parties::SqlNumber(nSalesman) + "," + "0" + ",'" + global.EscapeQuotes(txtCustomer.Text()) +
                          "') Where IsNull(BeatName,'') <> '' And BeatName Like '",
                      0, 1);
        list.SetCaption("Beat Name");
        list.SetDisplayField("BeatName");
        list.SetKeyField("BeatID");
        list.ShowList(txtBeat.Text());
    });
    bEmptyingBox = false;
}

void Zuro_frmDispatch_Dispatch::txtBeat_KeyDown(int& KeyCode, int Shift) {
    Handled("txtBeat_KeyDown", [&] {
        auto& global = host_.global;
        platform::TextBox& customerBox = parties::CustomerBox(*this, global);
        if (objBeatList && objBeatList->GetVisible()) objBeatList->ListKeyDown(KeyCode, Shift, 0);

        if (KeyCode == keys::Enter && Shift == global.GetShiftMask()) {
            bAllCategories = false;
            if (platform::Trim(txtBeat.Text()).empty()) {
                customerBox.SetFocus();
                return;
            }
            if (txtBeat.Tag.empty()) {
                global.ShowNumberedMessage(4, 1, {});
                ClearBeat();
                txtBeat.SetFocus();
                return;
            }

            if (platform::Trim(txtSalesman.Text()).empty()) {
                LoadSalesman();
                if (bGroupClearedSalesman) {
                    bGroupClearedSalesman = false;
                    return;
                }
            }

            const bool bBeatUnchanged =
                nPrevBeatID != 0 && platform::ToNumber(txtBeat.Tag) == nPrevBeatID && txtBeat.Text() == szPrevBeatName;
            const bool bCustomerUnchanged =
                txtCustomer.Tag == szPrevCustomerCode && txtCustomer.Text() == szPrevCustomerName;
            if (bBeatUnchanged && bCustomerUnchanged) {
                customerBox.SetFocus();
                return;
            }

            if (!platform::Trim(txtBeat.Text()).empty()) LoadCustomer();
            if (!platform::Trim(txtSalesman.Text()).empty()) LoadCategoryGroup(2);
            if (DSTypeNotMapped(txtCategory.Text())) {
                txtSalesman.SetFocus();
                return;
            }
            parties::MoveOnFromParty(*this, global, customerBox);
        } else if (KeyCode == keys::Enter && Shift == keys::ShiftMask) {
            txtSalesman.SetFocus();
        }
    });
}

void Zuro_frmDispatch_Dispatch::txtBeat_LostFocus() {
    Handled("txtBeat_LostFocus", [&] {
        if (platform::Trim(txtBeat.Text()).empty()) {
            txtBeat.Tag.clear();
            return;
        }
        if (txtBeat.Tag.empty()) {
            host_.global.ShowNumberedMessage(4, 1, {});
            ClearBeat();
        }
    });
}

}  // namespace screen
