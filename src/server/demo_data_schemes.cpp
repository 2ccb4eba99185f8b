// Schemes of every kind the screen knows: load-time schemes of purchase orders (more
// of the same item, another item free), SKU schemes by quantity and by value, one
// whose free item has no stock, one whose free item has left the master, one whose
// free item belongs to another category group, one for a single customer, one
// offering a choice of free items, special category schemes giving free items (one
// once only, one whose free item has no stock) and discounts, and an expired and an
// inactive scheme that must never apply.
//
// Onward of an item scheme counts base units (or value for slab unit 4), as the screen
// measures every unit of an item's total in base units; a special category scheme's
// slabs and onward are in the slab's own unit.
#include "server/demo_data.h"

namespace server::demo_part {

std::string Schemes() {
    return R"SQL(
INSERT INTO Schemes (SchemeID, SchemeName, SchemeType, SchemeScope, HasSlabs, ValidFrom, ValidTo,
                     ShowPrompt, PromptMessage, AllCustomers, Active, CreationDate) VALUES
    (101, 'Marie Buy 100 Get 10', 17, 1, 0, {T-60}, {T+120 23:59}, 1, 'Marie: 10 pieces free on every 100', 1, 1, {T-61}),
    (102, 'Marie Festive Extra', 17, 1, 1, {T-10}, {T+20 23:59}, 0, '', 1, 1, {T-11}),
    (103, 'Soap Case Shampoo Offer', 18, 1, 1, {T-90}, {T+90 23:59}, 0, '', 1, 1, {T-91}),
    (201, 'Marie Case Offer', 3, 1, 1, {T-90}, {T+180 23:59}, 0, '', 1, 1, {T-91}),
    (202, 'Orange Drink Value Offer', 3, 1, 1, {T-30}, {T+60 23:59}, 0, '', 1, 1, {T-31}),
    (203, 'Cream Biscuit Toffee Offer', 3, 1, 1, {T-30}, {T+60 23:59}, 0, '', 1, 1, {T-31}),
    (204, 'Oil With Shampoo', 3, 1, 1, {T-45}, {T+45 23:59}, 0, '', 1, 1, {T-46}),
    (205, 'City Medicals Paracetamol Offer', 3, 1, 1, {T-100}, {T+100 23:59}, 0, '', 0, 1, {T-101}),
    (206, 'Juice Free Drink Choice', 3, 1, 1, {T-20}, {T+40 23:59}, 0, '', 1, 1, {T-21}),
    (207, 'Summer Drink Offer', 3, 1, 1, {T-120}, {T-31 23:59}, 0, '', 1, 1, {T-121}),
    (208, 'Toothpaste Offer', 3, 1, 1, {T-30}, {T+60 23:59}, 0, '', 1, 0, {T-31}),
    (209, 'Toothpaste Gift Tin Offer', 3, 1, 1, {T-30}, {T+60 23:59}, 0, '', 1, 1, {T-31}),
    (301, 'Biscuit Bonanza', 3, 2, 1, {T-60}, {T+60 23:59}, 0, '', 1, 1, {T-61}),
    (302, 'Personal Care 5% Off', 1, 2, 1, {T-60}, {T+60 23:59}, 0, '', 1, 1, {T-61}),
    (303, 'Beverage Case Discount', 2, 2, 1, {T-60}, {T+60 23:59}, 0, '', 1, 1, {T-61}),
    (304, 'Health Care Free Antiseptic', 3, 2, 1, {T-60}, {T+60 23:59}, 0, '', 1, 1, {T-61}),
    (305, 'Water And Juice Combo', 3, 2, 1, {T-30}, {T+60 23:59}, 0, '', 1, 1, {T-31}),
    (306, 'Personal Care Toffee Treat', 3, 2, 1, {T-30}, {T+60 23:59}, 0, '', 1, 1, {T-31});

INSERT INTO SchemeProducts (SchemeID, Product_Code, MinQty) VALUES
    (101, 'FD001', 0), (102, 'FD001', 0), (103, 'PC001', 0),
    (201, 'FD001', 0), (202, 'BV001', 0), (203, 'FD002', 0), (204, 'FD004', 0),
    (205, 'HC001', 0), (206, 'BV002', 0), (207, 'BV001', 0), (208, 'PC003', 0), (209, 'PC003', 0),
    (301, 'FD001', 24), (301, 'FD002', 12), (301, 'FD003', 0),
    (302, 'PC001', 0), (302, 'PC002', 0), (302, 'PC003', 0),
    (303, 'BV001', 0), (303, 'BV002', 0), (303, 'BV003', 0),
    (304, 'HC001', 0), (304, 'HC002', 0),
    (305, 'BV002', 6), (305, 'BV003', 12),
    (306, 'PC002', 0), (306, 'PC003', 0);

INSERT INTO SchemeSlabs (SlabID, SchemeID, SlabStart, SlabEnd, SlabUnit, Onward, FreeQty, FreeUnit, FreeItem,
                         DiscountPercent, DiscountAmount) VALUES
    (1011, 101, 100, 100000, 1, 0, 10, 1, NULL, 0, 0),
    (1021, 102, 200, 999, 1, 0, 12, 1, NULL, 0, 0),
    (1022, 102, 1000, 99999, 1, 0, 60, 1, NULL, 0, 0),
    (1031, 103, 144, 287, 1, 0, 10, 1, 'PC002', 0, 0),
    (1032, 103, 288, 99999, 1, 0, 30, 1, 'PC002', 0, 0),
    (2011, 201, 2, 9, 3, 0, 1, 2, NULL, 0, 0),
    (2012, 201, 10, 999, 3, 1200, 2, 2, NULL, 0, 0),
    (2021, 202, 1000, 999999, 4, 1000, 1, 1, NULL, 0, 0),
    (2031, 203, 10, 999, 2, 0, 1, 1, NULL, 0, 0),
    (2041, 204, 1, 999, 2, 12, 1, 2, NULL, 0, 0),
    (2051, 205, 5, 999, 2, 50, 1, 1, NULL, 0, 0),
    (2061, 206, 2, 99, 2, 12, 1, 1, NULL, 0, 0),
    (2071, 207, 500, 999999, 4, 500, 1, 1, NULL, 0, 0),
    (2081, 208, 12, 999, 1, 12, 1, 1, NULL, 0, 0),
    (2091, 209, 6, 999, 1, 6, 1, 1, NULL, 0, 0),
    (3011, 301, 500, 999999, 1, 500, 1, 2, NULL, 0, 0),
    (3021, 302, 2000, 999999, 4, 0, 0, 1, NULL, 5, 0),
    (3031, 303, 5, 999, 2, 0, 0, 1, NULL, 0, 100),
    (3041, 304, 100, 9999, 1, 100, 1, 1, NULL, 0, 0),
    (3051, 305, 24, 999999, 1, 0, 1, 1, NULL, 0, 0),
    (3061, 306, 50, 999999, 1, 0, 1, 1, NULL, 0, 0);

INSERT INTO SchemeFreeItems (SlabID, Free_Item_Code) VALUES
    (2011, 'FD001'), (2012, 'FD001'), (2021, 'BV003'), (2031, 'FD005'), (2041, 'PC002'),
    (2051, 'HC003'), (2061, 'BV001'), (2061, 'BV003'), (2071, 'BV003'), (2081, 'PC003'),
    (2091, 'FD006'), (3011, 'FD002'), (3041, 'HC003'), (3051, 'PM002'), (3061, 'FD005');

INSERT INTO SchemeCustomers (SchemeID, CustomerID) VALUES
    (205, 'C003');
)SQL";
}

}  // namespace server::demo_part
