// A folder of the process's own under the system's temporary folder, removed with
// everything in it when the owner goes.
#pragma once

#include <filesystem>
#include <string>
#include <utility>

namespace platform {

class PrivateFolder {
public:
    // The folder's name starts with the prefix, as "dispatch-session".
    explicit PrivateFolder(std::string prefix) : prefix_(std::move(prefix)) {}
    ~PrivateFolder();
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;

    // Created on first use; throws std::runtime_error when it cannot be.
    const std::filesystem::path& Path();

private:
    std::string prefix_;
    std::filesystem::path path_;
};

}  // namespace platform
