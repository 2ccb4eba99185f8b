#include "server/procedures/save_stock_taking.h"

#include <algorithm>

#include "platform/convert.h"
#include "server/procedure_context.h"

namespace server::save {

namespace {

// Quantities are REAL; a shortfall smaller than this is rounding, not a shortage.
constexpr double kQuantitySlack = 1e-9;

// The order of sp_get_bookstock within what the line may take: first the kind of
// stock the line stood on (free or saleable), then, where the price came from the
// batch, the batches at the price the screen showed (prices within half a paisa are
// one price on the screen), then earliest expiry, oldest receipt, oldest row.
constexpr const char* kCandidates = R"SQL(
SELECT b.Batch_Code, b.Batch_Number, b.Quantity, b.Free, b.PurchasePrice
FROM Batch_Products b
WHERE b.Product_Code = ?1
  AND (?2 = '' OR b.Batch_Number = ?2)
  AND b.Quantity > 0
  AND (b.Expiry IS NULL OR b.Expiry >= date(?3))
  AND (b.Free = 0 OR ?4 = 1)
ORDER BY b.Free = ?5 DESC,
         CASE WHEN ?6 BETWEEN 1 AND 3
               AND ABS(CASE ?6 WHEN 1 THEN b.PTS WHEN 2 THEN b.PTR ELSE b.Company_Price END - ?7) < 0.005
              THEN 0 ELSE 1 END,
         b.Expiry IS NULL, b.Expiry, b.CreationDate, b.Batch_Code)SQL";

}  // namespace

bool TracksInventory(ProcedureContext& context, const std::string& item, long long sentFlag) {
    if (sentFlag == 0) return false;
    const platform::Value category = context.Scalar(
        "SELECT c.Track_Inventory FROM Items i JOIN ItemCategories c ON c.CategoryID = i.CategoryID WHERE "
        "i.Product_Code = ?",
        {item});
    return !category.IsNull() && platform::ToNumber(category) != 0;
}

std::vector<BatchTake> PlanTakes(ProcedureContext& context, const StockRequest& request) {
    const platform::ResultSet batches = context.Query(
        kCandidates, {request.item, request.batchNumber, request.dispatchDay, request.mayTakeFreeStock ? 1 : 0,
                      request.showedFreeStock ? 1 : 0, request.priceCategory, request.shownPrice});
    std::vector<BatchTake> takes;
    double left = request.quantity;
    for (const auto& row : batches.rows) {
        if (left <= kQuantitySlack) break;
        BatchTake take;
        take.batchCode = row[0].AsInteger();
        take.batchNumber = platform::ToText(row[1]);
        take.quantity = std::min(platform::ToNumber(row[2]), left);
        take.free = platform::ToNumber(row[3]) != 0;
        take.purchasePrice = platform::ToNumber(row[4]);
        left -= take.quantity;
        takes.push_back(std::move(take));
    }
    if (left > kQuantitySlack * std::max(1.0, request.quantity)) return {};
    return takes;
}

bool ApplyTakes(ProcedureContext& context, const std::vector<BatchTake>& takes) {
    for (const auto& take : takes) {
        // The guard keeps a batch from going below 0 even if the stock moved since
        // it was read (a caller that holds no transaction).
        if (context.Run("UPDATE Batch_Products SET Quantity = Quantity - ?1 WHERE Batch_Code = ?2 AND Quantity >= ?1",
                        {take.quantity, take.batchCode}) != 1)
            return false;
    }
    return true;
}

void LowerLaterOpenings(ProcedureContext& context, const std::string& item, const platform::Value& dispatchDay,
                        const std::vector<BatchTake>& takes) {
    double quantity = 0, free = 0, value = 0;
    for (const auto& take : takes) {
        quantity += take.quantity;
        if (take.free) free += take.quantity;
        value += take.quantity * take.purchasePrice;
    }
    context.Run(R"SQL(
UPDATE OpeningDetails
SET Opening_Quantity = MAX(0, Opening_Quantity - ?1),
    Free_Saleable_Quantity = MAX(0, Free_Saleable_Quantity - ?2),
    Opening_Value = MAX(0, Opening_Value - ?3)
WHERE Product_Code = ?4 AND Opening_Date >= date(?5, '+1 day'))SQL",
                {quantity, free, value, item, dispatchDay});
}

}  // namespace server::save
