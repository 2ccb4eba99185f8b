// What the party boxes hold, as the rest of the screen reads it, and the copy of
// them that tells a later Enter whether anything changed.
#include "parties/party_boxes.h"
#include "parties/party_support.h"
#include "platform/convert.h"

namespace screen {

namespace {
// A box's key counts only while the box shows a name.
long KeyOfFilledBox(const platform::TextBox& box) {
    if (platform::Trim(box.Text()).empty()) return 0;
    return platform::CLng(platform::ToNumber(box.Tag));
}

std::string NameOfFilledBox(const platform::TextBox& box) {
    if (platform::Trim(box.Text()).empty()) return "";
    return box.Text();
}
}  // namespace

long Zuro_frmDispatch_Dispatch::GetSalesmanID() {
    long nID = 0;
    Handled("GetSalesmanID", [&] { nID = KeyOfFilledBox(txtSalesman); });
    return nID;
}

std::string Zuro_frmDispatch_Dispatch::GetSalesmanName() {
    std::string szName;
    Handled("GetSalesmanName", [&] { szName = NameOfFilledBox(txtSalesman); });
    return szName;
}

long Zuro_frmDispatch_Dispatch::GetBeatID() {
    long nID = 0;
    Handled("GetBeatID", [&] { nID = KeyOfFilledBox(txtBeat); });
    return nID;
}

std::string Zuro_frmDispatch_Dispatch::GetBeatName() {
    std::string szName;
    Handled("GetBeatName", [&] { szName = NameOfFilledBox(txtBeat); });
    return szName;
}

std::string Zuro_frmDispatch_Dispatch::GetGroupID() {
    std::string szID;
    Handled("GetGroupID", [&] { szID = txtCategory.Tag; });
    return szID;
}

std::string Zuro_frmDispatch_Dispatch::GetGroupName() {
    std::string szName;
    Handled("GetGroupName", [&] { szName = txtCategory.Text(); });
    return szName;
}

void Zuro_frmDispatch_Dispatch::LoadPreviousValues() {
    Handled("LoadPreviousValues", [&] {
        nPrevSalesmanID = platform::CInt(platform::ToNumber(txtSalesman.Tag));
        szPrevSalesmanName = txtSalesman.Text();
        nPrevBeatID = platform::CInt(platform::ToNumber(txtBeat.Tag));
        szPrevBeatName = txtBeat.Text();
        szPrevCustomerCode = txtCustomer.Tag;
        szPrevCustomerName = txtCustomer.Text();
        szPrevGroupID = txtCategory.Tag;
        szPrevGroupName = platform::Trim(txtCategory.Text());
    });
}

void Zuro_frmDispatch_Dispatch::ClearSalesman() {
    Handled("ClearSalesman", [&] {
        parties::ProgramWrite writing({objSalesmanList.get()});
        parties::WriteBox(txtSalesman, "", "");
    });
}

void Zuro_frmDispatch_Dispatch::ClearBeat() {
    Handled("ClearBeat", [&] {
        parties::ProgramWrite writing({objBeatList.get()});
        parties::WriteBox(txtBeat, "", "");
    });
}

void Zuro_frmDispatch_Dispatch::ClearCategoryGroup() {
    Handled("ClearCategoryGroup", [&] { parties::WriteBox(txtCategory, "", ""); });
}

}  // namespace screen
