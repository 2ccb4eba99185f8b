// List boxes and combo boxes: entries from 0, the index with its Click, the ticks
// of a list with check boxes.
#include "platform/controls.h"
#include "platform/runtime_error.h"

namespace platform {
namespace {
constexpr long kInvalidArrayIndex = 381;
}  // namespace

void ListControl::AddItem(std::string text, long itemData) {
    entries_.push_back(ListEntry{std::move(text), itemData, false});
}

void ListControl::RemoveItem(int index) {
    if (index < 0 || index >= ListCount()) throw RuntimeError(err::InvalidCall);
    entries_.erase(entries_.begin() + index);
    // The selection follows its entry; removing the selected entry leaves none. The
    // runtime raised no Click for either.
    if (index < listIndex_) {
        --listIndex_;
    } else if (index == listIndex_) {
        listIndex_ = -1;
        OnIndexChanged();
    }
}

void ListControl::Clear() {
    entries_.clear();
    listIndex_ = -1;
    OnIndexChanged();
}

const std::string& ListControl::List(int index) const {
    // List(ListIndex) with nothing selected reads as empty text, as the runtime's
    // lists always answered; any other index outside the list is error 381.
    static const std::string kNoEntry;
    if (index == -1) return kNoEntry;
    if (index < 0 || index >= ListCount()) throw RuntimeError(kInvalidArrayIndex);
    return entries_[static_cast<std::size_t>(index)].text;
}

long ListControl::ItemData(int index) const {
    if (index < 0 || index >= ListCount()) throw RuntimeError(kInvalidArrayIndex);
    return entries_[static_cast<std::size_t>(index)].itemData;
}

void ListControl::SetListIndex(int index) {
    if (index < -1 || index >= ListCount()) throw RuntimeError(err::InvalidPropertyValue);
    if (index == listIndex_) return;
    listIndex_ = index;
    OnIndexChanged();
    Click.Raise();
}

void ComboBox::SetText(std::string text) {
    if (text == text_) return;
    text_ = std::move(text);
    Change.Raise();
}

// The edit part shows the chosen entry; with no entry chosen it is empty. The
// runtime raised Click for the move, not Change.
void ComboBox::OnIndexChanged() {
    text_ = listIndex_ >= 0 ? entries_[static_cast<std::size_t>(listIndex_)].text : std::string();
}

bool ListBox::Selected(int index) const {
    if (index < 0 || index >= ListCount()) throw RuntimeError(kInvalidArrayIndex);
    if (CheckBoxes) return entries_[static_cast<std::size_t>(index)].selected;
    return index == listIndex_;
}

void ListBox::SetSelected(int index, bool selected) {
    if (index < 0 || index >= ListCount()) throw RuntimeError(kInvalidArrayIndex);
    if (CheckBoxes) {
        auto& entry = entries_[static_cast<std::size_t>(index)];
        if (entry.selected == selected) return;
        entry.selected = selected;
        ItemCheck.Raise(index);
        return;
    }
    // A plain list has one selection: its index.
    if (selected && listIndex_ != index) SetListIndex(index);
    if (!selected && listIndex_ == index) SetListIndex(-1);
}

}  // namespace platform
