// Salesmen with their sales types, the beats they serve, trade customers of all five
// categories, who stands on which beat, and group-wise credit terms.
#include "server/demo_data.h"

namespace server::demo_part {

std::string Parties() {
    return R"SQL(
INSERT INTO DSType (DSTypeID, DSTypeName, CategoryMapped, Active) VALUES
    (1, 'Foods DS', 0, 1),
    (2, 'Personal Care DS', 0, 1),
    (3, 'Pharma DS', 1, 1),
    (4, 'General DS', 0, 1);

INSERT INTO DSTypeCategoryGroup (DSTypeID, GroupID) VALUES
    (1, 1), (1, 2),
    (2, 3),
    (3, 4),
    (4, 1), (4, 2), (4, 3), (4, 4);

INSERT INTO DSTypeCategory (DSTypeID, CategoryID) VALUES
    (3, 6), (3, 5);

INSERT INTO Salesman (SalesmanID, Salesman_Name, DSTypeID, Address, Phone, Active) VALUES
    (1, 'Arun Kumar', 1, '12 North Street, Chennai', '9840011001', 1),
    (2, 'Bala Murugan', 2, '4 Lake View Road, Chennai', '9840011002', 1),
    (3, 'Chitra Devi', 3, '88 Temple Street, Chennai', '9840011003', 1),
    (4, 'Dinesh Raj', 4, '21 GST Road, Tambaram', '9840011004', 1),
    (5, 'Ezhil Mani', 1, '7 Station Road, Chennai', '9840011005', 1);

INSERT INTO Beat (BeatID, Description, Active) VALUES
    (1, 'Anna Nagar', 1),
    (2, 'T Nagar', 1),
    (3, 'Mylapore', 1),
    (4, 'Adyar', 1),
    (5, 'Velachery', 1),
    (6, 'Tambaram', 1),
    (7, 'Porur', 0);

INSERT INTO Customer (CustomerID, Company_Name, BillingAddress, ShippingAddress, CustomerCategory, CreditLimit,
                      DLNumber, DLNumber21, TIN_Number, Phone, Active, CreationDate) VALUES
    ('C001', 'Anand Stores', '14 2nd Avenue, Anna Nagar, Chennai', '14 2nd Avenue, Anna Nagar, Chennai', 2, 25000, '', '', '33010000101', '044-26160101', 1, {T-700}),
    ('C002', 'Bharat Traders', '5 Usman Road, T Nagar, Chennai', 'Godown 3, Pondy Bazaar, Chennai', 1, -1, '', '', '33010000102', '044-24340102', 1, {T-700}),
    ('C003', 'City Medicals', '2 Velachery Main Road, Chennai', '2 Velachery Main Road, Chennai', 3, 50000, 'TN/CHN/20B/1103', 'TN/CHN/21B/1103', '33010000103', '044-22430103', 1, {T-650}),
    ('C004', 'Deepam Supermarket', '40 Luz Church Road, Mylapore, Chennai', '40 Luz Church Road, Mylapore, Chennai', 2, 5000, '', '', '33010000104', '044-24990104', 1, {T-600}),
    ('C005', 'Ravi Stores', '9 Shanthi Colony, Anna Nagar, Chennai', '9 Shanthi Colony, Anna Nagar, Chennai', 2, 20000, '', '', '33010000105', '044-26210105', 1, {T-600}),
    ('C006', 'Sakthi Agencies', '77 Ranganathan Street, T Nagar, Chennai', '77 Ranganathan Street, T Nagar, Chennai', 1, 100000, '', '', '33010000106', '044-24310106', 1, {T-550}),
    ('C007', 'Kumaran Hospital', '1 Hospital Road, Velachery, Chennai', 'Pharmacy Stores, 1 Hospital Road, Chennai', 4, 200000, 'TN/CHN/20B/0907', 'TN/CHN/21B/0907', '33010000107', '044-22590107', 1, {T-500}),
    ('C008', 'Walk-in Customer', 'Counter Sale', 'Counter Sale', 5, -1, '', '', '', '', 1, {T-700}),
    ('C009', 'Lakshmi Provisions', '3 Market Street, Tambaram, Chennai', '3 Market Street, Tambaram, Chennai', 2, 15000, '', '', '33010000109', '044-22260109', 1, {T-450}),
    ('C010', 'Murugan Medicals', '60 Taramani Road, Velachery, Chennai', '60 Taramani Road, Velachery, Chennai', 3, 30000, '', 'TN/CHN/21B/1210', '33010000110', '044-22570110', 1, {T-400}),
    ('C011', 'Nila Enterprises', '18 Gandhi Nagar, Adyar, Chennai', '18 Gandhi Nagar, Adyar, Chennai', 1, 40000, '', '', '33010000111', '044-24410111', 1, {T-350}),
    ('C012', 'Priya Traders', '5 Poonamallee High Road, Chennai', '5 Poonamallee High Road, Chennai', 2, 10000, '', '', '', '', 1, {T-300}),
    ('C013', 'Devi''s Mart', '31 Kasturba Nagar, Adyar, Chennai', '31 Kasturba Nagar, Adyar, Chennai', 2, 12000, '', '', '33010000113', '044-24420113', 1, {T-250}),
    ('C014', 'Sundar & Sons', '101 GST Road, Tambaram, Chennai', 'Warehouse 2, Chromepet, Chennai', 1, 75000, '', '', '33010000114', '044-22380114', 1, {T-200}),
    ('C015', 'Old Town Stores', '2 Mint Street, Chennai', '2 Mint Street, Chennai', 2, 5000, '', '', '33010000115', '', 0, {T-900});

INSERT INTO SalesmanBeat (SalesmanID, BeatID) VALUES
    (1, 1), (1, 2), (1, 3), (1, 7),
    (2, 2), (2, 4),
    (3, 5),
    (4, 6);

INSERT INTO BeatCustomer (BeatID, CustomerID) VALUES
    (1, 'C001'), (3, 'C001'),
    (1, 'C005'),
    (2, 'C002'), (2, 'C006'),
    (3, 'C004'), (7, 'C004'),
    (4, 'C011'), (4, 'C013'),
    (5, 'C003'), (5, 'C010'),
    (6, 'C009'), (6, 'C014');

INSERT INTO CustomerCreditTerm (CustomerID, GroupID, CreditLimit, OverdueDaysAllowed, MaxOpenBills) VALUES
    ('C006', 1, -1, 0, -1),
    ('C006', 2, -1, 0, -1),
    ('C004', 1, 5000, -1, -1),
    ('C009', 4, 2000, 15, 3);
)SQL";
}

}  // namespace server::demo_part
