// The dispatch form: one object that owns all of the screen's state — its
// controls, its fields and the grid, the only home of a note's lines. Routines are
// plain members with by-reference results; each subsystem defines its own in its
// own folder.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "platform/grid.h"
#include "platform/value.h"
#include "screen/host_services/host_services.h"
#include "screen/screen_form.h"

namespace screen {

// The modes of the screen, fixed for the life of the form.
namespace mode {
inline constexpr long FromSalesConfirmation = 1;
inline constexpr long NewDispatch = 2;
inline constexpr long FromPurchaseOrder = 3;
inline constexpr long View = 4;
inline constexpr long Cancel = 5;
inline constexpr long FromAlert = 6;
inline constexpr long Amendment = 7;
}  // namespace mode

class Zuro_frmDispatch_Dispatch : public ScreenForm, public host_services::AutoListOwner {
public:
    explicit Zuro_frmDispatch_Dispatch(host_services::HostServices host);
    ~Zuro_frmDispatch_Dispatch() override;

    // ---- controls -------------------------------------------------------------
    // Frames: Frame1(0) the list page's filter frame, Frame1(1) the customer frame,
    // Frame3 the entry page, Frame4 the party fields, Frame5 the two address frames.
    platform::Frame Frame1_0, Frame1_1, Frame2, Frame3, Frame4, Frame5_0, Frame5_1, Frame6, frameRemarks, FrameAvailable;
    platform::DatePicker dtFromDate, dtToDate, DTDispatchDate;
    platform::TextBox txtCustomer, txtCustomerID, txtSalesman, txtBeat, txtCategory, txtref, txtDocReference, txtDocID,
        txtDocIDTo, txtBillingAddress, txtShippingAddress, txtRemarks;
    platform::ComboBox cbodocumenttype, cboCustomer, cboCustomerID, cboSalesman, cboBeat, cboCatGroup;
    platform::ListView lstSO, lstAvailable;
    platform::ListBox lstUOM;
    platform::DTFlex DTFlexDispatch;
    platform::CommandButton cmdContinue, cmdClose_0, cmdClose_1, cmdSave, cmdGo, cmdRefresh, cmdApplyScheme, cmdMemo,
        cmdChange;
    static constexpr int kFieldLabels = 10;
    std::vector<std::unique_ptr<platform::Label>> lblFieldsArray;
    platform::Label lblDispDate, lblSalesman, lblBeat, lblCatGroup, lblRef, lblCustomer, lblCustomerId, lblDocReference,
        lblDocType, lblDispatchID;

    // The indexed controls by their index, as the screen addresses them.
    platform::Frame& Frame1(int index);
    platform::Frame& Frame5(int index);
    platform::CommandButton& cmdClose(int index);
    platform::Label& lblFields(int index);

    // ---- screen fields --------------------------------------------------------
    std::shared_ptr<host_services::HostLink> objLink;
    long nMode = 0;
    platform::Date dtServerDate{};
    std::string szCustomerCode, szCustomerName;
    long nCustomerCategory = 0;
    std::string szDocNumbers, szPONumbers, szRefNumbers, szDocIDs, szDocIDs2, szCopySONumber;
    std::string szMemo1, szMemo2, szMemo3;
    std::unique_ptr<host_services::AutoList> objCustomerList, objSalesmanList, objBeatList, objItemList;
    std::string szLblSelectSalesman, szLblSelectBeat, szLblSelectCategory, szLblAllCategories, szLblAllCustomers;
    std::string szSCPrefix, szPOPrefix, szDispatchPrefix;
    std::string szDefaultDocReference, szOriginalDocType;
    bool bAskOnExit = false;
    long nCustomerEntrySource = 0;
    bool bAllCategories = false;
    std::vector<platform::Control*> vFocusOrder, vFocusOrder2;
    long bListArmed = 0;  // the grid's key switch: a typing key reached the item columns
    long nCustomerFormState = 0;  // 1 while the customer form is asked for, 2 after it called back

    // ---- entry and life cycle -------------------------------------------------
    void InitForm(platform::Date DServerDate, long nMode, host_services::HostContext& Zuro_objGlobal,
                  platform::Date AlertDate);
    void Form_Load();
    void Form_Resize();
    void Form_QueryUnload(int& Cancel, int UnloadMode);
    void Form_Unload(int& Cancel);
    void Form_KeyDown(int& KeyCode, int Shift) override;
    void cmdMemo_Click();
    void ClearMemoFields();
    void InitDTFlexDispatch();

    // ---- call-backs of the host's lists -----------------------------------------
    void AutoListCallBack() override;
    void CustomerCallBack(const std::string& szCustomerCode, const std::string& szCustomerName) override;

    // ---- what a driving host sees ---------------------------------------------
    std::string FormName() const override { return "Zuro_frmDispatch_Dispatch"; }
    platform::Control* ActiveControl() const override { return activeControl_; }
    void MoveFocus(platform::Control& to) override;
    platform::Control* FindControl(const std::string& name, int index = -1) override;
    platform::DTFlex* Grid() override { return &DTFlexDispatch; }
    std::optional<std::string> FieldText(const std::string& name) const override;
    const RoutineTable& Routines() const override { return routines_; }
    bool KeyPreview() const override { return true; }
    bool Close() override;
    bool IsLoaded() const override { return loaded_; }

    // The window the form lies under: the host's frame, or 0 for the desktop.
    long ParentWindow() const { return parentWindow_; }
    bool FormVisible() const { return formVisible_; }

private:
    friend class FormWiring;

    // The one handler every routine runs under: "Dispatch: <routine> - " and the
    // error's description go to the host's error log.
    template <class Body>
    bool Handled(const char* routine, Body&& body) {
        return platform::RunHandled(host_.global, std::string("Dispatch: ") + routine + " - ", body);
    }

    void RegisterControls();
    void RegisterRoutines();
    void RegisterFields();
    void WireEvents();
    void TitleFrame(const std::string& title);
    void ShowAllCustomers();
    void SelectActiveText();
    void LoadOnce();
    void PlaceApplySchemeBesideMemo();

    host_services::HostServices host_;
    host_services::HostContext* objHostContext_ = nullptr;  // the running component's context
    std::map<std::string, platform::Control*> controls_;
    std::map<std::string, std::function<std::string()>> fields_;
    RoutineTable routines_;
    platform::Control* activeControl_ = nullptr;
    bool loaded_ = false;
    bool formVisible_ = false;
    long parentWindow_ = 0;
};

}  // namespace screen
