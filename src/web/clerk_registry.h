// The forms the server keeps, each reached only through the token it issued to the
// tab that opened it; forms left idle are closed.
#pragma once

#include <chrono>
#include <map>
#include <memory>
#include <mutex>
#include <string>

#include "web/clerk_form.h"

namespace web {

class ClerkRegistry {
public:
    explicit ClerkRegistry(std::chrono::milliseconds idleLimit) : idleLimit_(idleLimit) {}

    // A new token for the form.
    std::string Add(std::shared_ptr<ClerkForm> form);
    // The form of a token; WebRefusal 401 for a token never issued, 410 for one closed.
    std::shared_ptr<ClerkForm> Find(const std::string& token);
    // Closes the form of the token; WebRefusal as Find.
    void Close(const std::string& token);
    // Closes every form idle for longer than the limit; how many it closed.
    int CloseIdle();
    std::size_t OpenCount() const;

private:
    std::chrono::milliseconds idleLimit_;
    mutable std::mutex mutex_;
    std::map<std::string, std::shared_ptr<ClerkForm>> forms_;
    std::map<std::string, bool> closed_;  // tokens once issued and closed since
};

// 128 random bits as 32 hexadecimal digits.
std::string NewToken();

}  // namespace web
