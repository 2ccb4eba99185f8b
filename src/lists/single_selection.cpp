// The stored notes' list takes one note at a time: ticking a note ticks its
// customer's header with it, ticking a header ticks the note under it, and either
// unticks the pair ticked before. The list's Tag remembers that pair as
// "header|note".
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::HandleSingleSelection(platform::ListView& lstView, int Item) {
    Handled("HandleSingleSelection", [&] {
        if (!lstView.Tag.empty()) {
            for (const std::string& index : platform::Split(lstView.Tag, "|"))
                lstView.Item(static_cast<int>(platform::Val(index))).Checked = false;
            lstView.Tag.clear();
        }
        platform::ListItem& item = lstView.Item(Item);
        if (!item.Checked) return;
        if (item.Tag == host_.messages.GetHeaderRowMarker()) {
            // The note under the header is the one that goes on.
            platform::ListItem& note = lstView.Item(Item + 1);
            note.Checked = true;
            lstView.Tag = std::to_string(Item) + "|" + std::to_string(Item + 1);
            szCustomerName = item.Text;
            szDocNumbers = note.SubItem(6);
            szDocIDs = note.SubItem(1);
        } else {
            const int nHeader = static_cast<int>(platform::Val(item.Tag));
            platform::ListItem& header = lstView.Item(nHeader);
            header.Checked = true;
            lstView.Tag = std::to_string(nHeader) + "|" + std::to_string(Item);
            szCustomerName = header.Text;
            szDocIDs = item.SubItem(1);
            szDocNumbers = item.SubItem(6);
        }
        szDocStatusText = item.SubItem(3);
    });
}

}  // namespace screen
