// The host library's global service over one connection, one object playing every
// role of HostGlobal: database and values, settings, keyboard and lists, documents,
// units of measure, saving and printing, screen and status. Its operations are
// defined in the global_*.cpp files, one file a group.
#pragma once

#include <string>
#include <vector>

#include "host/host_state.h"
#include "host/journal.h"
#include "host/plain_messages.h"
#include "host/units_of_measure.h"
#include "screen/host_services/host_global.h"

namespace host {

class PlainGlobal : public host_services::HostGlobal {
public:
    PlainGlobal(HostState& state, PlainMessages& messages)
        : state_(state), messages_(messages), units_(*state.connection), journal_(*state.connection, state.settings) {}

    // ---- database and values (global_database.cpp, GetSplitSource in global_saving.cpp)
    void SetHostContext(host_services::HostContext& context) override { state_.context = &context; }
    platform::Connection& GetConnection() override { return *state_.connection; }
    platform::RecordsetPtr RunProcedure(const std::string& name, const platform::ParameterList& parameters) override;
    platform::RecordsetPtr NextRecordset(const platform::RecordsetPtr& recordset) override;
    platform::Value LookupValue(platform::Connection& connection, const std::string& sql) override;
    std::string LookupName(const std::string& table, const std::string& keyField, const std::string& nameField,
                           const std::string& keyValue) override;
    std::string LookupCode(const std::string& table, const std::string& keyField, const std::string& nameField,
                           const std::string& nameValue) override;
    platform::Value LookupFieldByKey(const std::string& table, const std::string& keyField,
                                     const std::string& keyValue) override;
    std::string EscapeQuotes(const std::string& text) override;
    std::string ToText(const platform::Value& value) override;
    double ToNumber(const platform::Value& value) override;
    std::string GetNumberFormat(int kind) override;
    std::string GetSplitSource(const std::string& text) override;
    std::string GetDateFormat() override;
    platform::Date DayStart(const platform::DatePicker& picker) override;
    platform::Date DayEnd(const platform::DatePicker& picker) override;
    platform::Date ToDateOnly(platform::Date date) override;
    platform::Date GetCurrentDate(int hostOption) override;
    platform::Date GetTransactionDate() override;
    platform::Date GetOpeningDate() override;
    void SetLastTransactionDate(platform::Date date) override { state_.lastTransactionDate = date; }

    // ---- settings (global_settings.cpp) ----------------------------------------------
    bool GetCustomerNameFirst() override;
    bool GetMemoFieldsEnabled() override;
    bool GetCreditLimitPasswordEnabled() override;
    bool GetTinCheckEnabled() override;
    bool GetOCGEnabled() override;
    bool GetDatedPostingEnabled() override;
    int GetPrintOnSaveMode() override;
    int GetPrinterService() override;
    int GetCloseDayMode() override;
    std::string GetFormOneCaption() override;
    std::string GetFormTwoCaption() override;
    int GetItemListScreenNumber() override;
    std::string GetIniFilePath() override;
    std::string GetAdministratorPassword() override;
    std::string DecodeAdministratorPassword(const std::string& stored) override;

    // ---- keyboard and lists (global_keyboard.cpp, the short cuts in global_screen.cpp)
    void HandleFormShortcut(host_services::HostedForm& form, int& keyCode, int shift) override;
    void HandleDateShortcut(host_services::HostedForm& form, int& keyCode, int shift) override;
    void HandleLookupShortcut(platform::Control& control, int& keyCode, int shift) override;
    int GetShiftMask() override { return 0; }
    // The grid control's own codes: left, right and centre, each centred upright.
    int GetAlignLeft() override { return 1; }
    int GetAlignRight() override { return 7; }
    int GetAlignCentre() override { return 4; }
    int GetGridEditColumnValue() override { return 1; }
    void SetFocusTo(platform::Control& control) override;
    void HandleEnterAdvance(int shift, platform::Control& behind, platform::Control& ahead) override;
    int AddressEnterStep(int& keyCode) override;
    void NoteComboClick(bool& dropped) override { dropped = false; }
    bool MoveListSelection(platform::ListView& list, int keyCode) override;
    void ComboFindExact(platform::ComboBox& combo) override;
    void ComboAutoComplete(platform::ComboBox& combo, int& keyAscii) override;
    void SetDropDownWidth(platform::ComboBox& combo, int width) override;
    void SetDropDownWidth(const std::vector<platform::Control*>& controls, int width) override;
    void FillComboBox(const std::string& table, const std::string& valueField, const std::string& textField,
                      platform::ComboBox& combo, int hostOptionA, int hostOptionB,
                      const std::string& condition) override;
    bool GetListGuard() override { return state_.listGuard; }
    void SetListGuard(bool holdClicks) override { state_.listGuard = holdClicks; }

