// Database and values of the global service.
#include "host/plain_global.h"
#include "host/result_sets.h"
#include "host/sql_text.h"
#include "platform/convert.h"

namespace host {

platform::RecordsetPtr PlainGlobal::RunProcedure(const std::string& name, const platform::ParameterList& parameters) {
    return state_.connection->RunProcedure(name, parameters);
}

platform::RecordsetPtr PlainGlobal::NextRecordset(const platform::RecordsetPtr& recordset) {
    return FirstResultWithRows(recordset);
}

platform::Value PlainGlobal::LookupValue(platform::Connection& connection, const std::string& sql) {
    auto rs = connection.Execute(sql);
    if (!rs || !rs->IsOpen() || rs->FieldCount() == 0 || rs->Eof()) return platform::Value::Null();
    platform::Value value = rs->Fields(0);
    rs->Close();
    return value;
}

std::string PlainGlobal::LookupName(const std::string& table, const std::string& keyField, const std::string& nameField,
                                    const std::string& keyValue) {
    return platform::ToText(LookupValue(*state_.connection, "Select " + nameField + " From " + table + " Where " +
                                                                keyField + " = " + SqlText(keyValue)));
}

std::string PlainGlobal::LookupCode(const std::string& table, const std::string& keyField, const std::string& nameField,
                                    const std::string& nameValue) {
    return platform::ToText(LookupValue(*state_.connection, "Select " + keyField + " From " + table + " Where " +
                                                                nameField + " = " + SqlText(nameValue)));
}

// The key may come as the document's reference ("SC12"): its number is what the
// key field holds. Null when no such document exists.
platform::Value PlainGlobal::LookupFieldByKey(const std::string& table, const std::string& keyField,
                                              const std::string& keyValue) {
    if (GetDocumentPrefixLength(keyValue) == static_cast<int>(keyValue.size())) return platform::Value::Null();
    double number = ParseDocumentNumber(keyValue);
    return LookupValue(*state_.connection,
                       "Select " + keyField + " From " + table + " Where " + keyField + " = " + SqlNumber(number));
}

std::string PlainGlobal::EscapeQuotes(const std::string& text) { return EscapeSqlQuotes(text); }
std::string PlainGlobal::ToText(const platform::Value& value) { return platform::ToText(value); }
double PlainGlobal::ToNumber(const platform::Value& value) { return platform::ToNumber(value); }

// Money and prices show two decimals. Quantities (kind -1) are read back from their
// cells with Val, so they take "General Number": no grouping separators, and no
// point left dangling behind a whole number as "0.##" would leave ("5.").
std::string PlainGlobal::GetNumberFormat(int kind) {
    if (kind < 0) return "General Number";
    if (kind == 0) return "0.00";
    return "0." + std::string(static_cast<std::size_t>(kind), '0');
}

std::string PlainGlobal::GetVoucherPrefix(const std::string& key) {
    return platform::ToText(
        LookupValue(*state_.connection, "Select Prefix From VoucherPrefix Where TranID = " + SqlText(key)));
}

std::string PlainGlobal::GetDateFormat() { return state_.settings.Text("GetDateFormat"); }

platform::Date PlainGlobal::DayStart(const platform::DatePicker& picker) { return platform::DateOnly(picker.Value); }
platform::Date PlainGlobal::DayEnd(const platform::DatePicker& picker) { return platform::DayEndOf(picker.Value); }
platform::Date PlainGlobal::ToDateOnly(platform::Date date) { return platform::DateOnly(date); }

platform::Date PlainGlobal::GetCurrentDate(int) { return state_.serverDate; }

platform::Date PlainGlobal::GetTransactionDate() {
    auto set = platform::ParseIsoDate(state_.settings.Text("GetTransactionDate"));
    return set ? *set : platform::DateOnly(state_.serverDate);
}

platform::Date PlainGlobal::GetOpeningDate() {
    auto set = platform::ParseIsoDate(state_.settings.Text("GetOpeningDate"));
    return set ? *set : platform::DateSerial(2020, 4, 1);
}

}  // namespace host
