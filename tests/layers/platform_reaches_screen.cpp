// Compiled with the include path of the platform library: the first include must be
// found and the second refused, since the platform knows nothing of the form.
#include "platform/value.h"
#include "screen/host_services/host_global.h"
