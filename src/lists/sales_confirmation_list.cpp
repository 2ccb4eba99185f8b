// The pending sales confirmations of Modes 1 and 6, grouped under their customers.
#include "lists/list_rows.h"
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
using lists::Answer;
using lists::kHeaderColour;
}  // namespace

void Zuro_frmDispatch_Dispatch::ListAllSOAbstract() {
    Handled("ListAllSOAbstract", [&] {
        auto& global = host_.global;
        lstSO.Clear();
        auto result = lists::RunForPeriod(global, "sp_get_allSOabstract", dtFromDate, dtToDate);
        LoadData(Answer(result));
        result->Close();
    });
}

void Zuro_frmDispatch_Dispatch::ListSpecifiedSOAbstract(const std::string& szCustomerID) {
    Handled("ListSpecifiedSOAbstract", [&] {
        auto& global = host_.global;
        lstSO.Clear();
        auto result = lists::RunForPeriod(global, "sp_get_Sos", dtFromDate, dtToDate, szCustomerID);
        LoadData(Answer(result));
        result->Close();
    });
}

void Zuro_frmDispatch_Dispatch::LoadData(platform::Recordset& rsRecords) {
    Handled("LoadData", [&] {
        auto& global = host_.global;
        if (rsRecords.Eof()) {
            // The one line of an empty period cannot be ticked.
            lstSO.View = 1;
            lstSO.CheckBoxes = false;
            lstSO.Add(host_.messages.GetLabel("No pending Sales confirmation were found during the chosen period"));
            return;
        }
        lstSO.View = 3;
        lstSO.CheckBoxes = true;
        const std::string szDateFormat = global.GetDateFormat();
        const bool bFromConfirmation = nMode == mode::FromSalesConfirmation || nMode == mode::FromAlert;
        std::string szPrevName;
        while (!rsRecords.Eof()) {
            const std::string szCustomerID = global.ToText(rsRecords.Fields(0));
            const std::string szName = global.ToText(rsRecords.Fields(1));
            if (platform::UCase(szName) != platform::UCase(szPrevName)) {
                platform::ListItem& header = lstSO.Add(szName);
                header.ForeColor = kHeaderColour;
                header.Tag = szCustomerID;
                szPrevName = szName;
            }
            platform::ListItem& row = lstSO.Add();
            row.Tag = szCustomerID;
            row.SetSubItem(6, global.ToText(rsRecords.Fields(2)));
            row.SetSubItem(2, platform::Format(rsRecords.Fields(3), szDateFormat));
            row.SetSubItem(1, szSCPrefix + global.ToText(rsRecords.Fields(7)));
            if (bFromConfirmation) {
                row.SetSubItem(3, platform::Format(rsRecords.Fields(5), szDateFormat));
                row.SetSubItem(5, global.ToText(rsRecords.Fields(6)));
                row.SetSubItem(8, szCustomerID);
            }
            rsRecords.MoveNext();
        }
    });
}

}  // namespace screen
