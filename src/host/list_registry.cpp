#include "host/list_registry.h"

#include <algorithm>

#include "host/auto_list.h"

namespace host {

void ListRegistry::Add(PlainAutoList& list) { lists_.push_back(&list); }

void ListRegistry::Remove(PlainAutoList& list) { std::erase(lists_, &list); }

void ListRegistry::Opened(PlainAutoList& list) {
    for (auto* other : lists_)
        if (other != &list && other->GetVisible()) other->HideList();
}

PlainAutoList* ListRegistry::Visible() const {
    auto it = std::find_if(lists_.begin(), lists_.end(), [](const PlainAutoList* list) { return list->GetVisible(); });
    return it == lists_.end() ? nullptr : *it;
}

}  // namespace host
