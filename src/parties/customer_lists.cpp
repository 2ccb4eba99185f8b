// The customer boxes' type-ahead list: one list serves both boxes, pointed at the
// box that is being typed in.
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
// Customers of categories 4 and 5 are never offered.
constexpr const char* kCustomerFilter = " customercategory not in (4,5) ";
constexpr const char* kAddressField = "Isnull(BillingAddress, '') as Address ";
constexpr const char* kAllCustomers = "ALL CUSTOMERS";
}  // namespace

void Zuro_frmDispatch_Dispatch::InitCustAutolists() {
    Handled("InitCustAutolists", [&] {
        objCustomerList = host_.newAutoList();
        objCustomerList->SetOwner(*this);
        objCustomerList->SetLockedToList(true);
        objCustomerList->SetDisplayField("Company_Name");
        objCustomerList->SetKeyField("CustomerID");
        objCustomerList->SetTableName("Customer");
        objCustomerList->AttachControl(txtCustomerID);
        if (nMode != mode::NewDispatch) {
            objCustomerList->SetAllOption(true);
            objCustomerList->SetAllOptionText(kAllCustomers);
        }
    });
}

namespace {
// What differs between the name box and the code box.
struct CustomerBoxList {
    const char* displayField;
    const char* caption;
    const char* mappedSelect;  // the columns of the mapped query
    const char* likeColumn;
};
constexpr CustomerBoxList kByName{"Company_Name", "Customer Name", "Select Distinct CustomerID,Company_Name,Address",
                                  "Company_Name"};
constexpr CustomerBoxList kByCode{"CustomerID", "Customer ID", "Select Distinct CustomerID,CustomerID,Address",
                                  "CustomerID"};
}  // namespace

// The change handler of either customer box: the list follows the box and opens
// with what was typed.
static void ShowCustomerList(Zuro_frmDispatch_Dispatch& form, host_services::HostGlobal& global, platform::TextBox& box,
                             const CustomerBoxList& kind) {
    const double nSalesman = global.ToNumber(form.txtSalesman.Tag);
    const double nBeat = global.ToNumber(form.txtBeat.Tag);
    const std::string szGroup;
    if (form.DSTypeNotMapped(szGroup)) {
        box.SetText("");
        global.SetFocusTo(form.txtSalesman);
        return;
    }
    auto& list = *form.objCustomerList;
    list.AttachControl(box);
    list.SetDisplayField(kind.displayField);
    list.SetCaption(kind.caption);
    list.SetFilter(kCustomerFilter);
    if (box.Visible) {
        const bool onListPage = box.Container == &form.Frame1(1);
        list.SetAllOption(onListPage);
        list.SetAllOptionText(onListPage ? kAllCustomers : "");
        list.SetListMode(1);
        list.SetColumnWidths("3:2000");
        std::string szQuery;
        if (!onListPage && (!szGroup.empty() || nSalesman != 0 || nBeat != 0)) {
            szQuery = std::string(kind.mappedSelect) + " From dbo.Fn_Get_MappedSalemanBeatAndCustomer_QAX(" +
                      platform::NumberToText(nSalesman) + "," + platform::NumberToText(nBeat) + ",'" + szGroup +
                      "') Where IsNull(Company_Name,'') <> '' And " + kind.likeColumn + " Like '";
        } else {
            list.SetExtraField(kAddressField);
        }
        list.SetQuery(szQuery, 0, 1);
    } else {
        list.SetAllOption(true);
        list.SetAllOptionText(kAllCustomers);
        list.SetQuery("", 0, 1);
    }
    list.ShowList(box.Text());
}

void Zuro_frmDispatch_Dispatch::txtCustomer_Change() {
    Handled("txtCustomer_Change", [&] {
        RequireObject(objCustomerList);
        ShowCustomerList(*this, host_.global, txtCustomer, kByName);
    });
}

void Zuro_frmDispatch_Dispatch::txtCustomerID_Change() {
    Handled("txtCustomerID_Change", [&] {
        RequireObject(objCustomerList);
        ShowCustomerList(*this, host_.global, txtCustomerID, kByCode);
    });
}

}  // namespace screen
