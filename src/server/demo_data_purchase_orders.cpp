// Purchase orders received from customers, in the customers' own item codes: two
// pending, one of them naming an item that is unknown here, one already dispatched,
// and one that names no item at all of ours.
#include "server/demo_data.h"

namespace server::demo_part {

std::string PurchaseOrders() {
    return R"SQL(
INSERT INTO POAbstractReceived (PONumber, DocumentID, PODate, CustomerID, POReference, Status, CreationTime) VALUES
    (1, 11, {T-6 10:05}, 'C002', 'BT/PO/7781', 0, {T-6 10:05}),
    (2, 12, {T-3 12:40}, 'C014', 'SS/2291', 0, {T-3 12:40}),
    (3, 13, {T-20 09:15}, 'C006', 'SK-118', 128, {T-20 09:15}),
    (4, 14, {T-1 18:00}, 'C013', 'DM/PO/4', 0, {T-1 18:00});

UPDATE POAbstractReceived SET
    BillingAddress = (SELECT BillingAddress FROM Customer WHERE Customer.CustomerID = POAbstractReceived.CustomerID),
    ShippingAddress = (SELECT ShippingAddress FROM Customer WHERE Customer.CustomerID = POAbstractReceived.CustomerID);

INSERT INTO PODetailReceived (POLineID, PONumber, Product_Code, Quantity, Price) VALUES
    (1, 1, 'MB100', 480, 8.50),
    (2, 1, 'HS100', 144, 22.00),
    (3, 1, 'ZZ-999', 12, 40.00),
    (4, 2, 'OD200', 48, 14.00),
    (5, 2, 'MB100', 240, 8.50),
    (6, 2, 'SO1L', 24, 130.00),
    (7, 3, 'CB75', 120, 12.00),
    (8, 4, 'XY-100', 10, 35.00),
    (9, 4, 'XY-200', 6, 60.00);

UPDATE POAbstractReceived SET Value = (SELECT SUM(Quantity * Price) FROM PODetailReceived WHERE PODetailReceived.PONumber = POAbstractReceived.PONumber);
)SQL";
}

}  // namespace server::demo_part
