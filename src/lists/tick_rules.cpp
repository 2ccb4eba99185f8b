// What may be ticked together on the list of pending documents: a customer's header
// and one of its documents, nothing of another customer. A row's group is the rows
// that carry its customer's key in their Tag; its first row is the header.
#include "platform/key_codes.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

namespace keys = platform::keys;

void Zuro_frmDispatch_Dispatch::SelectConfirmation(platform::ListView& lstView, int Item, bool bSingle,
                                                   bool bKeepOthers) {
    Handled("SelectConfirmation", [&] {
        const platform::ListItem& changed = lstView.Item(Item);
        const std::string szGroup = changed.Tag;
        const bool bHeader = !changed.Text.empty();
        const int nCount = lstView.Count();

        if (bHeader && !changed.Checked) {
            for (int i = Item; i <= nCount; ++i)
                if (lstView.Item(i).Tag == szGroup) lstView.Item(i).Checked = false;
            return;
        }
        if (bHeader) {
            int nMet = 0;
            for (int i = 1; i <= nCount; ++i) {
                platform::ListItem& row = lstView.Item(i);
                if (row.Tag != szGroup) {
                    if (!bKeepOthers) row.Checked = false;
                    continue;
                }
                ++nMet;
                row.Checked = nMet <= 2 || !bSingle;
            }
            return;
        }
        if (changed.Checked) {
            bool bHeaderMet = false;
            for (int i = 1; i <= nCount; ++i) {
                platform::ListItem& row = lstView.Item(i);
                if (row.Tag != szGroup) {
                    if (!bKeepOthers) row.Checked = false;
                } else if (!bHeaderMet || i == Item) {
                    row.Checked = true;
                    bHeaderMet = true;
                } else if (bSingle) {
                    row.Checked = false;
                }
            }
            return;
        }
        // A document was unticked: the header goes with the group's last tick.
        int nHeader = 0;
        bool bOthersTicked = false;
        for (int i = 1; i <= nCount; ++i) {
            const platform::ListItem& row = lstView.Item(i);
            if (row.Tag != szGroup) continue;
            if (nHeader == 0)
                nHeader = i;
            else
                bOthersTicked = bOthersTicked || row.Checked;
        }
        if (nHeader != 0 && !bOthersTicked) lstView.Item(nHeader).Checked = false;
    });
}

void Zuro_frmDispatch_Dispatch::lstSO_ItemCheck(int Item) {
    Handled("lstSO_ItemCheck", [&] {
        if (lstSO.Item(Item).Checked) lstSO.Select(Item);
        if (nMode == mode::View || nMode == mode::Cancel || nMode == mode::Amendment) {
            HandleSingleSelection(lstSO, Item);
            return;
        }
        SelectConfirmation(lstSO, Item, true, false);
        GetDetails();
    });
}

void Zuro_frmDispatch_Dispatch::lstSO_KeyDown(int& KeyCode, int Shift) {
    Handled("lstSO_KeyDown", [&] {
        if (KeyCode != keys::Enter) return;
        if (Shift == keys::ShiftMask)
            dtToDate.SetFocus();
        else if (Shift == host_.global.GetShiftMask())
            cmdContinue.SetFocus();
    });
}

}  // namespace screen
