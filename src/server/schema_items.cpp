// Goods: units of measure, item categories and their groups, the item master with its
// unit ladder, the batches that hold the stock, and the daily opening stock.
//
// Text columns compare without regard to case, as the server's collation did: the
// screen looks names and codes up with '=' and relies on 'abc' finding 'ABC'.
#include "server/schema.h"

namespace server::schema_part {

std::string Items() {
    return R"SQL(
CREATE TABLE UOM (
    UOM INTEGER PRIMARY KEY CHECK (UOM > 0),
    Description TEXT NOT NULL COLLATE NOCASE UNIQUE CHECK (Description <> ''),
    Active BIT NOT NULL DEFAULT 1
);

CREATE TABLE ProductCategoryGroupAbstract (
    GroupID INTEGER PRIMARY KEY CHECK (GroupID > 0),
    GroupName TEXT NOT NULL COLLATE NOCASE UNIQUE CHECK (GroupName <> ''),
    Active BIT NOT NULL DEFAULT 1
);

CREATE TABLE ItemCategories (
    CategoryID INTEGER PRIMARY KEY CHECK (CategoryID > 0),
    Category_Name TEXT NOT NULL DEFAULT '' COLLATE NOCASE,
    Price_Option BIT NOT NULL DEFAULT 0,
    Track_Inventory BIT NOT NULL DEFAULT 1,
    Active BIT NOT NULL DEFAULT 1
);
CREATE UNIQUE INDEX ItemCategories_Name ON ItemCategories(Category_Name) WHERE Category_Name <> '';

CREATE TABLE ProductCategoryGroupDetail (
    GroupID INTEGER NOT NULL REFERENCES ProductCategoryGroupAbstract(GroupID),
    CategoryID INTEGER NOT NULL REFERENCES ItemCategories(CategoryID),
    PRIMARY KEY (GroupID, CategoryID)
);
CREATE INDEX ProductCategoryGroupDetail_Category ON ProductCategoryGroupDetail(CategoryID);

CREATE TABLE Items (
    Product_Code TEXT NOT NULL PRIMARY KEY COLLATE NOCASE CHECK (Product_Code <> ''),
    ProductName TEXT NOT NULL COLLATE NOCASE CHECK (ProductName <> ''),
    Alias TEXT NOT NULL DEFAULT '' COLLATE NOCASE,
    CategoryID INTEGER NOT NULL REFERENCES ItemCategories(CategoryID),
    UOM INTEGER NOT NULL REFERENCES UOM(UOM),
    BaseUOM INTEGER REFERENCES UOM(UOM),
    UOM1 INTEGER REFERENCES UOM(UOM),
    UOM1_Conversion REAL,
    UOM2 INTEGER REFERENCES UOM(UOM),
    UOM2_Conversion REAL,
    Track_Batches BIT NOT NULL DEFAULT 0,
    Virtual_Track_Batches BIT NOT NULL DEFAULT 0,
    TrackPKD BIT NOT NULL DEFAULT 0,
    Sale_Price REAL NOT NULL DEFAULT 0 CHECK (Sale_Price >= 0),
    PTS REAL NOT NULL DEFAULT 0 CHECK (PTS >= 0),
    PTR REAL NOT NULL DEFAULT 0 CHECK (PTR >= 0),
    ECP REAL NOT NULL DEFAULT 0 CHECK (ECP >= 0),
    MRP REAL NOT NULL DEFAULT 0 CHECK (MRP >= 0),
    Company_Price REAL NOT NULL DEFAULT 0 CHECK (Company_Price >= 0),
    Purchase_Price REAL NOT NULL DEFAULT 0 CHECK (Purchase_Price >= 0),
    SaleID INTEGER NOT NULL DEFAULT 1 CHECK (SaleID IN (1, 2)),
    ASL BIT NOT NULL DEFAULT 0,
    Active BIT NOT NULL DEFAULT 1,
    CreationDate DATETIME NOT NULL DEFAULT CURRENT_TIMESTAMP,
    -- The ladder: a level has its unit and its rate together, the second level needs
    -- the first, each level is larger than the one below, and no unit stands twice.
    CHECK ((UOM1 IS NULL) = (UOM1_Conversion IS NULL)),
    CHECK ((UOM2 IS NULL) = (UOM2_Conversion IS NULL)),
    CHECK (UOM1_Conversion IS NULL OR UOM1_Conversion > 1),
    CHECK (UOM2 IS NULL OR (UOM1 IS NOT NULL AND UOM2_Conversion > UOM1_Conversion)),
    CHECK (UOM1 IS NULL OR (UOM1 IS NOT BaseUOM AND UOM1 IS NOT UOM2)),
    CHECK (UOM2 IS NULL OR UOM2 IS NOT BaseUOM),
    CHECK (BaseUOM IS NULL OR UOM = BaseUOM OR UOM IS UOM1 OR UOM IS UOM2)
);
CREATE INDEX Items_ProductName ON Items(ProductName);
CREATE INDEX Items_Category ON Items(CategoryID);
-- The customer's own code on a received purchase order; blank when there is none.
CREATE UNIQUE INDEX Items_Alias ON Items(Alias) WHERE Alias <> '';

-- An item entered with its sales unit alone sells in its base unit.
CREATE TRIGGER Items_BaseUOM_FromSalesUnit AFTER INSERT ON Items
WHEN NEW.BaseUOM IS NULL
BEGIN
    UPDATE Items SET BaseUOM = NEW.UOM WHERE Product_Code = NEW.Product_Code;
END;

CREATE TABLE Batch_Products (
    Batch_Code INTEGER PRIMARY KEY AUTOINCREMENT,
    Product_Code TEXT NOT NULL COLLATE NOCASE REFERENCES Items(Product_Code),
    Batch_Number TEXT NOT NULL DEFAULT '' COLLATE NOCASE,
    Expiry DATETIME,
    PKD DATETIME,
    Quantity REAL NOT NULL DEFAULT 0 CHECK (Quantity >= 0),
    QuantityReceived REAL NOT NULL DEFAULT 0 CHECK (QuantityReceived >= 0),
    PurchasePrice REAL NOT NULL DEFAULT 0 CHECK (PurchasePrice >= 0),
    SalePrice REAL NOT NULL DEFAULT 0 CHECK (SalePrice >= 0),
    PTS REAL NOT NULL DEFAULT 0 CHECK (PTS >= 0),
    PTR REAL NOT NULL DEFAULT 0 CHECK (PTR >= 0),
    ECP REAL NOT NULL DEFAULT 0 CHECK (ECP >= 0),
    MRP REAL NOT NULL DEFAULT 0 CHECK (MRP >= 0),
    Company_Price REAL NOT NULL DEFAULT 0 CHECK (Company_Price >= 0),
    Free BIT NOT NULL DEFAULT 0,
    TaxSuffered REAL NOT NULL DEFAULT 0 CHECK (TaxSuffered >= 0),
    ApplicableOn INTEGER NOT NULL DEFAULT 0 CHECK (ApplicableOn BETWEEN 0 AND 6),
    PartofPercentage REAL NOT NULL DEFAULT 0 CHECK (PartofPercentage BETWEEN 0 AND 100),
    CreationDate DATETIME NOT NULL DEFAULT CURRENT_TIMESTAMP,
    CHECK (PKD IS NULL OR Expiry IS NULL OR PKD <= Expiry)
);
CREATE INDEX Batch_Products_Item ON Batch_Products(Product_Code, Batch_Number);

CREATE TABLE OpeningDetails (
    Product_Code TEXT NOT NULL COLLATE NOCASE REFERENCES Items(Product_Code),
    Opening_Date DATETIME NOT NULL,
    Opening_Quantity REAL NOT NULL DEFAULT 0,
    Free_Saleable_Quantity REAL NOT NULL DEFAULT 0,
    Opening_Value REAL NOT NULL DEFAULT 0,
    PRIMARY KEY (Product_Code, Opening_Date)
);
CREATE INDEX OpeningDetails_Date ON OpeningDetails(Opening_Date);
)SQL";
}

}  // namespace server::schema_part
