// Files for tests, in a folder of the test process's own that goes when the process
// ends. A name is never reused, not even by a later process with the same id, so no
// test can meet another's leftover database or its -wal and -shm companions.
#pragma once

#include <string>

namespace test_support {

// A path in the process's scratch folder: stem, a number of its own, suffix.
std::string ScratchPath(const std::string& stem, const std::string& suffix = "");

}  // namespace test_support
