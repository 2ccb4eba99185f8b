// One line of a dispatch as the save sends it to a detail procedure. The two
// procedures take the same values; the customer-price one has the customer's
// category after the track-inventory flag. Each has a short list (other-category-
// group items on) and a long one that adds the scheme texts and sends the scheme
// lists a second time.
#pragma once

#include <string>
#include <vector>

#include "platform/value.h"

namespace server {
class ProcedureArguments;
}

namespace server::save {

struct DetailLine {
    long long dispatchID = 0;
    std::string item;
    std::string batchNumber;   // '' lets the server choose the batches
    double originalPrice = 0;  // per base unit
    double baseQuantity = 0;
    long long batchTrack = 0;
    long long trackInventory = 0;  // as the screen knows the item
    bool customerPrice = false;    // the price came from the batch, by the customer's category
    long long customerCategory = 0;
    long long freeItem = 0;       // a line a scheme gave free
    long long freeRow = 0;        // the line's goods are free stock
    platform::Value dispatchDay;  // 'YYYY-MM-DD HH:MM:SS'
    long long datedPosting = 0;
    long long unit = 0;
    double unitQuantity = 0;
    double unitPrice = 0;
    long long serial = 0;  // the grid row the line stands on
    long long otherGroupItem = 0;
    long long schemeID = 0;
    std::string freeSerial;
    std::string schemeIDs;
    std::string splCatSchemeIDs;
    long long splCatScheme = 0;
    std::string splCatSerial;
    std::string multipleSchemeIDs;
    std::string multipleSchemeDetails;
    std::string multipleSplCatSchemeIDs;
    std::string multipleSplCatSchemeDetails;

    // Goods given away carry no price: a scheme's free line, a line on free stock,
    // or a free item of another category group.
    bool GivenAway() const { return freeItem == 1 || freeRow == 1 || otherGroupItem == 1; }
};

// The parameter names of a procedure's list, for the server's messages.
const std::vector<std::string>& DetailParameterNames(bool customerPrice);

// Reads the call, short or long list; refuses a call without the short list's values.
DetailLine ReadDetailLine(const ProcedureArguments& args, bool customerPrice);

}  // namespace server::save
