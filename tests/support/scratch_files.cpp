#include "support/scratch_files.h"

#include <atomic>
#include <filesystem>

#include "platform/private_folder.h"

namespace test_support {

std::string ScratchPath(const std::string& stem, const std::string& suffix) {
    static platform::PrivateFolder folder("dispatch-test");
    static const std::filesystem::path root = folder.Path();
    static std::atomic<int> counter{0};
    return (root / (stem + "-" + std::to_string(++counter) + suffix)).string();
}

}  // namespace test_support
