// The database connection the screen was written against: Execute, the three
// transaction calls, recordsets, and stored procedures that may answer with
// several result sets.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "platform/value.h"

namespace platform {

// Type codes of procedure parameters, as the connection library numbers them.
namespace adtype {
inline constexpr int Integer = 3;  // 32-bit integer
inline constexpr int Double = 5;
inline constexpr int Date = 7;
inline constexpr int Boolean = 11;
inline constexpr int VarChar = 200;  // variable text
}  // namespace adtype

struct Parameter {
    Value value;
    int type = adtype::VarChar;
};
using ParameterList = std::vector<Parameter>;

// One result of a statement: named columns and rows of values.
struct ResultSet {
    std::vector<std::string> columns;
    std::vector<std::vector<Value>> rows;
    long rowsAffected = -1;  // for a statement that changed rows and returned none
};

// A recordset holds every result of a call, materialised; it stands on one of them.
class Recordset {
public:
    Recordset() : Recordset(std::vector<ResultSet>{}) {}
    explicit Recordset(std::vector<ResultSet> results);

    bool Bof() const;  // before the first row (or no rows)
    bool Eof() const;  // past the last row (or no rows)
    void MoveNext();   // error 3021 at Eof
    void MoveFirst();

    // Fields of the current row; error 3021 with no current row, 3265 for an unknown
    // field. Names match without regard to case.
    const Value& Fields(int index) const;
    const Value& Fields(const std::string& name) const;
    int FieldCount() const;
    std::string FieldName(int index) const;
    long RecordCount() const;
    long RowsAffected() const;

    bool IsOpen() const { return open_; }
    void Close();

    // Moves to the next result of the call; false when there is none (the recordset
    // then stands closed, as the connection library leaves it).
    bool NextRecordset();

    const ResultSet& Current() const;

private:
    const Value& FieldAt(int index) const;
    std::vector<ResultSet> results_;
    std::size_t set_ = 0;
    std::size_t row_ = 0;
    bool open_ = true;
};
using RecordsetPtr = std::shared_ptr<Recordset>;

// The connection. Errors of the server come back as RuntimeError with the server's
// description.
class Connection {
public:
    virtual ~Connection() = default;

    // Runs one statement of the server dialect; a query answers with its rows.
    virtual RecordsetPtr Execute(const std::string& sql) = 0;
    // Runs a stored procedure (or a table function's procedure) with typed parameters.
    virtual RecordsetPtr RunProcedure(const std::string& name, const ParameterList& parameters) = 0;

    virtual void BeginTrans() = 0;
    virtual void CommitTrans() = 0;
    virtual void RollbackTrans() = 0;
    virtual bool InTransaction() const = 0;
};
using ConnectionPtr = std::shared_ptr<Connection>;

}  // namespace platform
