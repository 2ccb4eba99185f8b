// What DTFlexDispatch_AfterColUpdate does with one ended edit: the item typed in
// column 1 or 2, the unit of column 4, the quantity of column 6, and the tail every
// edit ends with. A part that answers false has refused (or ended) the edit, and the
// handler stops there.
#pragma once

#include "screen/zuro_frm_dispatch_dispatch.h"

namespace grid {

class ItemEntryEdit {
public:
    ItemEntryEdit(screen::Zuro_frmDispatch_Dispatch& form, host_services::HostServices& host, int nRow, bool& bCancel)
        : form_(form), host_(host), grid_(form.DTFlexDispatch), nRow_(nRow), bCancel_(bCancel) {}

    bool ItemEntered(int nCol);
    void UnitChosen();
    bool QuantityEntered();
    void CommonTail(int nCol);

private:
    // The item belongs to the note's group (or to the salesman's categories); false
    // after message 13.
    bool ItemInDispatchGroup(const std::string& szCode);
    // The quantity's syntax, and its size in base units.
    bool QuantitySyntaxAccepted(double& dBaseQty);
    // A primary's free rows go when its quantity changes.
    void DropFreeRowsOfPrimary();
    // The checks of a quantity: an item on the row, its syntax, and the stock;
    // false when the handler ends.
    bool QuantityChecksPassed();
    bool QuantityWithinStock(const std::string& szCode, const std::string& szQuantity);
    double SelectedEntryQuantity() const;  // sub-item 3 of the stock list's selection
    void Refuse(const std::string& text);

    screen::Zuro_frmDispatch_Dispatch& form_;
    host_services::HostServices& host_;
    platform::DTFlex& grid_;
    int nRow_;
    bool& bCancel_;
};

}  // namespace grid
