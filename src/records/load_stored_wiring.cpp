// The routines that open a stored note, for a host to call by name, and what they
// leave in the form's fields, for a host to read.
#include "platform/convert.h"
#include "screen/routine_binder.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
// Rows joined with ";", a row's columns with "|"; "" when the table is no array.
std::string TableText(const platform::VariantTable& table) {
    if (!table.IsArray()) return "";
    std::string text;
    for (long r = 1; r <= table.UBound(1); ++r) {
        if (r > 1) text += ";";
        for (long c = 1; c <= table.UBound(2); ++c) text += (c > 1 ? "|" : "") + platform::ToText(table.At(r, c));
    }
    return text;
}
}  // namespace

void Zuro_frmDispatch_Dispatch::WireStoredNoteLoading() {
    using Self = Zuro_frmDispatch_Dispatch;
    RoutineBinder routines(routines_, *this);
    routines.Bind("LoadDispatchInfo", &Self::LoadDispatchInfo, {"DispatchID"});
    routines.Bind("LoadolddispDate", &Self::LoadolddispDate, {"DispatchID"});

    auto date = [](const platform::Date& field) { return platform::ToText(platform::Value(field)); };
    fields_["dtLoadedDispatchDate"] = [this, date] { return date(dtLoadedDispatchDate); };
    fields_["dtOriginalDispatchDate"] = [this, date] { return date(dtOriginalDispatchDate); };
    fields_["dtOldDispatchDate"] = [this, date] { return date(dtOldDispatchDate); };
    fields_["szOldCreationDate"] = [this] { return szOldCreationDate; };
    fields_["nOriginalStatus"] = [this] { return std::to_string(nOriginalStatus); };
    fields_["vOldRefNumber"] = [this] { return platform::ToText(vOldRefNumber); };
    fields_["nSerialCounter"] = [this] { return std::to_string(nSerialCounter); };
    fields_["vOldDetail"] = [this] { return TableText(vOldDetail); };
}

}  // namespace screen
