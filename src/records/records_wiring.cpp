// The routines of the credit gates, saving and printing that a host may call by name.
#include "screen/routine_arguments.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::WireSavingAndPrinting() {
    routines_.Add("SaveDispatch", [this](RoutineCall& call) {
        RoutineArguments(call, 0);
        call.result = platform::Value(SaveDispatch());
    });
    routines_.Add("CleanUp", [this](RoutineCall& call) {
        RoutineArguments(call, 0);
        CleanUp();
    });
    routines_.Add("CheckCreditGates", [this](RoutineCall& call) {
        RoutineArguments args(call, 3);
        call.result = platform::Value(CheckCreditGates(args.Number(0), args.Number(1), args.Number(2)));
    });
    routines_.Add("CheckCrLimit", [this](RoutineCall& call) {
        RoutineArguments(call, 0);
        call.result = platform::Value(CheckCrLimit());
    });
    routines_.Add("CheckCreditLimit", [this](RoutineCall& call) {
        RoutineArguments args(call, 2);
        call.result = platform::Value(CheckCreditLimit(args.Real(0), args.Real(1)));
    });
    routines_.Add("GetPrimaryItemName", [this](RoutineCall& call) {
        RoutineArguments args(call, 3);
        call.result = platform::Value(GetPrimaryItemName(args.Number(0), args.Text(1), args.Text(2)));
    });
    routines_.Add("PrintSavedDispatch", [this](RoutineCall& call) {
        RoutineArguments args(call, 1);
        PrintSavedDispatch(args.Number(0));
    });
    routines_.Add("PrintViewedDispatch", [this](RoutineCall& call) {
        RoutineArguments(call, 0);
        PrintViewedDispatch();
    });
}

}  // namespace screen
