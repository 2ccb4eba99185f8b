// An event of a control: the form connects its handler, a helper of the host (a
// type-ahead list following a box) may connect its own; raising calls them in the
// order they were connected.
#pragma once

#include <functional>
#include <vector>

namespace platform {

template <class... Args>
class Event {
public:
    using Handler = std::function<void(Args...)>;

    void Connect(Handler handler) { handlers_.push_back(std::move(handler)); }
    void DisconnectAll() { handlers_.clear(); }
    bool Connected() const { return !handlers_.empty(); }

    void Raise(Args... args) const {
        // A handler may connect another while running; walk a copy.
        auto handlers = handlers_;
        for (auto& handler : handlers) handler(args...);
    }

private:
    std::vector<Handler> handlers_;
};

}  // namespace platform
