// The screen fields by name, written as text, for a host that inspects the form.
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace {
std::string ControlNames(const std::vector<platform::Control*>& controls) {
    std::string names;
    for (auto* control : controls) names += (names.empty() ? "" : ",") + control->FullName();
    return names;
}
}  // namespace

void Zuro_frmDispatch_Dispatch::RegisterFields() {
    auto text = [this](const std::string& name, const std::string* field) {
        fields_[name] = [field] { return *field; };
    };
    auto number = [this](const std::string& name, const long* field) {
        fields_[name] = [field] { return platform::ToText(platform::Value(*field)); };
    };
    auto flag = [this](const std::string& name, const bool* field) {
        fields_[name] = [field] { return platform::ToText(platform::Value(*field)); };
    };
    // The fields a host sets before it calls the save's routines itself.
    for (auto [name, field] : {std::pair{"szEnteredCustomerCode", &szEnteredCustomerCode},
                               std::pair{"szCustomerCode", &szCustomerCode}, std::pair{"szDocNumbers", &szDocNumbers},
                               std::pair{"szPONumbers", &szPONumbers}, std::pair{"szDocIDs", &szDocIDs}}) {
        writableFields_[name] = field;
        text(name, field);
    }
    text("szCurrentGroupID", &szCurrentGroupID);
    text("szError", &szError);
    flag("bInTransaction", &bInTransaction);
    flag("bFlushRow", &bFlushRow);
    flag("bQtyRefused", &bQtyRefused);
    text("szCustomerName", &szCustomerName);
    text("szDocStatusText", &szDocStatusText);
    text("szRefNumbers", &szRefNumbers);
    text("szDocIDs2", &szDocIDs2);
    text("szCopySONumber", &szCopySONumber);
    text("szMemo1", &szMemo1);
    text("szMemo2", &szMemo2);
    text("szMemo3", &szMemo3);
    text("szLblSelectSalesman", &szLblSelectSalesman);
    text("szLblSelectBeat", &szLblSelectBeat);
    text("szLblSelectCategory", &szLblSelectCategory);
    text("szLblAllCategories", &szLblAllCategories);
    text("szLblAllCustomers", &szLblAllCustomers);
    text("szSCPrefix", &szSCPrefix);
    text("szPOPrefix", &szPOPrefix);
    text("szDispatchPrefix", &szDispatchPrefix);
    text("szDefaultDocReference", &szDefaultDocReference);
    text("szOriginalDocType", &szOriginalDocType);
    number("nMode", &nMode);
    number("nCustomerCategory", &nCustomerCategory);
    number("nCustomerEntrySource", &nCustomerEntrySource);
    number("bListArmed", &bListArmed);
    flag("bAskOnExit", &bAskOnExit);
    flag("bAllCategories", &bAllCategories);
    fields_["dtServerDate"] = [this] { return platform::ToText(platform::Value(dtServerDate)); };
    fields_["vFocusOrder"] = [this] { return ControlNames(vFocusOrder); };
    fields_["vFocusOrder2"] = [this] { return ControlNames(vFocusOrder2); };
    fields_["objLink"] = [this] { return objLink ? objLink->Caption() : std::string("Nothing"); };
}

bool Zuro_frmDispatch_Dispatch::SetFieldText(const std::string& name, const std::string& text) {
    if (auto it = writableFields_.find(name); it != writableFields_.end()) {
        *it->second = text;
        return true;
    }
    auto number = writableNumbers_.find(name);
    if (number == writableNumbers_.end()) return false;
    *number->second = platform::CLng(platform::CDbl(platform::Value(text)));
    return true;
}

std::optional<std::string> Zuro_frmDispatch_Dispatch::FieldText(const std::string& name) const {
    auto it = fields_.find(name);
    if (it == fields_.end()) return std::nullopt;
    return it->second();
}

}  // namespace screen
