// The category group box: Enter takes the group shown, or the all-categories
// choice typed in any case, guarded against a grid whose items belong elsewhere.
#include "parties/party_boxes.h"
#include "platform/convert.h"
#include "platform/key_codes.h"

namespace screen {

namespace keys = platform::keys;

void Zuro_frmDispatch_Dispatch::txtCategory_KeyDown(int& KeyCode, int Shift) {
    Handled("txtCategory_KeyDown", [&] {
        auto& global = host_.global;
        if (KeyCode == keys::Enter && Shift == global.GetShiftMask()) {
            bAllCategories = false;
            if (platform::Trim(txtCategory.Text()).empty()) {
                global.ShowNumberedMessage(8, 1, {});
                return;
            }
            const bool bAllChosen = parties::IsAllCategoriesText(txtCategory.Text(), host_.messages);
            if (txtCategory.Tag.empty()) {
                if (!bAllChosen) {
                    global.ShowNumberedMessage(8, 1, {});
                    return;
                }
                txtCategory.Tag = "0";
            }
            global.ShowStatus(global.GetReadyMessage(), 0);
            if (bAllChosen) txtCategory.Tag = "0";
            CheckForGroupChange(txtCategory.Tag, 4);
            LoadPreviousValues();
            txtref.SetFocus();
        } else if (KeyCode == keys::Enter && Shift == keys::ShiftMask) {
            parties::CustomerBox(*this, global).SetFocus();
        }
    });
}

void Zuro_frmDispatch_Dispatch::txtCategory_LostFocus() {
    Handled("txtCategory_LostFocus", [&] {
        if (!platform::Trim(txtCategory.Text()).empty() && txtCategory.Tag.empty())
            host_.global.ShowNumberedMessage(8, 1, {});
    });
}

}  // namespace screen
