// The host library's global service: database, conversions, settings, focus,
// keyboard, documents and units of measure.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/controls.h"
#include "platform/database.h"
#include "platform/error_handler.h"
#include "platform/value.h"
#include "screen/host_services/host_context.h"
#include "screen/host_services/host_main_form.h"
#include "screen/host_services/hosted_form.h"

namespace host_services {

// Posting to accounts; writes its rows in the caller's open transaction.
class JournalService {
public:
    virtual ~JournalService() = default;
    // False when posting failed; szError then says why. The posting date is given
    // only where the caller's rules say so.
    virtual bool Journal(long nCounter, long nDispatchID, std::string& szError) = 0;
    virtual bool Journal(long nCounter, long nDispatchID, std::string& szError, platform::Date dtPostDate) = 0;
};

class HostGlobal : public platform::ErrorLog {
public:
    // ---- database and values ---------------------------------------------------
    virtual void SetHostContext(HostContext& context) = 0;
    virtual platform::Connection& GetConnection() = 0;
    // Parameters in pairs of value and type code, as the connection takes them.
    virtual platform::RecordsetPtr RunProcedure(const std::string& name, const platform::ParameterList& parameters) = 0;
    // Moves past the procedure's leading empty results; the set with rows, or the
    // last set, or nullptr when the call gave none.
    virtual platform::RecordsetPtr NextRecordset(const platform::RecordsetPtr& recordset) = 0;
    virtual platform::Value LookupValue(platform::Connection& connection, const std::string& sql) = 0;
    virtual std::string LookupName(const std::string& table, const std::string& keyField,
                                   const std::string& nameField, const std::string& keyValue) = 0;
    virtual std::string LookupCode(const std::string& table, const std::string& keyField,
                                   const std::string& nameField, const std::string& nameValue) = 0;
    virtual double LookupFieldByKey(const std::string& table, const std::string& keyField, const std::string& keyValue) = 0;
    virtual std::string EscapeQuotes(const std::string& text) = 0;
    virtual std::string ToText(const platform::Value& value) = 0;
    virtual double ToNumber(const platform::Value& value) = 0;
    virtual std::string GetNumberFormat(int kind) = 0;
    virtual std::string GetVoucherPrefix(const std::string& key) = 0;
    virtual std::string GetSCPrefixKey() = 0;
    virtual std::string GetPOPrefixKey() = 0;
    virtual std::string GetDispatchPrefixKey() = 0;
    virtual std::string GetDateFormat() = 0;
    virtual platform::Date DayStart(const platform::DatePicker& picker) = 0;
    virtual platform::Date DayEnd(const platform::DatePicker& picker) = 0;
    virtual platform::Date ToDateOnly(platform::Date date) = 0;
    virtual platform::Date GetCurrentDate(int flag) = 0;
    virtual platform::Date GetTransactionDate() = 0;
    virtual platform::Date GetOpeningDate() = 0;
    virtual void SetLastTransactionDate(platform::Date date) = 0;

    // ---- settings ----------------------------------------------------------------
    virtual bool GetCustomerNameFirst() = 0;
    virtual bool GetMemoFieldsEnabled() = 0;
    virtual bool GetCreditLimitPasswordEnabled() = 0;
    virtual bool GetTinCheckEnabled() = 0;
    virtual bool GetOCGEnabled() = 0;
    virtual bool GetDatedPostingEnabled() = 0;
    virtual int GetPrintOnSaveMode() = 0;
    virtual int GetPrinterService() = 0;
    virtual int GetCloseDayMode() = 0;
    virtual std::string GetFormOneCaption() = 0;
    virtual std::string GetFormTwoCaption() = 0;
    virtual int GetItemListScreenNumber() = 0;
    virtual std::string GetIniFilePath() = 0;
    virtual std::string GetAdministratorPassword() = 0;
    virtual std::string DecodeAdministratorPassword(const std::string& stored) = 0;

