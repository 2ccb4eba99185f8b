// The platform's reader of settings files in the sections-and-keys text format
// ("[General]", "AbstractSP=..."), as the old GetPrivateProfileString read them:
// section and key match whatever their case, a missing file, section or key gives
// the default, and the answer is cut to the buffer the caller offers.
#pragma once

#include <cstddef>
#include <string>

namespace platform {

// The value of key in section of file, at most size - 1 characters (the old call
// kept one place of its buffer for the terminator); the default when not found.
std::string GetPrivateProfileString(const std::string& section, const std::string& key, const std::string& byDefault,
                                    std::size_t size, const std::string& file);

}  // namespace platform
