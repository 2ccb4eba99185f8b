// A customer without a TIN number is worth a warning when a note is keyed or
// amended; it stops nothing.
#include "platform/convert.h"
#include "screen/zuro_frm_dispatch_dispatch.h"

namespace screen {

void Zuro_frmDispatch_Dispatch::CheckTinNumber() {
    Handled("CheckTinNumber", [&] {
        auto& global = host_.global;
        if (!global.GetTinCheckEnabled()) return;
        if (nMode != mode::NewDispatch && nMode != mode::Amendment) return;
        const std::string szCustomer = platform::Trim(txtCustomer.Tag);
        if (szCustomer.empty()) return;
        const platform::Value vTin = global.LookupValue(
            global.GetConnection(), "select tin_number from customer where customerid = N'" + txtCustomer.Tag + "'");
        if (platform::Trim(platform::ToText(vTin)).empty())
            host_.messages.AskMessage("TIN number does not exist for this customer",
                                      host_services::msgbox::Information);
    });
}

}  // namespace screen
