// The party boxes as the routines of the parties reach them: the customer box the
// clerk works in, the lists behind the salesman and beat boxes, a program's write
// into a box, and the all-categories choice.
#pragma once

#include <string>

#include "screen/zuro_frm_dispatch_dispatch.h"

namespace parties {

// txtCustomer when customers are entered by name, else txtCustomerID.
platform::TextBox& CustomerBox(screen::Zuro_frmDispatch_Dispatch& form, host_services::HostGlobal& global);

host_services::AutoList& SalesmanList(screen::Zuro_frmDispatch_Dispatch& form, const host_services::HostServices& host);
host_services::AutoList& BeatList(screen::Zuro_frmDispatch_Dispatch& form, const host_services::HostServices& host);

// Text and key of a box at once; the caller brackets it for the box's list.
void WriteBox(platform::TextBox& box, const std::string& text, const std::string& tag);

// The end of an Enter in the salesman or beat box: the boxes are remembered as they
// now stand; when a load filled a field by itself, focus looks for the first field
// still empty, else it moves on to the next field.
void MoveOnFromParty(screen::Zuro_frmDispatch_Dispatch& form, host_services::HostGlobal& global,
                     platform::Control& nextField);

// True when the text is the all-categories choice, in any case.
bool IsAllCategoriesText(const std::string& text, host_services::HostMessages& messages);

}  // namespace parties
