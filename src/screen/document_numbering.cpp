// The note's number and its document type: the serial the server proposes, the
// document types of dispatches, and the reference each type gives.
#include "platform/convert.h"
#include "platform/key_codes.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace keys = platform::keys;

namespace {
constexpr int kDispatchTransaction = 5;
}  // namespace

void Zuro_frmDispatch_Dispatch::GetNewDispatchID() {
    Handled("GetNewDispatchID", [&] {
        auto& global = host_.global;
        lblDispatchID.Caption = host_.messages.GetLabel("Serial No: ");
        auto result = global.RunProcedure("sp_get_NewDispatchID", {});
        if (result && result->IsOpen() && !result->Eof()) {
            const std::string number = platform::NumberToText(global.ToNumber(result->Fields(0)));
            lblDispatchID.Caption += szDispatchPrefix + number;
            szDefaultDocReference = szDispatchPrefix + number;
        }
        if (result && result->IsOpen()) result->Close();
    });
}

void Zuro_frmDispatch_Dispatch::LoadDocumentTypes(int nTransactionType) {
    Handled("LoadDocumentTypes", [&] {
        auto& global = host_.global;
        cbodocumenttype.Clear();
        cbodocumenttype.AddItem(host_.messages.GetLabel("Select A Document Type"));
        cbodocumenttype.SetListIndex(0);
        global.FillComboBox("TransactionDocNumber", "DocumentType", "DocumentType", cbodocumenttype, 0, 0,
                            "And TransactionType=" + std::to_string(nTransactionType));
        std::string szDefault = global.GetDefaultDocumentType(nTransactionType);
        if (cbodocumenttype.ListIndex() != -1) {
            if (szDefault.empty()) {
                // No default set: the first real document type stands.
                if (cbodocumenttype.ListIndex() == 0 && cbodocumenttype.ListCount() > 1)
                    cbodocumenttype.SetListIndex(1);
                szDefault = cbodocumenttype.Text();
            }
            cbodocumenttype.SetText(szDefault);
        }
        global.ComboFindExact(cbodocumenttype);
        SetDocumentReference(nTransactionType);
    });
}

void Zuro_frmDispatch_Dispatch::SetDocumentReference(int nTransactionType) {
    Handled("SetDocumentReference", [&] {
        if (cbodocumenttype.ListIndex() <= 0) {
            txtDocReference.SetText(szDefaultDocReference);
            return;
        }
        // An amendment that keeps its document type keeps the stored reference.
        if (nMode == mode::Amendment && cbodocumenttype.Text() == szOriginalDocType) {
            txtDocReference.SetText(szDefaultDocReference);
            return;
        }
        txtDocReference.SetText(
            host_.global.ToText(host_.global.GetNextDocumentReference(cbodocumenttype.Text(), nTransactionType)));
        txtDocReference.Tag = cbodocumenttype.Text();
    });
}

void Zuro_frmDispatch_Dispatch::GetRefNO() {
    Handled("GetRefNO", [&] {
        szRefNumbers.clear();
        for (int i = 1; i <= lstSO.Count(); ++i) {
            const platform::ListItem& item = lstSO.Item(i);
            // Ticked document rows only; a customer heading row has a text.
            if (item.Checked && item.Text.empty()) szRefNumbers += item.SubItem(6) + ",";
        }
        szRefNumbers = platform::Trim(szRefNumbers);
        if (!szRefNumbers.empty()) szRefNumbers.pop_back();
    });
}

void Zuro_frmDispatch_Dispatch::cbodocumenttype_DropDown() { bComboDropped = true; }

void Zuro_frmDispatch_Dispatch::cbodocumenttype_Click() {
    Handled("cbodocumenttype_Click", [&] { host_.global.NoteComboClick(bComboDropped); });
}

void Zuro_frmDispatch_Dispatch::cbodocumenttype_LostFocus() {
    Handled("cbodocumenttype_LostFocus", [&] { host_.global.ComboFindExact(cbodocumenttype); });
}

void Zuro_frmDispatch_Dispatch::cbodocumenttype_KeyPress(int& KeyAscii) {
    Handled("cbodocumenttype_KeyPress", [&] {
        auto& global = host_.global;
        if (KeyAscii != keys::Enter) {
            global.ComboAutoComplete(cbodocumenttype, KeyAscii);
            return;
        }
        global.ComboFindExact(cbodocumenttype);
        if (cbodocumenttype.ListIndex() != -1) {
            const std::string szType = cbodocumenttype.Text();
            const bool keepsOriginal = !szOriginalDocType.empty() && szOriginalDocType == szType;
            if (keepsOriginal || szType.empty()) {
                if (keepsOriginal) {
                    txtDocReference.SetText(szDefaultDocReference);
                    txtDocReference.Tag = txtDocReference.Text();
                }
            } else {
                // The type is written back as the table spells it.
                const platform::Value found = global.LookupValue(
                    global.GetConnection(),
                    "Select DocumentType From TransactionDocNumber Where documenttype = N'" + szType + "'");
                if (!found.IsNull() && !found.IsEmpty()) {
                    cbodocumenttype.SetText(global.ToText(found));
                    global.ComboFindExact(cbodocumenttype);
                    if (cbodocumenttype.ListIndex() > 0) {
                        txtDocReference.SetText(
                            global.ToText(global.GetNextDocumentReference(szType, kDispatchTransaction)));
                        txtDocReference.Tag = txtDocReference.Text();
                    }
                }
            }
        }
        if (cbodocumenttype.ListIndex() <= 0) txtDocReference.SetText(szDefaultDocReference);
    });
}

void Zuro_frmDispatch_Dispatch::cbodocumenttype_KeyDown(int& KeyCode, int Shift) {
    Handled("cbodocumenttype_KeyDown", [&] {
        if (KeyCode == keys::Enter) host_.global.HandleEnterAdvance(Shift, DTDispatchDate, txtBillingAddress);
    });
}

void Zuro_frmDispatch_Dispatch::txtDocReference_KeyDown(int& KeyCode, int Shift) {
    Handled("txtDocReference_KeyDown", [&] {
        if (KeyCode != keys::Enter) return;
        if (nMode == mode::NewDispatch || nMode == mode::Amendment)
            host_.global.HandleEnterAdvance(Shift, DTDispatchDate, cbodocumenttype);
        else
            host_.global.HandleEnterAdvance(Shift, DTDispatchDate, txtBillingAddress);
    });
}

}  // namespace screen
