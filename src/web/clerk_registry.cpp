#include "web/clerk_registry.h"

#include <fmt/format.h>

#include <random>
#include <vector>

#include "web/web_refusal.h"

namespace web {

std::string NewToken() {
    static std::mutex mutex;
    static std::random_device device;
    std::lock_guard lock(mutex);
    std::string token;
    for (int i = 0; i < 4; ++i) token += fmt::format("{:08x}", device());
    return token;
}

std::string ClerkRegistry::Add(std::shared_ptr<ClerkForm> form) {
    std::string token = NewToken();
    std::lock_guard lock(mutex_);
    forms_.emplace(token, std::move(form));
    return token;
}

std::shared_ptr<ClerkForm> ClerkRegistry::Find(const std::string& token) {
    std::lock_guard lock(mutex_);
    if (auto it = forms_.find(token); it != forms_.end()) return it->second;
    if (closed_.contains(token)) throw WebRefusal(410, "this form has been closed");
    throw WebRefusal(401, "no form has this token");
}

void ClerkRegistry::Close(const std::string& token) {
    std::shared_ptr<ClerkForm> form;
    {
        std::lock_guard lock(mutex_);
        auto it = forms_.find(token);
        if (it == forms_.end()) {
            if (closed_.contains(token)) throw WebRefusal(410, "this form has been closed");
            throw WebRefusal(401, "no form has this token");
        }
        form = std::move(it->second);
        forms_.erase(it);
        closed_[token] = true;
    }
    // The form closes (and its thread ends) outside the lock, when the last call
    // holding it is done.
    form.reset();
}

int ClerkRegistry::CloseIdle() {
    std::vector<std::shared_ptr<ClerkForm>> idle;
    {
        std::lock_guard lock(mutex_);
        const auto now = ClerkForm::Clock::now();
        for (auto it = forms_.begin(); it != forms_.end();) {
            if (now - it->second->LastUsed() > idleLimit_) {
                closed_[it->first] = true;
                idle.push_back(std::move(it->second));
                it = forms_.erase(it);
            } else {
                ++it;
            }
        }
    }
    return static_cast<int>(idle.size());
}

std::size_t ClerkRegistry::OpenCount() const {
    std::lock_guard lock(mutex_);
    return forms_.size();
}

}  // namespace web
