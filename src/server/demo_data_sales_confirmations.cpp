// Sales confirmations of the last weeks: pending ones of every party shape, one
// partly dispatched, one with no pending line left, one naming an item that has left
// the master, one of a group since switched off, and closed and cancelled ones that
// the dispatch list must not offer.
//
// Prices follow the customer's category: 1 PTS, 2 PTR, 3 the company price. Quantity
// and Pending are in base units; UOMQty and UOMPrice in the line's unit.
#include "server/demo_data.h"

namespace server::demo_part {

std::string SalesConfirmations() {
    return R"SQL(
INSERT INTO SOAbstract (SONumber, DocumentID, SODate, DeliveryDate, CustomerID, POReference,
                        SalesmanID, BeatID, GroupID, Status, DispatchDocID, CreationTime) VALUES
    (1, 101, {T-12 10:15}, {T-5}, 'C005', 'RS/118', 1, 1, '1', 0, 0, {T-12 10:15}),
    (2, 102, {T-8 09:40}, {T-1}, 'C002', 'BT-7702', 2, 2, '3', 0, 0, {T-8 09:40}),
    (3, 103, {T-5 11:00}, {T+2}, 'C003', 'CM/55', 3, 5, '4', 0, 0, {T-5 11:00}),
    (4, 104, {T-3 16:20}, {T+4}, 'C001', '', NULL, NULL, '', 0, 0, {T-3 16:20}),
    (5, 105, {T-2 12:00}, {T+1}, 'C004', 'DS/PO/31', 1, 3, '1', 0, 0, {T-2 12:00}),
    (6, 106, {T-15 10:00}, {T-10}, 'C006', 'SK-2210', 1, 2, '1,2', 0, 0, {T-15 10:00}),
    (7, 107, {T-4 15:30}, {T+3}, 'C009', 'LP/77', 4, 6, '4', 0, 0, {T-4 15:30}),
    (8, 108, {T-1 09:00}, {T+6}, 'C011', 'NE/FEST/2', 2, 4, '5', 0, 0, {T-1 09:00}),
    (9, 109, {T-6 14:10}, {T-2}, 'C013', 'DM/12', 2, 4, '3', 0, 0, {T-6 14:10}),
    (10, 110, {T-26 11:30}, {T-25}, 'C005', 'RS/101', 1, 1, '1', 128, 41, {T-26 11:30}),
    (11, 111, {T-40 10:45}, {T-30}, 'C014', 'SS/1980', 4, 6, NULL, 0, 0, {T-40 10:45}),
    (12, 112, {T-9 12:20}, {T-4}, 'C010', 'MM/09', 3, 5, '4', 192, 0, {T-9 12:20}),
    (13, 113, {T-8 17:00}, {T-7}, 'C003', 'CM/51', 3, 5, '4', 128, 44, {T-8 17:00});

-- Confirmation 4 left the addresses to the customer master.
UPDATE SOAbstract SET
    BillingAddress = (SELECT BillingAddress FROM Customer WHERE Customer.CustomerID = SOAbstract.CustomerID),
    ShippingAddress = (SELECT ShippingAddress FROM Customer WHERE Customer.CustomerID = SOAbstract.CustomerID)
WHERE SONumber <> 4;

INSERT INTO SODetail (SOLineID, SONumber, Product_Code, Batch_Number, SalePrice, Quantity, Pending, UOM, UOMQty, UOMPrice) VALUES
    (1, 1, 'FD001', 'MB2401', 9.00, 240, 240, 2, 10, 216.00),
    (2, 1, 'FD002', 'CB099', 13.00, 60, 60, 2, 5, 156.00),
    (3, 1, 'FD003', '', 19.50, 48, 48, 1, 48, 19.50),
    (4, 1, 'FD004', 'SO240', 138.00, 24, 12, 6, 2, 1656.00),
    (5, 2, 'PC001', '', 22.00, 144, 144, 3, 1, 3168.00),
    (6, 2, 'PC002', '', 1.80, 200, 200, 4, 20, 18.00),
    (7, 2, 'PM001', '', 150.00, 2, 2, 1, 2, 150.00),
    (8, 3, 'HC001', 'PCM24A', 17.50, 50, 50, 2, 5, 175.00),
    (9, 3, 'HC002', 'CS301', 60.00, 20, 20, 6, 1, 1200.00),
    (10, 3, 'HC003', '', 92.00, 6, 6, 5, 6, 92.00),
    (11, 4, 'FD001', '', 9.00, 48, 48, 1, 48, 9.00),
    (12, 4, 'BV001', '', 15.00, 24, 24, 3, 1, 360.00),
    (13, 4, 'FD099', '', 12.00, 10, 10, 1, 10, 12.00),
    (14, 4, 'PC003', '', 74.00, 12, 12, 1, 12, 74.00),
    (15, 5, 'FD004', '', 138.00, 24, 24, 6, 2, 1656.00),
    (16, 6, 'BV002', '', 80.00, 12, 12, 6, 2, 480.00),
    (17, 6, 'FD002', '', 12.00, 48, 48, 2, 4, 144.00),
    (18, 7, 'HC001', '', 19.50, 20, 20, 2, 2, 195.00),
    (19, 8, 'FS001', '', 450.00, 5, 5, 1, 5, 450.00),
    (20, 9, 'PC003', '', 74.00, 24, 0, 1, 24, 74.00),
    (21, 10, 'FD001', 'MB2401', 9.00, 120, 0, 2, 5, 216.00),
    (22, 11, 'BV003', '', 12.00, 120, 120, 5, 120, 12.00),
    (23, 11, 'FD003', '', 18.00, 24, 24, 1, 24, 18.00),
    (24, 12, 'HC003', '', 92.00, 2, 2, 5, 2, 92.00),
    (25, 13, 'HC003', 'AL77', 92.00, 12, 0, 5, 12, 92.00);

UPDATE SOAbstract SET Value = (SELECT SUM(UOMQty * UOMPrice) FROM SODetail WHERE SODetail.SONumber = SOAbstract.SONumber);
)SQL";
}

}  // namespace server::demo_part
