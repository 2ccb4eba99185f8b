// Stock on hand: saleable and free batches, batches expiring next year and later, a
// few that expired last month and still hold goods, a batch number priced twice, an
// exhausted item, a batch down to its last carton, and the opening stock of the last
// week.
//
// Quantities are in base units. Free stock carries no price.
#include "server/demo_data.h"

namespace server::demo_part {

std::string Stock() {
    return R"SQL(
INSERT INTO Batch_Products (Batch_Code, Product_Code, Batch_Number, Expiry, PKD, Quantity, QuantityReceived,
                            PurchasePrice, SalePrice, PTS, PTR, ECP, MRP, Company_Price, Free,
                            TaxSuffered, ApplicableOn, PartofPercentage, CreationDate) VALUES
    (1, 'FD001', 'MB2401', {T+400}, {T-60}, 2400, 2880, 7.20, 9.00, 8.50, 9.00, 10.00, 10.00, 8.00, 0, 5, 1, 0, {T-60}),
    (2, 'FD001', 'MB2402', {T+520}, {T-20}, 1200, 1200, 7.20, 9.00, 8.50, 9.00, 10.00, 10.00, 8.00, 0, 5, 1, 0, {T-20}),
    (3, 'FD001', 'MB2312', {T-30}, {T-330}, 240, 2400, 7.00, 9.00, 8.50, 9.00, 10.00, 10.00, 8.00, 0, 5, 1, 0, {T-330}),
    (4, 'FD001', 'MB2401', {T+400}, {T-60}, 480, 480, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, {T-60}),
    (5, 'FD002', 'CB101', {T+400}, NULL, 600, 720, 10.40, 13.00, 12.00, 13.00, 15.00, 15.00, 11.50, 0, 5, 1, 0, {T-45}),
    (6, 'FD002', 'CB101', {T+400}, NULL, 120, 120, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, {T-45}),
    (7, 'FD002', 'CB102', {T+45}, NULL, 144, 288, 10.40, 13.00, 12.00, 13.00, 15.00, 15.00, 11.50, 0, 5, 1, 0, {T-150}),
    (8, 'FD003', '', NULL, NULL, 500, 600, 15.50, 19.50, 18.00, 19.50, 22.00, 22.00, 17.00, 0, 5, 1, 0, {T-30}),
    (9, 'FD004', 'SO240', {T+300}, NULL, 240, 300, 118.00, 138.00, 130.00, 138.00, 155.00, 155.00, 128.00, 0, 5, 1, 0, {T-40}),
    (10, 'FD004', 'SO241', {T+480}, NULL, 120, 120, 118.00, 138.00, 130.00, 138.00, 155.00, 155.00, 128.00, 0, 5, 1, 0, {T-10}),
    (11, 'FD005', '', NULL, NULL, 0, 100, 80.00, 100.00, 95.00, 100.00, 120.00, 120.00, 90.00, 0, 12, 1, 0, {T-250}),
    (12, 'BV001', 'OD24A', {T+150}, {T-30}, 960, 1200, 12.00, 15.00, 14.00, 15.00, 20.00, 20.00, 13.50, 0, 12, 1, 0, {T-30}),
    (13, 'BV001', 'OD24B', {T+400}, {T-5}, 480, 480, 12.00, 15.00, 14.00, 15.00, 20.00, 20.00, 13.50, 0, 12, 1, 0, {T-5}),
    (14, 'BV001', 'OD23Z', {T-30}, {T-210}, 96, 480, 11.50, 15.00, 14.00, 15.00, 20.00, 20.00, 13.50, 0, 12, 1, 0, {T-210}),
    (15, 'BV002', 'MJ11', {T+250}, NULL, 300, 360, 70.00, 85.00, 80.00, 85.00, 99.00, 99.00, 78.00, 0, 12, 1, 0, {T-50}),
    (16, 'BV003', '', NULL, NULL, 1200, 1500, 9.00, 13.00, 12.00, 13.00, 20.00, 20.00, 11.00, 0, 12, 1, 0, {T-25}),
    (17, 'BV003', '', NULL, NULL, 240, 240, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, {T-25}),
    (18, 'PC001', 'HS01', {T+700}, NULL, 1440, 1728, 18.00, 24.00, 22.00, 24.00, 30.00, 30.00, 21.00, 0, 18, 1, 0, {T-60}),
    (19, 'PC001', 'HS02', {T+800}, NULL, 288, 288, 18.00, 24.00, 22.00, 24.00, 30.00, 30.00, 21.00, 0, 18, 1, 0, {T-15}),
    (20, 'PC002', '', NULL, NULL, 2000, 3000, 1.50, 1.90, 1.80, 1.90, 2.00, 2.00, 1.70, 0, 18, 1, 0, {T-90}),
    (21, 'PC002', '', NULL, NULL, 500, 500, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, {T-90}),
    (22, 'PC003', 'TP55', {T+400}, {T-20}, 240, 288, 60.00, 74.00, 70.00, 74.00, 89.00, 89.00, 68.00, 0, 18, 1, 0, {T-20}),
    (23, 'PC003', 'TP54', {T-30}, {T-395}, 24, 240, 58.00, 74.00, 70.00, 74.00, 89.00, 89.00, 68.00, 0, 18, 1, 0, {T-395}),
    (24, 'HC001', 'PCM24A', {T+400}, {T-90}, 1000, 1500, 15.00, 19.50, 18.00, 19.50, 25.00, 25.00, 17.50, 0, 12, 6, 60, {T-90}),
    (25, 'HC001', 'PCM24A', {T+400}, {T-90}, 500, 500, 15.50, 20.50, 19.00, 20.50, 25.00, 25.00, 18.50, 0, 12, 6, 60, {T-40}),
    (26, 'HC001', 'PCM24B', {T+520}, {T-30}, 1500, 1500, 15.00, 20.00, 18.50, 20.00, 25.00, 25.00, 18.00, 0, 12, 6, 60, {T-30}),
    (27, 'HC001', 'PCM23X', {T-30}, {T-760}, 200, 1000, 14.00, 19.00, 17.50, 19.00, 24.00, 24.00, 17.00, 0, 12, 6, 60, {T-760}),
    (28, 'HC002', 'CS301', {T+365}, {T-60}, 400, 480, 52.00, 66.00, 62.00, 66.00, 85.00, 85.00, 60.00, 0, 12, 6, 60, {T-60}),
    (29, 'HC002', 'CS301', {T+365}, {T-60}, 40, 40, 0, 0, 0, 0, 0, 0, 0, 1, 0, 0, 0, {T-60}),
    (30, 'HC003', 'AL77', {T+600}, NULL, 120, 144, 80.00, 101.00, 95.00, 101.00, 125.00, 125.00, 92.00, 0, 12, 6, 60, {T-70}),
    (31, 'FS001', '', NULL, NULL, 25, 40, 400.00, 480.00, 450.00, 480.00, 550.00, 550.00, 440.00, 0, 5, 1, 0, {T-120}),
    -- The last carton of an older lot of Mango Juice: it expires first, so it is
    -- offered and taken first, and two clerks dispatching a carton each meet on it.
    (32, 'BV002', 'MJ10', {T+60}, NULL, 6, 60, 70.00, 85.00, 80.00, 85.00, 99.00, 99.00, 78.00, 0, 12, 1, 0, {T-120}),
    -- What is left of the discontinued gift tin: stock that no scheme may give.
    (33, 'FD006', '', NULL, NULL, 60, 200, 14.00, 20.00, 18.00, 20.00, 25.00, 25.00, 17.00, 0, 18, 1, 0, {T-200});

-- The openings a week ago and today, from the stock as it stands.
INSERT INTO OpeningDetails (Product_Code, Opening_Date, Opening_Quantity, Free_Saleable_Quantity, Opening_Value)
    SELECT Product_Code, {T-7}, SUM(Quantity), SUM(CASE WHEN Free = 1 THEN Quantity ELSE 0 END), SUM(Quantity * PurchasePrice)
    FROM Batch_Products GROUP BY Product_Code;
INSERT INTO OpeningDetails (Product_Code, Opening_Date, Opening_Quantity, Free_Saleable_Quantity, Opening_Value)
    SELECT Product_Code, {T}, SUM(Quantity), SUM(CASE WHEN Free = 1 THEN Quantity ELSE 0 END), SUM(Quantity * PurchasePrice)
    FROM Batch_Products GROUP BY Product_Code;
)SQL";
}

}  // namespace server::demo_part
