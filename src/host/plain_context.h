// The object the host hands to the screen at entry.
#pragma once

#include "screen/host_services/host_context.h"

namespace host {

class PlainContext : public host_services::HostContext {
public:
    // The plain host reads its day-close switch live from the settings, so there is
    // nothing to reload; the count lets a caller see that the screen asked.
    void GetClosedayChecking() override { ++refreshes_; }
    int Refreshes() const { return refreshes_; }

private:
    int refreshes_ = 0;
};

}  // namespace host
