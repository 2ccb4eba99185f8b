// What the dialog of other-group free items offers for an item and batch the user
// names: an active item outside the note's groups, in its sales unit, and a live
// stock row of the batch (free or saleable, as asked). An item whose category keeps
// no stock needs no stock row.
#pragma once

#include <string>
#include <vector>

#include "host/other_group_items_answer.h"
#include "platform/database.h"

namespace host {

struct OfferedFreeItem {
    std::vector<platform::Value> fields;  // the entry's twelve fields, serial 0; empty when refused
    std::string refusal;                  // why the dialog does not offer it
};

// groups is the note's group or a comma list of groups; a text that names none
// (empty, -1, %) lets items of every group through.
OfferedFreeItem OfferFreeItem(platform::Connection& connection, const OtherGroupItemsAnswer::Added& wanted,
                              const std::string& groups);

}  // namespace host
