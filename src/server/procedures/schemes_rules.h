// What the scheme procedures share: which schemes stand for a customer on a day,
// the creation day a note is judged by, and how a measured figure reaches a slab.
#pragma once

#include <cstddef>
#include <string>

#include "platform/value.h"

namespace server {
class ProcedureArguments;
}

namespace server::schemes {

// A condition over Schemes (as s): switched on, valid on the day, open to the
// customer, and made on or before the creation day when there is one. The
// arguments name the statement's parameters ("?1") holding the day, the customer
// and the creation day (Null for no limit).
std::string SchemeStandsFor(const std::string& day, const std::string& customer, const std::string& madeBy);

// A condition over Schemes (as s) alone: open to the customer named by the parameter.
std::string SchemeOpenTo(const std::string& customer);

// A condition over a row holding SlabStart, SlabEnd and HasSlabs that the figure
// reaches that slab: from its start up to its end, or from its start on when the
// scheme's slabs repeat (HasSlabs 0). Figures within a billionth of an edge stand on it, so that totals
// summed from fractions of units are not lost to rounding.
std::string FigureReachesSlab(const std::string& figure);

// The creation day a note is judged by, 'YYYY-MM-DD', from the text the screen
// sends: empty for no limit (Null); a date written as the database or the screen
// writes it; or a day number, as the screen holds one when the old note was not
// found. Any other text is refused as the server refused it.
platform::Value CreationDayLimit(const ProcedureArguments& args, std::size_t index);

// The customer code as sent, without the blanks around it; it must be sent.
std::string CustomerCode(const ProcedureArguments& args, std::size_t index);

}  // namespace server::schemes
