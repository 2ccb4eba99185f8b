// The stock a line may be taken from. Only goods that can still leave count: a
// batch with nothing left or past its expiry is never offered, and free stock is
// given away by schemes, never sold, so it is not part of the saleable total.
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedures/stock_procedures.h"

namespace server::stock {

namespace {
// A batch is live while it holds goods and has not expired; a batch without an
// expiry never does.
constexpr const char* kLiveBatch = "b.Quantity > 0 AND (b.Expiry IS NULL OR b.Expiry >= date('now', 'localtime'))";
}  // namespace

// (item, track batches, price option, customer category, virtual batches): one row
// per batch number, free marker and (where the batch sets the price) price, in the
// order stock is offered: earliest expiry first, then the oldest receipt. The price
// is the one of the customer's category (1 PTS, 2 PTR, 3 company price), taken from
// the batch when the price option is 1 and from the item otherwise; free stock
// carries none. An item without batches shows one row for its saleable stock and
// one for its free stock.
std::vector<platform::ResultSet> BookStock(ProcedureContext& context, const platform::ParameterList& parameters) {
    const ProcedureArguments args(
        "sp_get_bookstock", parameters,
        {"@ItemCode", "@TrackBatches", "@PriceOption", "@CustomerCategory", "@VirtualBatches"});
    args.ExpectAtMost(5);
    const std::string sql = std::string(R"SQL(
SELECT CASE WHEN ?2 = 1 THEN b.Batch_Number ELSE '' END AS Batch_Number,
       MIN(b.Expiry) AS Expiry,
       SUM(b.Quantity) AS Quantity,
       CASE WHEN IFNULL(b.Free, 0) = 1 THEN 0
            WHEN ?3 = 1 THEN CASE ?4 WHEN 1 THEN b.PTS WHEN 2 THEN b.PTR WHEN 3 THEN b.Company_Price ELSE 0 END
            ELSE CASE ?4 WHEN 1 THEN i.PTS WHEN 2 THEN i.PTR WHEN 3 THEN i.Company_Price ELSE 0 END
       END AS SalePrice,
       MIN(b.PKD) AS PKD,
       IFNULL(b.Free, 0) AS Free,
       MAX(b.TaxSuffered) AS TaxSuffered,
       MAX(b.ECP) AS ECP,
       MAX(b.PTS) AS PTS,
       MAX(b.PTR) AS PTR,
       MAX(b.Company_Price) AS SpecialPrice,
       MAX(b.ApplicableOn) AS ApplicableOn,
       MAX(b.PartofPercentage) AS PartofPercentage
FROM Batch_Products b
JOIN Items i ON i.Product_Code = b.Product_Code
WHERE b.Product_Code = ?1 AND )SQL") +
                            kLiveBatch + R"SQL(
GROUP BY 1, IFNULL(b.Free, 0), 4
ORDER BY MIN(b.Expiry) IS NULL, MIN(b.Expiry), MIN(b.CreationDate), IFNULL(b.Free, 0), MIN(b.Batch_Code))SQL";
    return {context.Query(sql, {args.Text(0), args.Int(1, 0), args.Int(2, 0), args.Int(3, 0)})};
}

// (item): the saleable stock of the item in base units; 0 when there is none.
std::vector<platform::ResultSet> TotalBookStock(ProcedureContext& context, const platform::ParameterList& parameters) {
    const ProcedureArguments args("spr_get_total_bookstock", parameters, {"@ItemCode"});
    args.ExpectAtMost(1);
    return {context.Query(std::string("SELECT IFNULL(SUM(b.Quantity), 0) AS TotalStock FROM Batch_Products b "
                                      "WHERE b.Product_Code = ? AND IFNULL(b.Free, 0) = 0 AND ") +
                              kLiveBatch,
                          {args.Text(0)})};
}

}  // namespace server::stock
