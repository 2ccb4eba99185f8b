// Sales promotions: a scheme, the items it is defined on, its slabs (bands of
// quantity or value and what each gives), the free items a slab may give, and the
// customers it is limited to.
#include "server/schema.h"

namespace server::schema_part {

std::string Schemes() {
    return R"SQL(
-- SchemeType: 3 free items; 1 a percentage off, 2 an amount off; 17 more of the same
--   item free, 18 another item free (the two load-time kinds of purchase orders).
-- SchemeScope: 1 an item (SKU) scheme, judged on one item's total; 2 a special
--   category scheme, judged on the total of all its items in the note.
-- HasSlabs: 1 slabs are bands (start to end); 0 slabs repeat for every multiple of
--   their start.
CREATE TABLE Schemes (
    SchemeID INTEGER PRIMARY KEY CHECK (SchemeID > 0),
    SchemeName TEXT NOT NULL DEFAULT '' COLLATE NOCASE,
    SchemeType INTEGER NOT NULL CHECK (SchemeType IN (1, 2, 3, 17, 18)),
    SchemeScope INTEGER NOT NULL DEFAULT 1 CHECK (SchemeScope IN (1, 2)),
    HasSlabs BIT NOT NULL DEFAULT 1,
    ValidFrom DATETIME NOT NULL DEFAULT '1900-01-01 00:00:00',
    ValidTo DATETIME NOT NULL DEFAULT '9999-12-31 23:59:59',
    ShowPrompt BIT NOT NULL DEFAULT 0,
    PromptMessage TEXT DEFAULT '',
    AllCustomers BIT NOT NULL DEFAULT 1,
    Active BIT NOT NULL DEFAULT 1,
    CreationDate DATETIME NOT NULL DEFAULT CURRENT_TIMESTAMP,
    CHECK (ValidTo >= ValidFrom),
    CHECK (SchemeType NOT IN (17, 18) OR SchemeScope = 1)
);

-- The items a scheme is defined on. MinQty, in base units, is what a special
-- category scheme asks of each of its items before it gives anything.
CREATE TABLE SchemeProducts (
    SchemeID INTEGER NOT NULL REFERENCES Schemes(SchemeID),
    Product_Code TEXT NOT NULL COLLATE NOCASE REFERENCES Items(Product_Code),
    MinQty REAL NOT NULL DEFAULT 0 CHECK (MinQty >= 0),
    PRIMARY KEY (SchemeID, Product_Code)
);
CREATE INDEX SchemeProducts_Item ON SchemeProducts(Product_Code);

-- SlabUnit: what the slab measures, 1 base units, 2 UOM1, 3 UOM2, 4 value.
-- FreeUnit: the unit of FreeQty, 1 to 3 in the same sense.
-- Onward: 0 gives FreeQty once; otherwise once for every whole Onward measured.
-- FreeItem names the free item of a type 18 slab; other free slabs offer theirs in
-- SchemeFreeItems. DiscountPercent and DiscountAmount serve types 1 and 2.
CREATE TABLE SchemeSlabs (
    SlabID INTEGER PRIMARY KEY CHECK (SlabID > 0),
    SchemeID INTEGER NOT NULL REFERENCES Schemes(SchemeID),
    SlabStart REAL NOT NULL DEFAULT 0 CHECK (SlabStart >= 0),
    SlabEnd REAL NOT NULL,
    SlabUnit INTEGER NOT NULL DEFAULT 1 CHECK (SlabUnit BETWEEN 1 AND 4),
    Onward REAL NOT NULL DEFAULT 0 CHECK (Onward >= 0),
    FreeQty REAL NOT NULL DEFAULT 0 CHECK (FreeQty >= 0),
    FreeUnit INTEGER NOT NULL DEFAULT 1 CHECK (FreeUnit BETWEEN 1 AND 3),
    FreeItem TEXT COLLATE NOCASE REFERENCES Items(Product_Code),
    DiscountPercent REAL NOT NULL DEFAULT 0 CHECK (DiscountPercent BETWEEN 0 AND 100),
    DiscountAmount REAL NOT NULL DEFAULT 0 CHECK (DiscountAmount >= 0),
    CHECK (SlabEnd >= SlabStart)
);
CREATE INDEX SchemeSlabs_Scheme ON SchemeSlabs(SchemeID, SlabStart);

CREATE TABLE SchemeFreeItems (
    SlabID INTEGER NOT NULL REFERENCES SchemeSlabs(SlabID),
    Free_Item_Code TEXT NOT NULL COLLATE NOCASE REFERENCES Items(Product_Code),
    PRIMARY KEY (SlabID, Free_Item_Code)
);

-- The customers of a scheme whose AllCustomers is 0.
CREATE TABLE SchemeCustomers (
    SchemeID INTEGER NOT NULL REFERENCES Schemes(SchemeID),
    CustomerID TEXT NOT NULL COLLATE NOCASE REFERENCES Customer(CustomerID),
    PRIMARY KEY (SchemeID, CustomerID)
);
CREATE INDEX SchemeCustomers_Customer ON SchemeCustomers(CustomerID);
)SQL";
}

}  // namespace server::schema_part
