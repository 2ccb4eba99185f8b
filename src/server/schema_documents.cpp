// Documents and their numbering: document types with their running references, the
// voucher prefixes, the server's running serials, pending sales confirmations,
// purchase orders received from customers, and the dispatch notes themselves.
#include "server/schema.h"

namespace server::schema_part {

std::string Documents() {
    return R"SQL(
-- Document types of a transaction type (5 is the dispatch); the next reference of a
-- type is its Prefix followed by LastCount + 1.
CREATE TABLE TransactionDocNumber (
    TransactionType INTEGER NOT NULL CHECK (TransactionType > 0),
    DocumentType TEXT NOT NULL COLLATE NOCASE CHECK (DocumentType <> ''),
    Prefix TEXT DEFAULT '',
    LastCount INTEGER NOT NULL DEFAULT 0 CHECK (LastCount >= 0),
    Active BIT NOT NULL DEFAULT 1,
    IsDefault BIT NOT NULL DEFAULT 0,
    PRIMARY KEY (TransactionType, DocumentType)
);
-- At most one default document type for a transaction type.
CREATE UNIQUE INDEX TransactionDocNumber_Default ON TransactionDocNumber(TransactionType) WHERE IsDefault = 1;

CREATE TABLE VoucherPrefix (
    TranID TEXT NOT NULL PRIMARY KEY COLLATE NOCASE,
    Prefix TEXT NOT NULL
);
INSERT INTO VoucherPrefix (TranID, Prefix) VALUES
    ('SALE CONFIRMATION', 'SC'),
    ('RECEIVED PO', 'PO'),
    ('DISPATCH', 'DN'),
    ('INVOICE', 'IN');

-- The running serials the server gives out, one row a kind of document.
CREATE TABLE DocumentNumbers (
    DocType INTEGER PRIMARY KEY,
    LastNumber INTEGER NOT NULL DEFAULT 0 CHECK (LastNumber >= 0)
);
INSERT INTO DocumentNumbers (DocType, LastNumber) VALUES
    (1, 0),  -- sales confirmation
    (2, 0),  -- purchase order received
    (3, 0),  -- invoice
    (4, 0),  -- collection
    (5, 0);  -- dispatch

CREATE TABLE SOAbstract (
    SONumber INTEGER PRIMARY KEY AUTOINCREMENT,
    DocumentID INTEGER NOT NULL DEFAULT 0,
    SODate DATETIME NOT NULL,
    DeliveryDate DATETIME,
    CustomerID TEXT NOT NULL COLLATE NOCASE REFERENCES Customer(CustomerID),
    Value REAL NOT NULL DEFAULT 0,
    POReference TEXT DEFAULT '',
    BillingAddress TEXT DEFAULT '',
    ShippingAddress TEXT DEFAULT '',
    SalesmanID INTEGER REFERENCES Salesman(SalesmanID),
    BeatID INTEGER REFERENCES Beat(BeatID),
    GroupID TEXT,
    Status INTEGER NOT NULL DEFAULT 0 CHECK (Status >= 0 AND (Status & 64 = 0 OR Status & 128 = 128)),
    DispatchDocID INTEGER NOT NULL DEFAULT 0,
    Remarks TEXT DEFAULT '',
    CreationTime DATETIME NOT NULL DEFAULT CURRENT_TIMESTAMP
);
CREATE INDEX SOAbstract_Customer ON SOAbstract(CustomerID, SODate);
CREATE INDEX SOAbstract_Date ON SOAbstract(SODate);
CREATE INDEX SOAbstract_Document ON SOAbstract(DocumentID);

-- Lines of a sales confirmation. Quantities are in the item's base unit; the line
-- keeps its item code even when the item has since left the master.
CREATE TABLE SODetail (
    SOLineID INTEGER PRIMARY KEY AUTOINCREMENT,
    SONumber INTEGER NOT NULL REFERENCES SOAbstract(SONumber),
    Product_Code TEXT NOT NULL COLLATE NOCASE CHECK (Product_Code <> ''),
    Batch_Number TEXT DEFAULT '' COLLATE NOCASE,
    SalePrice REAL NOT NULL DEFAULT 0 CHECK (SalePrice >= 0),
    Quantity REAL NOT NULL CHECK (Quantity > 0),
    Pending REAL NOT NULL CHECK (Pending >= 0 AND Pending <= Quantity),
    UOM INTEGER NOT NULL REFERENCES UOM(UOM),
    UOMQty REAL NOT NULL DEFAULT 0,
    UOMPrice REAL NOT NULL DEFAULT 0
);
CREATE INDEX SODetail_Order ON SODetail(SONumber);
CREATE INDEX SODetail_Item ON SODetail(Product_Code);

CREATE TABLE POAbstractReceived (
    PONumber INTEGER PRIMARY KEY AUTOINCREMENT,
    DocumentID INTEGER NOT NULL DEFAULT 0,
    PODate DATETIME NOT NULL,
    CustomerID TEXT NOT NULL COLLATE NOCASE REFERENCES Customer(CustomerID),
    Value REAL NOT NULL DEFAULT 0,
    POReference TEXT DEFAULT '',
    BillingAddress TEXT DEFAULT '',
    ShippingAddress TEXT DEFAULT '',
    Status INTEGER NOT NULL DEFAULT 0 CHECK (Status >= 0),
    CreationTime DATETIME NOT NULL DEFAULT CURRENT_TIMESTAMP
);
CREATE INDEX POAbstractReceived_Customer ON POAbstractReceived(CustomerID, PODate);
CREATE INDEX POAbstractReceived_Date ON POAbstractReceived(PODate);

-- Lines of a received purchase order, in the customer's item codes (Items.Alias).
CREATE TABLE PODetailReceived (
    POLineID INTEGER PRIMARY KEY AUTOINCREMENT,
    PONumber INTEGER NOT NULL REFERENCES POAbstractReceived(PONumber),
    Product_Code TEXT NOT NULL COLLATE NOCASE CHECK (Product_Code <> ''),
    Quantity REAL NOT NULL CHECK (Quantity > 0),
    Price REAL NOT NULL DEFAULT 0 CHECK (Price >= 0)
);
CREATE INDEX PODetailReceived_Order ON PODetailReceived(PONumber);
CREATE INDEX PODetailReceived_Item ON PODetailReceived(Product_Code);

-- Status bits: 1 from sales confirmation, 2 keyed, 4 from purchase order, 64
-- cancelled, 128 closed, 256 amended; cancelled and amended are always closed too.
CREATE TABLE DispatchAbstract (
    DispatchID INTEGER PRIMARY KEY AUTOINCREMENT,
    DocumentID INTEGER NOT NULL DEFAULT 0,
    DispatchDate DATETIME NOT NULL,
    CustomerID TEXT NOT NULL COLLATE NOCASE REFERENCES Customer(CustomerID),
    BillingAddress TEXT DEFAULT '',
    ShippingAddress TEXT DEFAULT '',
    Status INTEGER NOT NULL DEFAULT 0
        CHECK (Status >= 0 AND (Status & 64 = 0 OR Status & 128 = 128) AND (Status & 256 = 0 OR Status & 128 = 128)),
    RefNumber TEXT DEFAULT '',
    NewRefNumber TEXT DEFAULT '',
    OriginalReference TEXT DEFAULT '',
    Memo1 TEXT DEFAULT '',
    Memo2 TEXT DEFAULT '',
    Memo3 TEXT DEFAULT '',
    Remarks TEXT DEFAULT '',
    DocReference TEXT DEFAULT '' COLLATE NOCASE,
    DocumentType TEXT DEFAULT '' COLLATE NOCASE,
    SalesmanID INTEGER NOT NULL DEFAULT 0,
    BeatID INTEGER NOT NULL DEFAULT 0,
    GroupID TEXT DEFAULT '-1',
    UserName TEXT DEFAULT '',
    CreationTime DATETIME NOT NULL DEFAULT CURRENT_TIMESTAMP,
    CancelUserName TEXT DEFAULT '',
    CancelDate DATETIME
);
CREATE INDEX DispatchAbstract_Customer ON DispatchAbstract(CustomerID, DispatchDate);
CREATE INDEX DispatchAbstract_Date ON DispatchAbstract(DispatchDate);
CREATE INDEX DispatchAbstract_Document ON DispatchAbstract(DocumentID);
CREATE INDEX DispatchAbstract_Reference ON DispatchAbstract(DocReference);

-- A dispatch without a salesman or beat holds 0, so these links are kept by triggers
-- rather than by foreign keys: 0, or a row that exists.
CREATE TRIGGER DispatchAbstract_Parties_Insert BEFORE INSERT ON DispatchAbstract
WHEN (NEW.SalesmanID <> 0 AND NOT EXISTS (SELECT 1 FROM Salesman WHERE SalesmanID = NEW.SalesmanID))
  OR (NEW.BeatID <> 0 AND NOT EXISTS (SELECT 1 FROM Beat WHERE BeatID = NEW.BeatID))
BEGIN
    SELECT RAISE(ABORT, 'DispatchAbstract: unknown salesman or beat');
END;
CREATE TRIGGER DispatchAbstract_Parties_Update BEFORE UPDATE OF SalesmanID, BeatID ON DispatchAbstract
WHEN (NEW.SalesmanID <> 0 AND NOT EXISTS (SELECT 1 FROM Salesman WHERE SalesmanID = NEW.SalesmanID))
  OR (NEW.BeatID <> 0 AND NOT EXISTS (SELECT 1 FROM Beat WHERE BeatID = NEW.BeatID))
BEGIN
    SELECT RAISE(ABORT, 'DispatchAbstract: unknown salesman or beat');
END;

-- A note is closed once. Cancelling and amending set 128 without looking at the status
-- first, so when two clerks change the same note at once the second is refused here
-- and its whole transaction goes back: the note's stock comes back only once.
CREATE TRIGGER DispatchAbstract_Closed_Once BEFORE UPDATE OF Status ON DispatchAbstract
WHEN OLD.Status & 128 = 128 AND NEW.Status & 128 = 128
BEGIN
    SELECT RAISE(ABORT, 'DispatchAbstract: the dispatch is closed already');
END;

-- One row a unit of a grid line: a line keyed in three units gives up to three rows.
-- Quantity and SalePrice are in the base unit; UOM, UOMQty and UOMPrice in the unit of
-- the row. Serial, FreeSerial and SPLCATSERIAL hold the line's place in the note and
-- the places of the lines it is linked to.
CREATE TABLE DispatchDetail (
    DetailID INTEGER PRIMARY KEY AUTOINCREMENT,
    DispatchID INTEGER NOT NULL REFERENCES DispatchAbstract(DispatchID),
    Serial INTEGER NOT NULL DEFAULT 0,
    Product_Code TEXT NOT NULL COLLATE NOCASE REFERENCES Items(Product_Code),
    Batch_Code INTEGER NOT NULL DEFAULT 0,
    Batch_Number TEXT DEFAULT '' COLLATE NOCASE,
    SalePrice REAL NOT NULL DEFAULT 0 CHECK (SalePrice >= 0),
    Quantity REAL NOT NULL CHECK (Quantity > 0),
    UOM INTEGER NOT NULL REFERENCES UOM(UOM),
    UOMQty REAL NOT NULL DEFAULT 0 CHECK (UOMQty >= 0),
    UOMPrice REAL NOT NULL DEFAULT 0 CHECK (UOMPrice >= 0),
    Track_Batches BIT NOT NULL DEFAULT 0,
    Track_Inventory BIT NOT NULL DEFAULT 1,
    Price_Option BIT NOT NULL DEFAULT 0,
    FreeItem BIT NOT NULL DEFAULT 0,
    Free BIT NOT NULL DEFAULT 0,
    OtherCG_Item BIT NOT NULL DEFAULT 0,
    SchemeID INTEGER NOT NULL DEFAULT 0,
    FreeSerial TEXT DEFAULT '',
    CSchemeID TEXT DEFAULT '',
    SPLCATSCHEMEID TEXT DEFAULT '',
    SpecialCategoryScheme BIT NOT NULL DEFAULT 0,
    SPLCATSERIAL TEXT DEFAULT '',
    MultipleSchemeID TEXT DEFAULT '',
    MultipleSchemeDetails TEXT DEFAULT '',
    MultipleSplCategorySchemeID TEXT DEFAULT '',
    MultipleSplCategorySchDetail TEXT DEFAULT '',
    -- The customer's category the line was priced by, when the price came from the
    -- batch (0 otherwise), and whether the note was saved with dated posting on.
    CustomerCategory INTEGER NOT NULL DEFAULT 0 CHECK (CustomerCategory BETWEEN 0 AND 5),
    DatedPosting BIT NOT NULL DEFAULT 0
);
CREATE INDEX DispatchDetail_Dispatch ON DispatchDetail(DispatchID, Serial);
CREATE INDEX DispatchDetail_Item ON DispatchDetail(Product_Code);
CREATE INDEX DispatchDetail_Batch ON DispatchDetail(Batch_Code);

-- Batch_Code 0: the line took no stock (its category does not track inventory).
-- Otherwise the batch must exist and hold the line's item.
CREATE TRIGGER DispatchDetail_Batch_Insert BEFORE INSERT ON DispatchDetail
WHEN NEW.Batch_Code <> 0 AND NOT EXISTS (
    SELECT 1 FROM Batch_Products WHERE Batch_Code = NEW.Batch_Code AND Product_Code = NEW.Product_Code)
BEGIN
    SELECT RAISE(ABORT, 'DispatchDetail: the batch does not hold this item');
END;
CREATE TRIGGER DispatchDetail_Batch_Update BEFORE UPDATE OF Batch_Code, Product_Code ON DispatchDetail
WHEN NEW.Batch_Code <> 0 AND NOT EXISTS (
    SELECT 1 FROM Batch_Products WHERE Batch_Code = NEW.Batch_Code AND Product_Code = NEW.Product_Code)
BEGIN
    SELECT RAISE(ABORT, 'DispatchDetail: the batch does not hold this item');
END;

-- The batches of a note being cancelled or amended, as they stood when it was closed.
-- The screen then gives each line's stock back to the line's first batch only (a line
-- taken from several batches comes back to it as one row), and reads a quantity keyed
-- in several units by its first figure; sp_adjust_opening_for_cancel_dispatch, which
-- both run next in the same transaction, sets each batch to what it held here plus
-- what the note took from it, and forgets these rows.
CREATE TABLE DispatchStockReturn (
    DispatchID INTEGER NOT NULL REFERENCES DispatchAbstract(DispatchID),
    Batch_Code INTEGER NOT NULL REFERENCES Batch_Products(Batch_Code),
    Quantity REAL NOT NULL,
    PRIMARY KEY (DispatchID, Batch_Code)
);
CREATE TRIGGER DispatchAbstract_Stock_Return AFTER UPDATE OF Status ON DispatchAbstract
WHEN OLD.Status & 128 = 0 AND (NEW.Status & 192 = 192 OR NEW.Status & 384 = 384)
BEGIN
    INSERT OR REPLACE INTO DispatchStockReturn (DispatchID, Batch_Code, Quantity)
    SELECT NEW.DispatchID, b.Batch_Code, b.Quantity
    FROM Batch_Products b
    WHERE b.Batch_Code IN (SELECT Batch_Code FROM DispatchDetail WHERE DispatchID = NEW.DispatchID AND Batch_Code <> 0);
END;
)SQL";
}

}  // namespace server::schema_part
