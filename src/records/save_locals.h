// The locals of SaveDispatch that cross its steps.
#pragma once

#include <string>

#include "platform/value.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

struct Zuro_frmDispatch_Dispatch::SaveLocals {
    long nRows = 0;        // grid rows, the blank entry row not counted
    long nSalesmanID = 0;  // 0 when none
    long nBeatID = 0;
    platform::Date dtDispatchDay{};
    long nDatedPosting = 0;  // 1 when the host posts on the note's own date
    std::string szFirstRef, szSecondRef;
    long nStatus = 0;          // the origin bit of the note
    long nDispatchID = 0;      // the stored note's key
    long nDocumentID = 0;      // its document number
    std::string szDocumentID;  // the number the user is told
};

}  // namespace screen
