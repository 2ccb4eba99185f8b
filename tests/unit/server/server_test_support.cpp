#include "server_test_support.h"

#include <ctime>

#include <gtest/gtest.h>

#include "platform/convert.h"
#include "platform/runtime_error.h"
#include "server/database_files.h"
#include "server/sqlite_values.h"
#include "support/scratch_files.h"

namespace server::testkit {

ScratchFolder::ScratchFolder() {
    path_ = test_support::ScratchPath("server");
    std::filesystem::create_directories(path_);
}

ScratchFolder::~ScratchFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string SmallSchema() {
    return R"SQL(
CREATE TABLE SchemaInfo (Name TEXT PRIMARY KEY COLLATE NOCASE, Value TEXT);
INSERT INTO SchemaInfo VALUES ('Application', 'Dispatch');

CREATE TABLE Customer (
    CustomerID TEXT PRIMARY KEY COLLATE NOCASE,
    Company_Name TEXT COLLATE NOCASE,
    BillingAddress TEXT, ShippingAddress TEXT,
    CustomerCategory INTEGER, CreditLimit REAL,
    DLNumber TEXT, DLNumber21 TEXT, TIN_Number TEXT);
INSERT INTO Customer VALUES
    ('C001', 'Acme Traders', '1 Mill Road', 'Dock 4', 2, 50000, '  DL-77 ', NULL, 'TIN1'),
    ('C002', 'O''Brien & Sons', '9 Quay', NULL, 3, 0, NULL, NULL, '');

CREATE TABLE ItemCategories (CategoryID INTEGER PRIMARY KEY, Price_Option INTEGER, Track_Inventory BIT);
INSERT INTO ItemCategories VALUES (1, 1, 1), (2, 0, 0);

CREATE TABLE Items (
    Product_Code TEXT PRIMARY KEY COLLATE NOCASE, ProductName TEXT COLLATE NOCASE, Alias TEXT COLLATE NOCASE,
    CategoryID INTEGER REFERENCES ItemCategories(CategoryID),
    Track_Batches BIT, Virtual_Track_Batches BIT, TrackPKD BIT,
    Sale_Price REAL, PTS REAL, PTR REAL, Company_Price REAL,
    UOM INTEGER, UOM1_Conversion REAL, UOM2_Conversion REAL, SaleID INTEGER, ASL BIT);
INSERT INTO Items VALUES
    ('CHOC1', 'Choco Bar', 'X-CH1', 1, 1, NULL, 0, 12.5, 10, 11, 9.75, 1, 12, 144, 2, 1),
    ('CHIP2', 'Chips Large', 'X-CP2', 1, 0, 1, 1, 20, 18, 19, 17, 1, NULL, NULL, 1, 0),
    ('SOAP3', 'Soap', 'X-SO3', 2, 1, 0, 0, 8, 7, 7.5, 6, 2, 4, 48, 2, 0);

CREATE TABLE Batch_Products (
    Batch_Code INTEGER PRIMARY KEY, Product_Code TEXT COLLATE NOCASE REFERENCES Items(Product_Code),
    Batch_Number TEXT, Quantity REAL, Free BIT, PTS REAL, PTR REAL, ECP REAL, Company_Price REAL,
    TaxSuffered REAL, ApplicableOn INTEGER, PartofPercentage REAL, Expiry DATETIME);
INSERT INTO Batch_Products VALUES
    (7, 'CHOC1', 'B7', 100, NULL, 10, 11, 13, 9.75, 4, 1, 100, '2027-03-31 00:00:00'),
    (8, 'CHOC1', 'B8', 0, 1, 10, 11, 13, 9.75, 4, 2, 50, NULL);

CREATE TABLE POAbstractReceived (
    PONumber INTEGER PRIMARY KEY, CustomerID TEXT COLLATE NOCASE, BillingAddress TEXT, ShippingAddress TEXT,
    Status INTEGER);
INSERT INTO POAbstractReceived VALUES (21, 'C002', 'PO bill', 'PO ship', 0), (22, 'C002', 'PO bill 2', 'PO ship 2', 2);

CREATE TABLE DispatchAbstract (
    DispatchID INTEGER PRIMARY KEY, CustomerID TEXT COLLATE NOCASE, DispatchDate DATETIME, Status INTEGER,
    Remarks TEXT, CancelUserName TEXT, CancelDate DATETIME, Closed BIT);
INSERT INTO DispatchAbstract VALUES
    (5, 'C001', '2026-11-22 09:15:00', 1, NULL, NULL, NULL, 0),
    (6, 'C002', '2026-11-22 11:00:00', 130, NULL, NULL, NULL, 1);

CREATE TABLE DispatchDetail (DispatchID INTEGER, Product_Code TEXT COLLATE NOCASE, Batch_Code INTEGER, Quantity REAL);
INSERT INTO DispatchDetail VALUES (5, 'CHOC1', 7, 3), (5, 'CHOC1', 8, 1);

CREATE TABLE Schemes (SchemeID INTEGER PRIMARY KEY, SchemeType INTEGER, HasSlabs BIT);
INSERT INTO Schemes VALUES (1, 2, 1), (2, 1, NULL);

)SQL";
}

std::shared_ptr<EmbeddedConnection> MakeSmallDatabase(const std::string& path, const ProcedureRegistry& registry,
                                                      int busyTimeoutMs) {
    CreateDatabaseFromScripts(path, {SmallSchema()});
    EmbeddedConnection::Options options;
    options.busyTimeoutMs = busyTimeoutMs;
    return std::make_shared<EmbeddedConnection>(path, options, registry);
}

namespace {

std::string ValueText(const platform::Value& value) {
    using Kind = platform::Value::Kind;
    switch (value.kind()) {
        case Kind::Empty: return "EMPTY";
        case Kind::Null: return "NULL";
        case Kind::Date: return "D:" + DateTimeText(value.AsDate());
        case Kind::Double: return platform::NumberToText(value.AsDouble()) + "r";
        default: return platform::ToText(value);
    }
}

}  // namespace

std::string RowsText(const platform::ResultSet& result) {
    std::string out;
    for (std::size_t r = 0; r < result.rows.size(); ++r) {
        if (r) out += ';';
        for (std::size_t c = 0; c < result.rows[r].size(); ++c) {
            if (c) out += '|';
            out += ValueText(result.rows[r][c]);
        }
    }
    return out;
}

std::string RowsText(const platform::RecordsetPtr& recordset) { return RowsText(recordset->Current()); }

std::string Refusal(const std::function<void()>& action) {
    try {
        action();
    } catch (const platform::RuntimeError& error) {
        EXPECT_EQ(error.Number(), platform::err::DatabaseError);
        return error.Description();
    }
    return "(no error)";
}

platform::Date LocalNow() {
    std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return platform::DateTime(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                              local.tm_sec);
}

}  // namespace server::testkit
