// The list view: items and sub-items numbered from 1, as the common controls
// numbered them, error 35600 for an index outside.
#include "platform/controls.h"
#include "platform/runtime_error.h"

namespace platform {
namespace {
constexpr long kIndexOutOfBounds = 35600;

void CheckSubItemIndex(int index) {
    if (index < 1) throw RuntimeError(kIndexOutOfBounds);
}
}  // namespace

std::string ListItem::SubItem(int index) const {
    CheckSubItemIndex(index);
    auto at = static_cast<std::size_t>(index - 1);
    return at < SubItems.size() ? SubItems[at].text : std::string();
}

void ListItem::SetSubItem(int index, std::string text) {
    CheckSubItemIndex(index);
    auto at = static_cast<std::size_t>(index - 1);
    if (at >= SubItems.size()) SubItems.resize(at + 1);
    SubItems[at].text = std::move(text);
}

std::string ListItem::SubItemTag(int index) const {
    CheckSubItemIndex(index);
    auto at = static_cast<std::size_t>(index - 1);
    return at < SubItems.size() ? SubItems[at].tag : std::string();
}

void ListItem::SetSubItemTag(int index, std::string tag) {
    CheckSubItemIndex(index);
    auto at = static_cast<std::size_t>(index - 1);
    if (at >= SubItems.size()) SubItems.resize(at + 1);
    SubItems[at].tag = std::move(tag);
}

ListItem& ListView::Add(std::string text) {
    ListItem item;
    item.Text = std::move(text);
    items_.push_back(std::move(item));
    return items_.back();
}

ListItem& ListView::Item(int index) {
    if (index < 1 || index > Count()) throw RuntimeError(kIndexOutOfBounds);
    return items_[static_cast<std::size_t>(index - 1)];
}

const ListItem& ListView::Item(int index) const {
    if (index < 1 || index > Count()) throw RuntimeError(kIndexOutOfBounds);
    return items_[static_cast<std::size_t>(index - 1)];
}

void ListView::Remove(int index) {
    if (index < 1 || index > Count()) throw RuntimeError(kIndexOutOfBounds);
    items_.erase(items_.begin() + (index - 1));
}

void ListView::Clear() { items_.clear(); }

int ListView::SelectedIndex() const {
    for (int i = 0; i < Count(); ++i)
        if (items_[static_cast<std::size_t>(i)].Selected) return i + 1;
    return 0;
}

// 0 takes the selection away; any other index outside the items is refused.
void ListView::Select(int index) {
    if (index < 0 || index > Count()) throw RuntimeError(kIndexOutOfBounds);
    for (int i = 0; i < Count(); ++i) items_[static_cast<std::size_t>(i)].Selected = (i + 1 == index);
}

int ListView::FindItem(const std::string& text) const {
    for (int i = 0; i < Count(); ++i)
        if (items_[static_cast<std::size_t>(i)].Text == text) return i + 1;
    return 0;
}

}  // namespace platform
