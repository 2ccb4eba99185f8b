#include "host/auto_list.h"

#include <stdexcept>

#include "host/list_registry.h"
#include "host/sql_text.h"
#include "platform/convert.h"
#include "platform/key_codes.h"

namespace host {

namespace keys = platform::keys;

PlainAutoList::PlainAutoList(platform::ConnectionPtr connection, std::shared_ptr<ListRegistry> registry)
    : connection_(std::move(connection)), registry_(std::move(registry)) {
    registry_->Add(*this);
}

PlainAutoList::~PlainAutoList() { registry_->Remove(*this); }

void PlainAutoList::SetQuery(const std::string& sql, int, int) { explicitQuery_ = sql; }

std::string PlainAutoList::QueryFor(const std::string& typedText) const {
    std::string typed = EscapeSqlQuotes(typedText);
    // An explicit statement ends at the opening quote of its pattern.
    if (!explicitQuery_.empty()) return explicitQuery_ + typed + "%'";
    std::string sql = "Select " + keyField_ + ", " + displayField_;
    if (!extraField_.empty()) sql += ", " + extraField_;
    sql += " From " + table_ + " Where " + displayField_ + " Like N'" + typed + "%'";
    if (!filter_.empty()) sql += " And " + filter_;
    return sql + " Order By " + displayField_;
}

void PlainAutoList::ShowList(const std::string& typedText) {
    // The program is writing into the box: the list stays as it is.
    if (programWriting_) return;
    visible_ = false;
    rows_.clear();
    selected_ = -1;
    if (allOption_) rows_.push_back({kAllKey, allOptionText_, ""});

    auto rs = connection_->Execute(QueryFor(typedText));
    for (; rs && rs->IsOpen() && !rs->Eof(); rs->MoveNext()) {
        ListRow row;
        int fields = rs->FieldCount();
        row.key = platform::ToText(rs->Fields(0));
        row.text = fields > 1 ? platform::ToText(rs->Fields(1)) : row.key;
        if (fields > 2) row.extra = platform::ToText(rs->Fields(2));
        rows_.push_back(std::move(row));
    }
    if (rows_.empty()) return;  // nothing matches: no popup
    selected_ = 0;
    visible_ = true;
    registry_->Opened(*this);
}

void PlainAutoList::ListKeyDown(int& keyCode, int /*shift*/, int swallowArrows) {
    if (!visible_) return;
    switch (keyCode) {
        case keys::Up:
            if (selected_ > 0) --selected_;
            if (swallowArrows) keyCode = 0;
            break;
        case keys::Down:
            if (selected_ + 1 < static_cast<int>(rows_.size())) ++selected_;
            if (swallowArrows) keyCode = 0;
            break;
        // Enter and Escape go on to the box's own handler: the screen's Enter logic
        // runs on the text the pick has just written.
        case keys::Enter: PickSelected(); break;
        case keys::Escape: HideList(); break;
        default: break;
    }
}

std::vector<std::string> PlainAutoList::RowTexts() const {
    std::vector<std::string> texts;
    if (!visible_) return texts;
    for (const auto& row : rows_) texts.push_back(row.text);
    return texts;
}

void PlainAutoList::Pick(int row) {
    if (!visible_ || row < 1 || row > static_cast<int>(rows_.size()))
        throw std::out_of_range("the open list has no row " + std::to_string(row) + " (it has " +
                                std::to_string(visible_ ? rows_.size() : 0) + ")");
    selected_ = row - 1;
    PickSelected();
}

void PlainAutoList::PickSelected() {
    if (selected_ < 0 || selected_ >= static_cast<int>(rows_.size())) {
        HideList();
        return;
    }
    ListRow chosen = rows_[static_cast<std::size_t>(selected_)];
    chosenKey_ = chosen.key;
    if (box_) {
        // The box's Change handler asks the list to show again; while the pick writes,
        // it does not.
        bool wasWriting = programWriting_;
        programWriting_ = true;
        box_->SetText(chosen.text);
        box_->Tag = chosen.key;
        programWriting_ = wasWriting;
    }
    HideList();
    if (owner_) owner_->AutoListCallBack();
}

}  // namespace host
