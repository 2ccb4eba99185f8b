// The titles the screens give their frames, for a host's menu that opens them.
#pragma once

namespace screen {

// The frame's title in a mode of the dispatch screen; "" for a mode it does not have.
const char* DispatchModeTitle(long nMode);

inline constexpr const char* kCFormTitle = "C-Form/D-Form Receipt";

}  // namespace screen
