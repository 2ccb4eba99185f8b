// The date of today on this machine, without a time: what a host hands a screen as
// its server date when nobody says otherwise.
#pragma once

#include "platform/value.h"

namespace session {

platform::Date Today();

}  // namespace session
