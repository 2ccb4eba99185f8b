// The other-group free items as a host holding the form may call them by name, their
// tables written as one word each (schemes/other_group_table_text.h).
#include "schemes/other_group_table_text.h"
#include "screen/routine_binder.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::WireOtherGroupFreeItems() {
    RoutineBinder routines(routines_, *this);
    routines.Bind("ClubOCGFreeItems", [this] { return schemes::OCGTableText(ClubOCGFreeItems()); }, {});
    routines.Bind("DeleteExistingOCGItems",
                  [this](std::string szItems) { DeleteExistingOCGItems(schemes::OCGTableFromText(szItems)); },
                  {"vItems"});
    routines.Bind("LoadOCGFreeItems",
                  [this](std::string szItems, long nReturnSerial) {
                      LoadOCGFreeItems(schemes::OCGTableFromText(szItems), nReturnSerial);
                  },
                  {"vItems", "nReturnSerial"});
}

}  // namespace screen
