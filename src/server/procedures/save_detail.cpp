// The lines of a dispatch note. Storing a line takes its quantity out of stock: all
// of it or, when the batches hold too little, none of it, and then nothing of the
// line is stored either and the answer is 0. A line drawn from several batches is
// stored as one row a batch, all with the line's serial and unit, the unit quantity
// shared out in proportion, so that the rows of a serial add up to the line.
#include <cmath>

#include "platform/convert.h"
#include "server/procedure_arguments.h"
#include "server/procedure_context.h"
#include "server/procedure_savepoint.h"
#include "server/procedures/save_checks.h"
#include "server/procedures/save_detail_line.h"
#include "server/procedures/save_procedures.h"
#include "server/procedures/save_stock_taking.h"

namespace server::save {

namespace {

constexpr long long kClosed = 128;

platform::ResultSet Answer(bool stored) {
    platform::ResultSet result;
    result.columns = {"Stored"};
    result.rows.push_back({platform::Value(static_cast<long long>(stored ? 1 : 0))});
    return result;
}

void CheckLine(ProcedureContext& context, const DetailLine& line) {
    if ((RequireDispatch(context, line.dispatchID) & kClosed) != 0)
        Refuse("Dispatch " + std::to_string(line.dispatchID) + " is closed; no line can be added to it.");
    RequireItem(context, line.item);
    RequireUnit(context, line.unit);
    if (!std::isfinite(line.baseQuantity) || line.baseQuantity <= 0)
        Refuse("The quantity of item '" + line.item + "' must be above 0.");
    if (!(line.unitQuantity >= 0) || !(line.unitPrice >= 0) || !(line.originalPrice >= 0))
        Refuse("The quantity and prices of item '" + line.item + "' cannot be negative.");
    if (line.customerCategory < 0 || line.customerCategory > 5)
        Refuse("Customer category " + std::to_string(line.customerCategory) + " does not exist.");
}

// One stored row of the line: the batch it came from (0 when it took no stock) and
// its share of the line.
struct StoredPart {
    long long batchCode = 0;
    std::string batchNumber;
    double quantity = 0;
    double unitQuantity = 0;
};

void InsertRow(ProcedureContext& context, const DetailLine& line, const StoredPart& part, bool tracked) {
    const bool givenAway = line.GivenAway();
    context.Run(R"SQL(
INSERT INTO DispatchDetail (DispatchID, Serial, Product_Code, Batch_Code, Batch_Number, SalePrice, Quantity,
                            UOM, UOMQty, UOMPrice, Track_Batches, Track_Inventory, Price_Option, FreeItem, Free,
                            OtherCG_Item, SchemeID, FreeSerial, CSchemeID, SPLCATSCHEMEID, SpecialCategoryScheme,
                            SPLCATSERIAL, MultipleSchemeID, MultipleSchemeDetails, MultipleSplCategorySchemeID,
                            MultipleSplCategorySchDetail, CustomerCategory, DatedPosting)
VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?, ?))SQL",
                {line.dispatchID,
                 line.serial,
                 line.item,
                 part.batchCode,
                 part.batchNumber,
                 givenAway ? 0.0 : line.originalPrice,
                 part.quantity,
                 line.unit,
                 part.unitQuantity,
                 givenAway ? 0.0 : line.unitPrice,
                 line.batchTrack,
                 tracked ? 1 : 0,
                 line.customerPrice ? 1 : 0,
                 line.freeItem,
                 line.freeRow,
                 line.otherGroupItem,
                 line.schemeID,
                 line.freeSerial,
                 line.schemeIDs,
                 line.splCatSchemeIDs,
                 line.splCatScheme,
                 line.splCatSerial,
                 line.multipleSchemeIDs,
                 line.multipleSchemeDetails,
                 line.multipleSplCatSchemeIDs,
                 line.multipleSplCatSchemeDetails,
                 line.customerCategory,
                 line.datedPosting});
}

// The unit quantity shared by the batches' parts; the last part takes what is left,
// so that the parts add up to the line exactly.
std::vector<StoredPart> ShareOut(const DetailLine& line, const std::vector<BatchTake>& takes) {
    std::vector<StoredPart> parts;
    double unitsLeft = line.unitQuantity;
    for (std::size_t i = 0; i < takes.size(); ++i) {
        StoredPart part{takes[i].batchCode, takes[i].batchNumber, takes[i].quantity, unitsLeft};
        if (i + 1 < takes.size()) {
            part.unitQuantity = line.unitQuantity * takes[i].quantity / line.baseQuantity;
            unitsLeft -= part.unitQuantity;
        }
        parts.push_back(std::move(part));
    }
    return parts;
}

bool DatedBack(ProcedureContext& context, const DetailLine& line) {
    return line.datedPosting == 1 &&
           platform::ToNumber(context.Scalar("SELECT date(?) < date('now', 'localtime')", {line.dispatchDay})) != 0;
}

std::vector<platform::ResultSet> StoreLine(ProcedureContext& context, const ProcedureArguments& args,
                                           bool customerPrice) {
    DetailLine line = ReadDetailLine(args, customerPrice);
    line.item = platform::Trim(line.item);
    line.batchNumber = platform::Trim(line.batchNumber);
    CheckLine(context, line);

    ProcedureSavepoint savepoint(context, "save_dispatch_detail");
    if (!TracksInventory(context, line.item, line.trackInventory)) {
        InsertRow(context, line, {0, line.batchNumber, line.baseQuantity, line.unitQuantity}, false);
    } else {
        StockRequest request;
        request.item = line.item;
        request.batchNumber = line.batchNumber;
        request.quantity = line.baseQuantity;
        request.dispatchDay = line.dispatchDay;
        request.mayTakeFreeStock = line.freeItem == 1 || line.freeRow == 1;
        request.showedFreeStock = line.freeRow == 1;
        request.priceCategory = customerPrice ? line.customerCategory : 0;
        request.shownPrice = line.originalPrice;
        const std::vector<BatchTake> takes = PlanTakes(context, request);
        // Refused: the savepoint takes back whatever part was taken.
        if (takes.empty() || !ApplyTakes(context, takes)) return {Answer(false)};
        if (DatedBack(context, line)) LowerLaterOpenings(context, line.item, line.dispatchDay, takes);
        for (const StoredPart& part : ShareOut(line, takes)) InsertRow(context, line, part, true);
    }
    savepoint.Keep();
    return context.WithRowCount(Answer(true));
}

}  // namespace

// (DispatchID, item, batch number, original price, base quantity, batch track, track
// inventory, free item, free row, dispatch day, dated posting, unit, unit quantity,
// unit price, serial, other-category-group item, scheme id, free serials [, scheme
// ids, special category scheme ids, special category flag, special category serials,
// scheme ids again, scheme details, special category scheme ids again, special
// category scheme details]): one row, 1 stored, 0 not enough stock.
std::vector<platform::ResultSet> SaveDetailAtItemPrice(ProcedureContext& context,
                                                       const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_Save_dispatchdetail_UOM_QAX", parameters, DetailParameterNames(false));
    return StoreLine(context, args, false);
}

// The same with the customer's category after the track-inventory flag: the price
// came from the batch, so the batches at the price the screen showed go first.
std::vector<platform::ResultSet> SaveDetailAtCustomerPrice(ProcedureContext& context,
                                                           const platform::ParameterList& parameters) {
    const ProcedureArguments args("sp_Save_dispatchDetail_csp_UOM_QAX", parameters, DetailParameterNames(true));
    return StoreLine(context, args, true);
}

}  // namespace server::save
