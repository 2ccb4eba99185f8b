// Enter walks the header forward and Shift+Enter back; these are the keys of the
// header's boxes and the two focus rings of the sales-confirmation modes.
#include "platform/key_codes.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace keys = platform::keys;

namespace {
bool FromConfirmation(long nMode) { return nMode == mode::FromSalesConfirmation || nMode == mode::FromAlert; }
}  // namespace

void Zuro_frmDispatch_Dispatch::AdvanceField(int Shift) {
    Handled("AdvanceField", [&] {
        if (!FromConfirmation(nMode) || !activeControl_) return;
        const int next = activeControl_->TabIndex + (Shift == keys::ShiftMask ? -1 : 1);
        if (next >= 0 && next <= 3 && static_cast<std::size_t>(next) < vFocusOrder.size())
            vFocusOrder[static_cast<std::size_t>(next)]->SetFocus();
    });
}

void Zuro_frmDispatch_Dispatch::AdvanceField2(int Shift) {
    Handled("AdvanceField2", [&] {
        if (!FromConfirmation(nMode) || !activeControl_) return;
        const int next = activeControl_->TabIndex - 6 + (Shift == keys::ShiftMask ? -1 : 1);
        if (next >= 0 && next <= 4 && static_cast<std::size_t>(next) < vFocusOrder2.size())
            vFocusOrder2[static_cast<std::size_t>(next)]->SetFocus();
    });
}

void Zuro_frmDispatch_Dispatch::txtref_KeyDown(int& KeyCode, int Shift) {
    Handled("txtref_KeyDown", [&] {
        if (KeyCode != keys::Enter) return;
        if (FromConfirmation(nMode)) {
            AdvanceField2(Shift);
        } else if (nMode == mode::NewDispatch || nMode == mode::Amendment) {
            if (Shift == keys::ShiftMask)
                txtCategory.SetFocus();
            else if (Shift == host_.global.GetShiftMask())
                DTDispatchDate.SetFocus();
        }
    });
}

void Zuro_frmDispatch_Dispatch::txtRemarks_KeyDown(int& KeyCode, int Shift) {
    Handled("txtRemarks_KeyDown", [&] {
        if (KeyCode == keys::Enter && Shift == host_.global.GetShiftMask()) cmdSave.SetFocus();
    });
}

void Zuro_frmDispatch_Dispatch::txtBillingAddress_KeyPress(int& KeyAscii) {
    Handled("txtBillingAddress_KeyPress", [&] {
        if (KeyAscii != keys::Enter) return;
        switch (host_.global.AddressEnterStep(KeyAscii)) {
            case 1: txtShippingAddress.SetFocus(); break;
            case 2: cbodocumenttype.SetFocus(); break;
            default: break;
        }
    });
}

void Zuro_frmDispatch_Dispatch::txtShippingAddress_KeyPress(int& KeyAscii) {
    Handled("txtShippingAddress_KeyPress", [&] {
        if (KeyAscii != keys::Enter) return;
        switch (host_.global.AddressEnterStep(KeyAscii)) {
            case 1:
                DTFlexDispatch.SetFocus();
                DTFlexDispatch.SetGridCol(5);
                break;
            case 2: txtBillingAddress.SetFocus(); break;
            default: break;
        }
    });
}

void Zuro_frmDispatch_Dispatch::DTDispatchDate_KeyDown(int& KeyCode, int Shift) {
    Handled("DTDispatchDate_KeyDown", [&] {
        if (KeyCode != keys::Enter) return;
        if (nMode == mode::View || nMode == mode::Cancel) return;
        if (Shift == keys::ShiftMask) {
            host_.global.SetFocusTo(txtDocReference);
            return;
        }
        const bool strictForward =
            nMode == mode::FromSalesConfirmation || nMode == mode::FromPurchaseOrder || nMode == mode::FromAlert;
        if (!strictForward || Shift == host_.global.GetShiftMask()) host_.global.SetFocusTo(txtBillingAddress);
    });
}

void Zuro_frmDispatch_Dispatch::cmdChange_Click() {
    Handled("cmdChange_Click", [&] { host_.tools.ShowWidthDialog(host_.global.GetItemListScreenNumber()); });
}

void Zuro_frmDispatch_Dispatch::cmdChange_KeyDown(int& KeyCode, int Shift) {
    Handled("cmdChange_KeyDown", [&] {
        if (KeyCode == keys::Enter && Shift != keys::NoShift) DTFlexDispatch.SetFocus();
    });
}

void Zuro_frmDispatch_Dispatch::RepositionAutolist() {
    Handled("RepositionAutolist", [&] {
        // The item look-up list hangs under the grid's bottom edge.
        if (!objItemList) return;
        objItemList->SetListTop(DTFlexDispatch.Top + DTFlexDispatch.Height);
        objItemList->SetListLeft(DTFlexDispatch.Left);
    });
}

}  // namespace screen
