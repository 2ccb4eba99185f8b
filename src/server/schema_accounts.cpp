// What a customer owes and has paid: invoices with their balances, due dates and
// statutory forms, collections (cash, cheques and advances), and the postings the
// host's journal writes for each dispatch.
#include "server/schema.h"

namespace server::schema_part {

std::string Accounts() {
    return R"SQL(
-- FormsRequired: 4 a C-Form is due from the customer, 8 a D-Form.
-- FormsReceived: 32 the C-Form has come, 64 the D-Form; FormsReceivedOn is when the
-- receipt screen last changed those marks.
-- Status: 64 cancelled (always with 128), 128 closed.
CREATE TABLE InvoiceAbstract (
    InvoiceID INTEGER PRIMARY KEY AUTOINCREMENT,
    DocumentID INTEGER NOT NULL DEFAULT 0,
    InvoiceDate DATETIME NOT NULL,
    PaymentDate DATETIME,
    CustomerID TEXT NOT NULL COLLATE NOCASE REFERENCES Customer(CustomerID),
    DispatchID INTEGER REFERENCES DispatchAbstract(DispatchID),
    NetValue REAL NOT NULL DEFAULT 0 CHECK (NetValue >= 0),
    Balance REAL NOT NULL DEFAULT 0 CHECK (Balance >= 0 AND Balance <= NetValue),
    Status INTEGER NOT NULL DEFAULT 0 CHECK (Status >= 0 AND (Status & 64 = 0 OR Status & 128 = 128)),
    FormsRequired INTEGER NOT NULL DEFAULT 0 CHECK ((FormsRequired | 12) = 12),
    FormsReceived INTEGER NOT NULL DEFAULT 0 CHECK ((FormsReceived | 96) = 96),
    CFormNo TEXT DEFAULT '',
    DFormNo TEXT DEFAULT '',
    FormsReceivedOn DATETIME,
    CreationTime DATETIME NOT NULL DEFAULT CURRENT_TIMESTAMP,
    CHECK (PaymentDate IS NULL OR PaymentDate >= InvoiceDate)
);
CREATE INDEX InvoiceAbstract_Customer ON InvoiceAbstract(CustomerID, PaymentDate);
CREATE INDEX InvoiceAbstract_Date ON InvoiceAbstract(InvoiceDate);
CREATE INDEX InvoiceAbstract_Document ON InvoiceAbstract(DocumentID);

-- PaymentMode: 0 cash, 1 cheque, 2 demand draft. Balance is the part not yet set
-- against an invoice: an advance. A cheque not yet deposited is a cheque in hand.
CREATE TABLE Collections (
    CollectionID INTEGER PRIMARY KEY AUTOINCREMENT,
    DocumentID INTEGER NOT NULL DEFAULT 0,
    DocumentDate DATETIME NOT NULL,
    CustomerID TEXT NOT NULL COLLATE NOCASE REFERENCES Customer(CustomerID),
    Value REAL NOT NULL CHECK (Value > 0),
    Balance REAL NOT NULL DEFAULT 0 CHECK (Balance >= 0 AND Balance <= Value),
    PaymentMode INTEGER NOT NULL DEFAULT 0 CHECK (PaymentMode IN (0, 1, 2)),
    ChequeNumber TEXT DEFAULT '',
    ChequeDate DATETIME,
    BankName TEXT DEFAULT '',
    Deposited BIT NOT NULL DEFAULT 0,
    Cancelled BIT NOT NULL DEFAULT 0,
    CHECK (PaymentMode = 0 OR ChequeNumber <> '')
);
CREATE INDEX Collections_Customer ON Collections(CustomerID);

CREATE TABLE JournalPostings (
    PostingID INTEGER PRIMARY KEY AUTOINCREMENT,
    Counter INTEGER NOT NULL,
    DocumentID INTEGER NOT NULL,
    PostingDate DATETIME NOT NULL,
    Account TEXT NOT NULL COLLATE NOCASE CHECK (Account <> ''),
    Debit REAL NOT NULL DEFAULT 0 CHECK (Debit >= 0),
    Credit REAL NOT NULL DEFAULT 0 CHECK (Credit >= 0),
    Narration TEXT DEFAULT '',
    UserName TEXT DEFAULT '',
    CreationTime DATETIME NOT NULL DEFAULT CURRENT_TIMESTAMP
);
CREATE INDEX JournalPostings_Document ON JournalPostings(DocumentID, Counter);
)SQL";
}

}  // namespace server::schema_part
