// The customer header of a note made from documents: the customer, addresses and
// parties come from the ticked documents.
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::LoadCustomerInfo() {
    Handled("LoadCustomerInfo", [&] {
        auto& global = host_.global;
        auto& messages = host_.messages;
        GetDetails();
        lblCustomer.Caption.clear();
        if (nMode == mode::Amendment) {
            // The boxes stand beside the labels in an amendment.
            lblCustomerId.Caption = messages.GetLabel("Customer ID:");
            lblCustomer.Caption = messages.GetLabel("Customer: ");
        } else {
            lblCustomerId.Caption = messages.GetLabel("Customer ID: ") + szCustomerCode;
            lblCustomer.Caption = messages.GetLabel("Customer: ") + szCustomerName;
            lblCustomerId.Tag = szCustomerCode;
            lblCustomer.Tag = szCustomerName;
        }
        if (nMode == mode::Amendment) {
            if (txtref.Text().empty()) txtref.SetText(szDocIDs);
        } else {
            txtref.SetText("");
            txtref.SetText(szDocIDs);
        }

        std::string sql;
        if (nMode == mode::FromPurchaseOrder) {
            sql = "Select [BillingAddress],[ShippingAddress] from [POAbstractReceived] Where [PONumber]  in (" +
                  szPONumbers + ")";
        } else if (nMode == mode::FromSalesConfirmation || nMode == mode::FromAlert) {
            sql =
                "Select [BillingAddress],[ShippingAddress],IsNull([SalesmanID],0),IsNull([BeatID],0),"
                "IsNull([GroupID],-1) from [SOAbstract] Where [SONumber]  in (" +
                szDocNumbers + ")";
            txtSalesman.Enabled = false;
            txtBeat.Enabled = false;
            txtCategory.Enabled = false;
        }
        if (sql.empty()) return;

        auto rows = global.GetConnection().Execute(sql);
        while (!rows->Eof()) {
            if (!platform::Trim(global.ToText(rows->Fields(0))).empty() ||
                !platform::Trim(global.ToText(rows->Fields(1))).empty()) {
                txtBillingAddress.SetText(global.ToText(rows->Fields(0)));
                txtShippingAddress.SetText(global.ToText(rows->Fields(1)));
            }
            // A purchase order's statement has no salesman column: reading it fails
            // here and the handler ends the routine with the addresses in, as it
            // always did.
            if (nMode != mode::FromSalesConfirmation) {
                SetDefaultSalesman(static_cast<long>(global.ToNumber(rows->Fields(2))));
            } else {
                auto salesman = global.NextRecordset(
                    global.RunProcedure("Sp_Get_BeatSalesMan_Cust_QAX",
                                        {{global.ToNumber(platform::Value(szDocNumbers)), platform::adtype::Integer}}));
                double nSalesmanID = 0;
                if (salesman && salesman->IsOpen() && !salesman->Eof())
                    nSalesmanID = global.ToNumber(salesman->Fields("SalesmanID"));
                else if (global.ToNumber(rows->Fields(2)) != 0)
                    nSalesmanID = global.ToNumber(rows->Fields(2));
                if (nSalesmanID != 0) SetDefaultSalesman(static_cast<long>(nSalesmanID));
            }
            if (global.ToNumber(rows->Fields(3)) > 0)
                SetDefaultBeat(static_cast<long>(global.ToNumber(rows->Fields(3))));
            const std::string group = global.ToText(rows->Fields(4));
            if (!platform::Trim(group).empty()) {
                SetDefaultCatGroup(group);
            } else {
                bAllCategories = true;
                ClearCategoryGroup();
            }
            LoadPreviousValues();
            rows->MoveNext();
        }
        rows->Close();
    });
}

}  // namespace screen