    // ---- documents (global_documents.cpp, the prefixes in global_database.cpp) ------
    std::string GetVoucherPrefix(const std::string& key) override;
    std::string GetSCPrefixKey() override { return "SALE CONFIRMATION"; }
    std::string GetPOPrefixKey() override { return "RECEIVED PO"; }
    std::string GetDispatchPrefixKey() override { return "DISPATCH"; }
    std::string GetDefaultDocumentType(int transactionType) override;
    std::string GetNextDocumentReference(const std::string& documentType, int transactionType) override;
    double ParseDocumentNumber(const std::string& text) override;
    int GetDocumentPrefixLength(const std::string& text) override;

    // ---- units of measure (global_units.cpp) -----------------------------------------
    double ConvertToBaseUOM(const std::string& itemCode, long uom) override;
    double ConvertToDisplayUOM(const std::string& itemCode, const std::string& quantity) override;
    bool ValidateUOMQuantity(const std::string& itemCode, const std::string& quantity, int& parts,
                             double& baseQuantity) override;
    int ComputeUOMIndex(const platform::ListControl& list, long uom) override;
    std::string GetUOMDescription(const std::string& itemCode, long& uom) override;
    std::string GetUOMInfo(const std::string& quantity) override;
    double ConvertWithRate(const std::string& itemCode, int level, long& uom) override;

    // ---- saving and printing (global_saving.cpp) -------------------------------------
    host_services::JournalService& GetJournalService() override { return journal_; }
    long GetSaveCounterOne() override;
    long GetSaveCounterTwo() override;
    long GetCancelCounter() override;
    std::string GetUserName() override;
    std::string GetPrintDocumentPath() override;
    std::string GetPrintPromptText() override;
    std::string GetPrintPromptTitle() override;
    std::string PrintWithTemplate(const std::string& documentPath) override;

    // ---- screen and status (global_screen.cpp, GetCustomerFormMode in global_settings.cpp)
    void ShowStatus(const std::string& text, int mustNotice) override;
    void ShowNumberedMessage(long number, int mustNotice, const std::vector<std::string>& arguments) override;
    std::string GetReadyMessage() override;
    void ReportError(const std::string& description, long number) override;
    std::string GetFormIcon() override;
    void ApplyFormStyle(host_services::HostedForm& form, const StyleArray& header, const StyleArray& body) override;
    void ApplyFormStyle(host_services::HostLink& link, const StyleArray& header, const StyleArray& body) override;
    StyleArray GetGridHeaderFont() override { return {"Tahoma", "8", "Bold"}; }
    StyleArray GetGridBodyFont() override { return {"Tahoma", "8", "Regular"}; }
    void ApplyGridStyle(platform::Control& grid) override;
    std::string GetFormShortcutText() override;
    std::string GetFormCloseShortcutText() override;
    host_services::HostedForm* FindOpenForm(const std::string& formName, int hostOption) override;
    int GetCustomerFormMode() override;

private:
    HostState& state_;
    PlainMessages& messages_;
    UnitsOfMeasure units_;
    PlainJournal journal_;

    // Enter in a multi-line box: the box and its text at a first Enter still waiting
    // for its second.
    bool addressEnterPending_ = false;
    const platform::Control* addressBox_ = nullptr;
    std::string addressText_;
    // Type-ahead in a combo: what the user has typed, and what the combo then showed.
    const platform::ComboBox* completingCombo_ = nullptr;
    std::string completionTyped_, completionShown_;
};

// The administrator password as the host stores it: the text's bytes in hex, so
// that the stored form is not the password itself.
std::string EncodePassword(const std::string& password);

}  // namespace host
