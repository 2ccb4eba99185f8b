// What a confirmation line finds in stock now: the batch it will be taken from, how
// much of it is left, and the price. Only saleable stock counts: free stock is for
// schemes, and a batch that is empty or past its expiry is never offered.
#include "platform/convert.h"
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedures/loading_procedures.h"

namespace server::loading {

namespace {

struct Candidate {
    std::string batch;
    double quantity = 0;
    double price = 0;  // the customer's category price of the batch
};

// The live saleable rows of the item, in the order stock is offered: earliest
// expiry first, then the oldest receipt. A tracked item asked for a batch number
// keeps only that number.
std::vector<Candidate> Candidates(ProcedureContext& context, const platform::Value& item, const std::string& batch,
                                  bool tracked, long long category) {
    const platform::ResultSet rows =
        context.Query(R"SQL(
SELECT b.Batch_Number, b.Quantity,
       CASE ?3 WHEN 1 THEN b.PTS WHEN 2 THEN b.PTR WHEN 3 THEN b.Company_Price ELSE 0 END
FROM Batch_Products b
WHERE b.Product_Code = ?1 AND IFNULL(b.Free, 0) = 0 AND b.Quantity > 0
  AND (b.Expiry IS NULL OR b.Expiry >= date('now', 'localtime'))
  AND (?2 = '' OR b.Batch_Number = ?2)
ORDER BY b.Expiry IS NULL, b.Expiry, b.CreationDate, b.Batch_Code)SQL",
                      {item, platform::Value(tracked ? batch : std::string()), platform::Value(category)});
    std::vector<Candidate> found;
    for (const auto& row : rows.rows)
        found.push_back({platform::ToText(row[0]), platform::ToNumber(row[1]), platform::ToNumber(row[2])});
    return found;
}

// The item's list price and the rate of its sales unit; no row for an unknown item.
platform::ResultSet ItemPricing(ProcedureContext& context, const platform::Value& item) {
    return context.Query(R"SQL(
SELECT Sale_Price, CASE WHEN UOM = UOM1 THEN UOM1_Conversion WHEN UOM = UOM2 THEN UOM2_Conversion ELSE 1 END
FROM Items WHERE Product_Code = ?)SQL",
                         {item});
}

platform::ResultSet StockRow(double available, const std::string& batch, double price, const platform::Value& asked,
                             double rate) {
    platform::ResultSet result;
    result.columns = {"Quantity", "Batch_Number", "OriginalPrice", "AskedQuantity", "UOMPrice"};
    result.rows.push_back({platform::Value(available), platform::Value(batch), platform::Value(price), asked,
                           platform::Value(price * rate)});
    return result;
}

// An unknown item: the columns and no row.
platform::ResultSet NoStockRow(const platform::Value& asked) {
    platform::ResultSet result = StockRow(0, "", 0, asked, 1);
    result.rows.clear();
    return result;
}

}  // namespace

// (item, batch number, quantity asked, track batches): one row for a known item. A
// tracked item stands on the batch number named, or on the first one offered when
// none is; the quantity is what that number holds (0 when stock no longer holds
// it). The price is the item's own list price, and the unit price is for the item's
// sales unit: the procedure is told neither customer nor unit.
Answers LineStock(ProcedureContext& context, const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_get_stock", parameters,
                                  {"@ItemCode", "@BatchNumber", "@Quantity", "@TrackBatches"});
    args.ExpectAtMost(4);
    const platform::Value item = platform::Trim(args.TextOr(0, ""));
    const std::string asked = platform::Trim(args.TextOr(1, ""));
    const platform::Value quantity = args.Int(2);
    const bool tracked = args.IntOr(3, 0) == 1;
    const platform::ResultSet pricing = ItemPricing(context, item);
    if (pricing.rows.empty()) return {NoStockRow(quantity)};

    const std::vector<Candidate> stock = Candidates(context, item, asked, tracked, 0);
    std::string batch = tracked ? asked : std::string();
    if (tracked && batch.empty() && !stock.empty()) batch = stock.front().batch;
    double available = 0;
    for (const Candidate& row : stock)
        if (!tracked || row.batch == batch) available += row.quantity;
    return {StockRow(available, batch, platform::ToNumber(pricing.rows[0][0]), quantity,
                     platform::ToNumber(pricing.rows[0][1]))};
}

// (item, batch number, price, quantity asked, track batches, customer category):
// the same for an item priced by its batches. The batch row at the price asked is
// taken first, else the first one offered; the quantity is what that number holds
// at that price. With nothing in stock the price asked stands.
Answers LineStockByPrice(ProcedureContext& context, const platform::ParameterList& parameters) {
    const ProcedureArguments args(
        "sp_get_stock_csp", parameters,
        {"@ItemCode", "@BatchNumber", "@Price", "@Quantity", "@TrackBatches", "@CustomerCategory"});
    args.ExpectAtMost(6);
    const platform::Value item = platform::Trim(args.TextOr(0, ""));
    const std::string asked = platform::Trim(args.TextOr(1, ""));
    const double price = static_cast<double>(args.IntOr(2, 0));
    const platform::Value quantity = args.Int(3);
    const bool tracked = args.IntOr(4, 0) == 1;
    const long long category = args.IntOr(5, 0);
    const platform::ResultSet pricing = ItemPricing(context, item);
    if (pricing.rows.empty()) return {NoStockRow(quantity)};
    const double rate = platform::ToNumber(pricing.rows[0][1]);

    const std::vector<Candidate> stock = Candidates(context, item, asked, tracked, category);
    if (stock.empty()) return {StockRow(0, tracked ? asked : std::string(), price, quantity, rate)};
    const Candidate* chosen = &stock.front();
    for (const Candidate& row : stock)
        if (row.price == price) {
            chosen = &row;
            break;
        }
    double available = 0;
    for (const Candidate& row : stock)
        if ((!tracked || row.batch == chosen->batch) && row.price == chosen->price) available += row.quantity;
    return {StockRow(available, tracked ? chosen->batch : std::string(), chosen->price, quantity, rate)};
}

}  // namespace server::loading
