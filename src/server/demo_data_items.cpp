// Units, item categories and their groups, and the item master: one-, two- and
// three-level unit ladders, batch-tracked and plain items, a category priced by batch
// and one that keeps no stock; an item discontinued with stock left.
#include "server/demo_data.h"

namespace server::demo_part {

std::string Items() {
    return R"SQL(
INSERT INTO UOM (UOM, Description, Active) VALUES
    (1, 'PCS', 1), (2, 'BOX', 1), (3, 'CASE', 1), (4, 'STRIP', 1),
    (5, 'BTL', 1), (6, 'CTN', 1), (7, 'KG', 1), (8, 'DOZEN', 0);

INSERT INTO ProductCategoryGroupAbstract (GroupID, GroupName, Active) VALUES
    (1, 'Foods', 1),
    (2, 'Beverages', 1),
    (3, 'Personal Care', 1),
    (4, 'Health Care', 1),
    (5, 'Festive Range', 0);

INSERT INTO ItemCategories (CategoryID, Category_Name, Price_Option, Track_Inventory, Active) VALUES
    (1, 'Biscuits', 0, 1, 1),
    (2, 'Confectionery', 0, 1, 1),
    (3, 'Edible Oil', 0, 1, 1),
    (4, 'Soft Drinks', 0, 1, 1),
    (5, 'Toiletries', 0, 1, 1),
    (6, 'Pharma OTC', 1, 1, 1),
    (7, 'Promotional Material', 0, 0, 1),
    (8, 'Seasonal Hampers', 0, 1, 1);

INSERT INTO ProductCategoryGroupDetail (GroupID, CategoryID) VALUES
    (1, 1), (1, 2), (1, 3), (2, 4), (3, 5), (3, 7), (4, 6), (5, 8);

INSERT INTO Items (Product_Code, ProductName, Alias, CategoryID, UOM, BaseUOM, UOM1, UOM1_Conversion, UOM2, UOM2_Conversion,
                   Track_Batches, Virtual_Track_Batches, TrackPKD,
                   Sale_Price, PTS, PTR, ECP, MRP, Company_Price, Purchase_Price, SaleID, ASL, Active, CreationDate) VALUES
    ('FD001', 'Marie Biscuit 100g', 'MB100', 1, 2, 1, 2, 24, 3, 240, 1, 1, 1, 9.00, 8.50, 9.00, 10.00, 10.00, 8.00, 7.20, 1, 0, 1, {T-400}),
    ('FD002', 'Cream Biscuit 75g', 'CB75', 1, 2, 1, 2, 12, NULL, NULL, 1, 1, 0, 13.00, 12.00, 13.00, 15.00, 15.00, 11.50, 10.40, 1, 0, 1, {T-400}),
    ('FD003', 'Salt Crackers 200g', '', 1, 1, 1, NULL, NULL, NULL, NULL, 0, 0, 0, 19.50, 18.00, 19.50, 22.00, 22.00, 17.00, 15.50, 1, 0, 1, {T-400}),
    ('FD004', 'Sunflower Oil 1L', 'SO1L', 3, 5, 5, 6, 12, NULL, NULL, 1, 1, 0, 138.00, 130.00, 138.00, 155.00, 155.00, 128.00, 118.00, 1, 0, 1, {T-400}),
    ('FD005', 'Toffee Jar', '', 2, 1, 1, NULL, NULL, NULL, NULL, 0, 0, 0, 100.00, 95.00, 100.00, 120.00, 120.00, 90.00, 80.00, 1, 0, 1, {T-300}),
    ('BV001', 'Orange Drink 200ml', 'OD200', 4, 5, 5, 3, 24, NULL, NULL, 1, 1, 1, 15.00, 14.00, 15.00, 20.00, 20.00, 13.50, 12.00, 1, 0, 1, {T-400}),
    ('BV002', 'Mango Juice 1L', '', 4, 6, 5, 6, 6, NULL, NULL, 1, 1, 0, 85.00, 80.00, 85.00, 99.00, 99.00, 78.00, 70.00, 1, 0, 1, {T-400}),
    ('BV003', 'Drinking Water 1L', '', 4, 5, 5, NULL, NULL, NULL, NULL, 0, 0, 0, 13.00, 12.00, 13.00, 20.00, 20.00, 11.00, 9.00, 1, 0, 1, {T-400}),
    ('PC001', 'Herbal Soap 100g', 'HS100', 5, 2, 1, 2, 12, 3, 144, 1, 1, 0, 24.00, 22.00, 24.00, 30.00, 30.00, 21.00, 18.00, 1, 0, 1, {T-400}),
    ('PC002', 'Shampoo Sachet', '', 5, 4, 1, 4, 10, NULL, NULL, 0, 0, 0, 1.90, 1.80, 1.90, 2.00, 2.00, 1.70, 1.50, 1, 0, 1, {T-400}),
    ('PC003', 'Toothpaste 150g', '', 5, 1, 1, NULL, NULL, NULL, NULL, 1, 1, 1, 74.00, 70.00, 74.00, 89.00, 89.00, 68.00, 60.00, 1, 0, 1, {T-400}),
    ('PM001', 'Display Stand', '', 7, 1, 1, NULL, NULL, NULL, NULL, 0, 0, 0, 150.00, 150.00, 150.00, 0, 0, 150.00, 120.00, 1, 0, 1, {T-200}),
    ('PM002', 'Shelf Strip', '', 7, 1, 1, NULL, NULL, NULL, NULL, 0, 0, 0, 25.00, 25.00, 25.00, 0, 0, 25.00, 20.00, 1, 0, 1, {T-200}),
    ('HC001', 'Paracetamol 500mg', '', 6, 2, 4, 2, 10, 3, 500, 1, 1, 1, 19.50, 18.00, 19.50, 25.00, 25.00, 17.50, 15.00, 2, 1, 1, {T-400}),
    ('HC002', 'Cough Syrup 100ml', '', 6, 5, 5, 6, 20, NULL, NULL, 1, 1, 1, 66.00, 62.00, 66.00, 85.00, 85.00, 60.00, 52.00, 2, 1, 1, {T-400}),
    ('HC003', 'Antiseptic Liquid 500ml', '', 6, 5, 5, NULL, NULL, NULL, NULL, 1, 1, 0, 101.00, 95.00, 101.00, 125.00, 125.00, 92.00, 80.00, 2, 0, 1, {T-400}),
    ('FS001', 'Festive Hamper', '', 8, 1, 1, NULL, NULL, NULL, NULL, 0, 0, 0, 480.00, 450.00, 480.00, 550.00, 550.00, 440.00, 400.00, 1, 0, 1, {T-120}),
    -- Discontinued: switched off in the master with stock still on the shelf.
    ('FD006', 'Biscuit Gift Tin', '', 1, 1, 1, NULL, NULL, NULL, NULL, 0, 0, 0, 20.00, 18.00, 20.00, 25.00, 25.00, 17.00, 14.00, 1, 0, 0, {T-500});
)SQL";
}

}  // namespace server::demo_part
