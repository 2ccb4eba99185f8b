// The received purchase orders of Mode 3, grouped under their customers as the
// confirmations are.
#include "lists/list_rows.h"
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::ListAllPOAbstract() {
    Handled("ListAllPOAbstract", [&] {
        auto& global = host_.global;
        lstSO.Clear();
        szPONumbers.clear();
        auto result = lists::RunForPeriod(global, "sp_get_allpos", dtFromDate, dtToDate);
        LoadPOData(lists::Answer(result));
        result->Close();
    });
}

void Zuro_frmDispatch_Dispatch::ListSpecifiedPOAbstract(const std::string& szCustomerID) {
    Handled("ListSpecifiedPOAbstract", [&] {
        auto& global = host_.global;
        lstSO.Clear();
        szPONumbers.clear();
        auto result = lists::RunForPeriod(global, "sp_get_pos", dtFromDate, dtToDate, szCustomerID);
        LoadPOData(lists::Answer(result));
        result->Close();
    });
}

void Zuro_frmDispatch_Dispatch::LoadPOData(platform::Recordset& rsRecords) {
    Handled("LoadPOData", [&] {
        auto& global = host_.global;
        if (rsRecords.Eof()) {
            lstSO.View = 1;
            lstSO.CheckBoxes = false;
            lstSO.Add(host_.messages.GetLabel("No purchase orders were received during the chosen period"));
            return;
        }
        lstSO.View = 3;
        lstSO.CheckBoxes = true;
        const std::string szDateFormat = global.GetDateFormat();
        std::string szPrevName;
        while (!rsRecords.Eof()) {
            const std::string szCustomerID = global.ToText(rsRecords.Fields(0));
            const std::string szName = global.ToText(rsRecords.Fields(1));
            if (platform::UCase(szName) != platform::UCase(szPrevName)) {
                platform::ListItem& header = lstSO.Add(szName);
                header.ForeColor = lists::kHeaderColour;
                header.Bold = true;
                header.Tag = szCustomerID;
                szPrevName = szName;
            }
            platform::ListItem& row = lstSO.Add();
            row.Tag = szCustomerID;
            if (nMode == mode::FromPurchaseOrder) {
                row.SetSubItem(1, global.ToText(rsRecords.Fields(8)) + global.ToText(rsRecords.Fields(6)));
                row.SetSubItem(6, global.ToText(rsRecords.Fields(5)));
                row.SetSubItem(5, global.ToText(rsRecords.Fields(2)));
            } else {
                global.ToText(rsRecords.Fields(2));
            }
            row.SetSubItem(2, platform::Format(rsRecords.Fields(3), szDateFormat));
            row.SetSubItem(4, global.ToText(rsRecords.Fields(4)));
            rsRecords.MoveNext();
        }
    });
}

}  // namespace screen
