#include "session/today.h"

#include <ctime>

#include "platform/convert.h"

namespace session {

platform::Date Today() {
    std::time_t now = std::time(nullptr);
    std::tm local{};
    localtime_r(&now, &local);
    return platform::DateSerial(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday);
}

}  // namespace session
