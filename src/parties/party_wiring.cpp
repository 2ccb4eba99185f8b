// The salesman, beat and category group boxes' events, and the party routines and
// fields a host holding the form may reach by name.
#include "platform/convert.h"
#include "screen/routine_binder.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::WirePartyEvents() {
    txtSalesman.Change.Connect([this] { txtSalesman_Change(); });
    txtSalesman.KeyDown.Connect([this](int& KeyCode, int Shift) { txtSalesman_KeyDown(KeyCode, Shift); });
    txtSalesman.LostFocus.Connect([this] { txtSalesman_LostFocus(); });
    txtBeat.Change.Connect([this] { txtBeat_Change(); });
    txtBeat.KeyDown.Connect([this](int& KeyCode, int Shift) { txtBeat_KeyDown(KeyCode, Shift); });
    txtBeat.LostFocus.Connect([this] { txtBeat_LostFocus(); });
    txtCategory.KeyDown.Connect([this](int& KeyCode, int Shift) { txtCategory_KeyDown(KeyCode, Shift); });
    txtCategory.LostFocus.Connect([this] { txtCategory_LostFocus(); });

    using Self = Zuro_frmDispatch_Dispatch;
    RoutineBinder routines(routines_, *this);
    routines.Bind("LoadSalesman", &Self::LoadSalesman, {});
    routines.Bind("LoadBeat", &Self::LoadBeat, {});
    routines.Bind("LoadCustomer", &Self::LoadCustomer, {});
    routines.Bind("LoadDefaultBeatSalesman", &Self::LoadDefaultBeatSalesman, {});
    routines.Bind("LoadPreviousValues", &Self::LoadPreviousValues, {});
    routines.Bind("ResetCatGrp", &Self::ResetCatGrp, {});
    routines.Bind("ClearSalesman", &Self::ClearSalesman, {});
    routines.Bind("ClearBeat", &Self::ClearBeat, {});
    routines.Bind("ClearCategoryGroup", &Self::ClearCategoryGroup, {});
    routines.Bind("txtSalesman_Change", &Self::txtSalesman_Change, {});
    routines.Bind("txtSalesman_LostFocus", &Self::txtSalesman_LostFocus, {});
    routines.Bind("txtBeat_Change", &Self::txtBeat_Change, {});
    routines.Bind("txtBeat_LostFocus", &Self::txtBeat_LostFocus, {});
    routines.Bind("txtCategory_LostFocus", &Self::txtCategory_LostFocus, {});
    routines.Bind("CheckTinNumber", &Self::CheckTinNumber, {});

    routines.Bind("GetSalesmanID", &Self::GetSalesmanID, {});
    routines.Bind("GetBeatID", &Self::GetBeatID, {});
    routines.Bind("GetSalesmanName", &Self::GetSalesmanName, {});
    routines.Bind("GetBeatName", &Self::GetBeatName, {});
    routines.Bind("GetGroupID", &Self::GetGroupID, {});
    routines.Bind("GetGroupName", &Self::GetGroupName, {});
    routines.Bind("ValidSalesman", &Self::ValidSalesman, {});
    routines.Bind("ValidBeat", &Self::ValidBeat, {});
    routines.Bind("ValidCatGroup", &Self::ValidCatGroup, {});

    routines.Bind("LoadCategoryGroup", &Self::LoadCategoryGroup, {"nInd"});
    routines.Bind("SetDefaultSalesman", &Self::SetDefaultSalesman, {"nSalesmanID"});
    routines.Bind("SetDefaultBeat", &Self::SetDefaultBeat, {"nBeatID"});
    routines.Bind("DSTypeCatMapped", &Self::DSTypeCatMapped, {"nSalesmanID", "nResult"});
    routines.Bind("CheckForAllCatGrpMapped", &Self::CheckForAllCatGrpMapped, {"nSalesmanID", "nResult"});
    routines.Bind("isBeatDeactivated", &Self::isBeatDeactivated, {"nBeatID"});
    routines.Bind("SetDefaultCatGroup", &Self::SetDefaultCatGroup, {"szGroup"});
    routines.Bind("GetCategoryGroupNames", &Self::GetCategoryGroupNames, {"szGroupIDs"});
    routines.Bind("GetSerialInAscOrder", &Self::GetSerialInAscOrder, {"szList"});
    // The routine reads the category box itself; the group a caller names is not used.
    routines.Bind("DSTypeNotMapped", &Self::DSTypeNotMapped, {Optional("szGroup", "")});
    routines.Bind("CheckForGroupChange", &Self::CheckForGroupChange, {"szGroup", "nInd"});
    routines.Bind("CheckForGridItem", &Self::CheckForGridItem, {"nSalesmanChange", "nResult"});
    routines.Bind("GroupExistsForSalesman", &Self::GroupExistsForSalesman, {"nSalesmanID", "szGroup", "nResult"});
    routines.Bind("GrpExists", &Self::GrpExists, {"szOld", "szNew", "bAll", "bAny"});
    routines.Bind("txtSalesman_KeyDown", &Self::txtSalesman_KeyDown, {InOut("KeyCode"), "Shift"});
    routines.Bind("txtBeat_KeyDown", &Self::txtBeat_KeyDown, {InOut("KeyCode"), "Shift"});
    routines.Bind("txtCategory_KeyDown", &Self::txtCategory_KeyDown, {InOut("KeyCode"), "Shift"});

    // The party fields, for a host that inspects the form.
    auto text = [this](const char* name, const std::string* field) { fields_[name] = [field] { return *field; }; };
    auto number = [this](const char* name, const std::int16_t* field) {
        fields_[name] = [field] { return platform::ToText(platform::Value(long{*field})); };
    };
    auto flag = [this](const char* name, const bool* field) {
        fields_[name] = [field] { return platform::ToText(platform::Value(*field)); };
    };
    number("nPrevSalesmanID", &nPrevSalesmanID);
    number("nPrevBeatID", &nPrevBeatID);
    text("szPrevSalesmanName", &szPrevSalesmanName);
    text("szPrevBeatName", &szPrevBeatName);
    text("szPrevCustomerCode", &szPrevCustomerCode);
    text("szPrevCustomerName", &szPrevCustomerName);
    text("szPrevGroupID", &szPrevGroupID);
    text("szPrevGroupName", &szPrevGroupName);
    text("szGroupIDs", &szGroupIDs);
    text("szGroupNames", &szGroupNames);
    text("szCurrentGroupID", &szCurrentGroupID);
    text("szItemCodeQuery", &szItemCodeQuery);
    text("szItemNameQuery", &szItemNameQuery);
    flag("bPartyAutoFilled", &bPartyAutoFilled);
    flag("bGroupReset", &bGroupReset);
    flag("bGroupClearedSalesman", &bGroupClearedSalesman);
}

}  // namespace screen
