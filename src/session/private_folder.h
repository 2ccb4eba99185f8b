// A folder of the session's own under the system's temporary folder, removed with
// everything in it when the session ends.
#pragma once

#include <filesystem>

namespace session {

class PrivateFolder {
public:
    PrivateFolder() = default;
    ~PrivateFolder();
    PrivateFolder(const PrivateFolder&) = delete;
    PrivateFolder& operator=(const PrivateFolder&) = delete;

    // Created on first use; throws std::runtime_error when it cannot be.
    const std::filesystem::path& Path();

private:
    std::filesystem::path path_;
};

}  // namespace session
