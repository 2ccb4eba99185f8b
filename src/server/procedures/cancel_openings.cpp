// The day openings after a cancelled or amended note's date. Every opening after the
// note's day was reckoned without the stock the note took: a back-dated save lowered
// the openings that stood, and day close counted the later ones from the batches.
// Once the note is closed and its stock is back in the batches, those openings get
// back what its lines took from each batch: the quantity, the part of it that was
// free stock, and its value at the batch's purchase price. Lines that took no stock
// (Batch_Code 0: the item's category keeps none) give nothing back. The batches
// themselves are set right first, from what they held when the note was closed.
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedures/cancel_procedures.h"
#include "server/procedures/save_checks.h"

namespace server::cancel {

namespace {

constexpr long long kClosed = 128;

constexpr const char* kGiveBack = R"SQL(
UPDATE OpeningDetails
SET Opening_Quantity = Opening_Quantity + taken.Quantity,
    Free_Saleable_Quantity = Free_Saleable_Quantity + taken.FreeQuantity,
    Opening_Value = Opening_Value + taken.Value
FROM (SELECT d.Product_Code AS Product_Code,
             SUM(d.Quantity) AS Quantity,
             SUM(CASE WHEN b.Free = 1 THEN d.Quantity ELSE 0 END) AS FreeQuantity,
             SUM(d.Quantity * b.PurchasePrice) AS Value
      FROM DispatchDetail d JOIN Batch_Products b ON b.Batch_Code = d.Batch_Code
      WHERE d.DispatchID = ?1 AND d.Batch_Code <> 0
      GROUP BY d.Product_Code) AS taken
WHERE OpeningDetails.Product_Code = taken.Product_Code
  AND OpeningDetails.Opening_Date >= date(?2, '+1 day'))SQL";

// Each batch of the note as it stood when the note was closed, plus what the note's
// lines took from it: the stock comes back to the very batches, whatever the screen's
// own statements put where.
constexpr const char* kBatchesBack = R"SQL(
UPDATE Batch_Products
SET Quantity = returned.Quantity + (SELECT SUM(d.Quantity) FROM DispatchDetail d
                                    WHERE d.DispatchID = returned.DispatchID AND d.Batch_Code = returned.Batch_Code)
FROM DispatchStockReturn AS returned
WHERE returned.DispatchID = ?1 AND Batch_Products.Batch_Code = returned.Batch_Code)SQL";

constexpr const char* kForgetReturn = "DELETE FROM DispatchStockReturn WHERE DispatchID = ?1";

}  // namespace

// (DispatchID, the note's day): the openings after that day take back the note's
// stock. Only a closed note's: an open note still holds its stock.
std::vector<platform::ResultSet> AdjustOpeningForCancelDispatch(ProcedureContext& context,
                                                                const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_adjust_opening_for_cancel_dispatch", parameters,
                                  {"@DispatchID", "@DispatchDate"});
    args.ExpectAtMost(2);
    save::RequireSupplied(args, 2);
    const long long dispatchID = save::RequiredInt(args.Int(0), "dispatch");
    const platform::Value dispatchDay = args.DateTime(1);
    if (dispatchDay.IsNull()) save::Refuse("The date of the dispatch is missing.");
    if ((save::RequireDispatch(context, dispatchID) & kClosed) == 0)
        save::Refuse("Dispatch " + std::to_string(dispatchID) + " is open; it still holds its stock.");
    context.Run(kBatchesBack, {dispatchID});
    context.Run(kForgetReturn, {dispatchID});
    context.Run(kGiveBack, {dispatchID, dispatchDay});
    return {ProcedureContext::RowCountMessage(context.RowsChanged())};
}

}  // namespace server::cancel
