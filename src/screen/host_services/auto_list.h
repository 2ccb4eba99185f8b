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
    virtual void SetOwner(AutoListOwner& owner) = 0;
    virtual void AttachControl(platform::TextBox& box) = 0;
    virtual void SetTableName(const std::string& table) = 0;
    virtual void SetKeyField(const std::string& field) = 0;
    virtual void SetDisplayField(const std::string& field) = 0;
    virtual void SetCaption(const std::string& caption) = 0;
    virtual void SetFilter(const std::string& filter) = 0;
    virtual void SetExtraField(const std::string& expression) = 0;
    virtual void SetColumnWidths(const std::string& widths) = 0;
    virtual void SetListMode(int mode) = 0;
    virtual void SetLockedToList(bool locked) = 0;
    virtual void SetAllOption(bool on) = 0;
    virtual void SetAllOptionText(const std::string& text) = 0;
    // An explicit query in place of the table: the typed text, a closing quote and
    // the wildcard are appended to it. Empty returns to the table's query.
    virtual void SetQuery(const std::string& sql, int flagA = 0, int flagB = 1) = 0;
    virtual void ListKeyDown(int& keyCode, int shift, int flag) = 0;
    // True while the program writes into the box: the list must not pop up then.
    // False lets typing show it again.
    virtual void SetEnabled(bool programWriting) = 0;
    virtual void ShowList(const std::string& typedText) = 0;
    virtual void HideList() = 0;
    virtual bool GetVisible() const = 0;
    virtual void SetListTop(double top) = 0;
    virtual void SetListLeft(double left) = 0;
    virtual std::string GetSelectedKey() const = 0;
};

}  // namespace host_services
