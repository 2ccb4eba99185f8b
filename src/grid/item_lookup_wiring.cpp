// The unit list's events, and the look-up, serial and unit routines a host holding
// the form may call by name.
#include "screen/routine_binder.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::WireItemLookupAndUnits() {
    lstUOM.Click.Connect([this] { lstUOM_Click(); });
    lstUOM.DblClick.Connect([this] { lstUOM_DblClick(); });
    lstUOM.KeyDown.Connect([this](int& KeyCode, int Shift) { lstUOM_KeyDown(KeyCode, Shift); });
    lstUOM.GotFocus.Connect([this] { lstUOM_GotFocus(); });
    lstUOM.LostFocus.Connect([this] { lstUOM_LostFocus(); });

    using Self = Zuro_frmDispatch_Dispatch;
    RoutineBinder routines(routines_, *this);
    routines.Bind("InitAutolist", &Self::InitAutolist, {});
    routines.Bind("CycleUOM", &Self::CycleUOM, {});
    routines.Bind("lstUOM_Click", &Self::lstUOM_Click, {});
    routines.Bind("lstUOM_DblClick", &Self::lstUOM_DblClick, {});
    routines.Bind("lstUOM_GotFocus", &Self::lstUOM_GotFocus, {});
    routines.Bind("lstUOM_LostFocus", &Self::lstUOM_LostFocus, {});
    routines.Bind("SetAutolistOption", &Self::SetAutolistOption, {"nCol"});
    routines.Bind("Add_Unique_Serial", &Self::Add_Unique_Serial, {InOut("nRow"), InOut("iResetAll"), InOut("bToSet")});
    routines.Bind("getRowNumber", &Self::getRowNumber, {"nSerial"});
    routines.Bind("DoRowOperation",
                  [this](long lOperation, const std::string& szRows) {
                      return DoRowOperation(lOperation, szRows, DTFlexDispatch);
                  },
                  {"lOperation", "szRows"});
    routines.Bind("LoadItemUOM", &Self::LoadItemUOM, {"szItemCode", "nRow"});
    routines.Bind("ApplyUOMChange", &Self::ApplyUOMChange, {"bFocusGrid"});
    routines.Bind("ValidateUOM", &Self::ValidateUOM, {"nRows", "bValid"});
    routines.Bind("CheckForMultipleUOM", &Self::CheckForMultipleUOM, {"nRow"});
    routines.Bind("CopyGridItems", [this] { CopyGridItems(DTFlexDispatch); }, {});
    routines.Bind("PasteGridItems", [this] { PasteGridItems(DTFlexDispatch); }, {});
    routines.Bind("FirstBlankGridRow", [this] { return FirstBlankGridRow(DTFlexDispatch); }, {});
    routines.Bind("FindQuantityColumn", [this](long nRow) { return FindQuantityColumn(DTFlexDispatch, nRow); },
                  {"nRow"});
    routines.Bind("GetGridQuantity", [this](long nRow) { return GetGridQuantity(DTFlexDispatch, nRow); }, {"nRow"});
}

}  // namespace screen
