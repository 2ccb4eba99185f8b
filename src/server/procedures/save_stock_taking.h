// Taking a dispatch line's quantity out of the batches. The batches are chosen as
// the screen offered them, the quantity is taken whole or not at all, and no batch
// ever goes below 0.
#pragma once

#include <string>
#include <vector>

#include "platform/value.h"

namespace server {
class ProcedureContext;
}

namespace server::save {

struct StockRequest {
    std::string item;
    std::string batchNumber;        // '' any batch of the item
    double quantity = 0;            // base units
    platform::Value dispatchDay;    // a batch must not have expired by then
    bool mayTakeFreeStock = false;  // the goods are given away
    bool showedFreeStock = false;   // the line stood on a free batch
    long long priceCategory = 0;    // 1 PTS, 2 PTR, 3 company price; 0 no price to match
    double shownPrice = 0;          // per base unit, the price the batch was shown at
};

struct BatchTake {
    long long batchCode = 0;
    std::string batchNumber;
    double quantity = 0;
    bool free = false;
    double purchasePrice = 0;
};

// True when the item keeps stock: both the screen's flag and the item's category say so.
bool TracksInventory(ProcedureContext& context, const std::string& item, long long sentFlag);

// The batches the quantity comes from, in the order they are drawn, each with its
// part; empty when together they hold less than the quantity.
std::vector<BatchTake> PlanTakes(ProcedureContext& context, const StockRequest& request);

// Takes the parts out of their batches. False when a batch no longer holds its part
// (another clerk took it first); what was taken before then stays for the caller to
// roll back.
bool ApplyTakes(ProcedureContext& context, const std::vector<BatchTake>& takes);

// A note dated back lowers the openings of the days after its date by what it took,
// as the day close would have counted it; an opening never goes below 0.
void LowerLaterOpenings(ProcedureContext& context, const std::string& item, const platform::Value& dispatchDay,
                        const std::vector<BatchTake>& takes);

}  // namespace server::save
