// A table of other-group free items written as one word, for a host that calls the
// form's routines by name: entries joined with ";", an entry's twelve fields with
// "|", numbers written as the runtime writes them.
#pragma once

#include <string>

#include "platform/variant_table.h"

namespace schemes {

// The table as ClubOCGFreeItems gives it (the field first), every slot; "" when
// there is no table.
std::string OCGTableText(const platform::VariantTable& vItems);
// The table as the dialog gives it (the entry first), with the dialog's spare slot
// after the last entry; "" gives the spare slot alone. An entry without its twelve
// fields is refused with screen::RoutineRefused.
platform::VariantTable OCGTableFromText(const std::string& szItems);

}  // namespace schemes
