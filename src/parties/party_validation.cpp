// Whether the names in the party boxes stand in the masters, and the two checks of
// the mapping that refuse a choice: a deactivated beat, and a salesman with all
// categories.
#include "parties/party_boxes.h"
#include "platform/convert.h"

namespace screen {

bool Zuro_frmDispatch_Dispatch::ValidSalesman() {
    bool bValid = false;
    Handled("ValidSalesman", [&] {
        bValid = !host_.global.LookupCode("Salesman", "SalesmanID", "Salesman_Name", txtSalesman.Text()).empty();
    });
    return bValid;
}

bool Zuro_frmDispatch_Dispatch::ValidBeat() {
    bool bValid = false;
    Handled("ValidBeat",
            [&] { bValid = !host_.global.LookupCode("Beat", "BeatID", "Description", txtBeat.Text()).empty(); });
    return bValid;
}

bool Zuro_frmDispatch_Dispatch::ValidCatGroup() {
    bool bValid = false;
    Handled("ValidCatGroup", [&] {
        if (txtCategory.Text() == szLblAllCategories || bAllCategories) {
            bValid = true;
            return;
        }
        bValid = !host_.global.LookupCode("ProductCategoryGroupAbstract", "GroupID", "GroupName", txtCategory.Text())
                      .empty();
    });
    return bValid;
}

bool Zuro_frmDispatch_Dispatch::isBeatDeactivated(long nBeatID) {
    bool bDeactivated = false;
    Handled("isBeatDeactivated", [&] {
        auto rs = host_.global.RunProcedure("sp_Validate_ActiveBeat",
                                            {{platform::Value(static_cast<double>(nBeatID)), platform::adtype::Double},
                                             {platform::Value(1), platform::adtype::Integer}});
        if (rs && rs->IsOpen() && !rs->Eof()) bDeactivated = platform::ToNumber(rs->Fields(0)) == 0;
        if (rs && rs->IsOpen()) rs->Close();
    });
    return bDeactivated;
}

// A salesman and all categories do not go together: the salesman's DS type decides
// the groups. The group shown in txtCategory is what counts, whatever a caller has
// at hand.
bool Zuro_frmDispatch_Dispatch::DSTypeNotMapped(const std::string& /*szGroup*/) {
    bool bNotMapped = false;
    Handled("DSTypeNotMapped", [&] {
        if (parties::IsAllCategoriesText(txtCategory.Text(), host_.messages) &&
            !platform::Trim(txtSalesman.Text()).empty()) {
            host_.global.ShowNumberedMessage(173, 1, {});
            bNotMapped = true;
        }
    });
    return bNotMapped;
}

}  // namespace screen
