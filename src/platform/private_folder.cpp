#include "platform/private_folder.h"

#include <cerrno>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string>
#include <system_error>

namespace platform {

PrivateFolder::~PrivateFolder() {
    if (path_.empty()) return;
    std::error_code ignored;  // nothing useful to do about a leftover temporary folder
    std::filesystem::remove_all(path_, ignored);
}

const std::filesystem::path& PrivateFolder::Path() {
    if (!path_.empty()) return path_;
    std::string pattern = (std::filesystem::temp_directory_path() / (prefix_ + "-XXXXXX")).string();
    if (::mkdtemp(pattern.data()) == nullptr)
        throw std::runtime_error("cannot create a temporary folder: " + std::string(std::strerror(errno)));
    path_ = pattern;
    return path_;
}

}  // namespace platform
