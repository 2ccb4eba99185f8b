// The type-ahead lists of the running screens. Only one popup stands open at a
// time: opening one closes the others, and the host can tell which is open.
#pragma once

#include <vector>

namespace host {

class PlainAutoList;

class ListRegistry {
public:
    void Add(PlainAutoList& list);
    void Remove(PlainAutoList& list);
    // The list has opened: every other list is hidden.
    void Opened(PlainAutoList& list);
    // The open list, or nullptr.
    PlainAutoList* Visible() const;

private:
    std::vector<PlainAutoList*> lists_;
};

}  // namespace host
