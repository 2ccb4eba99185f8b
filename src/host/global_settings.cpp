// Settings of the global service, each read live so that a `setting` line of a
// session takes effect at once.
#include "host/plain_global.h"

namespace host {

bool PlainGlobal::GetCustomerNameFirst() { return state_.settings.Boolean("GetCustomerNameFirst"); }
bool PlainGlobal::GetMemoFieldsEnabled() { return state_.settings.Boolean("GetMemoFieldsEnabled"); }
bool PlainGlobal::GetCreditLimitPasswordEnabled() { return state_.settings.Boolean("GetCreditLimitPasswordEnabled"); }
bool PlainGlobal::GetTinCheckEnabled() { return state_.settings.Boolean("GetTinCheckEnabled"); }
bool PlainGlobal::GetOCGEnabled() { return state_.settings.Boolean("GetOCGEnabled"); }
bool PlainGlobal::GetDatedPostingEnabled() { return state_.settings.Boolean("GetDatedPostingEnabled"); }
int PlainGlobal::GetPrintOnSaveMode() { return static_cast<int>(state_.settings.Integer("GetPrintOnSaveMode")); }
int PlainGlobal::GetPrinterService() { return static_cast<int>(state_.settings.Integer("GetPrinterService")); }
int PlainGlobal::GetCloseDayMode() { return static_cast<int>(state_.settings.Integer("GetCloseDayMode")); }
std::string PlainGlobal::GetFormOneCaption() { return state_.settings.Text("GetFormOneCaption"); }
std::string PlainGlobal::GetFormTwoCaption() { return state_.settings.Text("GetFormTwoCaption"); }
int PlainGlobal::GetItemListScreenNumber() {
    return static_cast<int>(state_.settings.Integer("GetItemListScreenNumber"));
}
std::string PlainGlobal::GetIniFilePath() { return state_.settings.Text("GetIniFilePath"); }
int PlainGlobal::GetCustomerFormMode() { return static_cast<int>(state_.settings.Integer("GetCustomerFormMode")); }

std::string EncodePassword(const std::string& password) {
    static const char digits[] = "0123456789ABCDEF";
    std::string encoded;
    for (unsigned char c : password) {
        encoded += digits[c >> 4];
        encoded += digits[c & 0x0F];
    }
    return encoded;
}

std::string PlainGlobal::GetAdministratorPassword() {
    return EncodePassword(state_.settings.Text("AdministratorPassword"));
}

// A stored text that is not in the host's form is taken as it stands.
std::string PlainGlobal::DecodeAdministratorPassword(const std::string& stored) {
    auto nibble = [](char c) -> int {
        if (c >= '0' && c <= '9') return c - '0';
        if (c >= 'A' && c <= 'F') return c - 'A' + 10;
        return -1;
    };
    if (stored.size() % 2 != 0) return stored;
    std::string decoded;
    for (std::size_t i = 0; i < stored.size(); i += 2) {
        int high = nibble(stored[i]), low = nibble(stored[i + 1]);
        if (high < 0 || low < 0) return stored;
        decoded += static_cast<char>(high * 16 + low);
    }
    return decoded;
}

}  // namespace host
