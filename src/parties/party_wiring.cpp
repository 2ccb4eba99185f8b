// The salesman, beat and category group boxes' events, and the party routines and
// fields a host holding the form may reach by name.
#include <stdexcept>

#include "platform/convert.h"
#include "screen/routine_arguments.h"
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
    auto plain = [this](const char* name, void (Self::*routine)()) {
        routines_.Add(name, [this, routine](RoutineCall& call) {
            RoutineArguments(call, 0, 0);
            (this->*routine)();
        });
    };
    for (auto [name, routine] : std::initializer_list<std::pair<const char*, void (Self::*)()>>{
             {"LoadSalesman", &Self::LoadSalesman},
             {"LoadBeat", &Self::LoadBeat},
             {"LoadCustomer", &Self::LoadCustomer},
             {"LoadDefaultBeatSalesman", &Self::LoadDefaultBeatSalesman},
             {"LoadPreviousValues", &Self::LoadPreviousValues},
             {"ResetCatGrp", &Self::ResetCatGrp},
             {"ClearSalesman", &Self::ClearSalesman},
             {"ClearBeat", &Self::ClearBeat},
             {"ClearCategoryGroup", &Self::ClearCategoryGroup},
             {"txtSalesman_Change", &Self::txtSalesman_Change},
             {"txtSalesman_LostFocus", &Self::txtSalesman_LostFocus},
             {"txtBeat_Change", &Self::txtBeat_Change},
             {"txtBeat_LostFocus", &Self::txtBeat_LostFocus},
             {"txtCategory_LostFocus", &Self::txtCategory_LostFocus},
             {"CheckTinNumber", &Self::CheckTinNumber}})
        plain(name, routine);

    auto withResult = [this](const char* name, auto (Self::*routine)()) {
        routines_.Add(name, [this, routine](RoutineCall& call) {
            RoutineArguments(call, 0, 0);
            call.result = platform::Value((this->*routine)());
        });
    };
    withResult("GetSalesmanID", &Self::GetSalesmanID);
    withResult("GetBeatID", &Self::GetBeatID);
    withResult("GetSalesmanName", &Self::GetSalesmanName);
    withResult("GetBeatName", &Self::GetBeatName);
    withResult("GetGroupID", &Self::GetGroupID);
    withResult("GetGroupName", &Self::GetGroupName);
    withResult("ValidSalesman", &Self::ValidSalesman);
    withResult("ValidBeat", &Self::ValidBeat);
    withResult("ValidCatGroup", &Self::ValidCatGroup);

    auto withNumber = [this](const char* name, void (Self::*routine)(long)) {
        routines_.Add(name, [this, routine](RoutineCall& call) { (this->*routine)(RoutineArguments(call, 1, 1).Number(0)); });
    };
    withNumber("LoadCategoryGroup", &Self::LoadCategoryGroup);
    withNumber("SetDefaultSalesman", &Self::SetDefaultSalesman);
    withNumber("SetDefaultBeat", &Self::SetDefaultBeat);

    auto numberOut = [this](const char* name, void (Self::*routine)(long, long&)) {
        routines_.Add(name, [this, routine](RoutineCall& call) {
            long nResult = 0;
            (this->*routine)(RoutineArguments(call, 1, 1).Number(0), nResult);
            call.outs.emplace_back("nResult", platform::Value(nResult));
        });
    };
    numberOut("DSTypeCatMapped", &Self::DSTypeCatMapped);
    numberOut("CheckForAllCatGrpMapped", &Self::CheckForAllCatGrpMapped);

    routines_.Add("isBeatDeactivated", [this](RoutineCall& call) {
        call.result = platform::Value(isBeatDeactivated(RoutineArguments(call, 1, 1).Number(0)));
    });
    routines_.Add("SetDefaultCatGroup", [this](RoutineCall& call) { SetDefaultCatGroup(RoutineArguments(call, 1, 1).Text(0)); });
    routines_.Add("GetCategoryGroupNames", [this](RoutineCall& call) {
        call.result = platform::Value(GetCategoryGroupNames(RoutineArguments(call, 1, 1).Text(0)));
    });
    routines_.Add("GetSerialInAscOrder", [](RoutineCall& call) {
        call.result = platform::Value(GetSerialInAscOrder(RoutineArguments(call, 1, 1).Text(0)));
    });
    routines_.Add("DSTypeNotMapped", [this](RoutineCall& call) {
        RoutineArguments args(call, 0, 1);
        call.result = platform::Value(DSTypeNotMapped(args.Has(0) ? args.Text(0) : txtCategory.Text()));
    });
    routines_.Add("CheckForGroupChange", [this](RoutineCall& call) {
        RoutineArguments args(call, 2, 2);
        CheckForGroupChange(args.Text(0), args.Number(1));
    });
    routines_.Add("CheckForGridItem", [this](RoutineCall& call) {
        bool nResult = false;
        CheckForGridItem(RoutineArguments(call, 1, 1).Number(0), nResult);
        call.outs.emplace_back("nResult", platform::Value(nResult));
    });
    routines_.Add("GroupExistsForSalesman", [this](RoutineCall& call) {
        RoutineArguments args(call, 2, 2);
        long nResult = 0;
        GroupExistsForSalesman(args.Number(0), args.Text(1), nResult);
        call.outs.emplace_back("nResult", platform::Value(nResult));
    });
    routines_.Add("GrpExists", [](RoutineCall& call) {
        RoutineArguments args(call, 2, 2);
        bool bAll = false, bAny = false;
        GrpExists(args.Text(0), args.Text(1), bAll, bAny);
        call.outs.emplace_back("bAll", platform::Value(bAll));
        call.outs.emplace_back("bAny", platform::Value(bAny));
    });
    auto keyDown = [this](const char* name, void (Self::*routine)(int&, int)) {
        routines_.Add(name, [this, routine](RoutineCall& call) {
            RoutineArguments args(call, 2, 2);
            int nKeyCode = static_cast<int>(args.Number(0));
            (this->*routine)(nKeyCode, static_cast<int>(args.Number(1)));
            call.outs.emplace_back("KeyCode", platform::Value(nKeyCode));
        });
    };
    keyDown("txtSalesman_KeyDown", &Self::txtSalesman_KeyDown);
    keyDown("txtBeat_KeyDown", &Self::txtBeat_KeyDown);
    keyDown("txtCategory_KeyDown", &Self::txtCategory_KeyDown);

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
