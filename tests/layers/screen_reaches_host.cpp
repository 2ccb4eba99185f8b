// Compiled with the include path of the form's library: the first include must be
// found and the second refused, since the form never names the plain host.
#include "host/plain_global.h"
#include "screen/host_services/host_global.h"
