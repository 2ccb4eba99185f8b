#include "host/setting_catalog.h"

#include <algorithm>
#include <cctype>
#include <charconv>

#include "platform/convert.h"

namespace host {
namespace {

bool SameNameIgnoringCase(std::string_view a, std::string_view b) {
    return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](unsigned char x, unsigned char y) {
               return std::tolower(x) == std::tolower(y);
           });
}

std::vector<SettingInfo> MakeCatalog() {
    using K = SettingKind;
    return {
        // switches of the screen
        {"GetCustomerNameFirst", K::Boolean, "true"},
        {"GetMemoFieldsEnabled", K::Boolean, "true"},
        {"GetCreditLimitPasswordEnabled", K::Boolean, "false"},
        {"GetTinCheckEnabled", K::Boolean, "false"},
        {"GetOCGEnabled", K::Boolean, "false"},
        {"GetDatedPostingEnabled", K::Boolean, "false"},
        // 0 prints after a save without asking, 1 asks, 2 never prints after a save
        {"GetPrintOnSaveMode", K::Integer, "2"},
        {"GetPrinterService", K::Integer, "0"},
        {"GetCloseDayMode", K::Integer, "0"},
        {"GetItemListScreenNumber", K::Integer, "1"},
        {"GetCustomerFormMode", K::Integer, "1"},
        // the posting kinds the journal is called with
        {"GetSaveCounterOne", K::Integer, "1"},
        {"GetSaveCounterTwo", K::Integer, "2"},
        {"GetCancelCounter", K::Integer, "3"},
        {"GetFormOneCaption", K::Text, "C-Form"},
        {"GetFormTwoCaption", K::Text, "D-Form"},
        {"GetIniFilePath", K::Text, ""},
        {"GetDateFormat", K::Text, "dd/mm/yyyy"},
        {"GetReadyMessage", K::Text, "Ready"},
        {"GetFormIcon", K::Text, "dispatch.ico"},
        {"GetFormShortcutText", K::Text, "F3 Grid/List  F12 Document Info  Ctrl+F7 Customer  Esc Frame"},
        {"GetFormCloseShortcutText", K::Text, ""},
        {"GetPrintDocumentPath", K::Text, ""},
        {"GetPrintPromptText", K::Text, "Do you want to print the document?"},
        {"GetPrintPromptTitle", K::Text, "Print"},
        // the template names the two print routes answer with
        {"PrintWithTemplate", K::Text, "Dispatch.ini"},
        {"PrintDocument", K::Text, "Dispatch.ini"},
        {"AdministratorPassword", K::Text, ""},
        {"UserName", K::Text, "Admin"},
        {"OutputFolder", K::Text, "."},
        // the account a dispatch is credited to
        {"SalesAccount", K::Text, "Sales"},
        {"GetOpeningDate", K::Date, "2020-04-01"},
        // empty: the working date of the session
        {"GetTransactionDate", K::Date, ""},
    };
}

}  // namespace

const std::vector<SettingInfo>& SettingCatalog() {
    static const std::vector<SettingInfo> catalog = MakeCatalog();
    return catalog;
}

const SettingInfo* FindSetting(std::string_view name) {
    for (const auto& setting : SettingCatalog())
        if (SameNameIgnoringCase(setting.name, name)) return &setting;
    return nullptr;
}

bool ParseBoolean(std::string_view text, bool& value) {
    std::string word = platform::LCase(platform::Trim(text));
    if (word == "true" || word == "yes" || word == "1" || word == "-1") {
        value = true;
        return true;
    }
    if (word == "false" || word == "no" || word == "0") {
        value = false;
        return true;
    }
    return false;
}

bool ParseInteger(std::string_view text, long& value) {
    std::string word = platform::Trim(text);
    if (word.empty()) return false;
    const char* first = word.data();
    if (*first == '+') ++first;
    auto [end, error] = std::from_chars(first, word.data() + word.size(), value);
    return error == std::errc() && end == word.data() + word.size();
}

std::string SettingValueProblem(const SettingInfo& setting, const std::string& value) {
    switch (setting.kind) {
        case SettingKind::Boolean: {
            bool ignored;
            if (!ParseBoolean(value, ignored)) return setting.name + " takes true or false, not \"" + value + "\"";
            return {};
        }
        case SettingKind::Integer: {
            long ignored;
            if (!ParseInteger(value, ignored)) return setting.name + " takes a whole number, not \"" + value + "\"";
            return {};
        }
        case SettingKind::Date:
            if (!value.empty() && !platform::ParseIsoDate(value))
                return setting.name + " takes a date as YYYY-MM-DD, not \"" + value + "\"";
            return {};
        case SettingKind::Text: return {};
    }
    return {};
}

}  // namespace host
