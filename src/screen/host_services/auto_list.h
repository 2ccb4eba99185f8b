// The host's type-ahead list: follows one text box, runs its query with the typed
// text, and puts the chosen row's text and key into the box.
#pragma once

#include <string>

#include "platform/controls.h"
#include "screen/host_services/hosted_form.h"

namespace host_services {

class AutoList {
public:
    virtual ~AutoList() = default;
    // The form that receives the list's call-backs.
    virtual void SetOwner(AutoListOwner& owner) = 0;
    // The text box the list follows and writes its choice into.
    virtual void AttachControl(platform::TextBox& box) = 0;
    // The table of the list's own query.
    virtual void SetTableName(const std::string& table) = 0;
    // The field whose value of the chosen row goes into the box's tag.
    virtual void SetKeyField(const std::string& field) = 0;
    // The field the list shows and matches the typed text against.
    virtual void SetDisplayField(const std::string& field) = 0;
    // The heading of the list's name column.
    virtual void SetCaption(const std::string& caption) = 0;
    // Further WHERE text of the list's own query.
    virtual void SetFilter(const std::string& filter) = 0;
    // A further selected expression, shown as a second column.
    virtual void SetExtraField(const std::string& expression) = 0;
    // The widths of the extra columns, as "column:width".
    virtual void SetColumnWidths(const std::string& widths) = 0;
    // 1 shows the extra field as a second column.
    virtual void SetListMode(int mode) = 0;
    // True when only entries of the list may be chosen.
    virtual void SetLockedToList(bool locked) = 0;
    // An extra first row standing for all entries.
    virtual void SetAllOption(bool on) = 0;
    // The text of that extra first row.
    virtual void SetAllOptionText(const std::string& text) = 0;
    // An explicit query in place of the table: the typed text, a closing quote and
    // the wildcard are appended to it. Empty returns to the table's query. The two
    // option words are the host's; the form leaves them at 0 and 1.
    virtual void SetQuery(const std::string& sql, int hostOptionA = 0, int hostOptionB = 1) = 0;
    // Passes a key to the open list: arrows move the selection, Enter picks, Escape
    // closes. With swallowArrows 1 the arrows come back as 0 and the box never sees
    // them.
    virtual void ListKeyDown(int& keyCode, int shift, int swallowArrows) = 0;
    // True while the program writes into the box: the list must not pop up then.
    // False lets typing show it again.
    virtual void SetEnabled(bool programWriting) = 0;
    // Runs the list's query with the typed text and shows its rows.
    virtual void ShowList(const std::string& typedText) = 0;
    // Closes the list.
    virtual void HideList() = 0;
    // True while the list shows.
    virtual bool GetVisible() const = 0;
    // Places the list's top edge.
    virtual void SetListTop(double top) = 0;
    // Places the list's left edge.
    virtual void SetListLeft(double left) = 0;
    // The key of the row last chosen.
    virtual std::string GetSelectedKey() const = 0;
};

}  // namespace host_services
