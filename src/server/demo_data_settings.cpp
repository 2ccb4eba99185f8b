// The distributor's settings: document types of dispatches (and one of sales
// confirmations, which the dispatch screen must not offer), the widths of the stock
// list, a few captions and the health care switch.
#include "server/demo_data.h"

namespace server::demo_part {

std::string Settings() {
    return R"SQL(
INSERT INTO TransactionDocNumber (TransactionType, DocumentType, Prefix, LastCount, Active, IsDefault) VALUES
    (5, 'DN-TN', 'TN/DN/', 42, 1, 1),
    (5, 'DN-KA', 'KA/DN/', 7, 1, 0),
    (5, 'DN-OLD', 'OLD/', 112, 0, 0),
    (1, 'SC-TN', 'TN/SC/', 113, 1, 1);

INSERT INTO formatinfo (formatid, colwidth, ColumnName) VALUES
    (10, 1100, 'Batch'), (11, 900, 'Expiry'), (12, 1100, 'Sale Price'), (13, 1000, 'Quantity'), (14, 800, 'Remarks'),
    (15, 1300, 'Batch'), (16, 1000, 'Expiry'), (17, 1200, 'Sale Price'), (18, 1100, 'Quantity'), (19, 900, 'Remarks');

INSERT INTO Labels (BaseText, LabelKind, Caption) VALUES
    ('Special Price', 'Label', 'Spl. Price'),
    ('PTS', 'Label', 'PTS'),
    ('PTR', 'Label', 'PTR'),
    ('Multiple', 'Label', 'Multiple'),
    ('Select A Document Type', 'Label', 'Select A Document Type'),
    ('ALL CUSTOMERS', 'Label', 'ALL CUSTOMERS');

INSERT INTO tbl_Zuro_ConfigAbstract (ScreenCode, ScreenName, Flag) VALUES
    ('ValidateHealthCareItem', 'Health care items need the customer''s drug licence', 1);
)SQL";
}

}  // namespace server::demo_part
