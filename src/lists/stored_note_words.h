// The two small rules of the stored notes' list that the screen keeps apart from the
// list itself: the status word a note reads with, and the prefix a look-up by number
// sends.
#pragma once

#include <string>

#include "screen/host_services/host_documents.h"
#include "screen/host_services/host_messages.h"

namespace screen::lists {

// The word for a note's Status bits; bInvoiced tells a note with none of the bits
// that it is closed rather than pending.
std::string DispatchStatusText(host_services::HostMessages& messages, long nStatus, bool bInvoiced);

// The prefix of a range typed as "DN41" to "DN45": the lead of the first end as
// typed, when both ends lead with the same letters ignoring case; empty when both are
// plain numbers or the leads differ.
std::string LookUpPrefix(host_services::HostDocuments& documents, const std::string& szFrom, const std::string& szTo);

}  // namespace screen::lists
