// The form's own events: load, resize, the two steps of closing, the keys it
// previews, and the memo button.
#include "platform/key_codes.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace keys = platform::keys;

void Zuro_frmDispatch_Dispatch::Form_Load() {
    Handled("Form_Load", [&] {
        auto& global = host_.global;
        host_.messages.TranslateLoadedForm(*this);
        SetTabStop(1);
        global.ApplyFormStyle(static_cast<host_services::HostedForm&>(*this), global.GetGridHeaderFont(),
                              global.GetGridBodyFont());
        global.ApplyGridStyle(DTFlexDispatch);
        ClearMemoFields();
        LoadListWidths(global.GetItemListScreenNumber(), FrameAvailable, lstAvailable);
    });
}

void Zuro_frmDispatch_Dispatch::Form_Resize() {
    Handled("Form_Resize", [&] {
        if (nMode != mode::View && nMode != mode::Cancel)
            host_.mainForm.InitShortCuts(host_.messages.GetLabel(host_.global.GetFormShortcutText()));
        RepositionAutolist();
    });
}

void Zuro_frmDispatch_Dispatch::Form_QueryUnload(int& Cancel, int /*UnloadMode*/) {
    Handled("Form_QueryUnload", [&] {
        if (nMode != mode::View && nMode != mode::Cancel) {
            int nRows = DTFlexDispatch.GridRows();
            if (nRows > 0 && DTFlexDispatch.IsBlankRow(nRows)) --nRows;
            if (nRows >= 1) {
                if (host_.messages.ConfirmSaveOnExit(bAskOnExit)) {
                    if (cmdSave.Enabled) cmdSave.SetFocus();
                    Cancel = 1;
                    objLink->SetStaus(1);
                    return;
                }
                objLink->SetStaus(0);
            }
        }
        host_.mainForm.LeaveChildObj(*this);
        parentWindow_ = 0;  // back under the desktop
        objLink->SetStaus(0);
        formVisible_ = false;
        int cancelUnload = 0;
        Form_Unload(cancelUnload);
        objLink.reset();
    });
}

void Zuro_frmDispatch_Dispatch::Form_Unload(int& /*Cancel*/) {
    Handled("Form_Unload", [&] {
        if (nMode != mode::View && nMode != mode::Cancel)
            host_.mainForm.InitShortCuts(host_.messages.GetLabel(host_.global.GetFormCloseShortcutText()));
        for (auto* list : {objCustomerList.get(), objItemList.get()})
            if (list && list->GetVisible()) list->HideList();
        host_.global.ShowStatus(host_.global.GetReadyMessage(), 0);
        ClearMemoFields();
        objHostContext_ = nullptr;
        loaded_ = false;
    });
}

bool Zuro_frmDispatch_Dispatch::Close() {
    if (!loaded_) return false;
    int Cancel = 0;
    Form_QueryUnload(Cancel, 0);
    return Cancel != 0;
}

void Zuro_frmDispatch_Dispatch::Form_KeyDown(int& KeyCode, int Shift) {
    Handled("Form_KeyDown", [&] {
        const int nRow = DTFlexDispatch.GridRow();
        const int nCol = DTFlexDispatch.GridCol();
        bListArmed = 0;
        if (KeyCode == keys::F3) {
            if (Frame3.Enabled)
                DTFlexDispatch.SetFocus();
            else
                lstSO.SetFocus();
        }
        // Ctrl+Shift+C copies a sales confirmation into a new note.
        if (nMode == mode::NewDispatch && (Shift & keys::CtrlShiftMask) == keys::CtrlShiftMask && KeyCode == keys::C) {
            szCopySONumber.clear();
            CopyCallBack();
            return;
        }
        host_.global.HandleFormShortcut(*this, KeyCode, Shift);
        host_.global.HandleDateShortcut(*this, KeyCode, Shift);
        if (nMode == mode::View) host_.global.HandleLookupShortcut(txtDocID, KeyCode, Shift);
        if (KeyCode == keys::F12 && Shift == host_.global.GetShiftMask()) ShowOCGFreeItemsDialog(nRow, nCol);
        if (KeyCode == keys::Escape && objLink) objLink->SetFocus();
    });
}

void Zuro_frmDispatch_Dispatch::cmdMemo_Click() {
    Handled("cmdMemo_Click", [&] {
        const bool readOnly = nMode == mode::View || nMode == mode::Cancel;
        if (host_.tools.ShowMemoDialog(szMemo1, szMemo2, szMemo3, readOnly, 2)) {
            host_.global.ShowStatus("Memo fields added successfully", 0);
            cmdSave.SetFocus();
        }
    });
}

void Zuro_frmDispatch_Dispatch::ClearMemoFields() {
    szMemo1.clear();
    szMemo2.clear();
    szMemo3.clear();
}

void Zuro_frmDispatch_Dispatch::AutoListCallBack() {
    // The item chosen reaches the cell through the grid; nothing else to do here.
    Handled("AutoListCallBack", [] {});
}

}  // namespace screen
