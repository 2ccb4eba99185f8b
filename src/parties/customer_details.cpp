// What the screen reads of a chosen customer, and clearing it again.
#include "platform/convert.h"
#include "platform/key_codes.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace keys = platform::keys;

void Zuro_frmDispatch_Dispatch::LoadCustomerAdd() {
    Handled("LoadCustomerAdd", [&] {
        auto& global = host_.global;
        const std::string szName = DoubleQuotes(txtCustomer.Text());
        const std::string szID = platform::Trim(txtCustomerID.Text());
        const std::string sql =
            !szID.empty()
                ? "Select top 1 BillingAddress,ShippingAddress, CustomerCategory from customer Where CustomerID = N'" +
                      szID + "'"
                : "Select top 1 BillingAddress,ShippingAddress, CustomerCategory from customer Where Company_Name = "
                  "N'" +
                      szName + "'";
        auto customer = global.GetConnection().Execute(sql);
        if (!customer->Eof()) {
            txtBillingAddress.SetText(global.ToText(customer->Fields(0)));
            txtShippingAddress.SetText(global.ToText(customer->Fields(1)));
            nCustomerCategory = static_cast<long>(global.ToNumber(customer->Fields(2)));
            // The category picks the price kind the batch list shows.
            static const char* const kPriceHeadings[] = {"PTS", "PTR", "Special Price"};
            if (nCustomerCategory >= 1 && nCustomerCategory <= 3) {
                if (lstAvailable.ColumnHeaders.size() < 3) throw platform::RuntimeError(35600);
                lstAvailable.ColumnHeaders[2].Text = host_.messages.GetLabel(kPriceHeadings[nCustomerCategory - 1]);
            }
        }
        customer->Close();
    });
}

void Zuro_frmDispatch_Dispatch::ClearCustomer() {
    Handled("ClearCustomer", [&] {
        if (objCustomerList) objCustomerList->SetEnabled(true);
        for (platform::TextBox* box : {&txtCustomer, &txtCustomerID, &txtBillingAddress, &txtShippingAddress}) {
            box->SetText("");
            box->Tag.clear();
        }
        if (objCustomerList) objCustomerList->SetEnabled(false);
    });
}

long Zuro_frmDispatch_Dispatch::GetCustomerCategory(const std::string& szCustomerID) {
    long category = 0;
    Handled("GetCustomerCategory", [&] {
        auto& global = host_.global;
        category = static_cast<long>(global.ToNumber(
            global.LookupValue(global.GetConnection(),
                               "SELECT CustomerCategory FROM Customer WHERE CustomerID = N'" + szCustomerID + "'")));
    });
    return category;
}

std::string Zuro_frmDispatch_Dispatch::DoubleQuotes(const std::string& szText) {
    std::string doubled;
    for (char c : szText) {
        doubled += c;
        if (c == '\'') doubled += '\'';
    }
    return doubled;
}

// Ctrl+F7 asks for the customer form. The screen never creates that form: the key
// gives the open-form message, or the error of the form that is not there.
void Zuro_frmDispatch_Dispatch::HandleCtrlF7(int& KeyCode, int Shift) {
    platform::RunHandled(host_.global, "Global : HandleCtrlF7 : ", [&] {
        if (KeyCode != keys::F7 || Shift != keys::CtrlMask) return;
        if (host_.global.FindOpenForm("frmCustomer", -1)) {
            host_.global.ShowStatus("Add/Modify Customer already open, Close it and try again", 1);
            return;
        }
        throw platform::RuntimeError(platform::err::ObjectNotSet);
    });
}

}  // namespace screen
