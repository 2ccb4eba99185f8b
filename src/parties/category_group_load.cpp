// The category groups the salesman's DS type is mapped to: the previous choice
// comes back when the groups are the same, a salesman mapped to every group gets
// all categories, and any other change goes through the grid's guard.
#include "parties/party_boxes.h"
#include "parties/party_support.h"
#include "platform/convert.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::LoadCategoryGroup(long nInd) {
    Handled("LoadCategoryGroup", [&] {
        auto& global = host_.global;
        const long nSalesman = GetSalesmanID();
        szGroupIDs.clear();
        szGroupNames.clear();

        long nRows = 0;
        std::string szFirstID;
        auto rs = global.GetConnection().Execute("Select Distinct GroupID,GroupName From dbo.fn_ListCategoryGroup(" +
                                                 parties::SqlNumber(nSalesman) +
                                                 ") Where IsNull(GroupName,'') <> '' And GroupName Like '%%'");
        for (; rs && rs->IsOpen() && !rs->Eof(); rs->MoveNext()) {
            const std::string szID = platform::ToText(rs->Fields(0));
            const std::string szName = platform::ToText(rs->Fields(1));
            if (++nRows == 1) szFirstID = szID;
            szGroupIDs += (szGroupIDs.empty() ? "" : ", ") + szID;
            szGroupNames += (szGroupNames.empty() ? "" : ", ") + szName;
        }
        if (rs && rs->IsOpen()) rs->Close();

        if (nRows >= 1) {
            szGroupIDs = GetSerialInAscOrder(szGroupIDs);
            if (szGroupIDs == szPrevGroupID) {
                parties::WriteBox(txtCategory, szGroupNames, szGroupIDs);
                return;
            }
        }

        if (nRows != 1) {
            long nMapped = 0;
            CheckForAllCatGrpMapped(nSalesman, nMapped);
            if (nMapped == 1) {
                parties::WriteBox(txtCategory, szLblAllCategories, "0");
                bPartyAutoFilled = true;
                global.SetFocusTo(txtCategory);
            } else if (szPrevGroupName.empty()) {
                parties::WriteBox(txtCategory, szGroupNames, szGroupIDs);
            } else if (nRows < 2) {
                // No group at all: the previous choice stands.
            } else {
                CheckForGroupChange(szGroupIDs, nInd);
                if (bGroupReset) parties::WriteBox(txtCategory, szGroupNames, szGroupIDs);
            }
            return;
        }

        auto writeSingleGroup = [&] {
            txtCategory.Tag = szFirstID;
            txtCategory.SetText(global.LookupName("ProductCategoryGroupAbstract", "GroupID", "GroupName", szFirstID));
        };
        if (szPrevGroupName.empty()) {
            writeSingleGroup();
        } else if (platform::ToNumber(szFirstID) == platform::ToNumber(szPrevGroupID)) {
            // The same single group: nothing changes.
        } else {
            CheckForGroupChange(szFirstID, nInd);
            if (bGroupReset) {
                writeSingleGroup();
                bPartyAutoFilled = true;
                global.SetFocusTo(txtCategory);
            }
        }
    });
}

}  // namespace screen
