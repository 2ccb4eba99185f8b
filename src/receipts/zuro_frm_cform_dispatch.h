// The C-Form/D-Form receipt screen: invoices of a date range with, for each, whether
// the customer's C-Form and D-Form have come and under which numbers. The user marks
// the cells and saves; each invoice gets its status mask and numbers back. The form
// owns its controls and grid and shares nothing with the dispatch form but the host.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>

#include "platform/controls.h"
#include "platform/grid.h"
#include "platform/value.h"
#include "screen/host_services/host_services.h"
#include "screen/screen_form.h"

namespace receipts {

// The invoice grid's columns.
namespace col {
inline constexpr int InvoiceNo = 1;
inline constexpr int Date = 2;
inline constexpr int CustomerID = 3;
inline constexpr int Customer = 4;
inline constexpr int CForm = 5;
inline constexpr int CFormNo = 6;
inline constexpr int DForm = 7;
inline constexpr int DFormNo = 8;
inline constexpr int InvoiceID = 9;
inline constexpr int OrigCForm = 10;
inline constexpr int OrigDForm = 11;
inline constexpr int Count = 11;
}  // namespace col

// The bits of an invoice's receipt status.
namespace receipt {
inline constexpr long CFormRequired = 4;
inline constexpr long DFormRequired = 8;
inline constexpr long CFormReceived = 32;
inline constexpr long DFormReceived = 64;
inline constexpr long MarksUnchanged = 128;
}  // namespace receipt

class Zuro_frmCForm_Dispatch : public screen::ScreenForm {
public:
    explicit Zuro_frmCForm_Dispatch(host_services::HostServices host);
    ~Zuro_frmCForm_Dispatch() override;

    // ---- controls -------------------------------------------------------------
    platform::Frame MainFrame, FilterFrame, InvoiceFrame;
    platform::ComboBox cboCustomer, cboCustomerID;
    platform::DatePicker dtFromDate, dtToDate;
    platform::CheckBox chkForm1, chkForm2;
    platform::CommandButton cmdRefresh, cmdSave, cmdClose;
    platform::DTFlex dtInvoice;
    platform::ListBox lstYesNo;
    platform::Label lblStatic;

    // ---- screen fields --------------------------------------------------------
    std::shared_ptr<host_services::HostLink> objLink;
    platform::Date dtServerDate{};
    // The two entries of lstYesNo, as a mark cell shows them.
    std::string szYesText, szNoText;

    // ---- routines -------------------------------------------------------------
    void InitForm(platform::Date DServerDate, host_services::HostContext& Zuro_objGlobal);
    void InitInvoiceGrid();
    void LoadInvoices();
    void SaveReceipts();
    void Form_QueryUnload(int& Cancel, int UnloadMode);

    // ---- event handlers -------------------------------------------------------
    void cmdRefresh_Click();
    void cmdSave_Click();
    void cmdClose_Click();
    void dtInvoice_AfterColUpdate(int nRow, int nCol, bool& bCancel);
    void dtInvoice_AtLastRow();
    void dtInvoice_AtFirstRow();
    void lstYesNo_Click();
    void lstYesNo_KeyDown(int& KeyCode, int Shift);
    void lstYesNo_LostFocus();
    void dtFromDate_KeyDown(int& KeyCode, int Shift);
    void dtToDate_KeyDown(int& KeyCode, int Shift);
    void dtFromDate_LostFocus();
    void dtToDate_LostFocus();
    void chkForm1_KeyDown(int& KeyCode, int Shift);
    void chkForm2_KeyDown(int& KeyCode, int Shift);
    void cboCustomer_KeyPress(int& KeyAscii);
    void cboCustomerID_KeyPress(int& KeyAscii);
    void cboCustomer_KeyDown(int& KeyCode, int Shift);
    void cboCustomerID_KeyDown(int& KeyCode, int Shift);

    // ---- what a driving host sees ---------------------------------------------
    std::string FormName() const override { return "Zuro_frmCForm_Dispatch"; }
    platform::Control* ActiveControl() const override { return activeControl_; }
    void MoveFocus(platform::Control& to) override;
    platform::Control* FindControl(const std::string& name, int index = -1) override;
    std::vector<platform::Control*> Controls() const override;
    platform::DTFlex* Grid() override { return &dtInvoice; }
    std::optional<std::string> FieldText(const std::string& name) const override;
    const screen::RoutineTable& Routines() const override { return routines_; }
    // The form leaves every key to the control that has focus.
    bool KeyPreview() const override { return false; }
    void Form_KeyDown(int& /*KeyCode*/, int /*Shift*/) override {}
    bool Close() override;
    bool IsLoaded() const override { return loaded_; }

    // The window the form lies under: the host's frame, or 0 for the desktop.
    long ParentWindow() const { return parentWindow_; }

private:
    template <class Body>
    bool Handled(const char* routine, Body&& body) {
        return platform::RunHandled(host_.global, std::string("Dispatch: ") + routine + " - ", body);
    }
    // The save's failures are logged under the receipt screen's own heading.
    template <class Body>
    bool HandledAsSave(Body&& body) {
        return platform::RunHandled(host_.global, " C - Form D - Form :", body);
    }

    void SaveEachRow();
    // The C and D columns shown and the Enter walk through them, by the two boxes.
    void LayoutFormColumns(bool bFormOne, bool bFormTwo);
    // A number column takes typing only while its row's mark is not "No".
    void LockNumberColumn(int nRow, int nMarkCol);
    void LandListChoice();
    // True when the range may stand; otherwise refuses and sends focus back to the box.
    bool CheckDateRange(platform::DatePicker& box);
    void DateEnter(platform::DatePicker& box, int& KeyCode, int Shift, platform::Control& behind,
                   platform::Control& ahead);
    // Enter in a customer combo: its own entry found, the other combo on the same customer.
    void CustomerEnter(platform::ComboBox& box, platform::ComboBox& other, bool bByName, int& KeyCode, int Shift,
                       platform::Control& behind, platform::Control& ahead);

    void LayControls();
    void RegisterControls();
    void RegisterRoutines();
    void RegisterFields();
    void WireEvents();

    host_services::HostServices host_;
    host_services::HostContext* objHostContext_ = nullptr;
    std::map<std::string, platform::Control*> controls_;
    std::map<std::string, std::function<std::string()>> fields_;
    screen::RoutineTable routines_;
    platform::Control* activeControl_ = nullptr;
    bool loaded_ = false;
    bool bRefusingRange_ = false;  // a date refusal is sending focus back
    long parentWindow_ = 0;
};

}  // namespace receipts
