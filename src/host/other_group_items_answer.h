// The user's answer to the dialog of free items of other category groups, as a
// session queues it:
//   answer ShowDocumentInfoDialog [drop SERIAL|all]... [add|add-free ITEM BATCH QUANTITY]... ok|cancel
// The standing entries stay unless dropped (by their row's serial, or all of them);
// add takes saleable stock of the batch, add-free its free stock; the quantity is in
// the item's sales unit. A lone cancel, or any answer ending in cancel, changes nothing.
#pragma once

#include <string>
#include <vector>

namespace host {

struct OtherGroupItemsAnswer {
    struct Added {
        std::string itemCode;
        std::string batch;
        double quantity = 0;
        bool freeStock = false;
    };
    bool accepted = false;
    bool dropAll = false;
    std::vector<long> droppedSerials;
    std::vector<Added> added;
};

// The answer the words give; problem names the first fault, and is empty when
// there is none.
OtherGroupItemsAnswer ReadOtherGroupItemsAnswer(const std::vector<std::string>& words, std::string& problem);

}  // namespace host
