// The host's database and value service: the shared connection, its procedures and
// look-ups, and the value, number and date conversions every routine leans on.
#pragma once

#include <string>

#include "platform/controls.h"
#include "platform/database.h"
#include "platform/value.h"
#include "screen/host_services/host_context.h"

namespace host_services {

class HostDatabase {
public:
    virtual ~HostDatabase() = default;

    // Binds the host's library to the host's context; the form calls it once, first
    // thing when it initialises.
    virtual void SetHostContext(HostContext& context) = 0;
    // The open connection to the application's database, shared with the host; the
    // form's transactions on it are the form's own.
    virtual platform::Connection& GetConnection() = 0;
    // Runs a stored procedure; the parameters come in pairs of value and type code
    // (200 text, 7 date, 3 integer, 5 double, 11 boolean), none when the list is empty.
    virtual platform::RecordsetPtr RunProcedure(const std::string& name, const platform::ParameterList& parameters) = 0;
    // Moves past the procedure's leading empty results; the set with rows, or the
    // last set, or nullptr when the call gave none.
    virtual platform::RecordsetPtr NextRecordset(const platform::RecordsetPtr& recordset) = 0;
    // The first column of the query's first row; Null when there is no row.
    virtual platform::Value LookupValue(platform::Connection& connection, const std::string& sql) = 0;
    // The name field of the row whose key field equals the key value; empty when none.
    virtual std::string LookupName(const std::string& table, const std::string& keyField, const std::string& nameField,
                                   const std::string& keyValue) = 0;
    // The key field of the row whose name field equals the name value; empty when none.
    virtual std::string LookupCode(const std::string& table, const std::string& keyField, const std::string& nameField,
                                   const std::string& nameValue) = 0;
    // The number the key field holds for the document the key names; Null when none.
    virtual platform::Value LookupFieldByKey(const std::string& table, const std::string& keyField,
                                             const std::string& keyValue) = 0;
    // The text with every single quote doubled, fit to stand in an SQL literal.
    virtual std::string EscapeQuotes(const std::string& text) = 0;
    // The value as text; Null gives empty text.
    virtual std::string ToText(const platform::Value& value) = 0;
    // The value as a number; Null or a value that is not numeric gives 0.
    virtual double ToNumber(const platform::Value& value) = 0;
    // The display format of a kind of figure: 0 money and prices, a negative kind
    // quantities, a positive one that many decimals.
    virtual std::string GetNumberFormat(int kind) = 0;
    // A list built element by element with its trailing separators cut, ready to split.
    virtual std::string GetSplitSource(const std::string& text) = 0;

    // The format of the date columns of the look-up lists.
    virtual std::string GetDateFormat() = 0;
    // The picker's date at 00:00:00.
    virtual platform::Date DayStart(const platform::DatePicker& picker) = 0;
    // The picker's date at 23:59:59.
    virtual platform::Date DayEnd(const platform::DatePicker& picker) = 0;
    // The date without its time of day.
    virtual platform::Date ToDateOnly(platform::Date date) = 0;
    // The application's working date; the form passes 0 as the host's option word.
    virtual platform::Date GetCurrentDate(int hostOption) = 0;
    // The date the day-close test measures against.
    virtual platform::Date GetTransactionDate() = 0;
    // The first day of the company's data; nothing earlier may be chosen.
    virtual platform::Date GetOpeningDate() = 0;
    // Records the date of the last transaction the form posted.
    virtual void SetLastTransactionDate(platform::Date date) = 0;
};

}  // namespace host_services
