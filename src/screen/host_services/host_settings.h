// The host's settings as the form reads them: switches, modes and a few texts and
// paths. Each is read when asked, so a changed setting counts at its next use.
#pragma once

#include <string>

namespace host_services {

class HostSettings {
public:
    virtual ~HostSettings() = default;

    // True when customers are entered by name, false when by ID.
    virtual bool GetCustomerNameFirst() = 0;
    // True when the memo fields button is shown.
    virtual bool GetMemoFieldsEnabled() = 0;
    // True when going over a credit limit asks for the administrator password.
    virtual bool GetCreditLimitPasswordEnabled() = 0;
    // True when a customer's tax number is checked before saving.
    virtual bool GetTinCheckEnabled() = 0;
    // True when free items of other category groups are in use.
    virtual bool GetOCGEnabled() = 0;
    // True when posting to accounts takes the posting date.
    virtual bool GetDatedPostingEnabled() = 0;
    // After saving: 0 prints without asking, 1 asks first, 2 never prints.
    virtual int GetPrintOnSaveMode() = 0;
    // 1 takes the print template from the tools' PrintDocument; anything else from
    // PrintWithTemplate.
    virtual int GetPrinterService() = 0;
    // 1 or otherwise: which way the day-close test is asked.
    virtual int GetCloseDayMode() = 0;
    // The caption of the first print-form check box.
    virtual std::string GetFormOneCaption() = 0;
    // The caption of the second print-form check box.
    virtual std::string GetFormTwoCaption() = 0;
    // Which set of column widths the item look-up list keeps.
    virtual int GetItemListScreenNumber() = 0;
    // The path of the printing settings file.
    virtual std::string GetIniFilePath() = 0;
    // The administrator password in the form the host stores it.
    virtual std::string GetAdministratorPassword() = 0;
    // The stored password made comparable with what the user typed.
    virtual std::string DecodeAdministratorPassword(const std::string& stored) = 0;
};

}  // namespace host_services
