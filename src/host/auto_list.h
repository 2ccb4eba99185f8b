// The host's type-ahead list. It follows one text box at a time; ShowList runs its
// query with what was typed and opens on the rows found, the user walks them with
// the arrows and picks one with Enter, and the pick writes the row's text and key
// into the box.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "host/plain_host.h"
#include "platform/database.h"
#include "screen/host_services/auto_list.h"

namespace host {

class ListRegistry;

struct ListRow {
    std::string key;
    std::string text;   // the shown column
    std::string extra;  // the second column of two-column mode
};

class PlainAutoList : public host_services::AutoList, public OpenList {
public:
    // The key of the all-option row ("ALL CUSTOMERS").
    static constexpr const char* kAllKey = "%";

    PlainAutoList(platform::ConnectionPtr connection, std::shared_ptr<ListRegistry> registry);
    ~PlainAutoList() override;

    // ---- host_services::AutoList ---------------------------------------------
    void SetOwner(host_services::AutoListOwner& owner) override { owner_ = &owner; }
    void AttachControl(platform::TextBox& box) override { box_ = &box; }
    void SetTableName(const std::string& table) override { table_ = table; }
    void SetKeyField(const std::string& field) override { keyField_ = field; }
    void SetDisplayField(const std::string& field) override { displayField_ = field; }
    void SetCaption(const std::string& caption) override { caption_ = caption; }
    void SetFilter(const std::string& filter) override { filter_ = filter; }
    void SetExtraField(const std::string& expression) override { extraField_ = expression; }
    void SetColumnWidths(const std::string& widths) override { columnWidths_ = widths; }
    void SetListMode(int mode) override { listMode_ = mode; }
    void SetLockedToList(bool locked) override { lockedToList_ = locked; }
    void SetAllOption(bool on) override { allOption_ = on; }
    void SetAllOptionText(const std::string& text) override { allOptionText_ = text; }
    void SetQuery(const std::string& sql, int hostOptionA = 0, int hostOptionB = 1) override;
    void ListKeyDown(int& keyCode, int shift, int swallowArrows) override;
    // True while the program writes into the box: ShowList then leaves the list shut.
    void SetEnabled(bool programWriting) override { programWriting_ = programWriting; }
    void ShowList(const std::string& typedText) override;
    void HideList() override { visible_ = false; }
    bool GetVisible() const override { return visible_; }
    void SetListTop(double top) override { top_ = top; }
    void SetListLeft(double left) override { left_ = left; }
    std::string GetSelectedKey() const override { return chosenKey_; }

    // ---- OpenList ----------------------------------------------------------------
    std::vector<std::string> RowTexts() const override;
    // Row from 1; a row the list does not have is refused with std::out_of_range.
    void Pick(int row) override;
    const platform::TextBox* Box() const override { return box_; }

    // ---- what a test or the host may look at ------------------------------------
    // The statement ShowList would run for the typed text.
    std::string QueryFor(const std::string& typedText) const;
    const std::vector<ListRow>& Rows() const { return rows_; }
    int SelectedRow() const override { return selected_; }
    bool ProgramWriting() const { return programWriting_; }
    platform::TextBox* AttachedBox() const { return box_; }
    const std::string& Caption() const { return caption_; }
    const std::string& ColumnWidths() const { return columnWidths_; }
    int ListMode() const { return listMode_; }
    bool LockedToList() const { return lockedToList_; }
    double ListTop() const { return top_; }
    double ListLeft() const { return left_; }

private:
    void PickSelected();

    platform::ConnectionPtr connection_;
    std::shared_ptr<ListRegistry> registry_;
    host_services::AutoListOwner* owner_ = nullptr;
    platform::TextBox* box_ = nullptr;

    std::string table_, keyField_, displayField_, caption_, filter_, extraField_, columnWidths_;
    std::string explicitQuery_;
    int listMode_ = 0;
    bool lockedToList_ = false;
    bool allOption_ = false;
    std::string allOptionText_;
    bool programWriting_ = false;

    bool visible_ = false;
    std::vector<ListRow> rows_;
    int selected_ = -1;
    std::string chosenKey_;
    double top_ = 0, left_ = 0;
};

}  // namespace host
