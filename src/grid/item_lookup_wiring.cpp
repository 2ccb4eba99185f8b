// The unit list's events, and the look-up, serial and unit routines a host holding
// the form may call by name.
#include <stdexcept>

#include "platform/convert.h"
#include "screen/routine_arguments.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {


void Zuro_frmDispatch_Dispatch::WireItemLookupAndUnits() {
    lstUOM.Click.Connect([this] { lstUOM_Click(); });
    lstUOM.DblClick.Connect([this] { lstUOM_DblClick(); });
    lstUOM.KeyDown.Connect([this](int& KeyCode, int Shift) { lstUOM_KeyDown(KeyCode, Shift); });
    lstUOM.GotFocus.Connect([this] { lstUOM_GotFocus(); });
    lstUOM.LostFocus.Connect([this] { lstUOM_LostFocus(); });

    using Self = Zuro_frmDispatch_Dispatch;
    for (auto [name, routine] : std::initializer_list<std::pair<const char*, void (Self::*)()>>{
             {"InitAutolist", &Self::InitAutolist},
             {"CycleUOM", &Self::CycleUOM},
             {"lstUOM_Click", &Self::lstUOM_Click},
             {"lstUOM_DblClick", &Self::lstUOM_DblClick},
             {"lstUOM_GotFocus", &Self::lstUOM_GotFocus},
             {"lstUOM_LostFocus", &Self::lstUOM_LostFocus}})
        routines_.Add(name, [this, routine](RoutineCall& call) {
            RoutineArguments(call, 0);
            (this->*routine)();
        });

    routines_.Add("SetAutolistOption", [this](RoutineCall& call) { SetAutolistOption(RoutineArguments(call, 1).Number(0)); });
    routines_.Add("Add_Unique_Serial", [this](RoutineCall& call) {
        const RoutineArguments args(call, 3);
        long nRow = args.Number(0);
        std::int16_t iResetAll = args.Integer(1), bToSet = args.Integer(2);
        Add_Unique_Serial(nRow, iResetAll, bToSet);
    });
    routines_.Add("getRowNumber", [this](RoutineCall& call) {
        call.result = platform::Value(getRowNumber(RoutineArguments(call, 1).Number(0)));
    });
    routines_.Add("DoRowOperation", [this](RoutineCall& call) {
        const RoutineArguments args(call, 2);
        call.result = DoRowOperation(args.Number(0), args.Text(1), DTFlexDispatch);
    });
    routines_.Add("LoadItemUOM", [this](RoutineCall& call) {
        const RoutineArguments args(call, 2);
        LoadItemUOM(args.Text(0), args.Number(1));
    });
    routines_.Add("ApplyUOMChange", [this](RoutineCall& call) { ApplyUOMChange(RoutineArguments(call, 1).Boolean(0)); });
    routines_.Add("ValidateUOM", [this](RoutineCall& call) {
        bool bValid = false;
        ValidateUOM(RoutineArguments(call, 1).Number(0), bValid);
        call.outs.emplace_back("bValid", platform::Value(bValid));
    });
    routines_.Add("CheckForMultipleUOM", [this](RoutineCall& call) { CheckForMultipleUOM(RoutineArguments(call, 1).Number(0)); });
    routines_.Add("CopyGridItems", [this](RoutineCall& call) {
        RoutineArguments(call, 0);
        CopyGridItems(DTFlexDispatch);
    });
    routines_.Add("PasteGridItems", [this](RoutineCall& call) {
        RoutineArguments(call, 0);
        PasteGridItems(DTFlexDispatch);
    });
    routines_.Add("FirstBlankGridRow", [this](RoutineCall& call) {
        RoutineArguments(call, 0);
        call.result = platform::Value(FirstBlankGridRow(DTFlexDispatch));
    });
    routines_.Add("FindQuantityColumn", [this](RoutineCall& call) {
        call.result = platform::Value(FindQuantityColumn(DTFlexDispatch, RoutineArguments(call, 1).Number(0)));
    });
    routines_.Add("GetGridQuantity", [this](RoutineCall& call) {
        call.result = platform::Value(GetGridQuantity(DTFlexDispatch, RoutineArguments(call, 1).Number(0)));
    });
}

}  // namespace screen