    // ---- screen and keyboard -----------------------------------------------------
    virtual void ShowStatus(const std::string& text, int flag) = 0;
    virtual void ShowNumberedMessage(long number, int flag, const std::vector<std::string>& arguments) = 0;
    virtual std::string GetReadyMessage() = 0;
    // ReportError comes from platform::ErrorLog: the central error log.
    virtual std::string GetFormIcon() = 0;
    using StyleArray = std::vector<std::string>;
    virtual void ApplyFormStyle(HostedForm& form, const StyleArray& header, const StyleArray& body) = 0;
    virtual void ApplyFormStyle(HostLink& link, const StyleArray& header, const StyleArray& body) = 0;
    virtual StyleArray GetGridHeaderFont() = 0;
    virtual StyleArray GetGridBodyFont() = 0;
    virtual void ApplyGridStyle(platform::Control& grid) = 0;
    virtual std::string GetFormShortcutText() = 0;
    virtual std::string GetFormCloseShortcutText() = 0;
    virtual void HandleFormShortcut(HostedForm& form, int& keyCode, int shift) = 0;
    virtual void HandleDateShortcut(HostedForm& form, int& keyCode, int shift) = 0;
    virtual void HandleLookupShortcut(platform::Control& control, int& keyCode, int shift) = 0;
    virtual int GetShiftMask() = 0;
    virtual int GetAlignLeft() = 0;
    virtual int GetAlignRight() = 0;
    virtual int GetAlignCentre() = 0;
    virtual int GetGridEditColumnValue() = 0;
    virtual void SetFocusTo(platform::Control& control) = 0;
    virtual void HandleEnterAdvance(int shift, platform::Control& behind, platform::Control& ahead) = 0;
    // 0: the key stays in the box; 1: next field; 2: previous field.
    virtual int AddressEnterStep(int& keyCode) = 0;
    virtual void NoteComboClick(bool& dropped) = 0;
    virtual bool MoveListSelection(platform::ListView& list, int keyCode) = 0;
    virtual void ComboFindExact(platform::ComboBox& combo) = 0;
    virtual void ComboAutoComplete(platform::ComboBox& combo, int& keyAscii) = 0;
    virtual void SetDropDownWidth(platform::ComboBox& combo, int width) = 0;
    virtual void FillComboBox(const std::string& table, const std::string& valueField, const std::string& textField,
                              platform::ComboBox& combo, int flagA, int flagB, const std::string& condition) = 0;
    virtual bool GetListGuard() = 0;
    virtual void SetListGuard(bool on) = 0;
    virtual HostedForm* FindOpenForm(const std::string& formName, int flag) = 0;
    virtual int GetCustomerFormMode() = 0;

    // ---- documents -----------------------------------------------------------------
    virtual std::string GetDefaultDocumentType(int transactionType) = 0;
    virtual std::string GetNextDocumentReference(const std::string& documentType, int transactionType) = 0;
    virtual double ParseDocumentNumber(const std::string& text) = 0;
    virtual int GetDocumentPrefixLength(const std::string& text) = 0;

    // ---- units of measure ----------------------------------------------------------
    // Base units in one such unit of the item.
    virtual double ConvertToBaseUOM(const std::string& itemCode, long uom) = 0;
    // A quantity expression ("2*0*5", largest unit first) in base units.
    virtual double ConvertToDisplayUOM(const std::string& itemCode, const std::string& quantity) = 0;
    // True when the text is a well-formed quantity for the item; the two out values
    // are the number of parts and the base quantity.
    virtual bool ValidateUOMQuantity(const std::string& itemCode, const std::string& quantity, int& parts, double& baseQuantity) = 0;
    // The index of the list entry whose item data is the unit; -1 when none.
    virtual int ComputeUOMIndex(const platform::ListControl& list, long uom) = 0;
    // The item's sales unit (into uom when it is 0) and its description.
    virtual std::string GetUOMDescription(const std::string& itemCode, long& uom) = 0;
    // A quantity expression normalised to its three parts, "a*b*c".
    virtual std::string GetUOMInfo(const std::string& quantity) = 0;
    // The rate of the item's unit at a ladder level (3 the largest, 1 the base); uom
    // takes that unit's identifier.
    virtual double ConvertWithRate(const std::string& itemCode, int level, long& uom) = 0;

    // ---- saving and printing -------------------------------------------------------
    virtual JournalService& GetJournalService() = 0;
    virtual std::string GetPrintDocumentPath() = 0;
    virtual std::string GetPrintPromptText() = 0;
    virtual std::string GetPrintPromptTitle() = 0;
    virtual std::string PrintWithTemplate(const std::string& documentPath) = 0;
    virtual long GetSaveCounterOne() = 0;
    virtual long GetSaveCounterTwo() = 0;
    virtual long GetCancelCounter() = 0;
    virtual std::string GetUserName() = 0;

    // ---- text ----------------------------------------------------------------------
    virtual std::string GetSplitSource(const std::string& text) = 0;
};

}  // namespace host_services
