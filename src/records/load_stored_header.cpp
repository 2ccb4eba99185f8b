// Opening a stored note in the view, cancel and amendment modes: the abstract fills
// the header, then the details rebuild the grid. No scheme is worked out here; the
// note's scheme links come back as they were saved.
#include "parties/party_boxes.h"
#include "parties/party_support.h"
#include "platform/convert.h"
#include "records/stored_dates.h"
#include "screen/procedure_results.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
using platform::adtype::Integer;

// The abstract's fields, by position.
enum AbstractField {
    kDate = 1,
    kCustomerName = 2,
    kCustomerID = 3,
    kBillingAddress = 4,
    kShippingAddress = 5,
    kStatus = 7,
    kDocumentNumber = 8,
    kReference = 9,
    kMemo1 = 10,
    kMemo2 = 11,
    kMemo3 = 12,
    kRemarks = 13,
    kDocReference = 14,
    kDocumentType = 15
};

constexpr long kCancelled = 64 | 128;
constexpr long kAmended = 256;
constexpr long kClosed = 128;
// A keyed note: its reference is the clerk's own and stays as it was.
constexpr long kKeyedStatus = 2;

// The runtime's CByte: a whole number from 0 to 255, error 6 outside.
std::uint8_t ByteOf(double value) {
    const long n = platform::CLng(value);
    if (n < 0 || n > 255) throw platform::RuntimeError(platform::err::Overflow);
    return static_cast<std::uint8_t>(n);
}

// The caption suffix of a note that can no longer change; the first test that holds wins.
std::string StatusSuffix(long nStatus) {
    if ((nStatus & kCancelled) == kCancelled) return "- Cancelled";
    if ((nStatus & kAmended) == kAmended) return "- Amended";
    if ((nStatus & kClosed) != 0) return "- Closed";
    return "";
}
}  // namespace

long Zuro_frmDispatch_Dispatch::LoadDispatchInfo(long DispatchID) {
    Handled("LoadDispatchInfo", [&] {
        if (!LoadStoredHeader(DispatchID)) return;
        LoadStoredRows(DispatchID);
    });
    // Callers read nothing from it: the routine never gave a result.
    return 0;
}

