// The beats of the salesman that hold the customer: a customer on none of them is
// let go, the previous beat comes back when it is among them, a single one fills
// the box by itself.
#include "parties/party_boxes.h"
#include "parties/party_support.h"
#include "platform/convert.h"

namespace screen {

namespace {
std::string MappingArguments(double nSalesman, const std::string& szCustomer) {
    return parties::SqlNumber(nSalesman) + "," + "0" + ",'" + szCustomer;
}
}  // namespace

void Zuro_frmDispatch_Dispatch::LoadBeat() {
    Handled("LoadBeat", [&] {
        auto& global = host_.global;
        auto& connection = global.GetConnection();
        auto& list = parties::BeatList(*this, host_);
        const double nSalesman = GetSalesmanID();

        auto counted =
            connection.Execute("Select Count(Distinct BeatID) From dbo.Fn_Get_MappedSalemanBeatAndCustomer_QAX(" +
                               MappingArguments(nSalesman, global.EscapeQuotes(txtCustomer.Text())) +
                               "') Where IsNull(BeatName,'') <> '' ");
        const bool bCustomerOnNoBeat =
            counted && counted->IsOpen() && !counted->Eof() && platform::ToNumber(counted->Fields(0)) == 0;
        if (counted && counted->IsOpen()) counted->Close();
        if (bCustomerOnNoBeat) ClearCustomer();

        const bool bBeatFilled = !platform::Trim(txtBeat.Text()).empty() && !txtBeat.Tag.empty();
        const parties::Candidates found = parties::WalkCandidates(
            connection,
            "Select Distinct BeatID,BeatName From dbo.Fn_Get_MappedSalemanBeatAndCustomer_QAX(" +
                MappingArguments(nSalesman, global.EscapeQuotes(txtCustomer.Text())) +
                "') Where IsNull(BeatName,'') <> '' Order By BeatName",
            [&](const std::string& key, const std::string& name) {
                return bBeatFilled && platform::ToNumber(key) == nPrevBeatID && name == szPrevBeatName;
            });

        parties::ProgramWrite writing({&list});
        if (found.previousFound) {
            parties::WriteBox(txtBeat, szPrevBeatName, platform::ToText(platform::Value(long{nPrevBeatID})));
        } else if (found.count == 1) {
            parties::WriteBox(txtBeat, found.firstName, found.firstKey);
            bPartyAutoFilled = true;
        } else {
            parties::WriteBox(txtBeat, "", "");
        }
    });
}

}  // namespace screen
