// What customers owe: invoices within terms, overdue, paid and cancelled ones, C- and
// D-Forms due and received; collections in cash, cheques deposited, in hand and
// cancelled, and an advance that leaves a customer in credit.
#include "server/demo_data.h"

namespace server::demo_part {

std::string Accounts() {
    return R"SQL(
INSERT INTO InvoiceAbstract (InvoiceID, DocumentID, InvoiceDate, PaymentDate, CustomerID, DispatchID, NetValue, Balance,
                             Status, FormsRequired, FormsReceived, CFormNo, DFormNo, CreationTime) VALUES
    (1, 501, {T-24}, {T+6}, 'C005', 1, 1080, 0, 0, 0, 0, '', '', {T-24 12:00}),
    (2, 502, {T-20}, {T+10}, 'C004', NULL, 3000, 3000, 0, 0, 0, '', '', {T-20 13:00}),
    (3, 503, {T-12}, {T+18}, 'C004', NULL, 2200, 2200, 0, 4, 0, '', '', {T-12 13:30}),
    (4, 504, {T-60}, {T-30}, 'C006', NULL, 4000, 3500, 0, 8, 64, '', 'DF-0088', {T-60 11:00}),
    (5, 505, {T-10}, {T+20}, 'C006', NULL, 1200, 1200, 0, 0, 0, '', '', {T-10 11:00}),
    (6, 506, {T-35}, {T+25}, 'C002', NULL, 2500, 2500, 0, 4, 32, 'CF-1021', '', {T-35 15:00}),
    (7, 507, {T-15}, {T+15}, 'C011', NULL, 1000, 1000, 0, 0, 0, '', '', {T-15 10:00}),
    (8, 508, {T-30}, {T}, 'C014', NULL, 6000, 6000, 0, 12, 0, '', '', {T-30 16:00}),
    (9, 509, {T-14}, {T+16}, 'C014', NULL, 2400, 2400, 0, 4, 0, '', '', {T-14 16:00}),
    (10, 510, {T-45}, {T-15}, 'C003', NULL, 5000, 0, 0, 4, 32, 'CF-0990', '', {T-45 12:00}),
    (11, 511, {T-5}, {T+25}, 'C001', NULL, 1800, 1800, 0, 8, 0, '', '', {T-5 12:00}),
    (12, 512, {T-22}, {T+8}, 'C013', NULL, 700, 0, 192, 0, 0, '', '', {T-22 12:00}),
    (13, 513, {T}, {T+30}, 'C002', NULL, 900, 900, 0, 12, 0, '', '', {T 10:00});

INSERT INTO Collections (CollectionID, DocumentID, DocumentDate, CustomerID, Value, Balance, PaymentMode,
                         ChequeNumber, ChequeDate, BankName, Deposited, Cancelled) VALUES
    (1, 601, {T-20}, 'C005', 1080, 0, 0, '', NULL, '', 0, 0),
    (2, 602, {T-35}, 'C006', 500, 0, 1, '110045', {T-36}, 'Indian Bank', 1, 0),
    (3, 603, {T-5}, 'C011', 3000, 3000, 0, '', NULL, '', 0, 0),
    (4, 604, {T-2}, 'C014', 2500, 0, 1, '228811', {T+3}, 'Canara Bank', 0, 0),
    (5, 605, {T-1}, 'C014', 1000, 0, 1, '228812', {T}, 'Canara Bank', 0, 0),
    (6, 606, {T-16}, 'C003', 5000, 0, 2, 'DD7781', {T-17}, 'State Bank', 1, 0),
    (7, 607, {T-3}, 'C002', 800, 0, 1, '556001', {T-3}, 'City Union Bank', 0, 1);
)SQL";
}

}  // namespace server::demo_part
