// Posting a dispatch to accounts: the customer is debited and sales credited with
// the dispatch's value (its lines, base quantity times base price), two rows of JournalPostings written on the caller's
// connection inside the caller's transaction, so that a save that fails later
// takes the posting back with it. A cancellation posts the reverse.
#pragma once

#include <string>

#include "host/settings.h"
#include "platform/database.h"
#include "screen/host_services/host_saving.h"

namespace host {

class PlainJournal : public host_services::JournalService {
public:
    PlainJournal(platform::Connection& connection, const Settings& settings)
        : connection_(connection), settings_(settings) {}

    // Posts on the dispatch's own date.
    bool Journal(long nCounter, long nDispatchID, std::string& szError) override;
    bool Journal(long nCounter, long nDispatchID, std::string& szError, platform::Date dtPostDate) override;

private:
    bool Post(long counter, long dispatchID, std::string& error, const platform::Date* postDate);

    platform::Connection& connection_;
    const Settings& settings_;
};

}  // namespace host
