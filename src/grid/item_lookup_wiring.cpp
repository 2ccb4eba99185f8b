// The unit list's events, and the look-up, serial and unit routines a host holding
// the form may call by name.
#include <stdexcept>

#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
// The arguments of a call by name, held to the count the routine takes.
class CallArguments {
public:
    CallArguments(const RoutineCall& call, std::size_t count) : call_(call) {
        if (call.arguments.size() != count)
            throw std::invalid_argument("takes " + std::to_string(count) + " argument" + (count == 1 ? "" : "s") +
                                        ", was given " + std::to_string(call.arguments.size()));
    }
    const std::string& Text(std::size_t i) const { return call_.arguments.at(i); }
    long Number(std::size_t i) const {
        const std::string& text = Text(i);
        if (!platform::IsNumericText(text))
            throw std::invalid_argument("argument " + std::to_string(i + 1) + " must be a number, was \"" + text + "\"");
        return platform::CLng(platform::ToNumber(platform::Value(text)));
    }
    std::int16_t Flag(std::size_t i) const { return platform::CInt(static_cast<double>(Number(i))); }
    bool Boolean(std::size_t i) const {
        const std::string word = platform::UCase(Text(i));
        if (word == "TRUE") return true;
        if (word == "FALSE") return false;
        return Number(i) != 0;
    }

private:
    const RoutineCall& call_;
};
}  // namespace

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
            CallArguments(call, 0);
            (this->*routine)();
        });

    routines_.Add("SetAutolistOption", [this](RoutineCall& call) { SetAutolistOption(CallArguments(call, 1).Number(0)); });
    routines_.Add("Add_Unique_Serial", [this](RoutineCall& call) {
        const CallArguments args(call, 3);
        long nRow = args.Number(0);
        std::int16_t iResetAll = args.Flag(1), bToSet = args.Flag(2);
        Add_Unique_Serial(nRow, iResetAll, bToSet);
    });
    routines_.Add("getRowNumber", [this](RoutineCall& call) {
        call.result = platform::Value(getRowNumber(CallArguments(call, 1).Number(0)));
    });
    routines_.Add("DoRowOperation", [this](RoutineCall& call) {
        const CallArguments args(call, 2);
        call.result = DoRowOperation(args.Number(0), args.Text(1), DTFlexDispatch);
    });
    routines_.Add("LoadItemUOM", [this](RoutineCall& call) {
        const CallArguments args(call, 2);
        LoadItemUOM(args.Text(0), args.Number(1));
    });
    routines_.Add("ApplyUOMChange", [this](RoutineCall& call) { ApplyUOMChange(CallArguments(call, 1).Boolean(0)); });
    routines_.Add("ValidateUOM", [this](RoutineCall& call) {
        bool bValid = false;
        ValidateUOM(CallArguments(call, 1).Number(0), bValid);
        call.outs.emplace_back("bValid", platform::Value(bValid));
    });
    routines_.Add("CheckForMultipleUOM", [this](RoutineCall& call) { CheckForMultipleUOM(CallArguments(call, 1).Number(0)); });
    routines_.Add("CopyGridItems", [this](RoutineCall& call) {
        CallArguments(call, 0);
        CopyGridItems(DTFlexDispatch);
    });
    routines_.Add("PasteGridItems", [this](RoutineCall& call) {
        CallArguments(call, 0);
        PasteGridItems(DTFlexDispatch);
    });
    routines_.Add("FirstBlankGridRow", [this](RoutineCall& call) {
        CallArguments(call, 0);
        call.result = platform::Value(FirstBlankGridRow(DTFlexDispatch));
    });
    routines_.Add("FindQuantityColumn", [this](RoutineCall& call) {
        call.result = platform::Value(FindQuantityColumn(DTFlexDispatch, CallArguments(call, 1).Number(0)));
    });
    routines_.Add("GetGridQuantity", [this](RoutineCall& call) {
        call.result = platform::Value(GetGridQuantity(DTFlexDispatch, CallArguments(call, 1).Number(0)));
    });
}

}  // namespace screen
