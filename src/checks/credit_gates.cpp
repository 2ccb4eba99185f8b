// Whether the customer may take this dispatch on credit, asked before anything is
// written. With a category group the server decides; with none the screen compares
// the figures itself. The way past a refusal is the administrator's password, and
// only when the host's setting asks for it.
#include "platform/convert.h"
#include "screen/procedure_results.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
const char* const kCreditPrompt =
    "The credit limit for the customer has been exceeded. You must supply the administrator password if you wish "
    "to proceed.";
const char* const kCreditTitle = "Credit Limit Exceeded";
const char* const kCancelledDialog = "\t";  // what a cancelled password dialog gives back
constexpr long kLimitExceeded = 1;
}  // namespace

bool Zuro_frmDispatch_Dispatch::CheckCreditGates(long nSalesmanID, long nBeatID, long nRows) {
    auto& global = host_.global;
    double fDispatchValue = 0;
    ComputeDispatchValue(nRows, fDispatchValue);
    const double fCreditLimit = GetCreditLimit(szCustomerCode);
    const double fBalance = GetOutstandingBalance(szCustomerCode);
    const double fExposure = fDispatchValue - fBalance;

    if (bAllCategories) return CheckCreditLimit(fExposure, fCreditLimit);

    auto result = global.NextRecordset(
        global.RunProcedure("sp_CheckCreditLimitExceeds_QAX", {{2, platform::adtype::Integer},
                                                               {nSalesmanID, platform::adtype::Integer},
                                                               {nBeatID, platform::adtype::Integer},
                                                               {szCustomerCode, platform::adtype::VarChar},
                                                               {szCurrentGroupID, platform::adtype::VarChar},
                                                               {fDispatchValue, platform::adtype::Double},
                                                               {fExposure, platform::adtype::Double},
                                                               {fCreditLimit, platform::adtype::Double}}));
    const platform::Value* exceeded = FirstRowField(result);
    if (exceeded && global.ToNumber(*exceeded) == kLimitExceeded) return CheckCrLimit();
    if (HasRecordset(result)) result->Close();
    return true;
}

bool Zuro_frmDispatch_Dispatch::CheckCrLimit() {
    bool bPass = false;
    platform::RunHandled(host_.global, "Dispatch - CheckCrLimit: ", [&] {
        // The server has decided; without the setting its refusal lets the note through.
        if (!host_.global.GetCreditLimitPasswordEnabled()) {
            bPass = true;
            return;
        }
        std::string szTyped;
        host_.tools.InputPassword(kCreditPrompt, kCreditTitle, szTyped);
        bPass = AdministratorPasswordMatches(szTyped);
    });
    return bPass;
}

bool Zuro_frmDispatch_Dispatch::CheckCreditLimit(double fExposure, double fCreditLimit) {
    // -1 is "no limit"; an exposure equal to the limit passes.
    if (!host_.global.GetCreditLimitPasswordEnabled() || !(fCreditLimit > -1) || !(fExposure > fCreditLimit))
        return true;
    std::string szTyped;
    host_.mainForm.InputBoxE(kCreditPrompt, kCreditTitle, szTyped);
    return AdministratorPasswordMatches(szTyped);
}

bool Zuro_frmDispatch_Dispatch::AdministratorPasswordMatches(const std::string& szTyped) {
    if (szTyped == kCancelledDialog) return false;
    auto& global = host_.global;
    if (platform::Trim(global.DecodeAdministratorPassword(global.GetAdministratorPassword())) == szTyped) return true;
    host_.messages.AskMessage("Invalid Password", host_services::msgbox::Information);
    return false;
}

}  // namespace screen
