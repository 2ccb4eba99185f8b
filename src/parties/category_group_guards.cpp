// The guards of a grid that has lines: a new salesman or a new category group may
// not suit the items already taken, so the clerk is asked whether to drop the lines
// or to keep the old party. The lines are never rewritten; they stay or go whole.
#include "parties/party_boxes.h"
#include "parties/party_support.h"
#include "platform/convert.h"

namespace screen {

namespace {
constexpr long kMessageGroupChange = 10;
constexpr long kMessageCategoryChange = 11;

std::string StoredMessage(host_services::HostGlobal& global, long nMessage) {
    return platform::ToText(global.LookupValue(
        global.GetConnection(), "Select Message From ErrorMessages Where ErrorID = " + std::to_string(nMessage)));
}
}  // namespace

void Zuro_frmDispatch_Dispatch::CheckForGridItem(long nSalesmanChange, bool& nResult) {
    Handled("CheckForGridItem", [&] {
        auto& global = host_.global;
        const int nRows = parties::CountGridLines(DTFlexDispatch);
        bGroupClearedSalesman = false;
        const long nSalesman = GetSalesmanID();
        szCurrentGroupID = txtCategory.Tag;
        if (platform::Trim(txtCategory.Text()).empty() || nRows == 0) return;

        long nExists = 0;
        GroupExistsForSalesman(nSalesman, szCurrentGroupID, nExists);
        if (nExists != 0) return;

        const int nAnswer = host_.messages.AskMessage(StoredMessage(global, kMessageGroupChange),
                                                      host_services::msgbox::YesNoQuestionSecond);
        if (nAnswer == host_services::msgbox::AnswerNo) {
            {
                parties::ProgramWrite writing({&parties::SalesmanList(*this, host_)});
                if (nSalesmanChange != 0) {
                    parties::WriteBox(txtSalesman, "", "");
                    bGroupClearedSalesman = true;
                    txtSalesman.SetFocus();
                } else {
                    parties::WriteBox(txtSalesman, szPrevSalesmanName,
                                      platform::ToText(platform::Value(long{nPrevSalesmanID})));
                }
            }
            nResult = true;
        } else if (nAnswer == host_services::msgbox::AnswerYes) {
            parties::EmptyGrid(DTFlexDispatch);
            bGroupClearedSalesman = false;
            if (nSalesmanChange == 2) {
                parties::WriteBox(txtCategory, "", "0");
                LoadCategoryGroup(1);
                if (DSTypeNotMapped(txtCategory.Text())) txtSalesman.SetFocus();
            }
        }
    });
}

void Zuro_frmDispatch_Dispatch::CheckForGroupChange(const std::string& szGroup, long nInd) {
    Handled("CheckForGroupChange", [&] {
        auto& global = host_.global;
        bGroupReset = false;
        if (parties::CountGridLines(DTFlexDispatch) == 0) {
            bGroupReset = true;
            ResetCatGrp();
            return;
        }

        bool bAll = true, bAny = false;
        GrpExists(szPrevGroupID, szGroup, bAll, bAny);
        if (platform::Trim(szPrevGroupID).empty() || bAll) {
            bGroupReset = true;
            ResetCatGrp();
            return;
        }

        const std::string szPrevName = nInd == 4 ? host_.messages.GetLabel(szPrevGroupName) : szPrevGroupName;
        // All categories holds every item already taken: nothing to ask. The tag "0"
        // that the category box gives all categories is not that text, so the box's
        // own change is asked about.
        if (parties::IsAllCategoriesText(szGroup, host_.messages)) return;

        const long nMessage = nInd == 4 ? kMessageCategoryChange : kMessageGroupChange;
        const int nAnswer =
            host_.messages.AskMessage(StoredMessage(global, nMessage), host_services::msgbox::YesNoQuestionSecond);
        if (nAnswer == host_services::msgbox::AnswerNo) {
            parties::ProgramWrite writing(
                {&parties::BeatList(*this, host_), objCustomerList.get(), &parties::SalesmanList(*this, host_)});
            const std::string szPrevSalesmanID = platform::ToText(platform::Value(long{nPrevSalesmanID}));
            switch (nInd) {
                case 1:
                    parties::WriteBox(txtSalesman, szPrevSalesmanName, szPrevSalesmanID);
                    parties::WriteBox(txtBeat, szPrevBeatName, platform::ToText(platform::Value(long{nPrevBeatID})));
                    parties::WriteBox(txtCustomer, szPrevCustomerName, szPrevCustomerCode);
                    parties::WriteBox(txtCustomerID, szPrevCustomerCode, szPrevCustomerCode);
                    parties::WriteBox(txtCategory, szPrevName, szPrevGroupID);
                    break;
                case 2:
                    parties::WriteBox(txtSalesman, szPrevSalesmanName, szPrevSalesmanID);
                    ClearCustomer();
                    parties::WriteBox(txtBeat, "", "");
                    parties::WriteBox(txtCategory, szPrevName, szPrevGroupID);
                    break;
                case 3:
                    parties::WriteBox(txtSalesman, "", "");
                    parties::WriteBox(txtCategory, szPrevName, szPrevGroupID);
                    break;
                case 4:
                    parties::WriteBox(txtCategory, szPrevName, szPrevGroupID);
                    txtCategory.SetFocus();
                    break;
                default: break;
            }
        } else if (nAnswer == host_services::msgbox::AnswerYes) {
            bGroupReset = true;
            ResetCatGrp();
            parties::EmptyGrid(DTFlexDispatch);
        }
    });
}

void Zuro_frmDispatch_Dispatch::ResetCatGrp() {
    Handled("ResetCatGrp", [&] {
        const std::string szGroup = txtCategory.Tag;
        if (platform::Val(szGroup) != 0) {
            szItemCodeQuery = "Select Product_Code,Product_Code From dbo.Sp_Get_Items_QAX('" + szGroup +
                              "') Where Product_Code Like '";
            szItemNameQuery =
                "Select Product_Code,ProductName From dbo.Sp_Get_Items_QAX('" + szGroup + "') Where ProductName Like '";
        } else {
            szItemCodeQuery.clear();
            szItemNameQuery.clear();
        }
    });
}

}  // namespace screen
