// What the database says about a salesman's DS type and the category groups it is
// mapped to, and the comparison of two lists of groups.
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
// Column 0 of the procedure's first row, when it has one.
std::optional<double> FirstValue(const platform::RecordsetPtr& rs) {
    std::optional<double> value;
    if (rs && rs->IsOpen() && !rs->Eof()) value = platform::ToNumber(rs->Fields(0));
    if (rs && rs->IsOpen()) rs->Close();
    return value;
}

platform::Parameter Int(long value) { return {platform::Value(value), platform::adtype::Integer}; }
}  // namespace

void Zuro_frmDispatch_Dispatch::CheckForAllCatGrpMapped(long nSalesmanID, long& nResult) {
    Handled("CheckForAllCatGrpMapped", [&] {
        auto& global = host_.global;
        const auto value =
            FirstValue(global.NextRecordset(global.RunProcedure("sp_CheckForAllCatGrpMapped", {Int(nSalesmanID)})));
        nResult = value && (*value == 1 || *value == 2) ? static_cast<long>(*value) : 0;
    });
}

void Zuro_frmDispatch_Dispatch::DSTypeCatMapped(long nSalesmanID, long& nResult) {
    Handled("DSTypeCatMapped", [&] {
        if (auto value = FirstValue(host_.global.RunProcedure("sp_get_CatMappedDSTypeID", {Int(nSalesmanID)})))
            nResult = platform::CLng(*value);
    });
}

void Zuro_frmDispatch_Dispatch::GroupExistsForSalesman(long nSalesmanID, const std::string& szGroup, long& nResult) {
    Handled("GroupExistsForSalesman", [&] {
        if (auto value = FirstValue(
                host_.global.RunProcedure("Sp_CheckGroupExistsForSalesman",
                                          {Int(nSalesmanID), {platform::Value(szGroup), platform::adtype::VarChar}})))
            nResult = platform::CLng(*value);
    });
}

// bAll: every group of the old list is in the new one; bAny: at least one is.
void Zuro_frmDispatch_Dispatch::GrpExists(const std::string& szOld, const std::string& szNew, bool& bAll, bool& bAny) {
    bAll = true;
    bAny = false;
    const auto vNew = platform::Split(szNew, ",");
    for (const auto& szOldGroup : platform::Split(szOld, ",")) {
        bool bFound = false;
        for (const auto& szNewGroup : vNew) {
            if (platform::Trim(szOldGroup) == platform::Trim(szNewGroup)) {
                bFound = true;
                break;
            }
        }
        if (bFound)
            bAny = true;
        else
            bAll = false;
    }
}

}  // namespace screen
