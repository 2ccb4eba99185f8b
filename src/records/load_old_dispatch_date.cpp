// The dates an amendment judges the stored note's schemes by: the note's own date and
// the day it was made, not today's.
#include "platform/convert.h"
#include "records/stored_dates.h"
#include "screen/procedure_results.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

long Zuro_frmDispatch_Dispatch::LoadolddispDate(long DispatchID) {
    Handled("LoadolddispDate", [&] {
        auto& global = host_.global;
        auto rs = global.NextRecordset(
            global.RunProcedure("Zuro_sp_GetOldDispDate", {{platform::Value(DispatchID), platform::adtype::Integer}}));
        if (HasRecordset(rs) && !rs->Eof()) {
            dtOldDispatchDate = global.ToDateOnly(StoredDate(rs->Fields(0)));
            szOldCreationDate = global.ToText(platform::Value(global.ToDateOnly(StoredDate(rs->Fields(1)))));
        } else {
            // No such note: day 1 of the calendar, which no scheme reaches back to.
            dtOldDispatchDate = platform::Date{1};
            szOldCreationDate.assign(1, '1');  // the day number 1 as text
        }
        if (HasRecordset(rs)) rs->Close();
    });
    // Callers read nothing from it: the routine never gave a result.
    return 0;
}

}  // namespace screen
