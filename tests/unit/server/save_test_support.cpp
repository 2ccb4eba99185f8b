#include "save_test_support.h"

#include "platform/convert.h"
#include "platform/runtime_error.h"

namespace server::save_test {

using platform::adtype::Date;
using platform::adtype::Double;
using platform::adtype::Integer;
using platform::adtype::VarChar;

platform::ParameterList Line::Parameters(bool customerPrice, bool longList) const {
    const platform::Value day = dispatchDay.IsEmpty() ? platform::Value(SaveDatabase::Today()) : dispatchDay;
    platform::ParameterList list{
        {dispatchID, Integer},  {item, VarChar},       {batch, VarChar},          {originalPrice, Double},
        {baseQuantity, Double}, {batchTrack, Integer}, {trackInventory, Integer}, {customerCategory, Integer}};
    list.insert(list.end(),
                {{freeItem, Integer}, {freeRow, Integer}, {day, Date}, {datedPosting, Integer}, {unit, Integer}});
    list.insert(list.end(),
                {{unitQuantity, Double}, {unitPrice, Double}, {rowNumber, Integer}, {otherGroupItem, Integer}});
    // Only the customer-price procedure is sent the customer's category.
    if (!customerPrice) list.erase(list.begin() + 7);
    if (!longList) {
        list.insert(list.end(), {{schemeID, Integer}, {freeSerial, VarChar}});
        return list;
    }
    list.insert(list.end(), {{0, Integer}, {freeSerial, VarChar}, {schemeIDs, VarChar}, {splCatSchemeIDs, VarChar}});
    list.insert(list.end(), {{splCatScheme, Integer}, {splCatSerial, VarChar}, {schemeIDs, VarChar}});
    list.insert(list.end(), {{multiScheme, VarChar}, {splCatSchemeIDs, VarChar}, {multiSplCatScheme, VarChar}});
    return list;
}

platform::Value FirstAnswer(const std::vector<platform::ResultSet>& results) {
    for (const auto& result : results)
        if (!result.rows.empty()) return result.rows.front().front();
    return platform::Value::Null();
}

std::vector<platform::ResultSet> SaveDatabase::Call(const std::string& name,
                                                    const platform::ParameterList& parameters) {
    return db().CallProcedure(name, parameters);
}

platform::Value SaveDatabase::Answer(const std::string& name, const platform::ParameterList& parameters) {
    return FirstAnswer(Call(name, parameters));
}

std::string SaveDatabase::Refusal(const std::string& name, const platform::ParameterList& parameters) {
    return testkit::Refusal([&] { Call(name, parameters); });
}

std::string SaveDatabase::NoteRows(const std::string& columns, long long dispatchID, const std::string& rest) {
    return Text("SELECT " + columns + " FROM DispatchDetail WHERE DispatchID = " + std::to_string(dispatchID) + " " +
                rest);
}

long long SaveDatabase::NewNote(const std::string& customer, EmbeddedConnection* on) {
    // Everything blank but the date, the customer, an open status and no salesman or beat.
    platform::ParameterList parameters(13, platform::Parameter{"", VarChar});
    parameters[1] = {testkit::LocalNow(), Date};
    parameters[2] = {customer, VarChar};
    parameters[5] = {2, Integer};
    parameters[11] = parameters[12] = {0, Integer};
    return FirstAnswer((on ? *on : db()).CallProcedure("sp_Save_DispatchAbstract", parameters)).AsInteger();
}
long long SaveDatabase::StoreLine(const Line& line, bool customerPrice, bool longList, EmbeddedConnection* on) {
    const char* name = customerPrice ? "sp_Save_dispatchDetail_csp_UOM_QAX" : "sp_Save_dispatchdetail_UOM_QAX";
    const platform::Value answer =
        FirstAnswer((on ? *on : db()).CallProcedure(name, line.Parameters(customerPrice, longList)));
    return static_cast<long long>(platform::ToNumber(answer));
}

}  // namespace server::save_test