bool Zuro_frmDispatch_Dispatch::LoadStoredHeader(long DispatchID) {
    auto& global = host_.global;
    auto& messages = host_.messages;
    auto rs =
        global.NextRecordset(global.RunProcedure("sp_view_DispatchAbstract", {{platform::Value(DispatchID), Integer}}));
    if (!HasRecordset(rs) || rs->Eof()) return false;
    auto field = [&](int n) -> const platform::Value& { return rs->Fields(n); };

    RequireObject(objCustomerList).SetEnabled(true);
    lblDispatchID.Caption =
        messages.GetLabel("Dispatch ID: ") + szDispatchPrefix + global.ToText(field(kDocumentNumber));

    // The customer: boxes to work in for an amendment, labels to read otherwise.
    if (nMode == mode::Amendment) {
        txtCustomer.Container = &Frame4;
        txtCustomerID.Container = &Frame4;
        LayoutCustomerFields();
        txtCustomer.Visible = true;
        txtCustomerID.Visible = true;
        txtCustomer.SetText(global.ToText(field(kCustomerName)));
        txtCustomerID.SetText(global.ToText(field(kCustomerID)));
        txtCustomerID.Tag = txtCustomerID.Text();
        txtCustomer.Tag = txtCustomerID.Tag;
        szPrevCustomerName = txtCustomer.Text();
        szPrevCustomerCode = txtCustomerID.Text();
    } else {
        lblCustomer.Caption = messages.GetLabel("Customer: ") + global.ToText(field(kCustomerName));
        lblCustomerId.Caption = messages.GetLabel("Customer ID: ") + global.ToText(field(kCustomerID));
    }
    szCustomerCode = global.ToText(field(kCustomerID));

    // The header.
    txtref.SetText(global.ToText(field(kReference)));
    dtLoadedDispatchDate = StoredDate(field(kDate));
    DTDispatchDate.Value = dtLoadedDispatchDate;
    dtOriginalDispatchDate = dtLoadedDispatchDate;
    txtBillingAddress.SetText(global.ToText(field(kBillingAddress)));
    txtShippingAddress.SetText(global.ToText(field(kShippingAddress)));
    vOldRefNumber = field(kDocumentNumber);
    szMemo1 = global.ToText(field(kMemo1));
    szMemo2 = global.ToText(field(kMemo2));
    szMemo3 = global.ToText(field(kMemo3));
    txtDocReference.SetText(global.ToText(field(kDocReference)));
    szDefaultDocReference = txtDocReference.Text();

    // The document type.
    const std::string szDocType = global.ToText(field(kDocumentType));
    if (!szDocType.empty()) {
        cbodocumenttype.SetText(szDocType);
        global.ComboFindExact(cbodocumenttype);
        szOriginalDocType = cbodocumenttype.Text();
    } else {
        cbodocumenttype.SetListIndex(-1);
        szOriginalDocType = "0";
    }

    const long nStatus = static_cast<long>(global.ToNumber(field(kStatus)));
    if (nMode == mode::Amendment) {
        nOriginalStatus = ByteOf(global.ToNumber(field(kStatus)));
        if (nOriginalStatus == kKeyedStatus) {
            txtref.Locked = true;
            txtref.TabStop = false;
        }
    }

    // The header parties.
    const long nSalesmanID = static_cast<long>(global.ToNumber(rs->Fields("SalesmanID")));
    const long nBeatID = static_cast<long>(global.ToNumber(rs->Fields("BeatID")));
    if (nSalesmanID > 0) SetDefaultSalesman(nSalesmanID);
    const bool bBeatClosed = isBeatDeactivated(nBeatID);
    if (!bBeatClosed && nBeatID > 0) {
        SetDefaultBeat(nBeatID);
    } else if (bBeatClosed && nBeatID > 0) {
        // A beat closed since shows by the name the note was made on.
        parties::ProgramWrite writing({&parties::BeatList(*this, host_)});
        txtBeat.SetText(global.LookupName("DispatchAbstract da, Beat bt", "da.BeatID=bt.BeatID And da.DispatchID",
                                          "Description", std::to_string(DispatchID)));
    }
    const std::string szGroupIDs = global.ToText(rs->Fields("GroupID"));
    const bool bGroupNamed = szGroupIDs != "-1" && platform::Val(szGroupIDs) > 0;
    if (nMode != mode::View && nMode != mode::Cancel) {
        if (bGroupNamed)
            SetDefaultCatGroup(szGroupIDs);
        else
            ClearCategoryGroup();
    } else if (bGroupNamed) {
        const platform::Value& vGroupName = rs->Fields("GroupName");
        if (!vGroupName.IsNull() && !global.ToText(vGroupName).empty())
            txtCategory.SetText(global.ToText(vGroupName));
        else
            SetDefaultCatGroup(szGroupIDs);
    }
    LoadPreviousValues();

    // The caption, and in the view the remarks.
    if (nMode == mode::View) {
        std::string szCaption = messages.GetLabel("View Dispatch ");
        const std::string szSuffix = StatusSuffix(nStatus);
        if (!szSuffix.empty()) szCaption += messages.GetLabel(szSuffix);
        objLink->SetCaption(szCaption);
        if (!platform::Trim(global.ToText(field(kRemarks))).empty()) {
            frameRemarks.Visible = true;
            txtRemarks.SetText(global.ToText(field(kRemarks)));
        }
    } else if (nMode == mode::Cancel) {
        objLink->SetCaption(messages.GetLabel("Cancel Dispatch"));
    } else if (nMode == mode::Amendment) {
        objLink->SetCaption(messages.GetLabel("Dispatch Amendment"));
    }
    rs->Close();
    return true;
}

}  // namespace screen
