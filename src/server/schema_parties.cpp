// The people a dispatch belongs to: salesmen and their sales types (DS types), the
// beats (routes) they serve, the trade customers on those beats, and the credit terms
// a customer has for a category group.
#include "server/schema.h"

namespace server::schema_part {

std::string Parties() {
    return R"SQL(
CREATE TABLE DSType (
    DSTypeID INTEGER PRIMARY KEY CHECK (DSTypeID > 0),
    DSTypeName TEXT NOT NULL COLLATE NOCASE UNIQUE CHECK (DSTypeName <> ''),
    CategoryMapped BIT NOT NULL DEFAULT 0,
    Active BIT NOT NULL DEFAULT 1
);

-- The category groups a DS type sells.
CREATE TABLE DSTypeCategoryGroup (
    DSTypeID INTEGER NOT NULL REFERENCES DSType(DSTypeID),
    GroupID INTEGER NOT NULL REFERENCES ProductCategoryGroupAbstract(GroupID),
    PRIMARY KEY (DSTypeID, GroupID)
);

-- The item categories of a DS type that is mapped to categories (CategoryMapped 1).
CREATE TABLE DSTypeCategory (
    DSTypeID INTEGER NOT NULL REFERENCES DSType(DSTypeID),
    CategoryID INTEGER NOT NULL REFERENCES ItemCategories(CategoryID),
    PRIMARY KEY (DSTypeID, CategoryID)
);

CREATE TABLE Salesman (
    SalesmanID INTEGER PRIMARY KEY CHECK (SalesmanID > 0),
    Salesman_Name TEXT NOT NULL COLLATE NOCASE UNIQUE CHECK (Salesman_Name <> ''),
    DSTypeID INTEGER REFERENCES DSType(DSTypeID),
    Address TEXT DEFAULT '',
    Phone TEXT DEFAULT '',
    Active BIT NOT NULL DEFAULT 1
);

CREATE TABLE Beat (
    BeatID INTEGER PRIMARY KEY CHECK (BeatID > 0),
    Description TEXT NOT NULL COLLATE NOCASE UNIQUE CHECK (Description <> ''),
    Active BIT NOT NULL DEFAULT 1
);

CREATE TABLE Customer (
    CustomerID TEXT NOT NULL PRIMARY KEY COLLATE NOCASE CHECK (CustomerID NOT IN ('', '%')),
    Company_Name TEXT NOT NULL COLLATE NOCASE UNIQUE CHECK (Company_Name <> ''),
    BillingAddress TEXT DEFAULT '',
    ShippingAddress TEXT DEFAULT '',
    CustomerCategory INTEGER NOT NULL DEFAULT 2 CHECK (CustomerCategory BETWEEN 1 AND 5),
    CreditLimit REAL NOT NULL DEFAULT -1 CHECK (CreditLimit = -1 OR CreditLimit >= 0),
    DLNumber TEXT DEFAULT '',
    DLNumber21 TEXT DEFAULT '',
    TIN_Number TEXT DEFAULT '',
    Phone TEXT DEFAULT '',
    Active BIT NOT NULL DEFAULT 1,
    CreationDate DATETIME NOT NULL DEFAULT CURRENT_TIMESTAMP
);

-- The beats a salesman serves; a beat may be served by salesmen of several DS types.
CREATE TABLE SalesmanBeat (
    SalesmanID INTEGER NOT NULL REFERENCES Salesman(SalesmanID),
    BeatID INTEGER NOT NULL REFERENCES Beat(BeatID),
    PRIMARY KEY (SalesmanID, BeatID)
);
CREATE INDEX SalesmanBeat_Beat ON SalesmanBeat(BeatID);

-- The customers on a beat.
CREATE TABLE BeatCustomer (
    BeatID INTEGER NOT NULL REFERENCES Beat(BeatID),
    CustomerID TEXT NOT NULL COLLATE NOCASE REFERENCES Customer(CustomerID),
    PRIMARY KEY (BeatID, CustomerID)
);
CREATE INDEX BeatCustomer_Customer ON BeatCustomer(CustomerID);

-- A customer's credit terms for one category group; -1 switches a rule off. Where a
-- customer has no row for a group, Customer.CreditLimit alone applies.
CREATE TABLE CustomerCreditTerm (
    CustomerID TEXT NOT NULL COLLATE NOCASE REFERENCES Customer(CustomerID),
    GroupID INTEGER NOT NULL REFERENCES ProductCategoryGroupAbstract(GroupID),
    CreditLimit REAL NOT NULL DEFAULT -1 CHECK (CreditLimit = -1 OR CreditLimit >= 0),
    OverdueDaysAllowed INTEGER NOT NULL DEFAULT -1 CHECK (OverdueDaysAllowed >= -1),
    MaxOpenBills INTEGER NOT NULL DEFAULT -1 CHECK (MaxOpenBills >= -1),
    PRIMARY KEY (CustomerID, GroupID)
);
)SQL";
}

}  // namespace server::schema_part
