// The grid's key and row events, and the scheme and row routines a host holding the
// form may call by name.
#include <stdexcept>

#include "platform/convert.h"
#include "screen/routine_arguments.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {


void Zuro_frmDispatch_Dispatch::WireGridKeysAndRows() {
    auto& grid = DTFlexDispatch;
    grid.KeyCode.Connect([this](int& KeyCode, int Shift) { DTFlexDispatch_KeyCode(KeyCode, Shift); });
    grid.RowColChange.Connect([this](int nRow, int nCol) { DTFlexDispatch_RowColChange(nRow, nCol); });
    grid.Change.Connect([this](int nCol) { DTFlexDispatch_Change(nCol); });
    grid.BeforeDelete.Connect([this](int& nRow, bool& bCancel) { DTFlexDispatch_BeforeDelete(nRow, bCancel); });
    grid.AfterDelete.Connect([this] { DTFlexDispatch_AfterDelete(); });
    grid.AtLastRow.Connect([this] { DTFlexDispatch_AtLastRow(); });
    grid.AtFirstRow.Connect([this] { DTFlexDispatch_AtFirstRow(); });

    using platform::Value;
    auto add = [this](const char* name, RoutineTable::Routine routine) { routines_.Add(name, std::move(routine)); };
    add("getQuotient", [this](RoutineCall& call) {
        RoutineArguments args(call, 2);
        call.result = Value(getQuotient(args.Real(0), args.Real(1)));
    });
    add("GetApplicableQuantity", [this](RoutineCall& call) {
        RoutineArguments args(call, 4);
        call.result = Value(GetApplicableQuantity(args.Real(0), args.Real(1), args.Number(2), args.Real(3)));
    });
    add("GetActualQuantity", [this](RoutineCall& call) {
        RoutineArguments args(call, 3);
        call.result = Value(GetActualQuantity(args.Number(0), static_cast<int>(args.Number(1)), args.Real(2), DTFlexDispatch));
    });
    add("GetBaseUOMConv", [this](RoutineCall& call) {
        RoutineArguments args(call, 2);
        call.result = Value(GetBaseUOMConv(args.Text(0), static_cast<int>(args.Number(1))));
    });
    add("chkFreeItemFound", [this](RoutineCall& call) {
        RoutineArguments args(call, 2);
        call.result = Value(chkFreeItemFound(args.Number(0), args.Number(1)));
    });
    add("AddStringwithCheck", [this](RoutineCall& call) {
        RoutineArguments args(call, 3);
        call.result = Value(AddStringwithCheck(args.Text(0), args.Text(1), args.Text(2)));
    });
    add("CheckScheme", [this](RoutineCall& call) {
        RoutineArguments args(call, 2);
        CheckScheme(args.Number(0), args.Boolean(1), DTFlexDispatch);
    });
    add("GetSaleID", [this](RoutineCall& call) {
        RoutineArguments args(call, 1);
        call.result = Value(GetSaleID(args.Text(0)));
    });
    add("ComputeTotal", [this](RoutineCall& call) {
        RoutineArguments args(call, 2);
        ComputeTotal(args.Number(0), args.Boolean(1));
    });
    add("ComputeDiscount", [](RoutineCall& call) {
        RoutineArguments args(call, 3);
        call.result = Value(ComputeDiscount(args.Real(0), args.Real(1), args.Real(2)));
    });
    add("GetTotalQtyAmountForItem", [this](RoutineCall& call) {
        RoutineArguments args(call, 1);
        call.result = Value(GetTotalQtyAmountForItem(args.Text(0)));
    });
    add("GetMaxSchemeGridID", [this](RoutineCall& call) {
        RoutineArguments args(call, 0);
        long nNext = 0;
        GetMaxSchemeGridID(nNext);
        call.outs.emplace_back("nNext", Value(nNext));
    });
    add("AdjustRow", [this](RoutineCall& call) {
        RoutineArguments args(call, 1);
        AdjustRow(args.Number(0));
    });
    add("GetCustomerForScheme", [this](RoutineCall& call) {
        RoutineArguments args(call, 0);
        call.result = Value(GetCustomerForScheme());
    });
    add("ResetSchemeMemory", [this](RoutineCall& call) {
        RoutineArguments args(call, 0);
        ResetSchemeMemory();
    });
    add("DTFlexDispatch_RowColChange", [this](RoutineCall& call) {
        RoutineArguments args(call, 2);
        DTFlexDispatch_RowColChange(static_cast<int>(args.Number(0)), static_cast<int>(args.Number(1)));
    });
    for (auto [name, routine] : {std::pair{"DTFlexDispatch_AfterDelete", &Zuro_frmDispatch_Dispatch::DTFlexDispatch_AfterDelete},
                                 std::pair{"DTFlexDispatch_AtLastRow", &Zuro_frmDispatch_Dispatch::DTFlexDispatch_AtLastRow},
                                 std::pair{"DTFlexDispatch_AtFirstRow", &Zuro_frmDispatch_Dispatch::DTFlexDispatch_AtFirstRow}})
        add(name, [this, routine = routine](RoutineCall& call) {
            RoutineArguments args(call, 0);
            (this->*routine)();
        });
}

}  // namespace screen
