// The application's own tables: the texts of numbered messages, the captions of the
// installed language, the column widths of look-up lists, screen switches, and the
// identity of the database file.
#include "server/schema.h"

namespace server::schema_part {

std::string Application() {
    return R"SQL(
CREATE TABLE ErrorMessages (
    ErrorID INTEGER PRIMARY KEY,
    Message TEXT NOT NULL CHECK (Message <> '')
);
-- 10 and 11 are questions that the screen asks with yes and no.
INSERT INTO ErrorMessages (ErrorID, Message) VALUES
    (1, 'The following items of the purchase order are not in the item master and cannot be dispatched.'),
    (4, 'Select a Beat from the list.'),
    (6, 'Select a Salesman from the list.'),
    (8, 'Select a Category Group from the list.'),
    (10, 'The items entered do not belong to the new category group and will be removed. Do you want to continue?'),
    (11, 'Changing the category group will remove the items entered. Do you want to continue?'),
    (13, 'The item does not belong to the category group of this dispatch.'),
    (35, 'The customer is not on the selected beat of this salesman.'),
    (55, 'Select a valid Salesman.'),
    (56, 'Select a valid Beat.'),
    (58, 'The category group of this document is no longer active. The document cannot be dispatched.'),
    (173, 'All Categories cannot be chosen with a salesman. Select a category group.');

-- Captions of the installed language; a base text with no row shows as it is.
CREATE TABLE Labels (
    BaseText TEXT NOT NULL COLLATE NOCASE,
    LabelKind TEXT NOT NULL DEFAULT 'Label' COLLATE NOCASE,
    Caption TEXT NOT NULL,
    PRIMARY KEY (BaseText, LabelKind)
);

-- Column widths of the look-up lists: screen n has the five ids from (n - 1) * 5 + 10.
CREATE TABLE formatinfo (
    formatid INTEGER PRIMARY KEY CHECK (formatid > 0),
    colwidth INTEGER NOT NULL DEFAULT 1000 CHECK (colwidth >= 0),
    ColumnName TEXT DEFAULT ''
);

-- Switches of screens of the application; a missing row reads as switched on.
CREATE TABLE tbl_Zuro_ConfigAbstract (
    ScreenCode TEXT NOT NULL PRIMARY KEY COLLATE NOCASE,
    ScreenName TEXT DEFAULT '',
    Flag BIT NOT NULL DEFAULT 0
);

-- The days the distributor has closed: nothing more is posted to a closed day, nor to
-- any day before it.
CREATE TABLE DayClose (
    CloseDate DATETIME NOT NULL PRIMARY KEY,
    ClosedBy TEXT DEFAULT '',
    ClosedOn DATETIME
);

CREATE TABLE SchemaInfo (
    Name TEXT NOT NULL PRIMARY KEY COLLATE NOCASE,
    Value TEXT
);
INSERT INTO SchemaInfo (Name, Value) VALUES
    ('Application', 'Dispatch'),
    ('Version', '1');
)SQL";
}

}  // namespace server::schema_part
