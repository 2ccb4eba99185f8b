// The stored notes of Modes 4, 5 and 7 on the list page, grouped under their
// customers: by customer and period, or in Mode 4 by a range of document numbers.
// A header row carries the host's marker in its Tag, a note's row the index of its
// header.
#include "lists/list_rows.h"
#include "lists/stored_note_words.h"
#include "parties/party_boxes.h"
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
constexpr double kDocumentTypeWidth = 1440;
constexpr long kNoFlag = 0;
}  // namespace

void Zuro_frmDispatch_Dispatch::ListDispatch(bool& bDocLookUp) {
    Handled("ListDispatch", [&] {
        auto& global = host_.global;
        using platform::adtype::Integer;
        using platform::adtype::VarChar;
        platform::RecordsetPtr result;
        if (!bDocLookUp) {
            if (txtCustomer.Tag.empty()) {
                global.ShowStatus("Select an existing customer.", 1);
                parties::CustomerBox(*this, global).SetFocus();
                return;
            }
            const std::string szCustomer =
                txtCustomer.Tag == "%"
                    ? std::string("%")
                    : global.LookupCode("Customer", "CustomerID", "Company_Name", txtCustomer.Text());
            result = global.NextRecordset(lists::RunForPeriod(global, "sp_list_Dispatch", dtFromDate, dtToDate,
                                                              szCustomer, {{kNoFlag, Integer}}));
        } else {
            const double nFrom = global.ParseDocumentNumber(txtDocID.Text());
            const double nTo = global.ParseDocumentNumber(txtDocIDTo.Text());
            const std::string szPrefix = lists::LookUpPrefix(global, txtDocID.Text(), txtDocIDTo.Text());
            result = global.NextRecordset(
                global.RunProcedure("sp_list_Dispatch_DocLU", {{nFrom, Integer}, {nTo, Integer}, {szPrefix, VarChar}}));
        }
        if (!result) return;
        FillDispatchList(*result);
        result->Close();
    });
}

void Zuro_frmDispatch_Dispatch::FillDispatchList(platform::Recordset& rsRecords) {
    auto& global = host_.global;
    auto& messages = host_.messages;
    lstSO.Clear();
    if (rsRecords.Eof()) {
        lstSO.View = 1;
        lstSO.CheckBoxes = false;
        lstSO.Add(messages.GetLabel("No Dispatches were found during the chosen period."));
        return;
    }
    lstSO.View = 3;
    lstSO.CheckBoxes = true;
    lstSO.ColumnHeaders.at(1).Text = messages.GetLabel("Serial No");
    lstSO.ColumnHeaders.at(7).Width = kDocumentTypeWidth;
    const std::string szDateFormat = global.GetDateFormat();
    const std::string szMarker = messages.GetHeaderRowMarker();
    const bool bAmendment = nMode == mode::Amendment;
    std::string szPrevName;
    int nHeader = 0;
    while (!rsRecords.Eof()) {
        const std::string szName = global.ToText(rsRecords.Fields(3));
        if (nHeader == 0 || platform::UCase(szName) != platform::UCase(szPrevName)) {
            platform::ListItem& header = lstSO.Add(szName);
            header.ForeColor = lists::kHeaderColour;
            header.Bold = true;
            header.Tag = szMarker;
            nHeader = lstSO.Count();
            szPrevName = szName;
        }
        platform::ListItem& row = lstSO.Add();
        row.Tag = std::to_string(nHeader);
        row.SetSubItem(6, global.ToText(rsRecords.Fields(0)));
        row.SetSubItem(2, platform::Format(rsRecords.Fields(1), szDateFormat));
        if (bAmendment) row.SetSubItem(8, global.ToText(rsRecords.Fields(2)));
        const long nStatus = platform::CLng(global.ToNumber(rsRecords.Fields(4)));
        row.SetSubItem(3, lists::DispatchStatusText(messages, nStatus, global.ToNumber(rsRecords.Fields(6)) == 1));
        row.SetSubItem(1, szDispatchPrefix + global.ToText(rsRecords.Fields(5)));
        row.SetSubItem(7, global.ToText(rsRecords.Fields(7)));
        if (bAmendment) row.SetSubItem(9, global.ToText(rsRecords.Fields(8)));
        rsRecords.MoveNext();
    }
}

}  // namespace screen
