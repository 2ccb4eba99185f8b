// Stored dispatch notes: open, closed (invoiced), cancelled, and an amended note with
// its replacement; notes with scheme and special category free lines, a line keyed in
// two units at once, a line that keeps no stock, a free line of another category
// group, one of a document type switched off since, and one on a beat closed since.
//
// The notes were saved with other-category-group items switched off, so serials and
// their links (FreeSerial, SPLCATSERIAL) are the lines' places in the note.
#include "server/demo_data.h"

namespace server::demo_part {

std::string Dispatches() {
    return R"SQL(
INSERT INTO DispatchAbstract (DispatchID, DocumentID, DispatchDate, CustomerID, Status, RefNumber, NewRefNumber,
                              OriginalReference, Memo1, Memo2, Memo3, Remarks, DocReference, DocumentType,
                              SalesmanID, BeatID, GroupID, UserName, CreationTime, CancelUserName, CancelDate) VALUES
    (1, 41, {T-25 11:00}, 'C005', 129, '10', 'SC110', '', '', '', '', '', 'TN/DN/38', 'DN-TN', 1, 1, '1', 'clerk1', {T-25 11:00}, '', NULL),
    (2, 42, {T-10 15:00}, 'C002', 2, 'BT-ORAL-22', 'BT-ORAL-22', '', 'Deliver before noon', 'Collect empties', '', '', 'TN/DN/39', 'DN-TN', 2, 2, '3', 'clerk1', {T-10 15:00}, '', NULL),
    (3, 43, {T-9 12:30}, 'C001', 194, 'Phone order', 'Phone order', '', '', '', '', 'Customer refused delivery', 'TN/DN/40', 'DN-TN', 1, 1, '1', 'clerk2', {T-9 12:30}, 'admin', {T-8 10:00}),
    (4, 44, {T-7 10:00}, 'C003', 385, '13', 'SC113', '', '', '', '', 'Quantity changed on the customer''s request', 'TN/DN/41', 'DN-TN', 3, 5, '4', 'clerk1', {T-7 10:00}, '', NULL),
    (5, 45, {T-7 10:00}, 'C003', 1, 'SC113', 'SC113', '44', '', '', '', '', 'TN/DN/41', 'DN-TN', 3, 5, '4', 'clerk1', {T-6 16:30}, '', NULL),
    (6, 46, {T-18 16:00}, 'C006', 4, '3', 'PO13', '', '', '', '', '', 'KA/DN/7', 'DN-KA', 1, 2, '1', 'clerk2', {T-18 16:00}, '', NULL),
    (7, 47, {T-1 11:30}, 'C004', 2, 'Phone order', 'Phone order', '', '', '', '', '', 'OLD/112', 'DN-OLD', 1, 3, '1', 'clerk1', {T-1 11:30}, '', NULL),
    (8, 48, {T-20 10:10}, 'C004', 2, '', '', '', '', '', '', '', 'DN48', '', 1, 7, '1', 'clerk2', {T-20 10:10}, '', NULL),
    (9, 49, {T 09:30}, 'C001', 2, '', '', '', '', '', '', '', 'TN/DN/42', 'DN-TN', 1, 3, '1', 'clerk1', {T 09:30}, '', NULL);

UPDATE DispatchAbstract SET
    BillingAddress = (SELECT BillingAddress FROM Customer WHERE Customer.CustomerID = DispatchAbstract.CustomerID),
    ShippingAddress = (SELECT ShippingAddress FROM Customer WHERE Customer.CustomerID = DispatchAbstract.CustomerID);

-- Lines without schemes.
INSERT INTO DispatchDetail (DetailID, DispatchID, Serial, Product_Code, Batch_Code, Batch_Number, SalePrice, Quantity,
                            UOM, UOMQty, UOMPrice, Track_Batches, Track_Inventory, Price_Option, FreeItem, Free, OtherCG_Item) VALUES
    (1, 1, 1, 'FD001', 1, 'MB2401', 9.00, 120, 2, 5, 216.00, 1, 1, 0, 0, 0, 0),
    (2, 2, 1, 'PC001', 18, 'HS01', 22.00, 24, 2, 2, 264.00, 1, 1, 0, 0, 0, 0),
    (3, 2, 2, 'PC002', 20, '', 1.80, 20, 4, 2, 18.00, 0, 1, 0, 0, 0, 0),
    (4, 2, 2, 'PC002', 20, '', 1.80, 5, 1, 5, 1.80, 0, 1, 0, 0, 0, 0),
    (5, 2, 3, 'PM001', 0, '', 150.00, 1, 1, 1, 150.00, 0, 0, 0, 0, 0, 0),
    (6, 3, 1, 'FD003', 8, '', 19.50, 24, 1, 24, 19.50, 0, 1, 0, 0, 0, 0),
    (7, 4, 1, 'HC003', 30, 'AL77', 92.00, 12, 5, 12, 92.00, 1, 1, 1, 0, 0, 0),
    (8, 5, 1, 'HC003', 30, 'AL77', 92.00, 10, 5, 10, 92.00, 1, 1, 1, 0, 0, 0),
    (11, 6, 1, 'FD002', 5, 'CB101', 12.00, 120, 2, 10, 144.00, 1, 1, 0, 0, 0, 0),
    (12, 6, 2, 'PC002', 21, '', 0, 10, 4, 1, 0, 0, 1, 0, 0, 1, 1),
    (13, 7, 1, 'FD003', 8, '', 19.50, 12, 1, 12, 19.50, 0, 1, 0, 0, 0, 0),
    (14, 7, 2, 'FD004', 9, 'SO240', 138.00, 12, 5, 12, 138.00, 1, 1, 0, 0, 0, 0),
    (15, 8, 1, 'FD001', 2, 'MB2402', 9.00, 48, 2, 2, 216.00, 1, 1, 0, 0, 0, 0);

-- Lines with schemes: note 5 earned a free bottle on the customer's own SKU scheme;
-- note 9 a free box on the SKU scheme of Marie and one on the biscuit special category.
INSERT INTO DispatchDetail (DetailID, DispatchID, Serial, Product_Code, Batch_Code, Batch_Number, SalePrice, Quantity,
                            UOM, UOMQty, UOMPrice, Track_Batches, Track_Inventory, Price_Option, FreeItem, Free, OtherCG_Item,
                            SchemeID, FreeSerial, CSchemeID, SPLCATSCHEMEID, SpecialCategoryScheme, SPLCATSERIAL,
                            MultipleSchemeID, MultipleSchemeDetails, MultipleSplCategorySchemeID, MultipleSplCategorySchDetail) VALUES
    (9, 5, 2, 'HC001', 24, 'PCM24A', 17.50, 50, 2, 5, 175.00, 1, 1, 1, 0, 0, 0, 0, ',3', '205', '', 0, '', '205', '', '', ''),
    (10, 5, 3, 'HC003', 30, 'AL77', 0, 1, 5, 1, 0, 1, 1, 1, 1, 1, 0, 0, '2', '', '', 0, '', '', '205|2051|0|0', '', ''),
    (16, 9, 1, 'FD001', 1, 'MB2401', 9.00, 480, 3, 2, 2160.00, 1, 1, 0, 0, 0, 0, 0, ',4', '201', '301', 1, '5,', '201', '', '301', ''),
    (17, 9, 2, 'FD002', 5, 'CB101', 13.00, 120, 2, 10, 156.00, 1, 1, 0, 0, 0, 0, 0, '', '', '301', 1, '5,', '', '', '301', ''),
    (18, 9, 3, 'FD003', 8, '', 19.50, 48, 1, 48, 19.50, 0, 1, 0, 0, 0, 0, 0, '', '', '301', 1, '5,', '', '', '301', ''),
    (19, 9, 4, 'FD001', 4, 'MB2401', 0, 24, 2, 1, 0, 1, 1, 0, 1, 1, 0, 0, '1', '', '', 0, '', '', '201|2011|0|0', '', ''),
    (20, 9, 5, 'FD002', 6, 'CB101', 0, 12, 2, 1, 0, 1, 1, 0, 1, 1, 0, 0, '', '', '301', 1, '1,2,3', '', '', '301', '301|3011|0|0');
)SQL";
}

}  // namespace server::demo_part
